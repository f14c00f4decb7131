#pragma once

#include <QChar>
#include <QLatin1Char>
#include <QStringView>
#include <QVarLengthArray>

/// The order in which the expressions of numeric fields are evaluated, for any kind of number.
namespace KVCAM::UIAPI::Expression {

inline bool isSum(QChar c) noexcept
{
    return c == QLatin1Char('+') || c == QLatin1Char('-');
}

inline bool isProduct(QChar c) noexcept
{
    return c == QLatin1Char('*') || c == QLatin1Char('/');
}

inline bool isOperator(QChar c) noexcept
{
    return isSum(c) || isProduct(c);
}

/// See takesOff(QStringView, QStringView).
inline bool takesOff(QChar waiting, QChar arriving) noexcept
{
    return !(isSum(waiting) && isProduct(arriving));
}

/// The stacks of operands and operators. A popped operator is applied immediately, in the order in which a
/// postfix form would be evaluated.
template <class Number>
class SinglePop
{
public:
    void operand(Number value) { m_values.append(value); }

    void arriving(QChar symbol)
    {
        if (!m_operators.isEmpty() && takesOff(m_operators.back(), symbol)) {
            applyLast(); // at most one, never a run
        }
        m_operators.append(symbol);
    }

    Number finish()
    {
        while (!m_operators.isEmpty()) {
            applyLast();
        }
        return takeValue();
    }

private:
    Number takeValue()
    {
        if (m_values.isEmpty()) {
            return Number();
        }
        Number const value = m_values.back();
        m_values.removeLast();
        return value;
    }

    void applyLast()
    {
        QChar const symbol = m_operators.back();
        m_operators.removeLast();
        Number const b = takeValue();
        Number const a = takeValue();
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

    QVarLengthArray<Number, 32> m_values;
    QVarLengthArray<QChar, 32> m_operators;
};

/// Expression::evaluate() with the operands that `read` makes of their texts.
template <class Number, class Read>
Number evaluateSinglePop(QStringView expression, Read const & read)
{
    if (!expression.isEmpty() && isOperator(expression.back())) {
        expression.chop(1);
    }
    SinglePop<Number> evaluation;
    if (!expression.isEmpty() && isSum(expression.front())) {
        evaluation.operand(Number());
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
        evaluation.operand(read(expression.mid(at, end - at)));
        at = end;
    }
    return evaluation.finish();
}

} // namespace KVCAM::UIAPI::Expression
