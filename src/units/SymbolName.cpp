#include "units/SymbolName.h"

#include "support/Narrowing.h"
#include "support/NumberRuns.h"
#include "units/DecimalText.h"
#include "units/SymbolParts.h"
#include "units/UnitConversion.h"

#include <QStringView>

#include <algorithm>
#include <cmath>

namespace KVCAM::UIAPI::Symbols {
namespace {

using Ext::SymbolGrammar;
using Ext::SymbolRewrite;
using Units::inch;
using Units::millimetre;
using Units::millimetresPerInch;

constexpr QLatin1Char separator('x');
constexpr std::size_t rewrittenFields = 6; // further fields of a thermal are dropped

constexpr std::size_t families(SymbolRewrite rewrite)
{
    std::size_t found = 0;
    for (SymbolGrammar const & grammar : Ext::symbolGrammars) {
        found += grammar.rewrite == rewrite ? 1 : 0;
    }
    return found;
}

constexpr bool rewrittenFieldsExist()
{
    for (SymbolGrammar const & grammar : Ext::symbolGrammars) {
        bool const byField =
            grammar.rewrite == SymbolRewrite::Thermal || grammar.rewrite == SymbolRewrite::Moire;
        if (byField && grammar.layout.count < rewrittenFields) {
            return false;
        }
    }
    return true;
}

// Which names are rewritten, and how, is fixed.
static_assert(families(SymbolRewrite::EveryNumber) == 15);
static_assert(families(SymbolRewrite::Rectangle) == 1);
static_assert(families(SymbolRewrite::Thermal) == 5);
static_assert(families(SymbolRewrite::Moire) == 1);
static_assert(rewrittenFieldsExist());

// Halves round away from zero.
double thousandths(double value)
{
    return std::round(value * 1000) / 1000;
}

double hundredthsBesideWhole(double value, double whole)
{
    return std::round((value - whole) * 100) / 100;
}

// Two decimals; only the fraction is rounded.
double hundredths(double value)
{
    double const whole = saturatedInt(value);
    return whole + hundredthsBesideWhole(value, whole);
}

// Like hundredths(), but a result one hundredth off a whole number becomes whole. The exact comparison with
// the rounded fraction is deliberate.
double snappedHundredths(double value)
{
    double const whole = saturatedInt(value);
    double const fraction = hundredthsBesideWhole(value, whole);
    if (fraction == 0.99) {
        return whole + 1;
    }
    return fraction == 0.01 ? whole : whole + fraction;
}

// Qt's fixed notation rounds the shortest decimal form (2.0005 gives 2.001), not the exact binary value.
double throughFixedText(double value)
{
    return QString::number(value, 'f', 3).toDouble();
}

void append(QString & out, QStringView text)
{
    out.append(text.data(), static_cast<int>(text.size()));
}

QString startOutput(QString const & name)
{
    QString out;
    out.reserve(name.size() * 2 + 16);
    return out;
}

template <class Convert>
void appendLength(QString & out, QStringView text, Convert const & convert)
{
    appendSixDigits(out, convert(decimalValue(text)));
}

template <class Convert>
QString rewriteEachRun(QString const & name, Convert const & convert)
{
    QString out = startOutput(name);
    for (QStringView rest = name; !rest.isEmpty();) {
        TextRun const run = takeNumberRun(rest);
        if (run.isNumber) {
            appendLength(out, run.text, convert);
        } else {
            append(out, run.text);
        }
    }
    return out;
}

template <class Convert>
QString rewriteRectangle(QString const & name, SymbolParts const & parts, qsizetype prefixLength,
                         bool checked, Convert const & convert)
{
    int const count = parts.size();
    bool const hasCorner = count == 3 || count == 4;
    if (count != 2 && !hasCorner) {
        return name;
    }
    if (hasCorner && parts[2].size() < (checked ? 2 : 1)) {
        return name;
    }
    QString out = startOutput(name);
    append(out, parts[0].left(prefixLength));
    appendLength(out, parts[0].mid(prefixLength), convert);
    out += separator;
    appendLength(out, parts[1], convert);
    if (hasCorner) {
        out += separator;
        out += parts[2].front();
        appendLength(out, parts[2].mid(1), convert);
    }
    if (count == 4) {
        out += separator;
        append(out, parts[3]);
    }
    return out;
}

// Thermals and moires. Angles and counts are copied. Everything else is a plain length, so a corner "r5" in
// the sixth place, which is not a number, becomes 0.
template <class Convert>
QString rewriteFields(QString const & name, SymbolGrammar const & grammar, SymbolParts const & parts,
                      qsizetype prefixLength, Convert const & convert)
{
    QString out = startOutput(name);
    append(out, parts[0].left(prefixLength));
    std::size_t const count = std::min<std::size_t>(static_cast<std::size_t>(parts.size()), rewrittenFields);
    for (std::size_t i = 0; i < count; ++i) {
        QStringView part = parts[static_cast<int>(i)];
        if (i == 0) {
            part = part.mid(prefixLength);
        } else {
            out += separator;
        }
        if (isSymbolLength(grammar.layout.fields[i])) {
            appendLength(out, part, convert);
        } else {
            append(out, part);
        }
    }
    return out;
}

// `checked` rejects a rectangle without a width or with a corner that has no length.
template <class Convert>
QString rewriteByFamily(QString const & name, bool checked, Convert const & convert)
{
    SymbolGrammar const * const grammar = findRewriteGrammar(symbolPrefix(name));
    if (grammar == nullptr || grammar->rewrite == SymbolRewrite::Unchanged) {
        return name;
    }
    if (grammar->rewrite == SymbolRewrite::EveryNumber) {
        return rewriteEachRun(name, convert);
    }
    SymbolParts const parts = splitParts(name);
    auto const prefixLength = static_cast<qsizetype>(grammar->prefix.size());
    if (checked && parts[0].size() <= prefixLength) {
        return name;
    }
    switch (grammar->rewrite) {
    case SymbolRewrite::Rectangle:
        return rewriteRectangle(name, parts, prefixLength, checked, convert);
    case SymbolRewrite::Thermal:
        return parts.size() >= 5 ? rewriteFields(name, *grammar, parts, prefixLength, convert) : name;
    case SymbolRewrite::Moire:
        return parts.size() == 6 ? rewriteFields(name, *grammar, parts, prefixLength, convert) : name;
    default:
        return name;
    }
}

// The result starts with a number only if there are more number runs than text runs. Runs alternate, so the
// order changes exactly if a name starts with a number and ends with a text: each pair is swapped.
template <class AppendNumber>
QString rewriteGeneric(QString const & name, AppendNumber const & appendNumber)
{
    bool const swapped =
        !name.isEmpty() && isNumberCharacter(name.front()) && !isNumberCharacter(name.back());
    QString out = startOutput(name);
    for (QStringView rest = name; !rest.isEmpty();) {
        TextRun const run = takeNumberRun(rest);
        if (swapped) {
            append(out, takeNumberRun(rest).text);
        }
        if (run.isNumber) {
            appendNumber(out, run.text);
        } else {
            append(out, run.text);
        }
    }
    return out;
}

template <class Convert>
QString rewriteRuns(QString const & name, Convert const & convert)
{
    return rewriteGeneric(name, [&](QString & out, QStringView text) { appendLength(out, text, convert); });
}

double perInch(double value)
{
    return thousandths(value / millimetresPerInch);
}

} // namespace

QString toOtherUnit(QString const & name, int unit)
{
    if (unit == inch) {
        return rewriteByFamily(name, true, [](double v) { return v / millimetresPerInch; });
    }
    return rewriteByFamily(name, true, [](double v) { return v * millimetresPerInch; });
}

QString fromMil(QString const & name, int unit)
{
    if (unit == inch) {
        return rewriteByFamily(name, false, thousandths);
    }
    return rewriteByFamily(
        name, false, [](double v) { return snappedHundredths(throughFixedText(v) * millimetresPerInch); });
}

QString runsToOtherUnit(QString const & name, int unit)
{
    if (unit == millimetre) {
        return rewriteRuns(name, [](double v) { return hundredths(v * millimetresPerInch); });
    }
    return rewriteRuns(name, perInch);
}

QString runsFromMil(QString const & name, int unit)
{
    if (unit == millimetre) {
        return rewriteRuns(name,
                           [](double v) { return snappedHundredths(hundredths(v * millimetresPerInch)); });
    }
    return rewriteRuns(name, thousandths);
}

QString runsToMil(QString const & name, int unit)
{
    if (unit == millimetre) {
        return rewriteRuns(name, perInch);
    }
    return rewriteGeneric(name, append);
}

} // namespace KVCAM::UIAPI::Symbols
