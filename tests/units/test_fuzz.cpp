// A seeded random run over everything that reads typed text. Each input is checked against a second, plainer
// way to the same result. UIAPI_FUZZ_COUNT sets the number of inputs of each case, UIAPI_FUZZ_SEED the seed.
#include "harness/UiapiTest.h"

#include "units/DecimalText.h"
#include "units/Expression.h"
#include "units/NameSearch.h"
#include "units/SymbolDescription.h"
#include "units/SymbolName.h"
#include "units/ValueCheck.h"
#include "units/ValueLegality.h"

#include <QRegExp>
#include <QRegExpValidator>
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
    /// Calls `check` with so many random texts made of the pieces.
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

    double value()
    {
        static double const edges[] = {0, -0.0, 1,          76.2, 25.4,   1e300,    -1e300,
                                       3, 0.1,  4294967296, 1e-9, 999.99, INFINITY, NAN};
        return number(0, 3) == 0 ? edges[number(0, 13)] : number(-100000, 100000) / 1000.0;
    }

private:
    int const m_count = qEnvironmentVariableIsSet("UIAPI_FUZZ_COUNT")
                            ? qEnvironmentVariableIntValue("UIAPI_FUZZ_COUNT")
                            : 10000;
    std::mt19937 m_random{static_cast<unsigned>(
        qEnvironmentVariableIsSet("UIAPI_FUZZ_SEED") ? qEnvironmentVariableIntValue("UIAPI_FUZZ_SEED") : 1)};
};

QStringList const symbolPieces{"r",         "rect",
                               "rect",      "moire",
                               "ths",       "rc_ths",
                               "s_ths",     "hex_l",
                               "oval_h",    "s",
                               "abc",       "donut_r",
                               "x",         "x",
                               "x",         "x",
                               "xr",        "xc",
                               "0",         "1",
                               "25.4",      "99",
                               ".",         "-",
                               "e",         "+",
                               "_",         "inf",
                               "nan",       "%1",
                               "%6",        "12",
                               "10",        "3.9375",
                               "1e308",     "0.00001",
                               "1234.5678", "99999999999999999999"};

bool sameDouble(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

double wholeInt(double value)
{
    return std::isnan(value) ? 0 : std::clamp(std::trunc(value), -2147483648.0, 2147483647.0);
}

// The generic rewrite to the letter: two lists, then reassembly.
QString genericByLists(QString const & name, int unit)
{
    QStringList numbers;
    QStringList texts;
    static QRegularExpression const runs("[0-9.]+|[^0-9.]+", QRegularExpression::DotMatchesEverythingOption);
    for (auto matches = runs.globalMatch(name); matches.hasNext();) {
        QString const run = matches.next().captured();
        bool const isNumber = (run[0] >= '0' && run[0] <= '9') || run[0] == '.';
        if (isNumber) {
            double const v = run.toDouble();
            double const x = v * 25.4;
            numbers += QString::number(unit == 1 ? wholeInt(x) + std::round((x - wholeInt(x)) * 100) / 100
                                                 : std::round(v / 25.4 * 1000) / 1000,
                                       'g', 6);
        } else {
            texts += run;
        }
    }
    QString out;
    bool const numberFirst = numbers.size() > texts.size();
    for (int i = 0; i < std::max(numbers.size(), texts.size()); ++i) {
        QString const number = numbers.value(i);
        QString const text = texts.value(i);
        out += numberFirst ? number + text : text + number;
    }
    return out;
}

// The family-aware rewrite to the letter, one family after the other.
template <class Convert>
QString familyByParts(QString const & name, bool strict, Convert const & convert)
{
    static QStringList const simple{"r",     "s",   "oval", "di",  "oct",    "donut_r", "donut_s", "hex_l",
                                    "hex_s", "bfr", "bfs",  "tri", "oval_h", "el",      "hole"};
    static QRegularExpression const digit("[0-9]");
    static QRegularExpression const run("[0-9.]+");
    auto const length = [&](QString const & text) {
        return QString::number(convert(text.toDouble()), 'g', 6);
    };
    QString const prefix = name.left(name.indexOf(digit));
    if (simple.contains(prefix)) {
        QString out;
        int end = 0;
        for (auto matches = run.globalMatch(name); matches.hasNext();) {
            auto const match = matches.next();
            out += name.mid(end, match.capturedStart() - end) + length(match.captured());
            end = match.capturedEnd();
        }
        return out + name.mid(end);
    }
    QStringList parts = name.split('x');
    if (prefix == "rect" || prefix == "rectx") {
        if (parts.size() < 2 || parts.size() > 4 || (strict && parts[0].size() <= 4) ||
            (parts.size() > 2 && parts[2].size() < (strict ? 2 : 1))) {
            return name;
        }
        parts[0] = "rect" + length(parts[0].mid(4));
        parts[1] = length(parts[1]);
        if (parts.size() > 2) {
            parts[2] = parts[2].left(1) + length(parts[2].mid(1));
        }
        return parts.join('x');
    }
    QString const lengths = prefix == "moire" ? "yynyyn" : "yynnyy";
    bool const isThermal = QStringList{"thr", "ths", "s_ths", "sr_ths", "rc_ths"}.contains(prefix);
    if (!(isThermal && parts.size() >= 5) && !(prefix == "moire" && parts.size() == 6)) {
        return name;
    }
    parts = parts.mid(0, 6);
    parts[0].remove(0, prefix.size());
    for (int i = 0; i < parts.size(); ++i) {
        parts[i] = lengths[i] == 'y' ? length(parts[i]) : parts[i];
    }
    return prefix + parts.join('x');
}

double snapped(double v)
{
    double const x = QString::number(v, 'f', 3).toDouble() * 25.4;
    double const whole = wholeInt(x);
    double const f = std::round((x - whole) * 100) / 100;
    return f == 0.99 ? whole + 1 : f == 0.01 ? whole : whole + f;
}

// The regular expressions of the second ways do not take halves of a surrogate pair.
bool isPlain(QString const & text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c.isSurrogate(); });
}

// Evaluation to the letter: a postfix list, then a stack.
double evaluateByLists(QString expression)
{
    QString const operators = "+-*/";
    auto const isOperator = [&](QString const & token) {
        return token.size() == 1 && operators.contains(token);
    };
    if (!expression.isEmpty() && operators.contains(expression.back())) {
        expression.chop(1);
    }
    if (expression.startsWith('-') || expression.startsWith('+')) {
        expression.prepend('0');
    }
    QStringList waiting;
    QStringList postfix;
    QString operand;
    auto const closeOperand = [&] {
        if (!operand.isEmpty()) {
            postfix += operand;
            operand.clear();
        }
    };
    for (QChar const c : expression) {
        if (!operators.contains(c)) {
            operand += c;
            continue;
        }
        closeOperand();
        if (!waiting.isEmpty() &&
            ((waiting.back() != "+" && waiting.back() != "-") || (c != '*' && c != '/'))) {
            postfix += waiting.takeLast();
        }
        waiting += c;
    }
    closeOperand();
    while (!waiting.isEmpty()) {
        postfix += waiting.takeLast();
    }
    QList<double> stack;
    auto const pop = [&] { return stack.isEmpty() ? 0.0 : stack.takeLast(); };
    for (QString const & token : postfix) {
        if (!isOperator(token)) {
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
        // most are a family's prefix and fields, with the random text for some of these
        QString name = text;
        if (number(0, 9) > 0) {
            name = symbolPieces[number(0, 10)];
            for (int fields = number(1, 8); fields > 0; --fields) {
                name += number(0, 7) == 0 ? text : QString::number(number(0, 999999) / 1000.0);
                name += number(0, 5) == 0 ? "xr" : fields > 1 ? "x" : "";
            }
        }
        SCOPED_TRACE(name.toStdString());
        for (int unit : {0, 1, -1}) {
            QString const generic = Symbols::runsToOtherUnit(name, unit);
            QString const mil = Symbols::fromMil(name, unit);
            Symbols::runsFromMil(name, unit);
            Symbols::runsToMil(name, unit);
            QString const other = Symbols::toOtherUnit(name, unit);
            if (isPlain(name)) {
                EXPECT_EQ(generic, genericByLists(name, unit));
                EXPECT_EQ(other, familyByParts(name, true,
                                               [&](double v) { return unit == 0 ? v / 25.4 : v * 25.4; }));
                EXPECT_EQ(mil, familyByParts(name, false, [&](double v) {
                              return unit == 0 ? std::round(v * 1000) / 1000 : snapped(v);
                          }));
            }
        }
    });
}

TEST_F(Fuzz, Descriptions)
{
    run(symbolPieces, 10, [&](QString const & name) {
        EXPECT_EQ(Ext::describeSymbol(name, number(-1, 2)).isEmpty(), name.isEmpty());
    });
}

TEST_F(Fuzz, Expressions)
{
    run({"+", "-", "*", "/", "1", "2", "3.5", "0", ".", "e", "10", "inf", " ", "007", "123456789012345678"},
        20, [&](QString const & expression) {
            EXPECT_TRUE(sameDouble(Expression::evaluate(expression), evaluateByLists(expression)));
            static QRegularExpression const pair("[^0-9][^0-9]",
                                                 QRegularExpression::DotMatchesEverythingOption);
            bool const isStandard = !expression.isEmpty() && !expression.contains(pair);
            if (isPlain(expression)) {
                EXPECT_EQ(Expression::formOf(expression) == Expression::Form::Standard, isStandard);
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

TEST_F(Fuzz, Legality)
{
    run(symbolPieces, 8, [&](QString const & name) {
        int const unit = number(-1, 2);
        double const low = value();
        double const high = value();
        double const v = value();
        Ext::ValueVerdict const verdict = Ext::checkValue(v, low, high, unit);
        EXPECT_EQ(verdict.legal, verdict.text.isEmpty());
        Ext::ValueVerdict const plain = Ext::checkNumber(v, low, high);
        EXPECT_EQ(plain.legal, plain.text.isEmpty());
        if (!isPlain(name)) {
            return;
        }
        bool every = true;
        for (QString const & run : name.split(QRegularExpression("[^0-9.]+"), Qt::SkipEmptyParts)) {
            every = every && Ext::checkValue(run.toDouble(), low, high, unit).legal;
        }
        EXPECT_EQ(Ext::checkSymbol(name, low, high, unit).legal, every);
    });
}

TEST_F(Fuzz, Patterns)
{
    static QRegExp const allowed("^[A-Za-z_0-9./*]+$");
    QRegExpValidator const validator(allowed);
    run({"*", "**", "a", "B", "_", ".", "/", "top", "9", "x"}, 12, [&](QString pattern) {
        int position = 0;
        ASSERT_EQ(NameSearch::isPattern(pattern),
                  validator.validate(pattern, position) == QValidator::Acceptable);
        QString item = pattern;
        item.replace("*", number(0, 1) == 0 ? "top" : "");
        if (!NameSearch::isPattern(pattern)) {
            return;
        }
        EXPECT_EQ(NameSearch::matches({item.toUpper()}, pattern).size(), 1);
        QRegularExpression const plain(
            QRegularExpression::wildcardToRegularExpression(QString(pattern).replace('/', '_')),
            QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
        for (QString const & other : {QString("top.xaB9"), QString("a_top"), QString("")}) {
            bool const hasSlash = pattern.contains('/');
            EXPECT_EQ(!NameSearch::matches({other}, pattern).isEmpty(),
                      !hasSlash && plain.match(other).hasMatch());
        }
    });
}

} // namespace
