#include "units/Expression.h"

#include "support/NumberRuns.h"
#include "units/DecimalText.h"
#include "units/SinglePop.h"

namespace KVCAM::UIAPI::Expression {

double evaluate(QStringView expression)
{
    return evaluateSinglePop<double>(expression, decimalValue);
}

bool takesOff(QStringView waiting, QStringView arriving)
{
    return waiting.size() != 1 || arriving.size() != 1 || takesOff(waiting.front(), arriving.front());
}

Form formOf(QStringView expression)
{
    if (expression.isEmpty()) {
        return Form::Empty;
    }
    for (qsizetype i = 1; i < expression.size(); ++i) {
        if (!isAsciiDigit(expression[i - 1]) && !isAsciiDigit(expression[i])) {
            return Form::NonDigitPair;
        }
    }
    return Form::Standard;
}

} // namespace KVCAM::UIAPI::Expression
