#pragma once

#include <QStringView>

/// The arithmetic accepted by numeric fields: numbers joined by "+", "-", "*" and "/". No parentheses, and no
/// signs inside an expression.
namespace KVCAM::UIAPI::Expression {

/// The value of an expression. The text between two operators is a number (0 if it is not one). One trailing
/// operator is dropped, then a leading sign gets a 0 in front; any other missing operand counts as 0, and an
/// empty expression is 0. "*" and "/" bind tighter than "+" and "-", but an incoming operator pops at most
/// one operator, never a run: 1-2*3+4 is -9. Division by zero gives an infinity or NaN. Nothing is rounded.
double evaluate(QStringView expression);

/// Whether an incoming operator pops the waiting one: not if "+" or "-" waits and "*" or "/" comes in. True
/// for texts that are not operators.
bool takesOff(QStringView waiting, QStringView arriving);

enum class Form
{
    Standard,
    Empty,
    NonDigitPair ///< two characters in a row that are not '0' to '9'
};

/// The form of an expression. A single character is Standard, whatever it is.
Form formOf(QStringView expression);

} // namespace KVCAM::UIAPI::Expression
