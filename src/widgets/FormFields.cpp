#include "widgets/FormFields.h"

#include "widgets/FormValues.h"
#include "widgets/KVInputKinds.h"
#include "widgets/KVLengthEdit.h"
#include "widgets/KVLineEdit.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QJsonObject>
#include <QLineEdit>
#include <QMetaProperty>
#include <QScrollArea>
#include <QTabBar>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>

namespace KVCAM::UIAPI::FormFields {
namespace {

QLatin1String const textKey("text");
QLatin1String const unitKey("unit");
QLatin1String const dataKey("data");
QLatin1String const inchName("inch");
QLatin1String const millimetreName("mm");

// --- Button groups ------------------------------------------------------------------------------------

QButtonGroup * groupOf(QWidget const & widget)
{
    auto const * const button = qobject_cast<QAbstractButton const *>(&widget);
    QButtonGroup * const group = button == nullptr ? nullptr : button->group();
    return group != nullptr && group->exclusive() && !group->objectName().isEmpty() ? group : nullptr;
}

constexpr int noId = -1;

QJsonValue readGroup(QObject const & object, LengthUnit)
{
    return static_cast<QButtonGroup const &>(object).checkedId();
}

bool isId(QObject const &, QJsonValue const & value)
{
    return value.isDouble() && value.toInt(0) == value.toInt(1); // the default shows through
}

void checkId(QObject & object, QJsonValue const & value)
{
    auto & group = static_cast<QButtonGroup &>(object);
    int const id = value.toInt();
    if (QAbstractButton * const button = group.button(id)) {
        button->setChecked(true);
    } else if (QAbstractButton * const checked = group.checkedButton(); id == noId && checked != nullptr) {
        group.setExclusive(false); // which keeps one button checked
        QPointer<QButtonGroup> const alive(&group);
        checked->setChecked(false);
        if (alive) {
            group.setExclusive(true);
        }
    }
}

std::vector<QMetaMethod> groupSignals(QObject const &)
{
    return {QMetaMethod::fromSignal(QOverload<QAbstractButton *, bool>::of(&QButtonGroup::buttonToggled))};
}

// --- Fields with a unit -------------------------------------------------------------------------------

QJsonValue readTracked(QObject const & object, LengthUnit)
{
    auto const & field = static_cast<KVLineEdit const &>(object);
    QString const text = field.typed();
    QJsonObject value{{textKey, text}};
    if (!text.isEmpty()) {
        value.insert(unitKey, field.typedUnit() == Ext::Unit::Inch ? inchName : millimetreName);
    }
    return value;
}

bool isTracked(QObject const &, QJsonValue const & value)
{
    QJsonValue const text = value.toObject().value(textKey);
    QString const unit = value.toObject().value(unitKey).toString();
    return text.isString() && (text.toString().isEmpty() || unit == inchName || unit == millimetreName);
}

void writeTracked(QObject & object, QJsonValue const & value)
{
    QJsonObject const typed = value.toObject();
    bool const inch = typed.value(unitKey).toString() == inchName;
    static_cast<KVLineEdit &>(object).setTyped(typed.value(textKey).toString(),
                                               inch ? Ext::Unit::Inch : Ext::Unit::Millimetre);
}

std::vector<QMetaMethod> textSignals(QObject const &)
{
    return {QMetaMethod::fromSignal(&QLineEdit::textChanged)};
}

// --- Combo boxes --------------------------------------------------------------------------------------

QJsonValue dataOf(QComboBox const & combo, int index)
{
    QVariant const data = combo.itemData(index);
    return data.isValid() && FormValues::isSupported(data) ? FormValues::toJson(data, false) : QJsonValue();
}

QJsonValue readCombo(QObject const & object, LengthUnit)
{
    auto const & combo = static_cast<QComboBox const &>(object);
    QJsonObject value{{textKey, combo.currentText()}};
    int const index = combo.currentIndex();
    // In an editable one the text may be the user's own.
    if (QJsonValue const data = dataOf(combo, index);
        !data.isNull() && combo.itemText(index) == combo.currentText()) {
        value.insert(dataKey, data);
    }
    return value;
}

bool isChoice(QObject const &, QJsonValue const & value)
{
    return value.toObject().value(textKey).isString();
}

void choose(QObject & object, QJsonValue const & value)
{
    auto & combo = static_cast<QComboBox &>(object);
    QJsonValue const data = value.toObject().value(dataKey);
    QString const text = value.toObject().value(textKey).toString();
    for (int i = 0; !data.isUndefined() && i < combo.count(); ++i) {
        if (dataOf(combo, i) == data) {
            return combo.setCurrentIndex(i);
        }
    }
    int const index = combo.findText(text);
    if (index >= 0 || (text.isEmpty() && !combo.isEditable())) {
        combo.setCurrentIndex(index);
    } else if (combo.isEditable()) {
        combo.setEditText(text);
    }
}

std::vector<QMetaMethod> choiceSignals(QObject const &)
{
    return {QMetaMethod::fromSignal(&QComboBox::currentTextChanged),
            QMetaMethod::fromSignal(QOverload<int>::of(&QComboBox::currentIndexChanged))};
}

// --- Any widget with a USER property ------------------------------------------------------------------

QMetaProperty userProperty(QObject const & object)
{
    return object.metaObject()->userProperty();
}

// An enumeration is saved as its number.
QVariant valueOf(QObject const & object)
{
    QMetaProperty const property = userProperty(object);
    QVariant const value = property.read(&object);
    return property.isEnumType() ? QVariant(value.toInt()) : value;
}

QJsonValue readProperty(QObject const & object, LengthUnit wanted)
{
    QVariant const unit = object.property("unit"); // of a field for lengths
    bool const inch = wanted == LengthUnit::OfTheField && unit.userType() == qMetaTypeId<Ext::Unit>() &&
                      unit.value<Ext::Unit>() == Ext::Unit::Inch;
    return FormValues::toJson(valueOf(object), inch);
}

bool isOfPropertysType(QObject const & object, QJsonValue const & value)
{
    return FormValues::fromJson(value, valueOf(object)).has_value();
}

void writeProperty(QObject & object, QJsonValue const & value)
{
    if (auto const read = FormValues::fromJson(value, valueOf(object))) {
        userProperty(object).write(&object, *read);
    }
}

std::vector<QMetaMethod> propertySignals(QObject const & object)
{
    return {userProperty(object).notifySignal()};
}

// --- Fields for lengths -------------------------------------------------------------------------------

// A field without a value must not come back as 0.
QJsonValue readLength(QObject const & object, LengthUnit wanted)
{
    return static_cast<KVLengthEdit const &>(object).hasValue() ? readProperty(object, wanted) : QJsonValue();
}

bool isLengthOrNone(QObject const & object, QJsonValue const & value)
{
    return value.isNull() || isOfPropertysType(object, value);
}

void writeLength(QObject & object, QJsonValue const & value)
{
    auto & field = static_cast<KVLengthEdit &>(object);
    if (!value.isNull()) {
        writeProperty(object, value);
    } else if (field.hasValue()) {
        field.clearValue();
    }
}

constexpr Access groupAccess{readGroup, isId, checkId, groupSignals};
constexpr Access trackedAccess{readTracked, isTracked, writeTracked, textSignals};
constexpr Access comboAccess{readCombo, isChoice, choose, choiceSignals};
constexpr Access lengthAccess{readLength, isLengthOrNone, writeLength, propertySignals};
constexpr Access propertyAccess{readProperty, isOfPropertysType, writeProperty, propertySignals};

// --- Walking through a form ---------------------------------------------------------------------------

bool isSecret(QWidget const & widget)
{
    auto const * const edit = qobject_cast<QLineEdit const *>(&widget);
    return edit != nullptr && edit->echoMode() != QLineEdit::Normal;
}

// Buttons and group boxes have a value only if they can be checked.
bool isInert(QWidget const & widget)
{
    auto const * const button = qobject_cast<QAbstractButton const *>(&widget);
    auto const * const box = qobject_cast<QGroupBox const *>(&widget);
    return isSecret(widget) || (button != nullptr && !button->isCheckable()) ||
           (box != nullptr && !box->isCheckable());
}

// Null for a widget without a value.
Access const * accessOf(QWidget const & widget)
{
    if (isInert(widget)) {
        return nullptr;
    }
    auto const * const field = qobject_cast<KVLineEdit const *>(&widget);
    InputKind const * const kind = field == nullptr ? nullptr : inputKind(field->kind());
    if (kind != nullptr && kind->tracking != UnitTracking::None) {
        return &trackedAccess;
    }
    if (qobject_cast<KVLengthEdit const *>(&widget) != nullptr) {
        return &lengthAccess;
    }
    if (qobject_cast<QComboBox const *>(&widget) != nullptr) {
        return &comboAccess;
    }
    QMetaProperty const property = userProperty(widget);
    bool const isSaved = property.isValid() && property.isReadable() && property.isWritable() &&
                         FormValues::isSupported(valueOf(widget));
    return isSaved ? &propertyAccess : nullptr;
}

bool takesInput(QWidget const & widget)
{
    bool const isContainer = qobject_cast<QScrollArea const *>(&widget) != nullptr ||
                             qobject_cast<QTabBar const *>(&widget) != nullptr ||
                             qobject_cast<QGroupBox const *>(&widget) != nullptr;
    // The fields of a composed widget count by themselves.
    bool const isComposed = qobject_cast<QAbstractScrollArea const *>(&widget) == nullptr &&
                            (widget.focusProxy() != nullptr || widget.findChild<QWidget *>() != nullptr);
    return !isInert(widget) && !isContainer && !isComposed && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

class Surveyor
{
public:
    void walk(QWidget const & parent)
    {
        for (QObject * object : parent.children()) {
            auto * const widget = qobject_cast<QWidget *>(object);
            if (widget != nullptr && !widget->isWindow() && !isLeftOut(*widget)) {
                visit(*widget);
            }
        }
    }

    Survey survey;

private:
    static bool isLeftOut(QObject const & object)
    {
        return object.property(Ext::FormState::leaveOutProperty).toBool();
    }

    void visit(QWidget & widget)
    {
        if (QButtonGroup * const group = groupOf(widget)) {
            if (!isLeftOut(*group) && m_groups.insert(group).second) {
                add(*group, groupAccess);
            }
            return;
        }
        Access const * const access = accessOf(widget);
        if (access != nullptr) {
            add(widget, *access);
        } else if (takesInput(widget)) {
            report(widget, Ext::FormFindingKind::Unsupported, "has no value that can be saved.");
        }
        // What is inside another field, a list or a table is the widget's own.
        if (auto const * const area = qobject_cast<QAbstractScrollArea const *>(&widget)) {
            auto const * const scrolls = qobject_cast<QScrollArea const *>(area);
            if (scrolls != nullptr && scrolls->widget() != nullptr) {
                walk(*area->viewport());
            }
        } else if (access == nullptr || qobject_cast<QGroupBox const *>(&widget) != nullptr) {
            walk(widget);
        }
    }

    void add(QObject & object, Access const & access)
    {
        QString const name = object.objectName();
        if (name.isEmpty()) {
            report(object, Ext::FormFindingKind::Unnamed, "has no object name and is not saved.");
        } else if (!m_names.insert(name).second) {
            report(object, Ext::FormFindingKind::DuplicateName,
                   "has the name of an earlier one and is not saved.");
        } else {
            survey.fields.push_back({name, &object, &access});
        }
    }

    void report(QObject const & object, Ext::FormFindingKind kind, char const * text)
    {
        QString const type = QLatin1String(object.metaObject()->className());
        QString const name = object.objectName();
        survey.findings.push_back({name.isEmpty() ? type : name, kind,
                                   QStringLiteral("The %1 \"%2\" %3").arg(type, name, QLatin1String(text))});
    }

    std::set<QString> m_names;
    std::set<QObject const *> m_groups;
};

} // namespace

Survey survey(QWidget const & form)
{
    Surveyor surveyor;
    surveyor.walk(form);
    return std::move(surveyor.survey);
}

} // namespace KVCAM::UIAPI::FormFields
