#include "units/ValueCheck.h"

#include "support/NumberRuns.h"
#include "units/DecimalText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringView>

#include <cmath>

namespace KVCAM::UIAPI::Ext {
namespace {

QString translated(char const * text)
{
    return QCoreApplication::translate("Legality", text);
}

template <class Value>
ValueFault faultOf(Value value, Value minimum, Value maximum)
{
    return value < minimum ? ValueFault::TooSmall : value > maximum ? ValueFault::TooLarge : ValueFault::None;
}

// What is allowed; an empty text is no bound.
QString rangeSentence(QString const & minimum, QString const & maximum)
{
    if (maximum.isEmpty()) {
        return translated(QT_TRANSLATE_NOOP("Legality", "Allowed: %1 or more.")).arg(minimum);
    }
    if (minimum.isEmpty()) {
        return translated(QT_TRANSLATE_NOOP("Legality", "Allowed: %1 or less.")).arg(maximum);
    }
    return translated(QT_TRANSLATE_NOOP("Legality", "Allowed: %1 to %2, both included."))
        .arg(minimum, maximum);
}

QString numberText(double value)
{
    return std::isinf(value) ? QString() : QString::number(value, 'g', QLocale::FloatingPointShortest);
}

} // namespace

ValueVerdict checkValue(Length value, Length minimum, Length maximum, Unit unit, LengthScale scale,
                        MicrometreSign sign)
{
    ValueVerdict verdict;
    verdict.minimum = minimum;
    verdict.maximum = maximum;
    verdict.fault = faultOf(value, minimum, maximum);
    verdict.ok = verdict.fault == ValueFault::None;
    if (!verdict.ok) {
        auto const text = [&](Length bound, Length none) {
            return bound == none ? QString() : bound.textWithUnit(unit, scale, sign);
        };
        verdict.reason = rangeSentence(text(minimum, Length::lowest()), text(maximum, Length::highest()));
    }
    return verdict;
}

NumberVerdict checkNumber(double value, double minimum, double maximum)
{
    NumberVerdict verdict;
    verdict.minimum = minimum;
    verdict.maximum = maximum;
    verdict.fault = faultOf(value, minimum, maximum);
    verdict.ok = verdict.fault == ValueFault::None;
    if (!verdict.ok) {
        verdict.reason = rangeSentence(numberText(minimum), numberText(maximum));
    }
    return verdict;
}

ValueVerdict checkSymbol(QString const & name, Length minimum, Length maximum, Unit sizes,
                         std::optional<Unit> shown)
{
    ValueVerdict verdict;
    QStringView rest = name;
    while (verdict.ok && !rest.isEmpty()) {
        TextRun const run = takeNumberRun(rest);
        if (!run.isNumber) {
            continue;
        }
        Length const length = Length::from(decimalValue(run.text), sizes, LengthScale::Small);
        verdict = checkValue(length, minimum, maximum, shown.value_or(sizes));
        if (!verdict.ok) {
            verdict.size = static_cast<int>(run.text.size());
            verdict.position = name.size() - static_cast<int>(rest.size()) - verdict.size;
            verdict.reason = translated(QT_TRANSLATE_NOOP("Legality", "\"%1\" is out of range. %2"))
                                 .arg(run.text.toString(), verdict.reason);
        }
    }
    return verdict;
}

} // namespace KVCAM::UIAPI::Ext
