#include "layers/JobFilesTest.h"

#include "layers/FilePaths.h"
#include "layers/RemovalRoots.h"
#include "support/DirectoryTree.h"
#include "support/NativePath.h"
#include "support/WholeFile.h"
#include "uiapi/flat/Files.h"

#include <QFileInfo>

#include <cstring>

#include <windows.h>

#include <winioctl.h>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

/// What Windows has in place of links, pipes and permissions, and what its paths hide.
class WindowsPaths : public JobFilesTest
{
protected:
    /// Opens or creates a file as another program may: shared for reading or not at all.
    static HANDLE hold(fs::path const & path, DWORD share = 0)
    {
        return CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, share, nullptr, OPEN_ALWAYS, 0,
                           nullptr);
    }
    /// The path that leads to any name.
    static fs::path exact(std::string const & path)
    {
        return LR"(\\?\)" + (fs::current_path() / fs::u8path(path)).make_preferred().native();
    }
    static bool isThere(std::string const & path)
    {
        return GetFileAttributesW(exact(path).c_str()) != INVALID_FILE_ATTRIBUTES;
    }
    static bool makeJunction(fs::path const & target, fs::path const & place)
    {
        fs::create_directories(place);
        std::wstring const real = fs::absolute(target).make_preferred().native();
        std::wstring const names = LR"(\??\)" + real + L'\0' + real + L'\0';
        auto const size = static_cast<WORD>(2 * real.size());
        auto const namesSize = static_cast<WORD>(2 * names.size());
        WORD const head[] = {0x3, 0xa000, WORD(8 + namesSize), 0, 0, WORD(size + 8), WORD(size + 10), size};
        std::vector<char> data(sizeof head + namesSize);
        std::memcpy(data.data(), head, sizeof head);
        std::memcpy(&data[sizeof head], names.data(), namesSize);
        HANDLE const handle = CreateFileW(place.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                          FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
        DWORD none = 0;
        BOOL const isSet = DeviceIoControl(handle, FSCTL_SET_REPARSE_POINT, data.data(), DWORD(data.size()),
                                           nullptr, 0, &none, nullptr);
        CloseHandle(handle);
        return isSet != 0;
    }
};

TEST_F(WindowsPaths, ANameThatWouldBeTakenForAnotherIsRefused)
{
    // What the rows would hit: a neighbour, a stream of a file, another directory. Others are devices.
    for (char const * path : {"x/keep", "x.json", "c/evil/keep", "dir/x/keep"}) {
        putFile(path, "keep");
    }
    std::vector<std::string> const before = treeOf(".");
    QString const rows =
        R"(nul,con,CON,Aux,aux.json,aux .x,tree/Nul.txt,com1,LPT9.tar.gz,COM²,conin$,con/new,)"
        R"(x.json:y,x.json::$DATA,x:y,x.,x ,x. .,X./,x /,dir./x,dir /x,dir/x...,c:evil,c:,)"
        R"(C:evil/new,\\server,//server/,\\server\\x,\\server\..\x,\\.\nul,//./aux,\\?\c:evil,)"
        R"(\\?\UNC\server,\\?\GLOBALROOT\x,\\?\,\??\x,a*,a?b,a|b,"x",)"
        "a\nb";
    for (QString const & path : rows.split(',')) {
        std::string const name = path.toStdString();
        EXPECT_EQ(WholeFile::replace(path, "x").reason, "The system would take the file's name for another.");
        EXPECT_FALSE(saveTextByIODevice(path, "x") || checkDir(path)) << name;
        EXPECT_FALSE(copyDirectoryFile("tree", path, true) || copyDirectoryFile(path, "copy", true)) << name;
        EXPECT_FALSE(delDir(name, true) || delDir(name, false)) << name;
    }
    EXPECT_EQ(treeOf("."), before);
    for (char const * path : {"auxiliary", "com", "com10.x", "nul_", "x.nul", " x", ".x", "..x"}) {
        EXPECT_TRUE(saveTextByIODevice(path, "x") && fs::exists(path)) << path;
    }
}

// Roots and servers are judged by their text alone: no test may try, and a server may take its time.
TEST_F(WindowsPaths, TheLiteralFormIsAbsoluteAndRootsHaveNoName)
{
    QString const rows =
        R"(C:/a/../b//c/>\\?\C:\b\c|c:\>\\?\c:\|C:/x/../..>\\?\C:\|//server/share>\\?\UNC\server\share\|)"
        R"(\\server\share\\>\\?\UNC\server\share\|//server/share/a/./b>\\?\UNC\server\share\a\b|)"
        R"(\\?\UNC\server\share>\\?\UNC\server\share\|\\?\UNC\server\share\nul>\\?\UNC\server\share\nul|)"
        R"(\\?\C:\dir.\x >\\?\C:\dir.\x |\\?\C:\a\..\b>|\\?\C:\a\\b>|\\?\C:\a/b>|\\?\C:\x:y>)";
    for (QString const & row : rows.split('|')) {
        fs::path const result = NativePath::literal(row.section('>', 0, 0).toStdWString());
        bool const isRoot = result.empty() || result.native().back() == L'\\';
        EXPECT_EQ(result.native(), row.section('>', 1).toStdWString()) << row.toStdString();
        EXPECT_EQ(FilePaths::namesAnEntry(result), !isRoot) << row.toStdString();
        EXPECT_EQ(NativePath::above(result).empty(), isRoot) << row.toStdString();
    }
    EXPECT_FALSE(delDir("//server/share", true) || delDir("//server/share/x/y", true));
    EXPECT_FALSE(checkDir("//server/share/x") || saveTextByIODevice("//server/share/x", "x"));
    EXPECT_FALSE(copyDirectoryFile("tree", R"(\\server\share\new)", true));
}

TEST_F(WindowsPaths, APathOfAnyLengthIsMadeSavedCopiedAndRemoved)
{
    std::string path = "long";
    for (int depth = 0; depth < 50; ++depth) {
        path += "/deep" + std::string(60, '-');
    }
    EXPECT_TRUE(checkDir(text(path)));
    EXPECT_TRUE(saveTextByIODevice(text(path + "/测试.json"), "old"));
    EXPECT_TRUE(saveTextByIODevice(text(path + "/测试.json"), "new"));
    EXPECT_TRUE(copyDirectoryFile("long", "copy/测试", false));
    EXPECT_EQ(WholeFile::read(text("copy/测试" + path.substr(4) + "/测试.json")).bytes, "new");
    EXPECT_TRUE(delDir("copy/测试" + path.substr(4), true));
    EXPECT_TRUE(delDir("copy", true) && delDir("long", true));
}

TEST_F(WindowsPaths, ReservedNamesInATreeAreCopiedAndRemoved)
{
    fs::create_directory("from");
    CreateDirectoryW(exact("from/con").c_str(), nullptr);
    for (char const * name : {"from/nul", "from/aux.json", "from/con/prn"}) {
        CloseHandle(hold(exact(name)));
    }
    EXPECT_TRUE(copyDirectoryFile("from", "to", false));
    EXPECT_TRUE(isThere("to/nul") && isThere("to/aux.json") && isThere("to/con/prn"));
    EXPECT_TRUE(delDir(exact("to/con").u8string(), true) && !isThere("to/con"));
    EXPECT_TRUE(delDir("to", true) && delDir("from", true));
}

TEST_F(WindowsPaths, WhatIsHeldOpenOrReadOnlyStaysAndNothingElseIsLost)
{
    putFile("from/file", "new");
    putFile("to/file", "old");
    putFile("to/other", "other");
    HANDLE const holder = hold("to/file", FILE_SHARE_READ);
    fs::permissions("to/file", fs::perms::owner_read);
    EXPECT_FALSE(copyDirectoryFile("from", "to", true) || saveTextByIODevice("to/file", "new"));
    EXPECT_EQ(treeOf("to"), (std::vector<std::string>{"file=old", "other=other"}));
    EXPECT_FALSE(delDir("to", true));
    EXPECT_EQ(treeOf("to"), std::vector<std::string>{"file=old"});
    EXPECT_FALSE(QFileInfo("to/file").isWritable());
    CloseHandle(holder);

    EXPECT_FALSE(saveTextByIODevice("to/file", "new")) << "read-only";
    EXPECT_TRUE(copyDirectoryFile("from", "to", true));
    EXPECT_EQ(treeOf("to"), std::vector<std::string>{"file=new"});
    fs::permissions("to/file", fs::perms::owner_read);
    EXPECT_TRUE(copyDirectoryFile("to", "kept", true) && !QFileInfo("kept/file").isWritable());
    SetFileAttributesW(L"to", FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(delDir("to", true) && !fs::exists("to"));
    EXPECT_TRUE(delDir("TREE", true)) << "whatever the case; a file outside shares a read-only one of it";
}

TEST_F(WindowsPaths, AJunctionIsNeverFollowed)
{
    if (!makeJunction("outside", "tree/junction")) {
        fs::remove("tree/junction");
        GTEST_SKIP() << "the system makes no junctions (Wine does not)";
    }
    EXPECT_FALSE(delDir("tree/junction", false));
    EXPECT_FALSE(copyDirectoryFile("outside", "tree/junction/sub/new", true)) << "into itself";
    EXPECT_TRUE(copyDirectoryFile("tree", "copy", false));
    EXPECT_EQ(Directory::at("copy").look("junction").kind, DirectoryEntry::Kind::Link);
    putFile("from/junction/new", "new");
    EXPECT_FALSE(copyDirectoryFile("from", "copy", true));
    Ext::setRemovalRoots({"tree"});
    EXPECT_FALSE(delDir("tree/junction/sub", true)) << "leads out";
    Ext::setRemovalRoots({});
    EXPECT_TRUE(delDir("tree/junction/", true) && !isThere("tree/junction"));
    EXPECT_TRUE(delDir("copy", true));
}

} // namespace
