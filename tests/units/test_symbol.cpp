#include "harness/SharedFolder.h"
#include "harness/UiapiTest.h"

#include "ext/Values.h"

#include <QFile>

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext;
using namespace KVCAM::Testing;

namespace {

// Nothing is lost in the unit of the name, and no length there and back.
void expectExact(QString const & name)
{
    for (Unit const unit : {Unit::Inch, Unit::Millimetre}) {
        SymbolReading const read = Symbol::parse(name, unit);
        ASSERT_TRUE(read.ok && read.symbol && read.fault == SymbolFault::None) << read.reason.toStdString();
        EXPECT_EQ(read.symbol->name(unit), name);
        QString const other = read.symbol->name(otherUnit(unit));
        SymbolReading const again = Symbol::parse(other, otherUnit(unit));
        ASSERT_TRUE(again.ok) << other.toStdString();
        for (SymbolValue const & value : read.symbol->values()) {
            EXPECT_EQ(again.symbol->find(value.role)->length, value.length) << other.toStdString();
        }
    }
}

TEST(Symbol, IsWrittenInEitherUnit)
{
    QString const names = "r0|r100.0|rect532.13254x1254.38916xr266.065|rect78x88xr0x13|donut_rc116020.0x7x1|"
                          "hole50xvx4x5|thr6x5x22.5x4x1x0.1|s_tho4x3x90x4x4xr4x2|r35.43297244094488|"
                          "rc_ths10x7x90x4x2x1xr2|moire5x10x4x4x100x45|rect9x8xc0.001";
    for (QString const & name : names.split('|')) {
        expectExact(name);
    }
    EXPECT_EQ(Symbol::parse("rect10x20xc5x13", Unit::Inch).symbol->name(Unit::Millimetre),
              "rect254x508xc127x13");
    EXPECT_EQ(Symbol::parse("moire254x127x3x25.4x508x45", Unit::Millimetre).symbol->name(Unit::Inch),
              "moire10x5x3x1x20x45");
    EXPECT_EQ(Symbol::parse("hole500xnx1x0", Unit::Millimetre).symbol->name(Unit::Inch),
              "hole19.68504xnx0.03937x0");
}

// When the folder with them is at hand: name, source, verdict.
TEST(Symbol, AgreesWithTheCollectedNames)
{
    QFile file(sharedPath("symbol_names.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        GTEST_SKIP() << "the collected names are not here";
    }
    while (!file.atEnd()) {
        QList<QByteArray> const columns = file.readLine().trimmed().split('\t');
        // an open oval thermal is no family of ours
        bool const isStandard = columns.at(2) == "standard" && !columns[0].startsWith("o_tho");
        EXPECT_EQ(Symbol::parse(columns[0], Unit::Inch).ok, isStandard) << columns[0].toStdString();
        isStandard ? expectExact(columns[0]) : void();
    }
}

TEST(Symbol, SaysWhatIsWrongWhere)
{
    using Fault = SymbolFault;
    struct
    {
        char const * name;
        Fault fault;
        int position;
        int size;
        char const * reason;
    } const rows[] = {
        {"", Fault::Empty, 0, 0, "Type a name."},
        {"u76r5", Fault::UnknownFamily, 0, 1, "No standard symbol begins with \"u\"."},
        {"rectx5", Fault::FieldMissing, 4, 0, "width: This field is missing."},
        {"rect10", Fault::FieldMissing, 6, 0, "height: This field is missing."},
        {"rect1x2xr", Fault::FieldMissing, 9, 0, "corner size: This field is missing."},
        {"r5x", Fault::TooManyFields, 2, 1, "\"x\" is too much; the name ends before it."},
        {"rect10x20_135", Fault::NotANumber, 7, 6, "height: \"20_135\" is not a number such as 10 or 2.5."},
        {"r.5", Fault::NotANumber, 1, 2, "diameter: \".5\" is not a number such as 10 or 2.5."},
        {"r-5", Fault::NotANumber, 1, 2, "diameter: \"-5\" is not a number such as 10 or 2.5."},
        {"r1%1", Fault::NotANumber, 1, 3, "diameter: \"1%1\" is not a number such as 10 or 2.5."},
        {"thr1x2x3x4.5x5", Fault::NotAWholeNumber, 9, 3, "number of spokes: \"4.5\" is not a whole number."},
        {"oval1x9999999999999999", Fault::TooLarge, 6, 16, "height: \"9999999999999999\" is too large."},
        {"thr1x2x2147483648x4x5", Fault::TooLarge, 7, 10, "angle: \"2147483648\" is too large."},
        {"donut_s9x8xq5", Fault::CornerKindMissing, 11, 2,
         "corner size: \"q5\" does not begin with r (rounded) or c (cut)."},
        {"donut_s9x8xc5", Fault::ChamferNotAllowed, 11, 2,
         "corner size: The corners of this symbol can be rounded (r), not cut (c)."},
        {"rect1x2xr3x11", Fault::NotCorners, 11, 2,
         "corners: \"11\" is not a choice of the corners 1 to 4, each once."},
        {"hole9xqx1x1", Fault::NotPlating, 6, 1,
         "plating: \"q\" is not p (plated), n (not plated) or v (via)."},
    };
    for (auto const & row : rows) {
        SymbolReading const read = Symbol::parse(row.name, Unit::Inch);
        EXPECT_FALSE(read.ok || read.symbol) << row.name;
        EXPECT_EQ(read.fault, row.fault) << row.name;
        EXPECT_TRUE(read.position == row.position && read.size == row.size) << row.name << read.position;
        EXPECT_EQ(read.reason.toStdString(), row.reason);
    }
    EXPECT_EQ(Symbol::parse("rect10", Unit::Inch).field, SymbolField::Height);
}

TEST(Symbol, EachFieldKeepsTheUnitItWasWrittenIn)
{
    Symbol symbol = *Symbol::parse("rect500x700xr50", Unit::Millimetre).symbol;
    EXPECT_EQ(symbol.setValue(0, "12.50", Unit::Inch), SymbolFault::None);
    EXPECT_EQ(symbol.setValue(1, "7x1", Unit::Inch), SymbolFault::NotANumber);
    EXPECT_EQ(symbol.setValue(3, "13", Unit::Inch), SymbolFault::TooManyFields);
    EXPECT_EQ(symbol.name(Unit::Millimetre), "rect317.5x700xr50");
    EXPECT_EQ(symbol.name(Unit::Inch), "rect12.50x27.55906xr1.9685");
    EXPECT_EQ(symbol.find(SymbolField::Corner)->length, 50_um);
}

} // namespace
