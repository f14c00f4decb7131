#include "widgets/FormState.h"

#include "support/WholeFile.h"
#include "widgets/FormFields.h"

#include <QHash>
#include <QJsonDocument>
#include <QMetaMethod>
#include <QPointer>
#include <QScopeGuard>
#include <QWidget>

#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

using FormFields::LengthUnit;

QLatin1String const formatKey("format");
QLatin1String const versionKey("version");
QLatin1String const fieldsKey("fields");
QLatin1String const formatName("uiapi-form");

} // namespace

struct FormState::Private
{
    QPointer<QWidget> form;
    QJsonObject defaults;
    QJsonObject saved; ///< the values that are not dirty
    QJsonObject last;  ///< the values when a change was last looked for
    QHash<QObject const *, FormFields::Field> watched;
    bool isRestoring = false;

    std::vector<FormFields::Field> fields() const
    {
        return form ? FormFields::survey(*form).fields : std::vector<FormFields::Field>();
    }

    QJsonObject values(LengthUnit unit = LengthUnit::Fixed) const
    {
        QJsonObject values;
        for (FormFields::Field const & field : fields()) {
            values.insert(field.name, field.access->read(*field.object, unit));
        }
        return values;
    }
};

FormState::FormState(QWidget * form, QObject * parent) : QObject(parent), d(new Private)
{
    d->form = form;
    refresh();
}

FormState::~FormState()
{
    delete d;
}

void FormState::refresh()
{
    QMetaMethod const slot = staticMetaObject.method(staticMetaObject.indexOfSlot("noteChange()"));
    for (FormFields::Field const & field : d->fields()) {
        if (!d->defaults.contains(field.name)) {
            QJsonValue const value = field.access->read(*field.object, LengthUnit::Fixed);
            for (QJsonObject * values : {&d->defaults, &d->saved, &d->last}) {
                values->insert(field.name, value);
            }
        }
        d->watched.insert(field.object, field);
        for (QMetaMethod const & signal : field.access->changes(*field.object)) {
            if (signal.isValid()) {
                connect(field.object, signal, this, slot, Qt::UniqueConnection);
            }
        }
    }
}

QJsonObject FormState::toJson() const
{
    return {{formatKey, formatName}, {versionKey, version}, {fieldsKey, d->values(LengthUnit::OfTheField)}};
}

Result FormState::fromJson(QJsonObject const & json)
{
    QJsonValue const values = json.value(fieldsKey);
    if (json.value(formatKey) != formatName || !values.isObject()) {
        return {false, tr("This is not a saved form.")};
    }
    if (json.value(versionKey) != version) {
        return {false, tr("The form was saved in another version than %1.").arg(version)};
    }
    QJsonObject const wanted = values.toObject();
    for (FormFields::Field const & field : d->fields()) {
        auto const value = wanted.constFind(field.name);
        if (value != wanted.constEnd() && !field.access->accepts(*field.object, *value)) {
            return {false, tr("The value of \"%1\" is of a wrong type.").arg(field.name)};
        }
    }
    restore(wanted);
    return {};
}

void FormState::restore(QJsonObject const & values)
{
    QPointer<FormState> const alive(this); // a slot may delete it, and the form
    {
        bool const was = std::exchange(d->isRestoring, true);
        auto const end = qScopeGuard([&] {
            if (alive) {
                d->isRestoring = was;
            }
        });
        // Twice: slots of one field may set others.
        for (int pass = 0; pass < 2; ++pass) {
            for (FormFields::Field const & field : alive ? d->fields() : std::vector<FormFields::Field>()) {
                auto const value = values.constFind(field.name);
                if (alive && field.object && value != values.constEnd() &&
                    field.access->read(*field.object, LengthUnit::Fixed) != *value) {
                    field.access->write(*field.object, *value);
                }
            }
        }
    }
    if (!alive) {
        return;
    }
    QJsonObject now = d->values();
    if (now != d->last) {
        d->last = std::move(now);
        emit changed();
    }
}

Result FormState::save(QString const & path)
{
    QJsonObject values = d->values();
    Result const written = WholeFile::replace(path, QJsonDocument(toJson()).toJson());
    if (!written) {
        return {false, tr("The form cannot be saved in \"%1\": %2").arg(path, written.reason)};
    }
    d->saved = std::move(values);
    return {};
}

Result FormState::load(QString const & path)
{
    WholeFile::ReadResult const file = WholeFile::readJson(path);
    if (file.status != WholeFile::ReadStatus::Ok) {
        return {false, tr("The form cannot be read from \"%1\": %2").arg(path, file.reason)};
    }
    QPointer<FormState> const alive(this);
    Result result = fromJson(file.document.object());
    if (alive && result) {
        d->saved = d->values();
    }
    return result;
}

bool FormState::isDirty() const
{
    return d->values() != d->saved;
}

void FormState::resetToDefaults()
{
    restore(d->defaults);
}

std::vector<FormFinding> FormState::audit(QWidget const & form)
{
    return FormFields::survey(form).findings;
}

// Only the sender is read: a form of a thousand fields switches its unit in a thousand of these.
void FormState::noteChange()
{
    auto const watched = d->watched.constFind(sender());
    if (d->isRestoring || watched == d->watched.constEnd() || !watched->object) {
        return;
    }
    QJsonValue const value = watched->access->read(*watched->object, LengthUnit::Fixed);
    if (value != d->last.value(watched->name)) {
        d->last.insert(watched->name, value);
        emit changed();
    }
}

} // namespace KVCAM::UIAPI::Ext
