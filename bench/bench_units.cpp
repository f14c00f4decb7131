// Symbol names and typed expressions beside the straightforward way to the same result. Both sides run in one
// process, so the ratio does not depend on the machine.
#include "ext/Values.h"
#include "uiapi/flat/Arithmetic.h"
#include "uiapi/flat/SymbolNames.h"

#include <QRegularExpression>
#include <QString>

#include <benchmark/benchmark.h>
#ifdef UIAPI_BENCH_MUPARSER
#include <muParser.h>
#endif

#include <array>

namespace {

struct Name
{
    char const * text;
    char const * pattern; // odd captured groups are copied, even ones converted
};

// The expression of a family captures texts and sizes alternately.
constexpr char const * simple = nullptr; // any number of sizes
constexpr char const * rectangle = "^(rect)([^x]+)(x)([^x]+)(?:(x[^x])([^x]+)(?:(x[^x]*))?)?$";
constexpr char const * thermal =
    "^(thr|ths|s_ths|sr_ths|rc_ths)([^x]+)(x)([^x]+)(x[^x]+x[^x]+x)([^x]+)(?:(x)([^x]+))?";
constexpr char const * moire = "^(moire)([^x]+)(x)([^x]+)(x[^x]+x)([^x]+)(x)([^x]+)(x[^x]+)$";

constexpr std::array names{Name{"r254", simple},
                           Name{"donut_r116.02x98.5", simple},
                           Name{"rect532.13254x1254.38916", rectangle},
                           Name{"rect532.13254x1254.38916xr266.065x13", rectangle},
                           Name{"ths40x30x45x4x5", thermal},
                           Name{"moire10x5x3x2x20x45", moire}};

QString converted(QString const & size)
{
    return QString::number(size.toDouble() * 25.4, 'g', 6);
}

QString rewriteEachRun(QString const & name)
{
    static QRegularExpression const run("[0-9.]+");
    QString out;
    int end = 0;
    for (auto matches = run.globalMatch(name); matches.hasNext();) {
        auto const match = matches.next();
        out += name.mid(end, match.capturedStart() - end);
        out += converted(match.captured());
        end = match.capturedEnd();
    }
    return out + name.mid(end);
}

QString rewriteByPattern(QRegularExpression const & pattern, QString const & name)
{
    auto const match = pattern.match(name);
    QString out;
    for (int group = 1; group <= match.lastCapturedIndex(); ++group) {
        out += group % 2 == 0 ? converted(match.captured(group)) : match.captured(group);
    }
    return out;
}

QString byExpression(Name const & name, QRegularExpression const & pattern, QString const & text)
{
    return name.pattern == simple ? rewriteEachRun(text) : rewriteByPattern(pattern, text);
}

Name const & chosen(benchmark::State const & state)
{
    return names[static_cast<std::size_t>(state.range(0))];
}

void symbolLibrary(benchmark::State & state)
{
    QString const text = chosen(state).text;
    for (auto _ : state) {
        QString name = text;
        KVCAM::UIAPI::setSymbolUIData(name, 1);
        benchmark::DoNotOptimize(name);
    }
    state.SetLabel(chosen(state).text);
}

void symbolRegularExpression(benchmark::State & state)
{
    Name const & name = chosen(state);
    QRegularExpression pattern(name.pattern);
    pattern.optimize();
    QString const text = name.text;
    QString expected = text;
    KVCAM::UIAPI::setSymbolUIData(expected, 1);
    if (byExpression(name, pattern, text) != expected) {
        state.SkipWithError("the two rewrites disagree");
        return;
    }
    for (auto _ : state) {
        QString out = byExpression(name, pattern, text);
        benchmark::DoNotOptimize(out);
    }
    state.SetLabel(name.text);
}

constexpr char const * expression = "10+2*3-8/4";
constexpr double expressionValue = 14;

void expressionLibrary(benchmark::State & state)
{
    QString const text = expression;
    if (KVCAM::UIAPI::caculateData(text) != expressionValue) {
        state.SkipWithError("wrong value");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(KVCAM::UIAPI::caculateData(text));
    }
}

void evaluateText(benchmark::State & state, char const * typed,
                  KVCAM::UIAPI::Ext::EvaluateOptions const & options)
{
    QString const text = typed;
    if (!KVCAM::UIAPI::Ext::evaluate(text, options)) {
        state.SkipWithError("no value");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(KVCAM::UIAPI::Ext::evaluate(text, options));
    }
    state.SetLabel(typed);
}

// The text of the other rows, to compare with expressionLibrary and expressionMuParser.
void evaluateNumbers(benchmark::State & state)
{
    evaluateText(state, expression, {});
}

void evaluateLengths(benchmark::State & state)
{
    evaluateText(state, "10mm + 5mil*2 - (0.1in/3)", {});
}

constexpr std::array typedMil{10.0, 12.5, 3.937, 0.00004, 1234.56789};

void lengthText(benchmark::State & state)
{
    using namespace KVCAM::UIAPI::Ext;
    for (auto _ : state) {
        for (double const mil : typedMil) {
            benchmark::DoNotOptimize(Length::fromMil(mil).text(Unit::Inch, LengthScale::Small));
        }
    }
}

void lengthTextDecimals(benchmark::State & state)
{
    using namespace KVCAM::UIAPI::Ext;
    for (auto _ : state) {
        for (double const mil : typedMil) {
            benchmark::DoNotOptimize(Length::fromMil(mil).text(Unit::Inch, LengthScale::Small, 5));
        }
    }
}

// The minimum for the two above.
void numberText(benchmark::State & state)
{
    for (auto _ : state) {
        for (double const mil : typedMil) {
            benchmark::DoNotOptimize(QString::number(mil));
        }
    }
}

// The minimum for any evaluator of this text.
void expressionOperandsOnly(benchmark::State & state)
{
    std::array const operands{QString("10"), QString("2"), QString("3"), QString("8"), QString("4")};
    for (auto _ : state) {
        for (QString const & operand : operands) {
            benchmark::DoNotOptimize(operand.toDouble());
        }
    }
}

#ifdef UIAPI_BENCH_MUPARSER
void expressionMuParser(benchmark::State & state)
{
    mu::Parser parser;
    mu::string_type const text = expression;
    for (auto _ : state) {
        parser.SetExpr(text);
        double const value = parser.Eval();
        if (value != expressionValue) {
            state.SkipWithError("wrong value");
            return;
        }
        benchmark::DoNotOptimize(value);
    }
}
#endif

BENCHMARK(symbolLibrary)->DenseRange(0, names.size() - 1);
BENCHMARK(symbolRegularExpression)->DenseRange(0, names.size() - 1);
BENCHMARK(expressionLibrary);
BENCHMARK(evaluateNumbers);
BENCHMARK(evaluateLengths);
BENCHMARK(expressionOperandsOnly);
BENCHMARK(lengthText);
BENCHMARK(lengthTextDecimals);
BENCHMARK(numberText);
#ifdef UIAPI_BENCH_MUPARSER
BENCHMARK(expressionMuParser);
#endif

} // namespace

BENCHMARK_MAIN();
