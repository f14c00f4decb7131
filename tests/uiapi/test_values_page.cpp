// The page that people look functions on values up in: each row's results are what the function gives.

#include "harness/UiapiTest.h"

#include "UIAPICommon.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <functional>
#include <map>
#include <string>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class ValuesPage : public UiapiTest
{};

using Call = std::function<QString(void const *, int unit)>;

QString number(double value)
{
    return QString::number(value, 'g', 12);
}

QString quoted(QString const & text)
{
    return '"' + text + '"';
}

template <class Rewrite>
Call renamed(Rewrite const & rewrite)
{
    return [rewrite](void const * view, int unit) {
        QString name = "r10";
        rewrite(view, unit, name);
        return quoted(name);
    };
}

std::map<QString, Call> const & calls()
{
    auto const text = [](std::string const & value) { return quoted(QString::fromStdString(value)); };
    static std::map<QString, Call> const all{
        {"getUnitJudgeData(view, 10.9)", [](auto v, int) { return number(getUnitJudgeData(v, 10.9)); }},
        {"getUnitJudgeData2(view, 254.9)", [](auto v, int) { return number(getUnitJudgeData2(v, 254.9)); }},
        {"getUnitJudgeDouble(view, 10)", [](auto v, int) { return number(getUnitJudgeDouble(v, 10)); }},
        {"getUnitJudgeString(view, 10, 2)", [](auto v, int) { return quoted(getUnitJudgeString(v, 10, 2)); }},
        {"getUnitJudgeStringMetric(view, 25400)",
         [](auto v, int) { return quoted(getUnitJudgeStringMetric(v, 25400)); }},
        {"getUnitPointData(view, 25400)", [](auto v, int) { return number(getUnitPointData(v, 25400)); }},
        {"getUnitAPIData(view, 0, 1)", [](auto v, int) { return number(getUnitAPIData(v, 0, 1)); }},
        {"getUnitAPIData(view, 1, 1)", [](auto v, int) { return number(getUnitAPIData(v, 1, 1)); }},
        {"getUnitMilData(view, 0, 254)", [](auto v, int) { return number(getUnitMilData(v, 0, 254)); }},
        {"getUnitData(view, 25.4)", [](auto v, int) { return number(getUnitData(v, 25.4)); }},
        {"getAreaUnitJudgeString(view, 1)", [](auto v, int) { return quoted(getAreaUnitJudgeString(v, 1)); }},
        {"getUnitString(view)", [text](auto v, int) { return text(getUnitString(v)); }},
        {"getUnitStringType(view, 0)", [text](auto v, int) { return text(getUnitStringType(v, 0)); }},
        {"getUnitStringType(view, 1)", [text](auto v, int) { return text(getUnitStringType(v, 1)); }},
        {"getAreaUnitStringType(view)", [text](auto v, int) { return text(getAreaUnitStringType(v)); }},
        {"getSymbolNameByUnit(name, unit)",
         [text](auto, int unit) { return text(getSymbolNameByUnit("r10", unit)); }},
        {"setSymbolUIData(name, unit)",
         renamed([](auto, int unit, QString & name) { setSymbolUIData(name, unit); })},
        {"setSymbolAPIData(view, name)",
         renamed([](auto v, int, QString & name) { setSymbolAPIData(v, name); })},
        {"setSymbolDataByUnit(view, name)",
         renamed([](auto v, int, QString & name) { setSymbolDataByUnit(v, name); })},
        {"setSymbolDataByMilUnit(view, name)",
         renamed([](auto v, int, QString & name) { setSymbolDataByMilUnit(v, name); })},
    };
    return all;
}

TEST_F(ValuesPage, EachRowIsWhatItsFunctionGives)
{
    registerView(viewHandle(0), 0);
    registerView(viewHandle(1), 1);
    QFile page(QString(UIAPI_SOURCE_DIR) + "/docs/Values.md");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    QRegularExpression const row(R"(\| `([^`]+)` \| ([^|]+) \| ([^|]+) \|$)");
    std::size_t rows = 0;
    for (QString const & line : QString::fromUtf8(page.readAll()).split('\n')) {
        QRegularExpressionMatch const match = row.match(line);
        if (!match.hasMatch()) {
            continue;
        }
        auto const call = calls().find(match.captured(1));
        ASSERT_NE(call, calls().end()) << line.toStdString();
        ++rows;
        for (int const unit : {0, 1}) {
            EXPECT_EQ(call->second(viewHandle(unit), unit), match.captured(2 + unit).trimmed())
                << line.toStdString();
        }
    }
    EXPECT_EQ(rows, calls().size());
}

} // namespace
