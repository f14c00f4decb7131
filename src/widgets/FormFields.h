#pragma once

#include "widgets/FormState.h"

#include <QJsonValue>
#include <QMetaMethod>
#include <QPointer>
#include <QString>

#include <vector>

/// The fields of a form and their values as JSON.
namespace KVCAM::UIAPI::FormFields {

/// In which unit a length is read. One unit for all makes values comparable.
enum class LengthUnit
{
    Fixed,
    OfTheField ///< as the user sees it, for files
};

/// How the value of a kind of widget is saved.
struct Access
{
    QJsonValue (*read)(QObject const &, LengthUnit);
    bool (*accepts)(QObject const &, QJsonValue const &); ///< whether the value has the type of this field
    void (*write)(QObject &, QJsonValue const &);         ///< an accepted value
    std::vector<QMetaMethod> (*changes)(QObject const &); ///< the signals of a change
};

struct Field
{
    QString name;
    QPointer<QObject> object; ///< a widget or a button group
    Access const * access;
};

/// What is found in a form, in the order of its widgets.
struct Survey
{
    std::vector<Field> fields;
    std::vector<Ext::FormFinding> findings;
};

Survey survey(QWidget const & form);

} // namespace KVCAM::UIAPI::FormFields
