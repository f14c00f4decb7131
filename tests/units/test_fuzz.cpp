// A seeded random run over everything that reads typed text. Results are checked against a second, plainer
// implementation. UIAPI_FUZZ_COUNT sets the number of inputs of each case, UIAPI_FUZZ_SEED the seed.
#include "harness/UiapiTest.h"

#include "support/Narrowing.h"
#include "units/DecimalText.h"
#include "units/Evaluate.h"
#include "units/Expression.h"
#include "units/Symbol.h"
#include "units/SymbolDescription.h"
#include "units/SymbolName.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <random>

using namespace KVCAM::UIAPI;

namespace {

class Fuzz : public ::testing::Test
{
protected:
    /// Calls `check` with `count` random texts made of the pieces.
    template <class Check>
    void run(QStringList const & pieces, int maximumPieces, Check const & check)
    {
        for (int i = 0; i < m_count && !HasFailure(); ++i) {
            QString text;
            for (int left = number(0, maximumPieces); left > 0; --left) {
                int const kind = number(0, 99);
                if (kind < 3) {
                    text += QChar(number(0, 0xffff));
                } else if (kind < 10) {
                    text += QChar(number(32, 126));
                } else {
                    text += pieces[number(0, pieces.size() - 1)];
                }
            }
            SCOPED_TRACE(text.toStdString());
            check(text);
        }
    }

    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }

private:
    int const m_count = qEnvironmentVariableIsSet("UIAPI_FUZZ_COUNT")
                            ? qEnvironmentVariableIntValue("UIAPI_FUZZ_COUNT")
                            : 10000;
    std::mt19937 m_random{static_cast<unsigned>(
        qEnvironmentVariableIsSet("UIAPI_FUZZ_SEED") ? qEnvironmentVariableIntValue("UIAPI_FUZZ_SEED") : 1)};
};

QStringList const symbolPieces =
    QString("r|rect|thr|moire|ths|rc_ths|s_ths|hex_l|oval_h|s|abc|sr_ths|x|x|x|x|xr|xc|0|1|25.4|99|.|-|e|+|"
            "_|inf|"
            "nan|%1|%6|12|10|3.9375|1e308|0.00001|1234.5678|99999999999999999999")
        .split('|');

bool sameDouble(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

// The second implementations' regular expressions do not accept half a surrogate pair.
bool isPlain(QString const & text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c.isSurrogate(); });
}

QString sixDigits(double value)
{
    return QString::number(value, 'g', 6);
}

double snapped(double x)
{
    double const whole = saturatedInt(x);
    double const fraction = std::round((x - whole) * 100) / 100;
    return fraction == 0.99 ? whole + 1 : fraction == 0.01 ? whole : whole + fraction;
}

double toMicrometres(double mil)
{
    return snapped(QString::number(mil, 'f', 3).toDouble() * 25.4);
}

double thousandths(double value)
{
    return std::round(value * 1000) / 1000;
}

// The family-aware rewrites done literally, family by family.
template <class Convert>
QString byParts(QString const & name, bool isChecked, Convert const & convert)
{
    static QRegularExpression const simple(
        "^(r|s|oval|di|oct|donut_[rs]|hex_[ls]|bf[rs]|tri|oval_h|el|hole)(?![^0-9])");
    static QRegularExpression const fields(
        "^(rect(?=x?(?![^0-9]))|(thr|ths|s_ths|sr_ths|rc_ths|moire)(?![^0-9]))");
    static QRegularExpression const run("[0-9.]+");
    auto const length = [&](QString const & text) { return sixDigits(convert(text.toDouble())); };
    if (name.contains(simple)) {
        QString out;
        int end = 0;
        for (auto matches = run.globalMatch(name); matches.hasNext();) {
            auto const match = matches.next();
            out += name.mid(end, match.capturedStart() - end) + length(match.captured());
            end = match.capturedEnd();
        }
        return out + name.mid(end);
    }
    QString const prefix = fields.match(name).captured(1);
    QStringList parts = name.mid(prefix.size()).split('x');
    int const count = parts.size();
    bool const isRectangle = prefix == "rect" && count >= 2 && count <= 4 &&
                             (!isChecked || !parts[0].isEmpty()) &&
                             (count == 2 || parts[2].size() >= (isChecked ? 2 : 1));
    bool const isMoire = prefix == "moire" && count == 6;
    bool const isThermal = prefix.contains("th") && count >= 5;
    QString const layout = isRectangle ? "yyc" : isMoire ? "yynyyn" : isThermal ? "yynnyy" : "";
    for (int i = 0; i < std::min(count, layout.size()); ++i) {
        QString const kind = layout[i] == 'c' ? parts[i].left(1) : QString();
        parts[i] = layout[i] == 'n' ? parts[i] : kind + length(parts[i].mid(kind.size()));
    }
    return prefix + (isThermal ? parts.mid(0, 6) : parts).join('x');
}

// The generic rewrites done literally: two lists, joined again.
template <class Convert>
QString byRuns(QString const & name, Convert const & convert)
{
    static QRegularExpression const run("[0-9.]+|[^0-9.]+", QRegularExpression::DotMatchesEverythingOption);
    QStringList lists[2];
    for (auto matches = run.globalMatch(name); matches.hasNext();) {
        QString const text = matches.next().captured();
        bool const isNumber = text[0] == '.' || (text[0] >= '0' && text[0] <= '9');
        lists[isNumber ? 0 : 1] += isNumber ? convert(text) : text;
    }
    int const first = lists[0].size() > lists[1].size() ? 0 : 1;
    QString out;
    for (int i = 0; i < std::max(lists[0].size(), lists[1].size()); ++i) {
        out += lists[first].value(i) + lists[1 - first].value(i);
    }
    return out;
}

void compareRewrites(QString const & name)
{
    auto const number = [](auto const & convert) {
        return [&convert](QString const & text) { return sixDigits(convert(text.toDouble())); };
    };
    auto const perUnit = [](double v) { return v / 25.4; };
    auto const timesUnit = [](double v) { return v * 25.4; };
    auto const perInch = [](double v) { return thousandths(v / 25.4); };
    auto const rounded = [](double v) {
        double const x = v * 25.4;
        double const whole = saturatedInt(x);
        return whole + std::round((x - whole) * 100) / 100;
    };
    auto const roundedAndSnapped = [&](double v) { return snapped(rounded(v)); };
    auto const kept = [](QString const & text) { return text; };
    for (int unit : {0, 1, -1}) {
        bool const isMetric = unit == 1;
        EXPECT_EQ(Symbols::toOtherUnit(name, unit),
                  unit == 0 ? byParts(name, true, perUnit) : byParts(name, true, timesUnit));
        EXPECT_EQ(Symbols::fromMil(name, unit),
                  unit == 0 ? byParts(name, false, thousandths) : byParts(name, false, toMicrometres));
        EXPECT_EQ(Symbols::runsToOtherUnit(name, unit),
                  isMetric ? byRuns(name, number(rounded)) : byRuns(name, number(perInch)));
        EXPECT_EQ(Symbols::runsFromMil(name, unit),
                  isMetric ? byRuns(name, number(roundedAndSnapped)) : byRuns(name, number(thousandths)));
        EXPECT_EQ(Symbols::runsToMil(name, unit),
                  isMetric ? byRuns(name, number(perInch)) : byRuns(name, kept));
    }
}

// Evaluation done literally: a postfix list, then a stack.
double evaluateByLists(QString expression)
{
    QString const operators = "+-*/";
    if (!expression.isEmpty() && operators.contains(expression.back())) {
        expression.chop(1);
    }
    if (expression.startsWith('-') || expression.startsWith('+')) {
        expression.prepend('0');
    }
    static QRegularExpression const seam("(?<=[-+*/])|(?=[-+*/])");
    QStringList waiting;
    QStringList postfix;
    for (QString const & token : expression.split(seam, Qt::SkipEmptyParts)) {
        bool const isOperator = operators.contains(token);
        if (isOperator && !waiting.isEmpty() &&
            (operators.indexOf(waiting.back()) > 1 || operators.indexOf(token) < 2)) {
            postfix += waiting.takeLast();
        }
        (isOperator ? waiting : postfix) += token;
    }
    while (!waiting.isEmpty()) {
        postfix += waiting.takeLast();
    }
    QList<double> stack;
    auto const pop = [&] { return stack.isEmpty() ? 0.0 : stack.takeLast(); };
    for (QString const & token : postfix) {
        if (!operators.contains(token)) {
            stack += token.toDouble();
            continue;
        }
        double const b = pop();
        double const a = pop();
        stack += token == "+" ? a + b : token == "-" ? a - b : token == "*" ? a * b : a / b;
    }
    return pop();
}

TEST_F(Fuzz, SymbolNames)
{
    run(symbolPieces, 6, [&](QString const & text) {
        // mostly a family's prefix and fields, some replaced by the random text
        QString name = text;
        if (number(0, 9) > 0) {
            name = symbolPieces[number(0, 10)];
            for (int fields = number(1, 8); fields > 0; --fields) {
                name += number(0, 7) == 0 ? text : QString::number(number(0, 999999) / 1000.0);
                name += number(0, 5) == 0 ? "xr" : fields > 1 ? "x" : "";
            }
        }
        SCOPED_TRACE(name.toStdString());
        Ext::Unit const unit = Ext::unitOfCode(number(0, 1));
        Ext::SymbolReading const read = Ext::Symbol::parse(name, unit);
        EXPECT_EQ(Ext::describeSymbol(name, unit).isEmpty(), name.isEmpty());
        EXPECT_TRUE(read.ok ? read.symbol->name(unit) == name : read.position + read.size <= name.size());
        if (isPlain(name)) {
            compareRewrites(name);
        }
    });
}

TEST_F(Fuzz, Expressions)
{
    run({"+", "-", "*", "/", "1", "2", "3.5", "0", ".", "e", "10", "inf", " ", "007", "123456789012345678"},
        20, [&](QString const & expression) {
            double const value = Expression::evaluate(expression);
            Expression::Form const form = Expression::formOf(expression);
            if (isPlain(expression)) {
                static QRegularExpression const bad("^$|[^0-9][^0-9]",
                                                    QRegularExpression::DotMatchesEverythingOption);
                EXPECT_TRUE(sameDouble(value, evaluateByLists(expression)));
                EXPECT_EQ(form == Expression::Form::Standard, !expression.contains(bad));
            }
        });
}

TEST_F(Fuzz, EvaluatedTexts)
{
    QStringList const pieces =
        QString(u8"+|-|-|*|/|(|)|(1+2)|1|2|0.5|10.25|0|.|,|e|mm|mil|um|\u00b5m|\"|in|cm| |x|007|"
                u8"123456789012345678901|3mm|4mil|0.001|1e9")
            .split('|');
    run(pieces, 24, [&](QString const & text) {
        Ext::EvaluateOptions options;
        if (number(0, 2) > 0) {
            options.defaultUnit = Ext::unitOfCode(number(0, 1));
        }
        options.as = Ext::EvaluateAs(number(0, 2));
        options.decimalComma = number(0, 1) == 0;
        Ext::Evaluation const result = Ext::evaluate(text, options);
        EXPECT_EQ(result.ok, result.fault == Ext::EvaluateFault::None && result.reason.isEmpty());
        if (!result.ok) {
            EXPECT_TRUE(result.position >= 0 && result.position + result.size <= text.size());
            EXPECT_EQ(result.size == 0, text.isEmpty());
            // What stands before the fault does not depend on what follows it.
            if (result.fault == Ext::EvaluateFault::UnknownCharacter) {
                EXPECT_EQ(Ext::evaluate(text + "+1", options).position, result.position);
            }
            return;
        }
        Ext::Evaluation const negative = Ext::evaluate("-(" + text + ")", options);
        EXPECT_TRUE(negative.ok && negative.isLength == result.isLength);
        EXPECT_EQ(negative.length, -result.length);
        EXPECT_EQ(negative.number, -result.number);
        static QRegularExpression const plain("^[-+*/.0-9]*$");
        if (!result.isLength && text.contains(plain) &&
            Expression::formOf(text) == Expression::Form::Standard) {
            double const classic = Expression::evaluate(text);
            EXPECT_TRUE(result.differs ? result.classicValue == classic
                                       : std::abs(classic - result.number) <= 1e-9 * (1 + std::abs(classic)));
        }
    });
}

TEST_F(Fuzz, Numbers)
{
    run({"0", "1", "9", "5", "12345", "00", ".", ".", "99999", "e", "-", "+"}, 8, [&](QString const & text) {
        EXPECT_TRUE(sameDouble(decimalValue(text), text.toDouble()));
        QString out;
        double const v = text.toDouble();
        appendSixDigits(out, v);
        EXPECT_EQ(out, QString("%1").arg(v, 0, 'g', -1, QChar(' ')));
    });
}

} // namespace
