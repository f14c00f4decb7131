#include "widgets/FormPersistence.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QJsonValue>
#include <QLineEdit>
#include <QPointer>
#include <QVector>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace KVCAM::UIAPI::FormPersistence {
namespace {

// Safe: the class name was compared, so the object has the row's type.
template <class Widget>
Widget & as(QObject & object)
{
    return static_cast<Widget &>(object);
}

QJsonValue lineText(QObject & object)
{
    return as<QLineEdit>(object).text();
}

void setLineText(QObject & object, QJsonValue const & value)
{
    as<QLineEdit>(object).setText(value.toString());
}

QJsonValue comboText(QObject & object)
{
    return as<QComboBox>(object).currentText();
}

void setComboText(QObject & object, QJsonValue const & value)
{
    as<QComboBox>(object).setCurrentText(value.toString());
}

QJsonValue checked(QObject & object)
{
    return as<QCheckBox>(object).isChecked();
}

void setChecked(QObject & object, QJsonValue const & value)
{
    as<QCheckBox>(object).setChecked(value.toBool(false));
}

// Saved by id, restored by position: these agree only if the ids are 0, 1, 2, ...
QJsonValue checkedId(QObject & object)
{
    return as<QButtonGroup>(object).checkedId();
}

void checkButtonAt(QObject & object, QJsonValue const & value)
{
    QList<QAbstractButton *> const buttons = as<QButtonGroup>(object).buttons();
    int const index = value.toInt(0);
    if (index >= 0 && index < buttons.size()) {
        buttons.at(index)->setChecked(true);
    }
}

struct Row
{
    char const * className;
    QJsonValue (*read)(QObject &);
    void (*restore)(QObject &, QJsonValue const &);
};

constexpr Row rows[] = {
    {"QLineEdit", lineText, setLineText},       {"KVCAM::UIAPI::KVLineEdit", lineText, setLineText},
    {"QComboBox", comboText, setComboText},     {"QCheckBox", checked, setChecked},
    {"QButtonGroup", checkedId, checkButtonAt},
};

// The exact name: a subclass with its own class name has no row.
Row const * rowOf(QObject const * object)
{
    if (object == nullptr) {
        return nullptr;
    }
    char const * const name = object->metaObject()->className();
    auto const * const found = std::find_if(std::begin(rows), std::end(rows), [name](Row const & row) {
        return std::strcmp(row.className, name) == 0;
    });
    return found == std::end(rows) ? nullptr : found;
}

} // namespace

void read(QList<QObject *> const & widgets, QJsonObject & json)
{
    for (QObject * object : widgets) {
        Row const * const row = rowOf(object);
        if (row != nullptr && !object->objectName().isEmpty()) {
            json.insert(object->objectName(), row->read(*object));
        }
    }
}

void write(QJsonObject const & json, QList<QObject *> const & widgets)
{
    QVector<QPointer<QObject>> const guarded(widgets.cbegin(), widgets.cend());
    for (QPointer<QObject> const & object : guarded) {
        Row const * const row = rowOf(object.data());
        if (row == nullptr) {
            continue;
        }
        auto const member = json.constFind(object->objectName());
        if (member != json.constEnd()) {
            row->restore(*object, *member);
        }
    }
}

} // namespace KVCAM::UIAPI::FormPersistence
