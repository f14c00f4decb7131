#include "harness/UiapiTest.h"

#include "units/SymbolDescription.h"

#include <QRegularExpression>

using namespace KVCAM::UIAPI;

namespace {

TEST(SymbolDescription, SentencesGiveBothUnitsTheNamesOwnFirst)
{
    struct Row
    {
        char const * name;
        int unit;
        char const * text;
    };
    for (Row const & row :
         {Row{"r10", 0, "round, 10 mil (254 my)"}, Row{"r254", 1, "round, 254 my (10 mil)"},
          Row{"r100", 2, "round, 100 my (3.937008 mil)"}, Row{"s3.50", 0, "square, 3.5 mil (88.9 my)"},
          Row{"rect10x20xr5x13", 0,
              "rectangle, width 10 mil (254 my), height 20 mil (508 my), corners rounded by 5 mil (127 my), "
              "only at corners 13"},
          Row{"rect10x20xc5", 0,
              "rectangle, width 10 mil (254 my), height 20 mil (508 my), corners cut by 5 mil (127 my)"},
          Row{"hole50xnx4x5", 0,
              "hole, diameter 50 mil (1270 my), not plated, tolerance + 4 mil (101.6 my), "
              "tolerance - 5 mil (127 my)"},
          Row{"ths40x30x45x4x5", 0,
              "round thermal with square ends, outside 40 mil (1016 my), inside 30 mil (762 my), "
              "turned by 45 degrees, spokes 4, spoke gap 5 mil (127 my)"},
          Row{"moire10x5x3x2x20x45", 0,
              "moire, ring width 10 mil (254 my), ring gap 5 mil (127 my), rings 3, line width 2 mil (50.8 "
              "my), "
              "line length 20 mil (508 my), turned by 45 degrees"}}) {
        EXPECT_EQ(Ext::describeSymbol(row.name, Ext::unitOfCode(row.unit)).toStdString(), row.text);
    }
}

TEST(SymbolDescription, WhatFitsNoFamilyIsAUsersOwn)
{
    QString const names = "abc|r1x2|rect10x20xq5|hole50x1x0x0|rect11x102 I|r10%1";
    for (QString const & name : names.split('|')) {
        EXPECT_EQ(Ext::describeSymbol(name, Ext::Unit::Inch), "user symbol " + name);
    }
    EXPECT_EQ(Ext::describeSymbol("", Ext::Unit::Inch), QString());
}

TEST(SymbolDescription, EveryFamilyIsDescribedWithAllItsFields)
{
    QString const names = "donut_s100x50xr10x1234|oct5x6x1|donut_sr6x5|bfr5|bfs5|tri5x6|el5x6|oval5x6|oval_"
                          "h5x6|di5x6|hex_l5x6x1|hex_s5x6x1|"
                          "donut_r6x5|thr6x5x0x4x1x1|sr_ths6x5x0x4x1|s_ths40x30x90x4x4xr4x12|"
                          "rc_ths10x7x90x4x2x1xr2x1|s_tho40x30x90x4x4xr4|rc_tho10x7x90x4x2x1|"
                          "o_ths5x3x90x4x1x0.5|donut_rc10x7x1xr2x3|donut_o5x3x0.5";
    for (QString const & name : names.split('|')) {
        QString const text = Ext::describeSymbol(name, Ext::Unit::Inch);
        EXPECT_FALSE(text.startsWith("user symbol")) << name.toStdString();
        EXPECT_EQ(text.count(','), name.count(QRegularExpression("\\dx")) + 1) << name.toStdString();
    }
}

} // namespace
