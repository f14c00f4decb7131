#include "layers/FileTree.h"

#include "harness/UiapiTest.h"

#include "layers/FilePaths.h"
#include "uiapi/flat/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

QString text(std::string const & bytes)
{
    return QString::fromStdString(bytes);
}

// Names as a file system may hold them: the last is no text in any encoding that a locale has.
std::vector<std::string> const oddNames
{
    "a\nb", " ", ".hidden", "-rf", "*", "back\\slash", "Größe 测试",
#if defined(Q_OS_LINUX)
        "\xff\xfe\x80"
#endif
};

class JobFilesTest : public UiapiTest
{
protected:
    /// A directory "tree" with odd names and links out of it, and what they point to.
    void SetUp() override
    {
        UiapiTest::SetUp();
        putFile("outside/keep", "outside");
        putFile("outside/sub/keep", "deep");
        putFile("tree/file", "text");
        putFile("tree/sub/deep/file", "");
        fs::create_directories("tree/empty");
        for (std::string const & name : oddNames) {
            putFile(fs::path("tree/odd" + name) / name, name);
        }
        fs::create_directory_symlink(fs::absolute("outside"), "tree/link");
        fs::create_directory_symlink("../../outside", "tree/sub/relative");
        fs::create_symlink(fs::absolute("outside/keep"), "tree/filelink");
        fs::create_symlink("nowhere", "tree/dangling");
        fs::create_directory_symlink(".", "tree/loop");
        fs::create_hard_link("outside/keep", "tree/hard");
        fs::permissions("outside/keep", fs::perms::owner_read); // a change by way of "hard" would show
        m_outside = treeOf("outside");
        m_permissions = fs::status("outside/keep").permissions();
        m_tree = treeOf("tree");
    }

    void TearDown() override
    {
        EXPECT_EQ(treeOf("outside"), m_outside);
        EXPECT_EQ(fs::status("outside/keep").permissions(), m_permissions);
        EXPECT_EQ(log.take(), Lines{});
        // The test's own directory goes through Qt, which overlooks the oddest name.
        for (fs::directory_entry const & entry : fs::directory_iterator(".")) {
            fs::remove_all(entry);
        }
        UiapiTest::TearDown();
    }

    std::vector<std::string> m_outside;
    std::vector<std::string> m_tree;
    fs::perms m_permissions{};
};

TEST_F(JobFilesTest, ATreeGoesWithItsLinksAndNothingElse)
{
    EXPECT_TRUE(delDir("tree", false));
    EXPECT_EQ(treeOf("tree"), std::vector<std::string>{});
    SetUp();
    EXPECT_TRUE(delDir(fs::absolute("tree//").string(), true));
    EXPECT_FALSE(fs::exists("tree"));
}

TEST_F(JobFilesTest, ALinkAsThePathIsRemovedAsALink)
{
    for (char const * end : {"", "/", "//"}) {
        fs::create_directory_symlink("outside", "link");
        EXPECT_FALSE(delDir(std::string("link") + end, false));
        EXPECT_TRUE(fs::is_symlink("link"));
        EXPECT_TRUE(delDir(std::string("link") + end, true));
        EXPECT_FALSE(fs::is_symlink("link"));
    }
    // A link on the way is followed: that is what the path says.
    fs::create_directory_symlink("tree", "way");
    EXPECT_TRUE(delDir("way/sub", true));
    EXPECT_FALSE(fs::exists("tree/sub"));
}

TEST_F(JobFilesTest, WhatMustStayIsRefused)
{
    fs::create_directories("home/user");
    qputenv("HOME", fs::absolute("home/user").string().c_str());
    fs::create_directories("work/here/below");
    fs::current_path("work/here");
    std::vector<std::string> const before = treeOf("../..");
    std::string const here = fs::current_path().string();
    std::string const world = fs::current_path().parent_path().parent_path().filename().string();
    std::vector<std::string> const paths{"",
                                         ".",
                                         "..",
                                         "./",
                                         "../",
                                         "below/.",
                                         "below/..",
                                         "../here",
                                         "../../work",
                                         here,
                                         here + "/",
                                         "../../../" + world,
                                         "../../home/user",
                                         "../../home",
                                         "../../tree/file",
                                         "../../tree/filelink",
                                         "../../tree/dangling",
                                         "../../none",
                                         std::string("below\0x", 7),
                                         std::string("below\0", 6)};
    for (std::string const & path : paths) {
        EXPECT_FALSE(delDir(path, true)) << path;
        EXPECT_FALSE(delDir(path, false)) << path;
    }
    // Roots only by name: a test must not try.
    EXPECT_TRUE(FilePaths::isProtected("/") && FilePaths::isProtected("//") && FilePaths::isProtected("/.."));
    EXPECT_FALSE(FilePaths::isProtected("below") || FilePaths::isProtected("../../tree"));
    EXPECT_FALSE(FilePaths::namesAnEntry("/") || FilePaths::namesAnEntry("/."));
    EXPECT_EQ(treeOf("../.."), before);
    EXPECT_TRUE(delDir("below", true));
    fs::current_path("../..");
}

/// Runs this case again with an ordinary user's rights; an administrator may write everywhere.
bool runAsUser(char const * name)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start("setpriv", {"--reuid=65534", "--regid=65534", "--clear-groups",
                              QCoreApplication::applicationFilePath(), QString("--gtest_filter=") + name});
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

bool isAdministrator()
{
    return QFileInfo("/").isWritable();
}

bool canRunAsUser()
{
    return QProcess::execute("setpriv", {"--reuid=65534", "--regid=65534", "--clear-groups", "test", "-x",
                                         QCoreApplication::applicationFilePath()}) == 0;
}

TEST_F(JobFilesTest, ReadOnlyPartsGo)
{
    if (isAdministrator()) {
        if (!canRunAsUser()) {
            GTEST_SKIP() << "no other user's rights to be had here";
        }
        EXPECT_TRUE(runAsUser("JobFilesTest.ReadOnlyPartsGo"));
        return;
    }
    fs::perms const noWrite = fs::perms::owner_read | fs::perms::owner_exec;
    putFile("tree/locked/inner/file", "x");
    fs::permissions("tree/locked/inner", fs::perms::none);
    fs::permissions("tree/locked", fs::perms::none);
    fs::permissions("tree/sub", noWrite);
    fs::permissions("tree", noWrite);
    fs::permissions("outside/sub", noWrite);
    EXPECT_TRUE(delDir("tree", true));
    EXPECT_FALSE(fs::exists("tree"));
    EXPECT_EQ(fs::status("outside/sub").permissions(), noWrite);

    // What cannot be removed: a directory in a place that takes no change.
    fs::create_directories("closed/sub");
    fs::permissions("closed", noWrite);
    EXPECT_FALSE(delDir("closed/sub", true));
    EXPECT_TRUE(fs::is_directory("closed/sub"));
    EXPECT_TRUE(delDir("closed", true));
    fs::permissions("outside/sub", fs::perms::owner_all);

    // What cannot be read is left out of a copy, and the rest is not.
    putFile("from/a", "1");
    putFile("from/b", "2");
    putFile("from/shut/c", "3");
    fs::permissions("from/a", fs::perms::none);
    fs::permissions("from/shut", fs::perms::none);
    EXPECT_FALSE(copyDirectoryFile("from", "to", true));
    EXPECT_EQ(treeOf("to"), (std::vector<std::string>{"b=2", "shut/"}));
    fs::permissions("from/shut", fs::perms::owner_read | fs::perms::owner_exec);
    fs::permissions("from/a", fs::perms::owner_read);
    EXPECT_TRUE(copyDirectoryFile("from", "second", false));
    EXPECT_EQ(treeOf("second"), (std::vector<std::string>{"a=1", "b=2", "shut/", "shut/c=3"}));
    EXPECT_EQ(fs::status("second/a").permissions(), fs::perms::owner_read);
    putFile("from/b", "new");
    EXPECT_TRUE(copyDirectoryFile("from", "second", true)) << "the read-only copy is replaced";
    EXPECT_TRUE(delDir("from", true));
}

TEST_F(JobFilesTest, APipeIsRemovedAndNeitherCopiedNorWrittenTo)
{
    if (QProcess::execute("mkfifo", {"tree/pipe"}) != 0) {
        GTEST_SKIP() << "no pipes here";
    }
    EXPECT_FALSE(copyDirectoryFile("tree", "copy", false));
    EXPECT_EQ(treeOf("copy"), m_tree) << "all but the pipe";
    EXPECT_FALSE(saveTextByIODevice("tree/pipe", "x"));
    EXPECT_TRUE(delDir("tree", true));
}

TEST_F(JobFilesTest, ACopyHasTheLinksAndOddNamesOfItsSource)
{
    EXPECT_TRUE(copyDirectoryFile("tree", "new/parents/copy/", false));
    EXPECT_EQ(treeOf("new/parents/copy"), m_tree);
    EXPECT_EQ(treeOf("tree"), m_tree);
    EXPECT_EQ(fs::hard_link_count("outside/keep"), 2U) << "a file of its own";
}

TEST_F(JobFilesTest, WhatIsThereIsReplacedOnlyWhenAskedFor)
{
    fs::create_directories("to/kind/is/other");
    putFile("from/kind", "file");
    putFile("from/sub/file", "new");
    putFile("from/fresh", "new");
    putFile("from/here", "new");
    putFile("from/through/file", "new");
    fs::create_symlink("fresh", "from/mark");
    putFile("to/sub/file", "old");
    putFile("to/sub/other", "old");
    putFile("to/mark", "old");
    fs::create_symlink(fs::absolute("outside/keep"), "to/here");
    fs::create_directory_symlink(fs::absolute("outside"), "to/through");
    std::string const link = fs::absolute("outside").generic_string();
    // Neither way leads through a link that is there, and the kind of what is there does not change.
    EXPECT_FALSE(copyDirectoryFile("from", "to", false));
    EXPECT_EQ(treeOf("to"), (std::vector<std::string>{"fresh=new", "here>" + link + "/keep", "kind/",
                                                      "kind/is/", "kind/is/other/", "mark=old", "sub/",
                                                      "sub/file=old", "sub/other=old", "through>" + link}));
    EXPECT_FALSE(copyDirectoryFile("from", "to", true));
    EXPECT_EQ(treeOf("to"), (std::vector<std::string>{"fresh=new", "here=new", "kind/", "kind/is/",
                                                      "kind/is/other/", "mark>fresh", "sub/", "sub/file=new",
                                                      "sub/other=old", "through>" + link}));
    fs::remove_all("to/kind");
    fs::remove("to/through");
    EXPECT_TRUE(copyDirectoryFile("from", "to", true));
    EXPECT_TRUE(delDir("to", false));
    EXPECT_TRUE(copyDirectoryFile("from", "to", false));
    EXPECT_EQ(treeOf("to"), treeOf("from"));
}

TEST_F(JobFilesTest, ACopyIntoItselfIsRefused)
{
    fs::create_directory_symlink("tree", "alias");
    for (auto const & [from, to] :
         std::initializer_list<std::pair<char const *, char const *>>{{"tree", "tree"},
                                                                      {"tree", "tree/"},
                                                                      {"tree", "tree/sub"},
                                                                      {"tree", "tree/new/deep"},
                                                                      {"tree", "alias"},
                                                                      {"tree", "alias/new"},
                                                                      {"alias", "tree"},
                                                                      {"alias", "tree/new"},
                                                                      {"tree", "tree/loop/new"},
                                                                      {"tree", "none/../tree/new"},
                                                                      {"tree", "outside/../tree"},
                                                                      {".", "new"},
                                                                      {"tree", ""},
                                                                      {"", "new"},
                                                                      {"none", "new"},
                                                                      {"tree/file", "new"},
                                                                      {"tree", "tree/file/new"},
                                                                      {"outside", "tree/file"}}) {
        EXPECT_FALSE(copyDirectoryFile(from, to, true)) << from << " to " << to;
    }
    EXPECT_FALSE(copyDirectoryFile("tree", text(std::string("new\0x", 5)), true));
    EXPECT_FALSE(fs::exists("new"));
    EXPECT_EQ(treeOf("tree"), m_tree);

    // Out of a part of it: a directory of the source's own name would land on the source.
    putFile("whole/part/part/a", "inner");
    putFile("whole/part/a", "outer");
    EXPECT_FALSE(copyDirectoryFile("whole/part", "whole", true));
    EXPECT_EQ(treeOf("whole"), (std::vector<std::string>{"a=outer", "part/", "part/a=outer", "part/part/",
                                                         "part/part/a=inner"}));
}

TEST_F(JobFilesTest, ADirectoryIsThereAfterwards)
{
    for (char const * path : {"a/b/c", "a/b/c/", "a/b", ".", "tree/link", "neu/Größe", "line\nbreak/x"}) {
        EXPECT_TRUE(checkDir(path)) << path;
        EXPECT_TRUE(fs::is_directory(path)) << path;
    }
    for (char const * path : {"", "tree/file", "tree/file/sub", "tree/dangling", "tree/filelink"}) {
        EXPECT_FALSE(checkDir(path)) << path;
    }
    EXPECT_FALSE(checkDir(text(std::string("b\0c", 3))));
    EXPECT_FALSE(checkDir(QString(QChar(0xd800))));
    EXPECT_FALSE(fs::exists("b"));
}

TEST_F(JobFilesTest, ATextIsSavedAsItIs)
{
    QString const content = text("Größe\r\n测试\n") + QChar(0);
    putFile("old", "a text that is longer than the one that replaces it");
    for (char const * path : {"old", "new", "tree/sub/x"}) {
        EXPECT_TRUE(saveTextByIODevice(path, content)) << path;
        EXPECT_EQ(textOf(path), content.toStdString()) << path;
    }
    EXPECT_TRUE(saveTextByIODevice("old", ""));
    EXPECT_EQ(fs::file_size("old"), 0U);
    for (char const * path : {"", "tree", "none/x", "tree/", "tree/file/x", ":/x"}) {
        EXPECT_FALSE(saveTextByIODevice(path, content)) << path;
    }
    EXPECT_FALSE(saveTextByIODevice(text(std::string("zero\0x", 6)), content));
    EXPECT_FALSE(fs::exists("zero"));
}

TEST(FormatTime, HoursAreNotWrappedAndANegativeTimeIsNone)
{
    for (auto const & [milliseconds, text] :
         std::initializer_list<std::pair<qint64, char const *>>{{0, "00:00:00"},
                                                                {999, "00:00:00"},
                                                                {1000, "00:00:01"},
                                                                {59999, "00:00:59"},
                                                                {60000, "00:01:00"},
                                                                {3599999, "00:59:59"},
                                                                {3600000, "01:00:00"},
                                                                {86399999, "23:59:59"},
                                                                {90061000, "25:01:01"},
                                                                {360000000, "100:00:00"},
                                                                {-1, "00:00:00"},
                                                                {INT64_MIN, "00:00:00"},
                                                                {INT64_MAX, "2562047788015:12:55"}}) {
        EXPECT_EQ(formatTime(milliseconds).toStdString(), text) << milliseconds;
    }
}

} // namespace
