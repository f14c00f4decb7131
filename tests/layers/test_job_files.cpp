#include "layers/JobFilesTest.h"

#include "uiapi/flat/Files.h"

#include <QProcess>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

TEST_F(JobFilesTest, ADeepTreeNeedsFewHandles)
{
    if (!isPosix) {
        GTEST_SKIP() << "handles are not limited here; for the length see WindowsPaths";
    }
    if (!qEnvironmentVariableIsSet("UIAPI_FEW_HANDLES")) {
        qputenv("UIAPI_FEW_HANDLES", "1");
        EXPECT_TRUE(runAgain("prlimit", {"--nofile=64"}, "JobFilesTest.ADeepTreeNeedsFewHandles"));
        return;
    }
    fs::path const start = fs::current_path();
    std::string const name = "deep" + std::string(60, '-');
    for (int depth = 0; depth < 100; ++depth) { // longer than any path, too
        fs::create_directory(name);
        fs::current_path(name);
    }
    putFile("file", "x");
    fs::current_path(start);
    EXPECT_TRUE(copyDirectoryFile(text(name), "copy", false));
    EXPECT_TRUE(delDir(name, true));
    EXPECT_TRUE(fs::exists("copy/" + name));
    EXPECT_TRUE(delDir("copy", true));
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
    EXPECT_FALSE(fs::equivalent("outside/keep", "new/parents/copy/hard")) << "a file of its own";
}

TEST_F(JobFilesTest, WhatIsThereIsReplacedOnlyWhenAskedFor)
{
    fs::create_directories("to/kind/is/other");
    putFile("from/kind", "file");
    putFile("from/sub/file", "new");
    putFile("from/fresh", "new");
    putFile("to/sub/file", "old");
    putFile("to/sub/other", "old");
    std::string const link = fs::absolute("outside").generic_string();
    if (isPosix) {
        putFile("from/l/here", "new");
        putFile("from/l/through/file", "new");
        fs::create_symlink("fresh", "from/l/mark");
        putFile("to/l/mark", "old");
        fs::create_symlink(fs::absolute("outside/keep"), "to/l/here");
        fs::create_directory_symlink(fs::absolute("outside"), "to/l/through");
    }
    auto const there = [&](char const * sub, char const * here, char const * mark) {
        std::vector<std::string> lines{"fresh=new", "kind/", "kind/is/", "kind/is/other/"};
        if (isPosix) {
            lines.insert(lines.end(), {"l/", here, mark, "l/through>" + link});
        }
        lines.insert(lines.end(), {"sub/", sub, "sub/other=old"});
        return lines;
    };
    // Neither way leads through a link that is there, and the kind of what is there does not change.
    EXPECT_FALSE(copyDirectoryFile("from", "to", false));
    EXPECT_EQ(treeOf("to"), there("sub/file=old", ("l/here>" + link + "/keep").c_str(), "l/mark=old"));
    EXPECT_FALSE(copyDirectoryFile("from", "to", true));
    EXPECT_EQ(treeOf("to"), there("sub/file=new", "l/here=new", "l/mark>fresh"));
    fs::remove_all("to/kind");
    fs::remove("to/l/through");
    EXPECT_TRUE(copyDirectoryFile("from", "to", true));
    EXPECT_TRUE(delDir("to", false));
    EXPECT_TRUE(copyDirectoryFile("from", "to", false));
    EXPECT_EQ(treeOf("to"), treeOf("from"));
}

TEST_F(JobFilesTest, ACopyIntoItselfIsRefused)
{
    QString const alias = isPosix ? "alias" : "TREE";
    if (isPosix) {
        fs::create_directory_symlink("tree", "alias");
    }
    for (char const * row : {"tree|tree", "tree|tree/", "tree|tree/sub", "tree|tree/new/deep", "tree|alias",
                             "tree|alias/new", "alias|tree", "alias|tree/new", "tree|tree/loop/new",
                             "tree|none/../tree/new", "tree|outside/../tree", ".|new", "tree|", "|new",
                             "none|new", "tree/file|new", "tree|tree/file/new", "outside|tree/file"}) {
        QStringList const names = QString(row).replace("alias", alias).split('|');
        EXPECT_FALSE(copyDirectoryFile(names[0], names[1], true)) << row;
    }
    EXPECT_FALSE(copyDirectoryFile("tree", text(std::string("new\0x", 5)), true));
    EXPECT_FALSE(fs::exists("new"));
    EXPECT_EQ(treeOf("tree"), m_tree);

    // From a part of itself: a directory with the source's own name would land on the source.
    putFile("whole/part/part/a", "inner");
    putFile("whole/part/a", "outer");
    EXPECT_FALSE(copyDirectoryFile("whole/part", "whole", true));
    EXPECT_EQ(treeOf("whole"), (std::vector<std::string>{"a=outer", "part/", "part/a=outer", "part/part/",
                                                         "part/part/a=inner"}));
}

TEST_F(JobFilesTest, ADirectoryIsThereAfterwards)
{
    for (char const * path : {"a/b/c", "a/b/c/", "a/b", ".", "neu/Größe", isPosix ? "tree/link" : "a\\b",
                              isPosix ? "line\nbreak/x" : "A/B/new"}) {
        EXPECT_TRUE(checkDir(path)) << path;
        EXPECT_TRUE(fs::is_directory(fs::u8path(path))) << path;
    }
    for (char const * path : {"", "tree/file", "tree/file/sub", isPosix ? "tree/dangling" : "tree/file/",
                              isPosix ? "tree/filelink" : "tree/sub/../file"}) {
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
    struct Row
    {
        qint64 milliseconds;
        char const * text;
    };
    for (auto const & [milliseconds, text] :
         {Row{0, "00:00:00"}, Row{999, "00:00:00"}, Row{1000, "00:00:01"}, Row{59999, "00:00:59"},
          Row{3599999, "00:59:59"}, Row{3600000, "01:00:00"}, Row{360000000, "100:00:00"},
          Row{90061000, "25:01:01"}, Row{-1, "00:00:00"}, Row{INT64_MAX, "2562047788015:12:55"}}) {
        EXPECT_EQ(formatTime(milliseconds).toStdString(), text) << milliseconds;
    }
}

} // namespace
