#include "units/Expression.h"

#include "support/NumberRuns.h"
#include "units/DecimalText.h"

#include <QVarLengthArray>

namespace KVCAM::UIAPI::Expression {
namespace {

bool isSum(QChar c)
{
    return c == QLatin1Char('+') || c == QLatin1Char('-');
}

bool isProduct(QChar c)
{
    return c == QLatin1Char('*') || c == QLatin1Char('/');
}

bool isOperator(QChar c)
{
    return isSum(c) || isProduct(c);
}

bool takesOff(QChar waiting, QChar arriving)
{
    return !(isSum(waiting) && isProduct(arriving));
}

// The stacks of operands and operators. A popped operator is applied immediately, in the order in which a
// postfix form would be evaluated.
class Evaluation
{
public:
    void operand(double value) { m_values.append(value); }

    void arriving(QChar symbol)
    {
        if (!m_operators.isEmpty() && takesOff(m_operators.back(), symbol)) {
            applyLast(); // at most one, never a run
        }
        m_operators.append(symbol);
    }

    double finish()
    {
        while (!m_operators.isEmpty()) {
            applyLast();
        }
        return takeValue();
    }

private:
    double takeValue()
    {
        if (m_values.isEmpty()) {
            return 0.0;
        }
        double const value = m_values.back();
        m_values.removeLast();
        return value;
    }

    void applyLast()
    {
        QChar const symbol = m_operators.back();
        m_operators.removeLast();
        double const b = takeValue();
        double const a = takeValue();
        switch (symbol.unicode()) {
        case '+':
            m_values.append(a + b);
            break;
        case '-':
            m_values.append(a - b);
            break;
        case '*':
            m_values.append(a * b);
            break;
        default:
            m_values.append(a / b);
            break;
        }
    }

    QVarLengthArray<double, 32> m_values;
    QVarLengthArray<QChar, 32> m_operators;
};

} // namespace

double evaluate(QStringView expression)
{
    if (!expression.isEmpty() && isOperator(expression.back())) {
        expression.chop(1);
    }
    Evaluation evaluation;
    if (!expression.isEmpty() && isSum(expression.front())) {
        evaluation.operand(0.0);
    }
    for (qsizetype at = 0; at < expression.size();) {
        if (isOperator(expression[at])) {
            evaluation.arriving(expression[at]);
            ++at;
            continue;
        }
        qsizetype end = at + 1;
        while (end < expression.size() && !isOperator(expression[end])) {
            ++end;
        }
        evaluation.operand(decimalValue(expression.mid(at, end - at)));
        at = end;
    }
    return evaluation.finish();
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
