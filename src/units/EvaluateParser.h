#pragma once

#include "units/Evaluate.h"
#include "units/ExactNumber.h"

#include <QChar>
#include <QStringView>

namespace KVCAM::UIAPI::Ext {

enum class EvaluateDimension
{
    Bare,  ///< a number without a unit, which may take the default unit
    Ratio, ///< a number that comes from dividing lengths, which may not
    Length ///< in nanometres
};

/// A part of the text and its value.
struct EvaluateTerm
{
    ExactNumber value;
    EvaluateDimension dimension = EvaluateDimension::Bare;
    int begin = 0;
    int end = 0;
};

/// Reads a text by recursive descent, each character once, and stops at the first fault.
class EvaluateParser
{
public:
    /// Both must outlive the parser.
    EvaluateParser(QStringView text, EvaluateOptions const & options) noexcept;

    /// Reads the whole text; false at a fault.
    bool parse(EvaluateTerm & term);
    ///@{
    /// The fault at which parse() stopped, and its part of the text.
    EvaluateFault fault() const noexcept { return m_fault; }
    int position() const noexcept { return m_position; }
    int size() const noexcept { return m_size; }
    ///@}

    /// A number in the default unit, which there must be, as nanometres.
    ExactNumber inDefaultUnit(ExactNumber number) const noexcept;

private:
    // Each reads what it is named after, and ends just behind it.
    bool sum(EvaluateTerm & term);
    bool product(EvaluateTerm & term);
    bool factor(EvaluateTerm & term);
    bool parentheses(EvaluateTerm & term);
    bool number(EvaluateTerm & term);
    bool unit(EvaluateTerm & term, int begin); // of the number that begins there

    bool add(EvaluateTerm & left, EvaluateTerm const & right, bool isDifference);
    bool multiply(EvaluateTerm & left, EvaluateTerm const & right);
    bool divide(EvaluateTerm & left, EvaluateTerm const & right);
    bool withDefaultUnit(EvaluateTerm const & term, ExactNumber & value);
    bool extend(EvaluateTerm & result, EvaluateTerm const & right) noexcept;

    QChar next() const noexcept { return m_at < m_text.size() ? m_text[m_at] : QChar(); }
    bool isDecimalSign(QChar c) const noexcept
    {
        return c == QLatin1Char('.') || (c == QLatin1Char(',') && m_options.decimalComma);
    }
    void skipBlanks() noexcept;
    int endOfLetters() const noexcept;
    bool fail(EvaluateFault fault, int begin, int end) noexcept;
    bool failAtPart(EvaluateFault fault) noexcept;
    bool failNumberMissing() noexcept;
    bool failStray() noexcept;

    QStringView m_text;
    EvaluateOptions const & m_options;
    int m_at = 0;
    int m_depth = 0;
    EvaluateFault m_fault = EvaluateFault::None;
    int m_position = 0;
    int m_size = 0;
};

} // namespace KVCAM::UIAPI::Ext
