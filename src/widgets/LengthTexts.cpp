#include "widgets/LengthTexts.h"

#include "units/Evaluate.h"
#include "units/Unit.h"

#include <QObject>
#include <QtGlobal>

#include <utility>

namespace KVCAM::UIAPI::LengthTexts {

QString write(Ext::Length length, Ext::Length none)
{
    if (length == none) {
        return {};
    }
    QString shortest;
    for (auto const & [unit, scale] : {std::pair(Ext::Unit::Inch, Ext::LengthScale::Small),
                                       {Ext::Unit::Millimetre, Ext::LengthScale::Large},
                                       {Ext::Unit::Millimetre, Ext::LengthScale::Small},
                                       {Ext::Unit::Inch, Ext::LengthScale::Large}}) {
        QString const text = length.textWithUnit(unit, scale);
        if (shortest.isEmpty() || text.size() < shortest.size()) {
            shortest = text;
        }
    }
    return shortest;
}

std::optional<Ext::Length> read(QObject const & field, char const * property, QString const & text,
                                Ext::Length none)
{
    if (text.trimmed().isEmpty()) {
        return none;
    }
    Ext::EvaluateOptions options; // without a default unit
    options.as = Ext::EvaluateAs::Length;
    Ext::Evaluation const length = Ext::evaluate(text, options);
    if (!length) {
        qWarning("%s \"%s\": %s stays, since \"%s\" is no length with a unit: %s",
                 field.metaObject()->className(), qUtf8Printable(field.objectName()), property,
                 qUtf8Printable(text), qUtf8Printable(length.reason));
        return std::nullopt;
    }
    return length.length;
}

} // namespace KVCAM::UIAPI::LengthTexts
