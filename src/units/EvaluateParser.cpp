#include "units/EvaluateParser.h"

#include "support/NumberRuns.h"
#include "units/SinglePop.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KVCAM::UIAPI::Ext {
namespace {

using Dimension = EvaluateDimension;

constexpr int shortNumber = 18; // characters, whose digits always fit 64 bits

// Up to four lower-case letters as one number.
constexpr std::uint32_t packed(std::string_view letters)
{
    std::uint32_t out = 0;
    for (char const c : letters) {
        out = out << 8 | static_cast<unsigned char>(c);
    }
    return out;
}

struct Suffix
{
    std::uint32_t letters;
    int nanometres;
};

constexpr int mil = nanometresPer(Unit::Inch, LengthScale::Small);
constexpr int inch = nanometresPer(Unit::Inch, LengthScale::Large);
constexpr int micrometre = nanometresPer(Unit::Millimetre, LengthScale::Small);
constexpr int millimetre = nanometresPer(Unit::Millimetre, LengthScale::Large);
constexpr std::array suffixes{
    Suffix{packed("mm"), millimetre},      Suffix{packed("mil"), mil},  Suffix{packed("um"), micrometre},
    Suffix{packed("my"), micrometre},      Suffix{packed("in"), inch},  Suffix{packed("inch"), inch},
    Suffix{packed("mils"), mil},           Suffix{packed("thou"), mil}, Suffix{packed("\""), inch},
    Suffix{packed("cm"), 10 * millimetre},
};

constexpr bool isMicroSign(QChar c)
{
    return c == QChar(0xb5) || c == QChar(0x3bc);
}

bool isLetter(QChar c)
{
    auto const lower = c.unicode() | 0x20;
    return (lower >= 'a' && lower <= 'z') || isMicroSign(c);
}

// The nanometres of a unit; 0 for letters that are none.
int nanometresOf(QStringView letters)
{
    constexpr int longest = 4;
    if (letters.size() > longest) {
        return 0;
    }
    std::uint32_t wanted = 0;
    for (QChar const c : letters) {
        std::uint32_t const lower = isMicroSign(c) ? 'u' : isLetter(c) ? c.unicode() | 0x20U : c.unicode();
        wanted = wanted << 8 | lower;
    }
    for (Suffix const & suffix : suffixes) {
        if (suffix.letters == wanted) {
            return suffix.nanometres;
        }
    }
    return 0;
}

} // namespace

EvaluateParser::EvaluateParser(QStringView text, EvaluateOptions const & options) noexcept
    : m_text(text), m_options(options)
{}

bool EvaluateParser::parse(EvaluateTerm & term)
{
    skipBlanks();
    if (m_at == m_text.size()) {
        return fail(EvaluateFault::Empty, 0, m_at);
    }
    if (!sum(term)) {
        return false;
    }
    skipBlanks();
    return m_at == m_text.size() || failStray();
}

bool EvaluateParser::sum(EvaluateTerm & term)
{
    if (!product(term)) {
        return false;
    }
    for (;;) {
        skipBlanks();
        QChar const symbol = next();
        if (!Expression::isSum(symbol)) {
            return true;
        }
        ++m_at;
        EvaluateTerm right;
        if (!product(right) || !add(term, right, symbol == QLatin1Char('-'))) {
            return false;
        }
    }
}

bool EvaluateParser::product(EvaluateTerm & term)
{
    if (!factor(term)) {
        return false;
    }
    for (;;) {
        skipBlanks();
        QChar const symbol = next();
        if (!Expression::isProduct(symbol)) {
            return true;
        }
        ++m_at;
        EvaluateTerm right;
        if (!factor(right)) {
            return false;
        }
        if (symbol == QLatin1Char('*') ? !multiply(term, right) : !divide(term, right)) {
            return false;
        }
    }
}

bool EvaluateParser::factor(EvaluateTerm & term)
{
    skipBlanks();
    int const begin = m_at;
    bool isNegative = false;
    while (Expression::isSum(next())) {
        isNegative = isNegative != (next() == QLatin1Char('-'));
        ++m_at;
        skipBlanks();
    }
    QChar const c = next();
    if (isAsciiDigit(c) || isDecimalSign(c)) {
        if (!number(term)) {
            return false;
        }
    } else if (c == QLatin1Char('(')) {
        if (!parentheses(term)) {
            return false;
        }
    } else {
        return failNumberMissing();
    }
    if (isNegative) {
        term.value = -term.value;
    }
    term.begin = begin;
    term.end = m_at;
    return true;
}

bool EvaluateParser::parentheses(EvaluateTerm & term)
{
    int const open = m_at;
    if (m_depth == evaluateDepth) {
        return fail(EvaluateFault::NestedTooDeep, open, open + 1);
    }
    ++m_depth;
    ++m_at;
    if (!sum(term)) {
        return false;
    }
    --m_depth;
    if (m_at == m_text.size()) {
        return fail(EvaluateFault::ParenthesisNotClosed, open, open + 1);
    }
    if (next() != QLatin1Char(')')) {
        return failStray();
    }
    ++m_at;
    return true;
}

bool EvaluateParser::number(EvaluateTerm & term)
{
    int const begin = m_at;
    int signs = 0;
    std::int64_t digits = 0;
    int decimals = 0;
    for (;; ++m_at) {
        QChar const c = next();
        if (isAsciiDigit(c)) {
            if (m_at - begin < shortNumber) {
                digits = digits * 10 + (c.unicode() - '0');
            }
            decimals += signs;
        } else if (isDecimalSign(c)) {
            if (++signs > 1) {
                return fail(EvaluateFault::SecondDecimalSign, m_at, m_at + 1);
            }
        } else {
            break;
        }
    }
    int const size = m_at - begin;
    if (size == signs) {
        return fail(EvaluateFault::NumberMissing, begin, m_at);
    }
    term.value = size <= shortNumber ? ExactNumber::fromDigits(digits, decimals)
                                     : ExactNumber::fromDecimal(m_text.mid(begin, size));
    if (!term.value.isFinite()) {
        return fail(EvaluateFault::TooLarge, begin, m_at);
    }
    return unit(term, begin);
}

// The unit behind a number, if there is one.
bool EvaluateParser::unit(EvaluateTerm & term, int begin)
{
    term.dimension = Dimension::Bare;
    int const before = m_at;
    skipBlanks();
    int const end = next() == QLatin1Char('"') ? m_at + 1 : endOfLetters();
    if (end == m_at) {
        m_at = before; // the number ends before the blanks
        return true;
    }
    int const nanometres = nanometresOf(m_text.mid(m_at, end - m_at));
    if (nanometres == 0) {
        return fail(EvaluateFault::UnknownUnit, m_at, end);
    }
    term.value = term.value * ExactNumber(nanometres);
    term.dimension = Dimension::Length;
    if (!term.value.isFinite()) {
        return fail(EvaluateFault::TooLarge, begin, end);
    }
    m_at = end;
    return true;
}

ExactNumber EvaluateParser::inDefaultUnit(ExactNumber number) const noexcept
{
    return number * ExactNumber(nanometresPer(*m_options.defaultUnit, m_options.defaultScale));
}

bool EvaluateParser::withDefaultUnit(EvaluateTerm const & term, ExactNumber & value)
{
    if (term.dimension == Dimension::Ratio) {
        return fail(EvaluateFault::RatioWithLength, term.begin, term.end);
    }
    if (!m_options.defaultUnit) {
        return fail(EvaluateFault::UnitMissing, term.begin, term.end);
    }
    value = inDefaultUnit(term.value);
    return true;
}

bool EvaluateParser::add(EvaluateTerm & left, EvaluateTerm const & right, bool isDifference)
{
    ExactNumber a = left.value;
    ExactNumber b = right.value;
    bool const isLength = left.dimension == Dimension::Length;
    if (isLength != (right.dimension == Dimension::Length)) {
        if (!(isLength ? withDefaultUnit(right, b) : withDefaultUnit(left, a))) {
            return false;
        }
        left.dimension = Dimension::Length;
    } else if (left.dimension != right.dimension) {
        left.dimension = Dimension::Ratio; // the bare number must be one
    }
    left.value = isDifference ? a - b : a + b;
    return extend(left, right);
}

bool EvaluateParser::multiply(EvaluateTerm & left, EvaluateTerm const & right)
{
    bool const isLength = left.dimension == Dimension::Length;
    if (isLength && right.dimension == Dimension::Length) {
        return fail(EvaluateFault::LengthTimesLength, right.begin, right.end);
    }
    if (isLength || right.dimension == Dimension::Length) {
        left.dimension = Dimension::Length;
    } else if (left.dimension != right.dimension) {
        left.dimension = Dimension::Bare; // so many times what may become a length
    }
    left.value = left.value * right.value;
    return extend(left, right);
}

bool EvaluateParser::divide(EvaluateTerm & left, EvaluateTerm const & right)
{
    if (right.value.isZero()) {
        return fail(EvaluateFault::DivisionByZero, right.begin, right.end);
    }
    if (right.dimension == Dimension::Length) {
        if (left.dimension != Dimension::Length) {
            return fail(EvaluateFault::NumberByLength, right.begin, right.end);
        }
        left.dimension = Dimension::Ratio;
    }
    left.value = left.value / right.value;
    return extend(left, right);
}

// The result takes the place of both operands.
bool EvaluateParser::extend(EvaluateTerm & result, EvaluateTerm const & right) noexcept
{
    result.end = right.end;
    return result.value.isFinite() || fail(EvaluateFault::TooLarge, right.begin, right.end);
}

void EvaluateParser::skipBlanks() noexcept
{
    while (m_at < m_text.size() && m_text[m_at].isSpace()) {
        ++m_at;
    }
}

int EvaluateParser::endOfLetters() const noexcept
{
    int end = m_at;
    while (end < m_text.size() && isLetter(m_text[end])) {
        ++end;
    }
    return end;
}

bool EvaluateParser::fail(EvaluateFault fault, int begin, int end) noexcept
{
    m_fault = fault;
    m_position = begin;
    m_size = end - begin;
    return false;
}

// Marks the number, the letters or the one character that comes next.
bool EvaluateParser::failAtPart(EvaluateFault fault) noexcept
{
    int end = endOfLetters();
    while (end < m_text.size() && isNumberCharacter(m_text[end]) && !isLetter(m_text[m_at])) {
        ++end;
    }
    if (end == m_at) {
        bool const isPair =
            next().isHighSurrogate() && m_at + 1 < m_text.size() && m_text[m_at + 1].isLowSurrogate();
        end += isPair ? 2 : 1;
    }
    return fail(fault, m_at, end);
}

bool EvaluateParser::failNumberMissing() noexcept
{
    if (m_at == m_text.size()) {
        int last = m_at - 1;
        while (m_text[last].isSpace()) {
            --last;
        }
        return fail(EvaluateFault::NumberMissing, last, last + 1);
    }
    QChar const c = next();
    if (c == QLatin1Char(',')) {
        return failAtPart(EvaluateFault::CommaNotAllowed);
    }
    bool const hasMeaning =
        Expression::isOperator(c) || c == QLatin1Char(')') || c == QLatin1Char('"') || isLetter(c);
    return failAtPart(hasMeaning ? EvaluateFault::NumberMissing : EvaluateFault::UnknownCharacter);
}

// What stands where an operator or the end was expected.
bool EvaluateParser::failStray() noexcept
{
    QChar const c = next();
    if (c == QLatin1Char(')')) {
        return failAtPart(EvaluateFault::ParenthesisNotOpened);
    }
    if (c == QLatin1Char(',')) {
        return failAtPart(m_options.decimalComma ? EvaluateFault::OperatorMissing
                                                 : EvaluateFault::CommaNotAllowed);
    }
    bool const isValue = isAsciiDigit(c) || isLetter(c) || c == QLatin1Char('.') || c == QLatin1Char('(') ||
                         c == QLatin1Char('"');
    return failAtPart(isValue ? EvaluateFault::OperatorMissing : EvaluateFault::UnknownCharacter);
}

} // namespace KVCAM::UIAPI::Ext
