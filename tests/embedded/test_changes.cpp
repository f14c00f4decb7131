#include "embedded/ArchiveBytes.h"
#include "embedded/CheckTest.h"

#include <QDirIterator>
#include <QMap>

#include <map>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

QByteArray const features =
    "UNITS=MM\r\n# head\r\nF 6\r\n\r\n$0 r100\r\n$1 rect10x20 I\r\n@0 .drill\r\n"
    "@1 .string\r\n&0 a text\r\n#\r\n"
    "P 0.10  1.000 0 P 0 0;0=1;ID=7\r\n"
    "L 0 0 1 1\t0 P 0 ;1=0,0\r\n"
    "# a surface\r\nS P 0;;ID=8\r\nOB 0 0 I\r\n# within\r\nOS 1 0\r\nOS 0 1\r\nOE\r\nSE\r\n"
    "A 0 0 1 1 1 0 1 N 0 Y\r\n"
    "# last\r\nP 2 2 1 P 0 8 33.30\r\nP 3 3 0 P 0 0";
QByteArray const nets =
    "HDR x\nLYR bottom Top\nNET $NONE$\nFID C 1 4\nNET A\nSNT TRC\nFID C 1 0\nFID C 1 5 ;x\n"
    "FID C 0 5\nNET B\nSNT VIA\nFID H 1 1\nFID C 1 3\n";

class ChangesTest : public CheckTest
{
protected:
    void SetUp() override
    {
        makeBoard();
        writeFeatures(features);
        write("jobs/board/steps/pcb/eda/data", nets);
        write("jobs/board/steps/pcb/layers/top/.features.sum", "SUM=1\n");
        write("jobs/board/steps/pcb/layers/bottom/.features.sum", "SUM=2\n");
        write("jobs/board/user/.hidden/read.me", QByteArray("\0\r\n\xff", 4));
        write("jobs/board/symbols/Own+1/features", "$0 r10\nP 0 0 0 P 0 0\n");
        ASSERT_TRUE(QDir().mkpath("jobs/board/input/empty"));
        ASSERT_TRUE(open());
    }

    static bool change(std::vector<int> const & list, std::string const & symbol, int unit = 1)
    {
        return Embedded::changeSymbol("board", "pcb", "top", list, symbol, unit);
    }
    static bool remove(std::vector<int> const & list)
    {
        return Embedded::deleteFeatures("board", "pcb", "top", list);
    }
    static bool save(QString const & folder, std::string const & job = "board")
    {
        return Embedded::saveJobAs(job, folder.toStdString());
    }
    static QByteArray read(QString const & path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    // Each feature as "index symbol unit".
    static Texts symbols(std::string const & job = "board")
    {
        auto const list = Embedded::features(job, "pcb", "top");
        auto const drawings = Embedded::featureDrawings(job, "pcb", "top");
        Texts texts;
        for (std::size_t i = 0; i < list.size(); ++i) {
            texts.push_back(std::to_string(list[i].index) + ' ' + list[i].symbol + ' ' +
                            std::to_string(drawings[i].unit));
        }
        return texts;
    }
    static Texts uses()
    {
        Texts texts;
        for (Embedded::SymbolUse const & use : Embedded::layerSymbols("board", "pcb", "top")) {
            texts.push_back(use.name + ' ' + std::to_string(use.unit) + ' ' + std::to_string(use.features));
        }
        return texts;
    }
    // All below a folder by relative path; folders end in '/'.
    static QMap<QString, QByteArray> tree(QString const & folder)
    {
        QMap<QString, QByteArray> all;
        QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            QString const path = entries.next();
            QString const name = path.mid(folder.size() + 1);
            entries.fileInfo().isDir() ? all[name + '/'] = {} : all[name] = read(path);
        }
        return all;
    }
};

Texts const asRead{"0 r100 1", "1 r100 1", "2  0", "3 rect10x20 0", "4 rect10x20 0", "5 r100 1"};

TEST_F(ChangesTest, ChangesAndDeletionsAreOneListThatUndoTakesBack)
{
    EXPECT_FALSE(Embedded::isJobChanged("board"));
    ASSERT_TRUE(change({5, 0, 4, 5}, "r99.5")) << Embedded::lastError();
    ASSERT_TRUE(remove({5, 1}));
    ASSERT_TRUE(change({0, 3}, "rect10x20", 0)) << "which feature 3 has already";
    ASSERT_TRUE(change({4}, "own+1")) << Embedded::lastError();
    EXPECT_EQ(symbols(), (Texts{"0 rect10x20 0", "2  0", "3 rect10x20 0", "4 Own+1 1"}));
    EXPECT_EQ(uses(), (Texts{"r100 1 0", "rect10x20 0 2", "r99.5 1 0", "Own+1 1 1"}));
    EXPECT_EQ(API::op_size("board", "pcb"), 4);
    EXPECT_TRUE(Embedded::isJobChanged("board"));
    for (Texts const & expected :
         {Texts{"0 rect10x20 0", "2  0", "3 rect10x20 0", "4 r99.5 1"},
          Texts{"0 r99.5 1", "2  0", "3 rect10x20 0", "4 r99.5 1"},
          Texts{"0 r99.5 1", "1 r100 1", "2  0", "3 rect10x20 0", "4 r99.5 1", "5 r99.5 1"}, asRead}) {
        ASSERT_TRUE(API::Undo("board", "pcb"));
        EXPECT_EQ(symbols(), expected);
    }
    EXPECT_EQ(uses(), (Texts{"r100 1 3", "rect10x20 0 2"}));
    EXPECT_FALSE(Embedded::isJobChanged("board"));
}

TEST_F(ChangesTest, ARefusedChangeChangesNothing)
{
    struct
    {
        std::vector<int> list;
        char const * symbol;
        int unit;
        char const * reason;
    } const rows[] = {
        {{}, "r10", 1, "no features are given"},
        {{0, 6}, "r10", 1, "has no feature 6"},
        {{-1}, "r10", 1, "has no feature -1"},
        {{0, 2}, "r10", 1, "feature 2 of layer \"top\" is a surface"},
        {{0, 5}, "r100", 1, "have the symbol \"r100\" already"},
        {{0}, "", 1, "the symbol has no name"},
        {{0}, "r10", 2, "no such unit"},
        {{0}, "r-10", 1, "neither a standard symbol nor"},
        {{0}, "rect10", 1, "neither a standard symbol nor"},
        {{0}, "r10 M", 1, "neither a standard symbol nor"},
        {{0}, "../own+1", 1, "neither a standard symbol nor"},
    };
    for (auto const & row : rows) {
        EXPECT_FALSE(change(row.list, row.symbol, row.unit)) << row.reason;
        EXPECT_NE(Embedded::lastError().find(row.reason), std::string::npos) << Embedded::lastError();
    }
    EXPECT_FALSE(Embedded::changeSymbol("board", "pcb", "inner", {0}, "r10", 1));
    EXPECT_EQ(symbols(), asRead);
    EXPECT_EQ(uses().size(), 2U);
    EXPECT_EQ(API::op_size("board", "pcb"), 0);
}

TEST_F(ChangesTest, ChecksMeasureTheNewSymbol)
{
    write("jobs/board/steps/pcb/profile", "UNITS=MM\nS P 0\nOB -9 -9 I\nOS 9 -9\nOS 9 9\nOS -9 9\nOE\nSE\n");
    writeFeatures("UNITS=MM\n$0 r100\nP 5 5 0 P 0 0\nL 0 0 1 1 0 P 0\n");
    ASSERT_TRUE(open());
    auto const width = [] {
        auto const records = signal(check(), "top", 46);
        return records.empty() ? -1 : records[0].points.back();
    };
    EXPECT_EQ(width(), 100);
    ASSERT_TRUE(change({1}, "r100", 0));
    EXPECT_EQ(width(), 2540) << "the same name in mil";
}

TEST_F(ChangesTest, NetsAndAttributesAreThoseOfTheFiles)
{
    Texts lines;
    for (int i = 0; i < 6; ++i) {
        lines.push_back(Embedded::featureNet("board", "pcb", "top", i));
        for (auto const & [name, value] : Embedded::featureAttributes("board", "pcb", "top", i)) {
            lines.back() += ' ' + name + '=' + value;
        }
    }
    EXPECT_EQ(lines, (Texts{"A .drill=1", "B .string=a text .drill=", "", "B", "", "A"}));
    EXPECT_EQ(Embedded::lastError(), "");
    ASSERT_TRUE(remove({3}));
    EXPECT_EQ(Embedded::featureNet("board", "pcb", "top", 3), "");
    EXPECT_NE(Embedded::lastError(), "");
    write("jobs/board/steps/pcb/eda/data", QByteArray(nets).replace("FID C 1 3", "FID C 1 6"));
    ASSERT_TRUE(open());
    EXPECT_EQ(Embedded::featureNet("board", "pcb", "top", 0), "") << "the numbers do not fit the layer";
}

TEST_F(ChangesTest, ASavedJobDiffersOnlyInWhatWasChanged)
{
    QMap<QString, QByteArray> expected = tree("jobs/board");
    ASSERT_TRUE(save("copies/../plain")) << Embedded::lastError();
    EXPECT_EQ(tree("plain"), expected) << "nothing was changed";

    ASSERT_TRUE(change({0, 4}, "s3.25", 0));
    ASSERT_TRUE(change({3}, "oval1x2"));
    ASSERT_TRUE(change({3}, "Own+1"));
    ASSERT_TRUE(remove({1, 2}));
    ASSERT_TRUE(save("changed")) << Embedded::lastError();
    expected["steps/pcb/layers/top/features"] =
        "UNITS=MM\r\n# head\r\nF 4\r\n\r\n$0 r100\r\n$1 rect10x20 I\r\n$2 s3.25 I\r\n$3 oval1x2\r\n$4 "
        "Own+1\r\n"
        "@0 .drill\r\n@1 .string\r\n&0 a text\r\n#\r\n"
        "P 0.10  1.000 2 P 0 0;0=1;ID=7\r\n# a surface\r\nA 0 0 1 1 1 0 4 N 0 Y\r\n"
        "# last\r\nP 2 2 2 P 0 8 33.30\r\nP 3 3 0 P 0 0";
    expected["steps/pcb/eda/data"] =
        "HDR x\nLYR bottom Top\nNET $NONE$\nFID C 1 2\nNET A\nSNT TRC\nFID C 1 0\nFID C 1 3 ;x\n"
        "FID C 0 5\nNET B\nSNT VIA\nFID C 1 1\n";
    expected.remove("steps/pcb/layers/top/.features.sum");
    EXPECT_EQ(tree("changed"), expected);

    EXPECT_FALSE(Embedded::isJobChanged("board"));
    ASSERT_TRUE(API::Undo("board", "pcb"));
    EXPECT_TRUE(Embedded::isJobChanged("board")) << "undone after saving";
    ASSERT_TRUE(remove({1}));
    EXPECT_TRUE(Embedded::isJobChanged("board")) << "as many operations, but another";
    ASSERT_TRUE(save("later"));
    EXPECT_FALSE(Embedded::isJobChanged("board"));
}

TEST_F(ChangesTest, ACompressedFileIsWrittenPlain)
{
    write("jobs/board/steps/pcb/layers/bottom/features.Z", gzip("$0 r10\nP 0 0 0 P 0 0\nP 1 1 0 P 0 0\n"));
    ASSERT_TRUE(open());
    if (!Embedded::deleteFeatures("board", "pcb", "bottom", {0})) {
        GTEST_SKIP() << Embedded::lastError();
    }
    ASSERT_TRUE(save("copy")) << Embedded::lastError();
    auto const files = tree("copy/steps/pcb/layers/bottom");
    EXPECT_EQ(files, (QMap<QString, QByteArray>{{"features", "$0 r10\nP 1 1 0 P 0 0\n"}}));
}

TEST_F(ChangesTest, ARefusedTargetIsLeftAlone)
{
    ASSERT_TRUE(remove({0}));
    write("full/x", "1");
    ASSERT_TRUE(QDir().mkpath("empty"));
    struct
    {
        char const * target;
        char const * reason;
    } const rows[] = {
        {"jobs/board/copy", "in the job that is to be saved"},
        {"jobs/board/steps/pcb/copy", "in the job that is to be saved"},
        {"jobs/board", "not empty"},
        {"full", "not empty"},
        {"full/x", "something else of that name"},
        {"no/such/folder", "no such folder"},
        {"..", "not empty"},
        {"", "not empty"},
    };
    auto const before = tree(".");
    for (auto const & row : rows) {
        EXPECT_FALSE(save(row.target)) << row.target;
        EXPECT_NE(Embedded::lastError().find(row.reason), std::string::npos) << Embedded::lastError();
    }
    EXPECT_FALSE(save("copy", "other"));
    EXPECT_EQ(tree("."), before);
    EXPECT_TRUE(Embedded::isJobChanged("board"));
    EXPECT_TRUE(save("empty")) << Embedded::lastError();
}

TEST_F(ChangesTest, AFileThatHasChangedSinceItWasReadIsNotSaved)
{
    ASSERT_TRUE(remove({0}));
    for (QByteArray const & bytes : {QByteArray(features).replace("P 2 2 1", "P 2 2.5 1"),
                                     QByteArray(features + "\nP 9 9 0 P 0 0"), QByteArray("$0 r1\n")}) {
        writeFeatures(QByteArray(bytes).replace("F 6", "# 6"));
        EXPECT_FALSE(save("copy"));
        EXPECT_NE(Embedded::lastError().find("copy/steps/pcb/layers/top/features: the file has changed"),
                  std::string::npos)
            << Embedded::lastError();
        EXPECT_EQ(QDir(".").entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList("jobs"));
    }
}

#ifndef Q_OS_WIN // where links need rights
TEST_F(ChangesTest, LinksAreNeitherFollowedNorLost)
{
    write("outside/secret", "x");
    for (char const * const target : {"../../outside", "../../outside/secret", "nowhere"}) {
        ASSERT_TRUE(QFile::link(target, "jobs/board/link"));
        EXPECT_FALSE(save("copy")) << target;
        EXPECT_NE(Embedded::lastError().find("board/link: a link"), std::string::npos)
            << Embedded::lastError();
        EXPECT_FALSE(QFileInfo::exists("copy"));
        ASSERT_TRUE(QFile::remove("jobs/board/link"));
    }
    ASSERT_TRUE(QFile::link("jobs/board", "way"));
    EXPECT_FALSE(save("way/copy"));
    ASSERT_TRUE(QFile::link("nowhere", "loose"));
    EXPECT_FALSE(save("loose"));
}
#endif

TEST_F(ChangesTest, AJobFromAnArchiveIsSavedWhole)
{
    QList<Packed> const board = {
        {"odb/matrix/matrix", step(1, "PCB") + layer(1, "TOP")},
        {"odb/steps/pcb/layers/top/features", "$0 r10\nP 1 2 0 P 0 0\nP 3 4 0 P 0 0\n"},
        {"odb/steps/pcb/layers/top/.features.sum", "1"},
        {"odb/matrix/.matrix.sum", "2"},
        {"odb/user/empty/"},
        {"odb/user/notes", "3"}};
    write("pack.tar", tar(board));
    if (Embedded::openArchive("pack.tar").empty()) {
        GTEST_SKIP() << Embedded::lastError();
    }
    ASSERT_TRUE(Embedded::deleteFeatures("pack", "pcb", "top", {0}));
    ASSERT_TRUE(save("copy", "pack")) << Embedded::lastError();
    QMap<QString, QByteArray> expected{{"matrix/", {}},
                                       {"steps/", {}},
                                       {"steps/pcb/", {}},
                                       {"steps/pcb/layers/", {}},
                                       {"steps/pcb/layers/top/", {}},
                                       {"user/", {}},
                                       {"user/empty/", {}},
                                       {"user/notes", "3"},
                                       {"matrix/.matrix.sum", "2"},
                                       {"matrix/matrix", board[0].bytes},
                                       {"steps/pcb/layers/top/features", "$0 r10\nP 3 4 0 P 0 0\n"}};
    EXPECT_EQ(tree("copy"), expected);
    write("pack.tar", tar(board + QList<Packed>{{"odb/more", "4"}}));
    EXPECT_FALSE(save("again", "pack"));
    EXPECT_NE(Embedded::lastError().find("the archive has changed"), std::string::npos)
        << Embedded::lastError();
    write("link.tar", tar(board + QList<Packed>{{"odb/user/link", "", '2', "/etc"}}));
    ASSERT_EQ(Embedded::openArchive("link.tar"), "link");
    EXPECT_FALSE(save("again", "link"));
    EXPECT_FALSE(QFileInfo::exists("again"));
}

// What tells one feature from another, with its net.
Texts facts(std::string const & job, std::string const & step, std::string const & layer)
{
    auto const list = Embedded::features(job, step, layer);
    auto const drawings = Embedded::featureDrawings(job, step, layer);
    Texts texts;
    for (std::size_t i = 0; i < list.size(); ++i) {
        QString text =
            QString("%1 %2 %3 %4 %5")
                .arg(list[i].kind)
                .arg(QString::fromStdString(list[i].symbol))
                .arg(drawings[i].unit)
                .arg(drawings[i].angle)
                .arg(QString::fromStdString(Embedded::featureNet(job, step, layer, list[i].index)));
        for (API::point const & point : list[i].points) {
            text += QString(" %1 %2").arg(point.x, 0, 'g', 17).arg(point.y, 0, 'g', 17);
        }
        texts.push_back(text.toStdString());
    }
    return texts;
}

TEST_F(ChangesTest, RealBoardsReadBackEqual)
{
    QString const boards = sharedPath("jobs/archives");
    if (boards.isEmpty()) {
        GTEST_SKIP() << "no real boards here";
    }
    for (auto const & [name, step] :
         {std::pair("oc-breakout", "stp"), std::pair("kicad-flat-hierarchy", "pcb")}) {
        std::string const job = Embedded::openArchive((boards + "/" + name + ".tgz").toStdString());
        ASSERT_EQ(job, name) << Embedded::lastError();
        std::vector<std::string> steps;
        std::vector<API::layer_info> layers;
        API::get_matrix(job, steps, layers);
        for (API::layer_info const & layer : layers) {
            std::vector<int> gone;
            std::vector<int> changed;
            for (API::feature_info const & feature : Embedded::features(job, step, layer.name)) {
                if (feature.index % 3 == 0) {
                    gone.push_back(feature.index);
                } else if (feature.index % 7 == 0 && feature.kind != 'S') {
                    changed.push_back(feature.index);
                }
            }
            EXPECT_TRUE(gone.empty() || Embedded::deleteFeatures(job, step, layer.name, gone));
            EXPECT_TRUE(changed.empty() ||
                        Embedded::changeSymbol(job, step, layer.name, changed, "r77.125", 1))
                << Embedded::lastError();
        }
        QString const copy = QString("copy-") + name;
        ASSERT_TRUE(save(copy, job)) << Embedded::lastError();
        ASSERT_TRUE(API::open_job(".", copy.toStdString())) << Embedded::lastError();
        for (API::layer_info const & layer : layers) {
            EXPECT_EQ(facts(copy.toStdString(), step, layer.name), facts(job, step, layer.name))
                << layer.name;
        }
    }
}

} // namespace
