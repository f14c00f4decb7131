#include "embedded/EmbeddedTest.h"

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

class FeaturesTest : public EmbeddedTest
{
protected:
    void SetUp() override
    {
        makeBoard();
        ASSERT_TRUE(open());
    }

    // The features of the layer "top" after a fresh opening, each as a line of text in micrometres.
    static Texts read()
    {
        EXPECT_TRUE(open()) << Embedded::lastError();
        Texts lines;
        for (API::feature_info const & feature : Embedded::features("board", "pcb", "top")) {
            QString line = QString("%1 %2%3%4")
                               .arg(feature.index)
                               .arg(feature.kind)
                               .arg(feature.positive ? '+' : '-')
                               .arg(QString::fromStdString(feature.symbol));
            for (API::point const & p : feature.points) {
                line += QString(" %1,%2").arg(p.x).arg(p.y);
            }
            lines.push_back(line.toStdString());
        }
        return lines;
    }
};

TEST_F(FeaturesTest, EveryRecordIsRead)
{
    QByteArray const body = "#\nF 4\n$1 r10 I\n$0 rect2x3 M\n$7 my-symbol+1\n@0 .smd\n&0 a text\n\n"
                            "P 1 2 0 P 0 8 45.5 ;0,1=2;ID=7\nL 0 0 1e0 -.5 7 N 0;;ID=1\n"
                            "A 1 0 0 1 0 0 1 P 0 Y;ID=75\n"
                            "S N 0\nOB 0 0 I\nOS 1 0\nOC 0 1 0 0 N\nOE\nOB 2 2 H\nOE\nSE\n";
    struct Row
    {
        QByteArray text;
        Texts expected;
    };
    Texts const inches{"0 P+rect2x3 25400,50800", "1 L-my-symbol+1 0,0 25400,-12700",
                       "2 A+r10 25400,0 0,25400 0,0", "3 S- 0,0 25400,0 0,25400 0,0 50800,50800"};
    Texts const millimetres{"0 P+rect2x3 1000,2000", "1 L-my-symbol+1 0,0 1000,-500",
                            "2 A+r10 1000,0 0,1000 0,0", "3 S- 0,0 1000,0 0,1000 0,0 2000,2000"};
    for (Row const & row : {
             Row{body, inches},
             Row{"U INCH\n" + body, inches},
             Row{"UNITS=MM\nID=3\n" + body, millimetres},
             Row{"U MM\n" + body, millimetres},
             Row{"units=mm\n" + QByteArray(body).replace('\n', "\r\n"), millimetres},
             Row{"", {}},
         }) {
        writeFeatures(row.text);
        EXPECT_EQ(read(), row.expected);
        EXPECT_EQ(Embedded::lastError(), "");
    }
}

TEST_F(FeaturesTest, DamageNamesFileAndLineAndLoadsNothing)
{
    struct Row
    {
        QByteArray text;
        char const * error;
    };
    QByteArray const good = "$0 r10\nP 0 0 0 P 0 0\n"; // two lines
    for (Row const & row : {
             Row{good + "P 1,5 2 0 P 0 0", "3: bad x \"1,5\""},
             Row{good + "P nan 2 0 P 0 0", "3: bad x \"nan\""},
             Row{good + "P 1e99 2 0 P 0 0", "3: bad x \"1e99\""},
             Row{good + "P 0 0 1 P 0 0", "3: unknown symbol index 1"},
             Row{good + "P 0 0 -1 0 2 P 0 0", "3: resized symbols are not read"},
             Row{good + "P 0 0 0 X 0 0", "3: bad polarity \"X\""},
             Row{good + "P 0 0 0 P 0 10", "3: bad orientation 10"},
             Row{good + "P 0 0 0 P 0 0 0", "3: unexpected \"0\""},
             Row{good + "L 0 0 1", "3: the record is cut short: no y"},
             Row{good + "P 0 0 0 P 0 0 ;x=1", "3: bad attribute index \"x\""},
             Row{good + "T 0 0 0 P", "3: text records are not read"},
             Row{good + "B 0 0 0 P", "3: barcode records are not read"},
             Row{good + "p 0 0 0 P 0 0", "3: unknown record \"p\""},
             Row{good + "S P 0\nOB 0 0 I\nOS 1 1\nOE\n", "3: the surface is not ended by SE"},
             Row{good + "S P 0\nOB 0 0 I\nSE\n", "5: \"SE\" is out of place in the surface of line 3"},
             Row{good + "S P 0\nOS 0 0\n", "4: \"OS\" is out of place in the surface of line 3"},
             Row{good + "S P 0\nOB 0 0 I\nOE\nP 0 0 0 P 0 0\n",
                 "6: \"P\" is out of place in the surface of line 3"},
             Row{good + "S P 0\nOB 0 0 J\n", "4: bad kind of contour \"J\""},
             Row{good + "$0 r11\n", "3: the table index stands twice"},
             Row{good + "\x1b[2J\xff 0", "3: unknown record \"?[2J\xef\xbf\xbd\""},
             Row{good + "$1 r10 Q\n", "3: bad symbol name \"r10 Q\""},
             Row{good + "@-1 .smd\n", "3: negative table index"},
             Row{"P=0.1 0.2 0 P 0 0\n", "1: a record expected, not \"P=0.1 0.2 0 P 0 0\""},
             Row{good + "PX=1 0 0 P 0 0\n", "3: a record expected, not \"PX=1 0 0 P 0 0\""},
             Row{good + "S P 0\nOB 0 0 I\nOS=1 0\n", "5: a record expected, not \"OS=1 0\""},
             Row{good + "U MM\n", "3: the unit stands after the first feature"},
             Row{"UNITS=FEET\n", "1: unknown unit \"FEET\""},
             Row{"F 2\n" + good, "1: 2 features announced, 1 found"},
             Row{"F 0\n" + good, "1: 0 features announced, 1 found"},
             Row{"F -1\n", "1: negative number of features"},
             Row{"$0 " + QByteArray(129, 'a'),
                 "1: bad symbol name \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa...\""},
         }) {
        writeFeatures(row.text);
        EXPECT_EQ(read(), Texts());
        EXPECT_EQ(Embedded::lastError(),
                  std::string("jobs/board/steps/pcb/layers/top/features:") + row.error);
        EXPECT_TRUE(Embedded::layerSymbols("board", "pcb", "top").empty());
        EXPECT_TRUE(Embedded::jobSymbols("board").empty());
    }
}

TEST_F(FeaturesTest, AbsentFilesGiveNothingAndUnknownNamesAnError)
{
    EXPECT_EQ(read(), Texts());
    EXPECT_EQ(Embedded::lastError(), "");
    EXPECT_TRUE(Embedded::features("board", "pcb", "inner").empty());
    EXPECT_EQ(Embedded::lastError(), "board: no layer \"inner\"");
    EXPECT_TRUE(Embedded::features("board", "panel", "top").empty());
    EXPECT_EQ(Embedded::lastError(), "board: no step \"panel\"");
    EXPECT_TRUE(Embedded::features("other", "pcb", "top").empty());
    EXPECT_EQ(Embedded::lastError(), "other: the job is not open");
}

TEST_F(FeaturesTest, AFileOverTheLimitIsRefusedUnread)
{
    writeFeatures("");
    QFile file("jobs/board/steps/pcb/layers/top/features");
    ASSERT_TRUE(file.resize(64LL * 1024 * 1024 + 1)); // sparse: uses no space
    EXPECT_EQ(read(), Texts());
    EXPECT_EQ(Embedded::lastError(),
              "jobs/board/steps/pcb/layers/top/features: the file is larger than 64 MiB");
}

TEST_F(FeaturesTest, SymbolsAreCountedByNameAndUnit)
{
    writeFeatures("$0 r10\n$1 rect4x5 M\n$2 r10 I\n$3 r3\nP 0 0 0 P 0 0\nP 0 0 1 P 0 0\nP 0 0 2 P 0 0\n");
    write("jobs/board/steps/pcb/layers/bottom/features.tables", "UNITS=MM\nF 5\n$0 r10\n$1 rect4x5\n");
    ASSERT_TRUE(open());
    EXPECT_TRUE(Embedded::isCutToTables("board", "pcb", "BOTTOM"));
    EXPECT_FALSE(Embedded::isCutToTables("board", "pcb", "top"));
    auto const shown = [](std::vector<Embedded::SymbolUse> const & uses) {
        Texts lines;
        for (Embedded::SymbolUse const & use : uses) {
            lines.push_back(use.name + ' ' + std::to_string(use.unit) + ' ' + std::to_string(use.features));
        }
        return lines;
    };
    EXPECT_EQ(shown(Embedded::layerSymbols("board", "pcb", "top")),
              (Texts{"r10 0 2", "rect4x5 1 1", "r3 0 0"}));
    EXPECT_EQ(shown(Embedded::jobSymbols("board")), (Texts{"r10 0 2", "r10 1 0", "r3 0 0", "rect4x5 1 1"}));
    // An unreadable layer does not affect the others.
    write("jobs/board/steps/pcb/layers/bottom/features", "$0 r1\nX\n");
    ASSERT_TRUE(open());
    EXPECT_EQ(shown(Embedded::jobSymbols("board")), (Texts{"r10 0 2", "r3 0 0", "rect4x5 1 1"}));
    EXPECT_TRUE(Embedded::lastError().find("bottom/features:2: ") != std::string::npos)
        << Embedded::lastError();
    EXPECT_EQ(Embedded::featureCount("board", "pcb", "bottom"), -1);
    int const count = Embedded::featureCount("board", "PCB", "Top");
    EXPECT_EQ(Embedded::features("board", "pcb", "top").size(), static_cast<std::size_t>(count));
    ASSERT_TRUE(Embedded::deleteFeatures("board", "pcb", "top", {0}));
    EXPECT_EQ(Embedded::featureCount("board", "pcb", "top"), count - 1);
    EXPECT_EQ(shown(Embedded::layerSymbols("board", "pcb", "top")),
              (Texts{"r10 0 1", "rect4x5 1 1", "r3 0 0"}));
}

TEST_F(FeaturesTest, ADrawingSaysWhatTheRecordLeavesOpen)
{
    writeFeatures("U MM\n$0 r40 I\n$1 r40 M\n$2 r40\nP 0 0 0 P 0 5\nP 0 0 1 P 0 8 30\nL 0 0 1 1 2 P 0\n"
                  "A 1 0 0 1 0 0 0 P 0 Y\nS P 0\nOB 0 0 I\nOS 1 0\nOE\nSE\n");
    ASSERT_TRUE(open());
    Texts lines;
    for (Embedded::FeatureDrawing const & drawing : Embedded::featureDrawings("board", "pcb", "top")) {
        lines.push_back(QString("%1 %2 %3 %4 %5")
                            .arg(drawing.unit)
                            .arg(drawing.angle)
                            .arg(int(drawing.mirrored))
                            .arg(int(drawing.clockwise))
                            .arg(drawing.outlines.size())
                            .toStdString());
    }
    EXPECT_EQ(lines, (Texts{"0 90 1 0 0", "1 30 0 0 0", "1 0 0 0 0", "0 0 0 1 0", "0 0 0 0 1"}));
}

// One arc of thirteen bytes gives 72 points.
TEST_F(FeaturesTest, OutlinesOfTooManyPointsAreRefused)
{
    QByteArray const text = "S P 0\nOB 1 0 I\n" + QByteArray("OC 1 0 0 0 Y\n").repeated(140'000) + "OE\nSE\n";
    writeFeatures(text);
    ASSERT_TRUE(open());
    EXPECT_TRUE(Embedded::featureDrawings("board", "pcb", "top").empty());
    EXPECT_EQ(Embedded::lastError(),
              "jobs/board/steps/pcb/layers/top/features: the outlines take more than 10000000 points");
    write("jobs/board/steps/pcb/profile", text);
    EXPECT_FALSE(open());
    EXPECT_EQ(Embedded::lastError(),
              "jobs/board/steps/pcb/profile: the outlines take more than 500000 points");
}

TEST_F(FeaturesTest, ToolsAreInMicrometres)
{
    QByteArray const tool = "TOOLS {\n NUM=1\n TYPE=NON_PLATED\n FINISH_SIZE=-1\n DRILL_SIZE=10\n}\n";
    struct Row
    {
        QByteArray text;
        double size; // of the only tool; 0: none
        char const * error;
    };
    std::string const path = "jobs/board/steps/pcb/layers/top/tools";
    for (Row const & row : {Row{tool, 254, ""}, Row{"UNITS=INCH\nTHICKNESS=0\n" + tool, 254, ""},
                            Row{"UNITS=MM\n" + tool, 10, ""}, Row{"", 0, ""},
                            Row{"TOOLS {\n NUM=1\n", 0, ":1: the TOOLS block is not closed"},
                            Row{"TOOLS {\n TYPE=VIA\n}\n", 0, ":1: the tool has no positive NUM"},
                            Row{"TOOLS {\n NUM=one\n}\n", 0, ":2: bad tool number \"one\""},
                            Row{"UNITS=M\n", 0, ":1: unknown unit \"M\""},
                            Row{tool + "TOLS {\n}\n", 0, ":7: \"TOOLS {\" expected"}}) {
        write(QString::fromStdString(path), row.text);
        std::vector<Embedded::Tool> const tools = Embedded::tools("board", "pcb", "top");
        EXPECT_EQ(Embedded::lastError(), *row.error == '\0' ? std::string() : path + row.error);
        ASSERT_EQ(tools.size(), row.size > 0 ? 1U : 0U);
        if (!tools.empty()) {
            EXPECT_EQ(tools[0].number, 1);
            EXPECT_EQ(tools[0].type, "non_plated");
            EXPECT_DOUBLE_EQ(tools[0].drillSize, row.size);
            EXPECT_DOUBLE_EQ(tools[0].finishSize, -row.size / 10);
        }
    }
}

TEST_F(FeaturesTest, TheProfilesExtentTakesInItsArcs)
{
    struct Row
    {
        QByteArray contour;
        Embedded::Box box; // millimetres
    };
    for (Row const & row : {
             Row{"OB 0 0 I\nOS 0 3\nOS 4 3\nOS 4 0\nOS 0 0\nOE\n", {0, 0, 4, 3}},
             // Half circles between the same ends, on either side; and a full one.
             Row{"OB -1 0 I\nOC 1 0 0 0 Y\nOS -1 0\nOE\n", {-1, 0, 1, 1}},
             Row{"OB -1 0 I\nOC 1 0 0 0 N\nOS -1 0\nOE\n", {-1, -1, 1, 0}},
             Row{"OB 2 1 I\nOC 2 1 1 1 Y\nOE\n", {0, 0, 2, 2}},
             // A rounded corner across 180 degrees stays within the extent of its ends.
             Row{"OB 0.6 0.8 I\nOC 0.8 0.6 0 0 Y\nOE\n", {0.6, 0.6, 0.8, 0.8}},
             Row{"OB 0.8 0.6 I\nOC 0.6 0.8 0 0 Y\nOE\n", {-1, -1, 1, 1}},
         }) {
        write("jobs/board/steps/pcb/profile", "UNITS=MM\nS P 0\n" + row.contour + "SE\n");
        ASSERT_TRUE(open()) << Embedded::lastError();
        Embedded::Box box;
        ASSERT_TRUE(Embedded::profileBox("board", "PCB", box));
        EXPECT_NEAR(box.left, row.box.left * 1000, 1e-6) << row.contour.toStdString();
        EXPECT_NEAR(box.bottom, row.box.bottom * 1000, 1e-6) << row.contour.toStdString();
        EXPECT_NEAR(box.right, row.box.right * 1000, 1e-6) << row.contour.toStdString();
        EXPECT_NEAR(box.top, row.box.top * 1000, 1e-6) << row.contour.toStdString();
    }
    write("jobs/board/steps/pcb/profile", "UNITS=MM\n");
    ASSERT_TRUE(open());
    Embedded::Box box{1, 2, 3, 4};
    EXPECT_FALSE(Embedded::profileBox("board", "pcb", box));
    EXPECT_EQ(box.top, 4);
    EXPECT_TRUE(Embedded::profileOutlines("board", "pcb").empty());
}

} // namespace
