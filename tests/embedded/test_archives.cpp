#include "embedded/ArchiveBytes.h"
#include "embedded/EmbeddedTest.h"

#include <cstdlib>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

QByteArray const pad = "$0 r10\nP 1 2 0 P 0 0\n";

class ArchiveTest : public EmbeddedTest
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir().mkdir("tmp"));
        for (char const * const variable : {"TMPDIR", "TEMP", "TMP"}) {
            qputenv(variable, QDir("tmp").absolutePath().toUtf8());
        }
        write("probe.tar", "");
        Embedded::openArchive("probe.tar");
        if (Embedded::lastError().find("this build reads no archives") != std::string::npos) {
            GTEST_SKIP() << "this build has no libarchive";
        }
    }

    static QByteArray matrix() { return step(1, "PCB") + layer(1, "TOP"); }

    // The least that makes a job with one pad, in the top folder "odb".
    static QList<Packed> board()
    {
        return {{"odb/matrix/matrix", matrix()}, {"odb/steps/pcb/layers/top/features", pad}};
    }

    // Opens an archive of these bytes and says what went wrong, without its path.
    static std::string errorOf(QByteArray const & bytes, QString const & name = "board.tar")
    {
        write(name, bytes);
        std::string const job = Embedded::openArchive(name.toStdString());
        std::string const error = Embedded::lastError();
        EXPECT_EQ(job.empty(), !error.empty());
        std::string const start = name.toStdString() + ": ";
        return error.rfind(start, 0) == 0 ? error.substr(start.size()) : error;
    }

    static QStringList leftovers() { return QDir("tmp").entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }
};

TEST_F(ArchiveTest, EveryFormGivesTheJobAndItsFolderGoesWithIt)
{
    QList<Packed> const with = {{"./odb/"},
                                {"./odb/.hidden/../x", ""},
                                {"./odb/.matrix.sum", "x"},
                                {"./odb/steps/.old", "", '2', "/etc"},
                                {"./odb/user/", ""},
                                {"./odb/user/huge:name?", "x"},
                                {"./odb/user/link", "", '2', "/etc"},
                                {"./odb/matrix/matrix", matrix()},
                                {"./odb/steps/pcb/layers/"},
                                {"./odb/steps/pcb/layers/top/features.Z", lzw(pad)},
                                {"./other/steps/pcb/profile", "not a job's"}};
    QList<Packed> full = with;
    full.removeAt(1);
    struct Row
    {
        QString file;
        QByteArray bytes;
        char const * job;
    };
    for (Row const & row :
         {Row{"board.tar", tar(board()), "board"}, Row{"Board.TGZ", gzip(tar(board())), "Board"},
          Row{"a.b.tar.gz", gzip(tar(full)), "a.b"}, Row{"board.zip", zip(board()), "board"},
          Row{"plain", gzip(tar(board())), "plain"},
          Row{"parts.tgz", gzip(tar(board()).left(700)) + gzip(tar(board()).mid(700)), "parts"},
          Row{"padded.tgz", gzip(tar(board())) + QByteArray(9, '\0'), "padded"}}) {
        EXPECT_EQ(errorOf(row.bytes, row.file), "") << row.file.toStdString();
        EXPECT_EQ(Embedded::openJobs(), Texts{row.job});
        EXPECT_EQ(Embedded::featureCount(row.job, "pcb", "top"), 1) << Embedded::lastError();
        ASSERT_EQ(leftovers().size(), 1);
#ifdef Q_OS_UNIX
        EXPECT_EQ(int(QFileInfo("tmp/" + leftovers()[0]).permissions() & 0xFF), 0) << "readable by others";
#endif
        EXPECT_TRUE(Embedded::closeJob(row.job));
        EXPECT_EQ(leftovers(), QStringList());
    }
    EXPECT_EQ(errorOf(tar(with)), "\"./odb/.hidden/../x\" leads out of the archive") << "hidden or not";
}

TEST_F(ArchiveTest, ErrorsNameTheArchiveAndReopeningReplaces)
{
    QList<Packed> entries = board();
    entries[1].bytes += "X\n";
    EXPECT_EQ(errorOf(tar(entries)), "");
    EXPECT_EQ(Embedded::featureCount("board", "pcb", "top"), -1);
    EXPECT_EQ(Embedded::lastError(), "board.tar/steps/pcb/layers/top/features:3: unknown record \"X\"");
    EXPECT_EQ(errorOf(tar(board())), "");
    EXPECT_EQ(leftovers().size(), 1);
    EXPECT_EQ(errorOf(tar({{"odb/matrix/matrix", "X\n"}})),
              "board.tar/matrix/matrix:1: \"STEP {\" or \"LAYER {\" expected");
    EXPECT_EQ(Embedded::featureCount("board", "pcb", "top"), 1) << "the open job stays";
    EXPECT_EQ(leftovers().size(), 1);
}

#ifdef Q_OS_UNIX
TEST_F(ArchiveTest, AnOpenJobLeavesNothingBehindAtTheEndOfTheProgram)
{
    auto const openAndEnd = [] {
        std::exit(errorOf(tar(board())).empty() && leftovers().size() == 1 ? 0 : 1);
    };
    EXPECT_EXIT(openAndEnd(), ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(leftovers(), QStringList());
}
#endif

TEST_F(ArchiveTest, HostileAndDamagedOnesAreRefusedWithoutATrace)
{
    QList<Packed> const good = board();
    QByteArray const packed = gzip(tar(good));
    auto const with = [&good](Packed const & entry) { return tar(good + QList<Packed>{entry}); };
    auto const flipped = [](QByteArray bytes, int at) {
        bytes[at] = static_cast<char>(bytes[at] ^ 1);
        return bytes;
    };
    QByteArray const matrixTwice = tar(good + QList<Packed>{{"two/matrix/matrix", matrix()}});
    struct Row
    {
        QByteArray bytes;
        char const * error;
    };
    for (Row const & row : {
             Row{with({"/odb/user/x"}), "\"/odb/user/x\" is an absolute name"},
             Row{with({"C:/odb/x"}), "\"C:/odb/x\" is an absolute name"},
             Row{with({"../x"}), "\"../x\" leads out of the archive"},
             Row{with({"odb/user/..\\x"}), "\"odb/user/..\\x\" leads out of the archive"},
             Row{with({"odb/steps/a:b/profile"}), "the name \"a:b\" cannot be used as a folder"},
             Row{with({"odb/steps/pcb", "", '2', "/etc"}),
                 "\"odb/steps/pcb\" is neither a file nor a folder"},
             Row{with({"odb/steps/pcb/profile", "", '1', "odb/matrix/matrix"}),
                 "\"odb/steps/pcb/profile\" is neither a file nor a folder"},
             Row{with({"odb/steps/pcb/profile", "", '3'}),
                 "\"odb/steps/pcb/profile\" is neither a file nor a folder"},
             Row{with({"odb/matrix/matrix", ""}), "\"odb/matrix/matrix\" stands twice"},
             Row{with({"odb/matrix/Matrix", ""}), "\"odb/matrix/Matrix\" stands twice"},
             Row{with({"odb/Steps/pcb/stephdr", ""}), "\"odb/Steps\" stands twice"},
             Row{with({"odb/matrix/matrix/features/", ""}), ""}, // nothing that is read
             Row{matrixTwice, "more than one top folder holds a job"},
             Row{tar({{"matrix/matrix", matrix()}}), "no top folder holds a file matrix/matrix"},
             Row{tarEntries(good), "the archive is cut short: it has no end mark"},
             Row{tarEntries(good).left(1024), "the archive is cut short: it has no end mark"},
             Row{tarEntries(good).left(600), "the archive is damaged: Truncated tar archive"},
             Row{flipped(tar(good), 1), "the archive is damaged: Unrecognized archive format"},
             Row{packed.left(packed.size() - 1), "the compressed data are cut short"},
             Row{flipped(packed, packed.size() - 8), "the compressed data are damaged: incorrect data check"},
             Row{flipped(packed, packed.size() - 4),
                 "the compressed data are damaged: incorrect length check"},
             Row{packed + "xyz", "the compressed data are damaged: incorrect header check"},
             Row{"", "the archive is damaged: Unrecognized archive format"},
         }) {
        std::string const error = errorOf(row.bytes);
        EXPECT_EQ(error, row.error);
        if (error.empty()) {
            Embedded::closeJob("board");
        }
        EXPECT_TRUE(Embedded::openJobs().empty());
        EXPECT_EQ(leftovers(), QStringList()) << row.error;
    }
    QByteArray zipped = zip(good);
    EXPECT_EQ(errorOf(zipped.left(zipped.indexOf("PK\x01\x02"))),
              "the archive is damaged: Unrecognized archive format");
    zipped[zipped.indexOf("r10")] = 's';
    EXPECT_EQ(errorOf(zipped).rfind("the archive is damaged: ZIP bad CRC", 0), 0U);
    EXPECT_EQ(Embedded::openArchive("nowhere.tgz"), "");
    EXPECT_EQ(Embedded::lastError(), "nowhere.tgz: no such file");
    EXPECT_EQ(Embedded::openArchive("tmp"), "");
    EXPECT_EQ(Embedded::lastError(), "tmp: not a regular file");
}

TEST_F(ArchiveTest, ABombMeetsAStatedLimit)
{
    using Limits = Embedded::JobLimits;
    struct Row
    {
        QByteArray bytes;
        long long Limits::*limit;
        long long refused; // the highest
        char const * error;
    };
    auto const packed = [](QByteArray const & filling) {
        QByteArray const big = filling + pad;
        return gzip(tar({{"odb/matrix/matrix", matrix()},
                         {"odb/user/more", big},
                         {"odb/steps/pcb/layers/top/features", big}}));
    };
    QByteArray noise = "#";
    for (unsigned i = 0; noise.size() < 1 << 18; ++i) {
        noise += QByteArray::number(i * 2654435761U);
    }
    noise += '\n';
    QByteArray const zeros(1 << 20, '\n');
    for (Row const & row :
         {Row{packed(noise), &Limits::archiveBytes, 1 << 19, "unpacks to more than 524288 bytes, the limit"},
          Row{packed(noise), &Limits::archiveEntries, 2, "more than 2 entries, the limit"},
          Row{packed(noise), &Limits::archiveDepth, 5,
              "\"odb/steps/pcb/layers/top/features\" is deeper than the limit of folders"},
          Row{packed(noise), &Limits::fileBytes, 1 << 18,
              "odb/steps/pcb/layers/top/features is larger than 262144 bytes, the limit of a file"},
          Row{packed(noise), &Limits::bytes, 1 << 18,
              "the files to read are larger than 262144 bytes, the job's limit"},
          Row{packed(zeros), &Limits::fileBytes, 2 << 20,
              "unpacks to more than 200 times its size, the limit"}}) {
        Limits limits;
        limits.*row.limit = row.refused;
        Embedded::setJobLimits(limits);
        EXPECT_EQ(errorOf(row.bytes), row.error);
        EXPECT_EQ(leftovers(), QStringList());
        limits.*row.limit = 2 * row.refused;
        Embedded::setJobLimits(limits);
        EXPECT_EQ(errorOf(row.bytes), "") << row.error;
        Embedded::closeJob("board");
    }
}

TEST_F(ArchiveTest, SingleFilesMayBeCompressed)
{
    makeBoard();
    Embedded::JobLimits limits;
    limits.fileBytes = 1 << 20;
    Embedded::setJobLimits(limits);
    ASSERT_TRUE(QFile::remove("jobs/board/matrix/matrix"));
    write("jobs/board/matrix/matrix.gz", gzip(matrix()));
    write("jobs/board/steps/pcb/profile.Z", lzw("S P 0\nOB 0 0 I\nOS 1 0\nOS 1 1\nOE\nSE\n"));
    QString const features = "jobs/board/steps/pcb/layers/top/features";
    QByteArray flipped = gzip(pad);
    flipped[flipped.size() - 8] = static_cast<char>(flipped[flipped.size() - 8] ^ 1);
    struct Row
    {
        char const * ending;
        QByteArray bytes;
        int count;
        std::string error;
    };
    for (Row const & row :
         {Row{".z", lzw(pad), 1, ""}, Row{".Z", gzip(pad), 1, ""}, Row{".gz", gzip(pad), 1, ""},
          Row{".gz", gzip("\n"), 0, ""}, Row{".gz", gzip(pad + "X\n"), -1, ":3: unknown record \"X\""},
          Row{".gz", flipped, -1, ": the compressed data are damaged: incorrect data check"},
          Row{".gz", gzip(pad).left(20), -1, ": the compressed data are cut short"},
          Row{".Z", "\x1f\x9d\x90\xff\xff\xff", -1, ": the archive is damaged: Invalid compressed data"},
          Row{".gz", pad, -1, ": not compressed, as the name says: neither gzip nor LZW"},
          Row{".gz", gzip(QByteArray((1 << 20) + 1, '\n')), -1,
              ": the unpacked file is larger than 1 MiB"}}) {
        write(features + row.ending, row.bytes);
        ASSERT_TRUE(open()) << Embedded::lastError();
        EXPECT_EQ(Embedded::featureCount("board", "pcb", "top"), row.count);
        EXPECT_EQ(Embedded::lastError(),
                  row.error.empty() ? "" : features.toStdString() + row.ending + row.error);
        if (row.count < 0) { // the plain file comes first
            write(features, pad);
            EXPECT_EQ(Embedded::featureCount("board", "pcb", "top"), 1);
            ASSERT_TRUE(QFile::remove(features));
        }
        ASSERT_TRUE(QFile::remove(features + row.ending));
    }
    Embedded::Box box;
    EXPECT_TRUE(Embedded::profileBox("board", "pcb", box));
    EXPECT_DOUBLE_EQ(box.right, 25400);
}

// Both boards as they came, against the same boards unpacked by hand.
TEST_F(ArchiveTest, RealArchivesHoldWhatTheirFoldersHold)
{
    QString const folder = sharedPath("jobs");
    if (folder.isEmpty()) {
        GTEST_SKIP() << "the real jobs are not here";
    }
    int compared = 0;
    for (QString const board : {"oc-breakout", "kicad-flat-hierarchy"}) {
        std::string const name = board.toStdString();
        ASSERT_TRUE(QFile::copy(folder + "/archives/" + board + ".tgz", "packed-" + board + ".tgz"));
        ASSERT_TRUE(API::open_job(folder.toStdString(), name)) << Embedded::lastError();
        std::string const packed = Embedded::openArchive("packed-" + name + ".tgz");
        ASSERT_EQ(packed, "packed-" + name) << Embedded::lastError();
        Texts steps;
        std::vector<API::layer_info> layers;
        ASSERT_EQ(API::get_matrix(packed, steps, layers), "");
        for (API::layer_info const & layer : layers) {
            auto const unpacked = Embedded::features(name, steps[0], layer.name);
            if (Embedded::isCutToTables(name, steps[0], layer.name)) {
                continue; // too large to keep unpacked
            }
            auto const read = Embedded::features(packed, steps[0], layer.name);
            ASSERT_EQ(read.size(), unpacked.size()) << layer.name << Embedded::lastError();
            for (std::size_t i = 0; i < read.size(); ++i) {
                ASSERT_EQ(read[i].symbol, unpacked[i].symbol);
                ASSERT_EQ(read[i].points.size(), unpacked[i].points.size());
                for (std::size_t p = 0; p < read[i].points.size(); ++p) {
                    ASSERT_EQ(read[i].points[p].x, unpacked[i].points[p].x);
                    ASSERT_EQ(read[i].points[p].y, unpacked[i].points[p].y);
                }
                ++compared;
            }
            EXPECT_EQ(Embedded::tools(packed, steps[0], layer.name).size(),
                      Embedded::tools(name, steps[0], layer.name).size());
        }
    }
    EXPECT_GT(compared, 20000);
}

} // namespace
