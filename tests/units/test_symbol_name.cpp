#include "harness/UiapiTest.h"

#include "uiapi/flat/SymbolNames.h"
#include "units/SymbolName.h"

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

using Rewrite = QString (*)(QString const &, int);

struct Row
{
    char const * name;
    char const * inch;
    char const * metric;
};

void expectRows(Rewrite rewrite, std::initializer_list<Row> rows)
{
    for (Row const & row : rows) {
        EXPECT_EQ(rewrite(row.name, 0).toStdString(), row.inch) << row.name;
        EXPECT_EQ(rewrite(row.name, 1).toStdString(), row.metric) << row.name;
    }
}

TEST(SymbolName, ToOtherUnitConvertsTheLengthsOfAFamily)
{
    expectRows(
        Symbols::toOtherUnit,
        {Row{"r254", "r10", "r6451.6"}, Row{"r10", "r0.393701", "r254"},
         // the simple family converts every number, counts included
         Row{"r1x2", "r0.0393701x0.0787402", "r25.4x50.8"},
         Row{"r10x-10", "r0.393701x-0.393701", "r254x-254"},
         Row{"oval_h254x508", "oval_h10x20", "oval_h6451.6x12903.2"}, Row{"r1.2.3x254", "r0x10", "r0x6451.6"},
         Row{"r0.0001", "r3.93701e-06", "r0.00254"}, Row{"rect254x508", "rect10x20", "rect6451.6x12903.2"},
         Row{"rect10x20xr5x13", "rect0.393701x0.787402xr0.19685x13", "rect254x508xr127x13"},
         Row{"rect254xinf", "rect10xinf", "rect6451.6xinf"},
         Row{"ths40x30x45x4x5", "ths1.5748x1.1811x45x4x0.19685", "ths1016x762x45x4x127"},
         Row{"thr40x30x45x4x5x1", "thr1.5748x1.1811x45x4x0.19685x0.0393701", "thr1016x762x45x4x127x25.4"},
         Row{"sr_ths254x127x45x4x25.4x2.54", "sr_ths10x5x45x4x1x0.1",
             "sr_ths6451.6x3225.8x45x4x645.16x64.516"},
         // a corner in the sixth place is not a number; the rest is dropped
         Row{"s_ths254x254x45x4x254xr5x13", "s_ths10x10x45x4x10x0", "s_ths6451.6x6451.6x45x4x6451.6x0"},
         Row{"moire10x5x3x2x20x45", "moire0.393701x0.19685x3x0.0787402x0.787402x45",
             "moire254x127x3x50.8x508x45"}});
}

TEST(SymbolName, OnlyToOtherUnitHoldsARectangleBackWhoseWidthOrCornerIsEmpty)
{
    // one trailing "x" in a rectangle's prefix is accepted: the width before it counts as 0
    for (Row const & row : {Row{"rectx5", "rect0x5", "rect0x127"}, Row{"rectx", "rect0x0", "rect0x0"},
                            Row{"rectx5xr1", "rect0x5xr1", "rect0x127xr25.4"},
                            Row{"rect10x20xr", "rect10x20xr0", "rect254x508xr0"}}) {
        expectRows(Symbols::fromMil, {row});
        expectRows(Symbols::toOtherUnit, {{row.name, row.name, row.name}});
    }
}

TEST(SymbolName, NamesThatFitNoFamilyStay)
{
    QString const names =
        "|r|10|10x20|abc10|R10|r.5|rect.5x10|rect|rect10|rect10x20x|rect10x20xx13|r\u0661| r10|"
        "rect1x2xr3x4x5|rectxtal10|rectangle1|rect_a10x20|rectxx5|rx5|r-10|thrx5|ths40x30x45x4|"
        "ths|moire10x5x3x2x20|moire1x2x3x4x5x6x7|moire|donut_rc10x20x5|donut_sr10x5|"
        "donut_o9x8x1|s_tho40x30x90x4x4|rc_tho60x40x45x4x10x10|o_ths9x8x45x4x1x1";
    for (QString const & name : names.split('|')) {
        for (int unit : {0, 1, 2, -1}) {
            EXPECT_EQ(Symbols::toOtherUnit(name, unit), name);
            EXPECT_EQ(Symbols::fromMil(name, unit), name);
        }
    }
}

TEST(SymbolName, FromMilKeepsThreeDecimalsOrSnapsToWholeMicrometres)
{
    expectRows(Symbols::fromMil,
               {Row{"r0.039", "r0.039", "r1"},       // 0.9906: one hundredth short
                Row{"r3.937", "r3.937", "r100"},     // 99.9998
                Row{"r0.0398", "r0.04", "r1.02"},    // rounded to 3 decimals first
                Row{"r3.9375", "r3.938", "r100.03"}, // halves round away from zero
                Row{"r2.0005", "r2.001", "r50.83"},  // Qt's text rounds the decimal form up
                Row{"r0.433", "r0.433", "r11"},      // 10.9982
                Row{"r0.158", "r0.158", "r4"},       // 4.0132: one hundredth too much
                Row{"ths40x30x45x4x5x1", "ths40x30x45x4x5x1", "ths1016x762x45x4x127x25.4"},
                Row{"r1000000", "r1e+06", "r2.54e+07"}, Row{"r99999999999", "r1e+11", "r2.54e+12"}});
    EXPECT_EQ(Symbols::fromMil("r10", 2), "r254");
}

TEST(SymbolName, GenericRewritesConvertEveryRunOfAnyName)
{
    expectRows(Symbols::runsToOtherUnit,
               {Row{"10x20", "0.394x0.787", "254x508"}, Row{"abc10", "abc0.394", "abc254"},
                Row{"r0.039", "r0.002", "r0.99"}, // no snap
                Row{"a.b", "a0b", "a0b"}, Row{"", "", ""}, Row{"abc", "abc", "abc"},
                Row{"r999999999999", "r3.93701e+10", "r2.54e+13"}});
    expectRows(Symbols::runsFromMil, {Row{"10x20", "10x20", "254x508"}, Row{"r0.039", "r0.039", "r1"},
                                      Row{"r0.158", "r0.158", "r4"}, Row{"r2.0005", "r2.001", "r50.81"},
                                      Row{"r3.9375", "r3.938", "r100"}});
    expectRows(Symbols::runsToMil, {Row{"10x20.50", "10x20.50", "0.394x0.807"},
                                    Row{"r254.000", "r254.000", "r10"}, Row{"r1..2", "r1..2", "r0"}});
}

TEST(SymbolName, AsManyNumbersAsTextsStartWithAText)
{
    expectRows(Symbols::runsToOtherUnit,
               {Row{"10x", "x0.394", "x254"}, Row{"1a2b", "a0.039b0.079", "a25.4b50.8"}});
    expectRows(Symbols::runsToMil, {Row{"254x", "x254", "x10"}, Row{"254x254", "254x254", "10x10"}});
}

class SymbolViews : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        for (int unit : {0, 1, 2}) {
            registerView(viewHandle(unit), unit);
        }
        engine.take();
    }

    static std::string rewritten(void (*rewrite)(void const *, QString &), int view, char const * name)
    {
        QString text = name;
        rewrite(viewHandle(view), text);
        return text.toStdString();
    }
};

TEST_F(SymbolViews, FlatFunctionsFollowTheView)
{
    // views 0 and 1 have these units; 2 has another, which is not metric
    EXPECT_EQ(rewritten(setSymbolDataByUnit, 0, "r254"), "r10");
    EXPECT_EQ(rewritten(setSymbolDataByUnit, 1, "r10"), "r254");
    EXPECT_EQ(rewritten(setSymbolDataByUnit, 2, "r254"), "r10");
    EXPECT_EQ(rewritten(setSymbolDataByMilUnit, 0, "r3.9375"), "r3.938");
    EXPECT_EQ(rewritten(setSymbolDataByMilUnit, 1, "r0.039"), "r1");
    QString name = "r10";
    setSymbolUIData(name, 1);
    EXPECT_EQ(name, "r254");
    EXPECT_EQ(getSymbolNameByUnit("r0.039", 1), "r1");
    EXPECT_EQ(engine.take(), Lines{});
    EXPECT_EQ(log.take(), Lines{});
    // an unknown view is not metric, after one line
    EXPECT_EQ(rewritten(setSymbolDataByUnit, 9, "r254x254"), "r10x10");
    EXPECT_EQ(log.take(), Lines{operationError("getUnit")});
    EXPECT_EQ(rewritten(setSymbolDataByMilUnit, 9, "r2.0005x1"), "r2.001x1");
    EXPECT_EQ(log.take(), Lines{operationError("getUnit")});
}

TEST_F(SymbolViews, ApiDataAsksTheEngineBeforeTheView)
{
    EXPECT_EQ(rewritten(setSymbolAPIData, 1, "r254"), "r10");
    EXPECT_EQ(rewritten(setSymbolAPIData, 0, "10x"), "x10");
    EXPECT_EQ(engine.take(), (Lines{"API::identify_symbol(r254 false)", "API::identify_symbol(10x false)"}));
    EXPECT_EQ(rewritten(setSymbolAPIData, 9, "r254"), "r254");
    EXPECT_EQ(log.take(), Lines{operationError("getUnit")});
    engine.identifies = false;
    EXPECT_EQ(rewritten(setSymbolAPIData, 1, "10x"), "10x");
    EXPECT_EQ(rewritten(setSymbolAPIData, 9, "10x"), "10x");
    EXPECT_EQ(log.take(), Lines{});
    engine.throwFrom("identify_symbol", "x");
    EXPECT_EQ(rewritten(setSymbolAPIData, 1, "r254"), "r254");
    EXPECT_EQ(log.take().back(), paraError("异常描述：x"));
}

TEST_F(SymbolViews, SpecialSymbolsOpenTheLibraryJobOnce)
{
    engine.specialSymbols["KVLIB"] = {"fiducial", "logo"};
    std::vector<std::string> names{"old"};
    getKvlibSpecialSymbol(names);
    EXPECT_EQ(names, (Lines{"fiducial", "logo"}));
    EXPECT_EQ(engine.take(), (Lines{"API::is_job_opened(KVLIB)", "API::open_job(./job KVLIB)",
                                    "API::get_special_symbol_names(KVLIB)"}));
    getKvlibSpecialSymbol(names);
    EXPECT_EQ(engine.take(), (Lines{"API::is_job_opened(KVLIB)", "API::get_special_symbol_names(KVLIB)"}));
    engine.openJobs.clear();
    engine.opensJobs = false; // its result is not checked
    getKvlibSpecialSymbol(names);
    EXPECT_EQ(engine.take().back(), "API::get_special_symbol_names(KVLIB)");
    engine.throwFrom("open_job", "no disk");
    names = {"kept"};
    getKvlibSpecialSymbol(names);
    EXPECT_EQ(names, Lines{"kept"});
    EXPECT_EQ(log.take().back(), paraError("异常描述：no disk"));
}

} // namespace
