#include "layers/JobFilesTest.h"

#include "layers/FilePaths.h"
#include "layers/RemovalRoots.h"
#include "support/DirectoryTree.h"
#include "support/NativePath.h"
#include "support/WholeFile.h"
#include "uiapi/flat/Files.h"

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
    static bool isReadOnly(char const * path)
    {
        return (GetFileAttributesW(fs::path(path).c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
    }
    static bool makeJunction(fs::path const & target, fs::path const & place)
    {
        fs::create_directories(place);
        std::wstring const real = fs::absolute(target).make_preferred().native();
        std::wstring const text = LR"(\??\)" + real + L'\0' + real + L'\0';
        std::vector<WORD> data(8 + text.size());
        DWORD const tag = IO_REPARSE_TAG_MOUNT_POINT;
        std::memcpy(data.data(), &tag, sizeof tag);
        data[2] = static_cast<WORD>(8 + 2 * text.size());
        data[5] = static_cast<WORD>(2 * (real.size() + 4));
        data[6] = static_cast<WORD>(data[5] + 2);
        data[7] = static_cast<WORD>(2 * real.size());
        std::memcpy(&data[8], text.data(), 2 * text.size());
        HANDLE const handle = CreateFileW(place.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                          FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
        DWORD size = 0;
        BOOL const isSet = DeviceIoControl(handle, FSCTL_SET_REPARSE_POINT, data.data(),
                                           static_cast<DWORD>(2 * data.size()), nullptr, 0, &size, nullptr);
        CloseHandle(handle);
        return isSet != 0;
    }
};

TEST_F(WindowsPaths, ANameThatWouldBeTakenForAnotherIsRefused)
{
    // What each row would hit: a device, a neighbour, a stream of "x.json", another directory.
    for (char const * path : {"x/keep", "x.json", "c/evil/keep", "dir/x/keep"}) {
        putFile(path, "keep");
    }
    std::vector<std::string> const before = treeOf(".");
    for (char const * path : {"nul",
                              "con",
                              "CON",
                              "Aux",
                              "aux.json",
                              "aux .x",
                              "tree/Nul.txt",
                              "com1",
                              "LPT9.tar.gz",
                              "COM\u00b2",
                              "conin$",
                              "con/new",
                              "x.json:y",
                              "x.json::$DATA",
                              "x:y",
                              "x.",
                              "x ",
                              "x. .",
                              "X./",
                              "x /",
                              "dir./x",
                              "dir /x",
                              "dir/x...",
                              "c:evil",
                              "c:",
                              "C:evil/new",
                              "\\\\server",
                              "//server/",
                              "\\\\server\\\\x",
                              "\\\\server\\..\\x",
                              "\\\\.\\nul",
                              "//./aux",
                              "\\\\?\\c:evil",
                              "\\\\?\\UNC\\server",
                              "\\\\?\\GLOBALROOT\\x",
                              "\\\\?\\",
                              "\\??\\x",
                              "a\nb",
                              "a*",
                              "a?b",
                              "a|b",
                              "\"x\""}) {
        EXPECT_FALSE(saveTextByIODevice(path, "x")) << path;
        EXPECT_EQ(WholeFile::replace(path, "x").reason, "The system would take the file's name for another.")
            << path;
        EXPECT_FALSE(checkDir(path)) << path;
        EXPECT_FALSE(copyDirectoryFile("tree", path, true)) << path;
        EXPECT_FALSE(copyDirectoryFile(path, "copy", true)) << path;
        EXPECT_FALSE(delDir(path, true) || delDir(path, false)) << path;
    }
    EXPECT_EQ(treeOf("."), before);
    for (char const * path :
         {"auxiliary", "com", "com10.x", "nul_", "x.nul", "console.json", " x", ".x", "..x"}) {
        EXPECT_TRUE(saveTextByIODevice(path, "x") && fs::exists(path)) << path;
    }
}

// Roots and servers are judged by their text alone: no test may try, and a server may take its time.
TEST_F(WindowsPaths, TheLiteralFormIsAbsoluteAndRootsHaveNoName)
{
    struct Row
    {
        char const * path;
        char const * literal;
        bool isRoot;
    };
    for (auto const & [path, literal, isRoot] :
         {Row{"C:/a/../b//c/", R"(\\?\C:\b\c)", false}, Row{"c:\\", R"(\\?\c:\)", true},
          Row{"C:/x/../..", R"(\\?\C:\)", true}, Row{"//server/share", R"(\\?\UNC\server\share\)", true},
          Row{R"(\\server\share\\)", R"(\\?\UNC\server\share\)", true},
          Row{"//server/share/a/./b", R"(\\?\UNC\server\share\a\b)", false},
          Row{R"(\\?\UNC\server\share)", R"(\\?\UNC\server\share\)", true},
          Row{R"(\\?\UNC\server\share\nul)", R"(\\?\UNC\server\share\nul)", false},
          Row{R"(\\?\C:\)", R"(\\?\C:\)", true}, Row{R"(\\?\C:\dir.\x )", R"(\\?\C:\dir.\x )", false},
          Row{R"(\\?\C:\a\..\b)", "", true}, Row{R"(\\?\C:\a\\b)", "", true}, Row{R"(\\?\C:\a/b)", "", true},
          Row{R"(\\?\C:\x:y)", "", true}}) {
        fs::path const result = NativePath::literal(FilePaths::fromText(std::string(path)));
        EXPECT_EQ(result.u8string(), literal) << path;
        EXPECT_EQ(FilePaths::namesAnEntry(result), !isRoot) << path;
        EXPECT_EQ(NativePath::above(result).empty(), isRoot) << path;
    }
    EXPECT_FALSE(delDir("//server/share", true) || delDir(R"(\\?\UNC\server\share\)", true));
    EXPECT_FALSE(delDir("//server/share/x/y", true) || checkDir("//server/share/x"));
    EXPECT_FALSE(copyDirectoryFile("tree", R"(\\server\share\new)", true));
    EXPECT_FALSE(saveTextByIODevice(R"(\\server\share\x)", "x"));
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
    fs::create_directories("from");
    CreateDirectoryW(exact("from/con").c_str(), nullptr);
    for (char const * name : {"from/nul", "from/aux.json", "from/con/prn"}) {
        CloseHandle(hold(exact(name)));
    }
    EXPECT_TRUE(copyDirectoryFile("from", "to", false));
    EXPECT_TRUE(isThere("to/nul") && isThere("to/aux.json") && isThere("to/con/prn"));
    EXPECT_TRUE(delDir(exact("to/con").u8string(), true)) << "the literal path means that name";
    EXPECT_FALSE(isThere("to/con"));
    EXPECT_TRUE(delDir("to", true) && delDir("from", true));
}

TEST_F(WindowsPaths, DotsAndBlanksAtTheEndInATreeAreCopiedAndRemoved)
{
    putFile("from/dot/keep", "keep");
    putFile("from/blank/keep", "keep");
    for (char const * name : {"from/dot.", "from/dot./sub", "from/blank ", "from/blank /sub"}) {
        CreateDirectoryW(exact(name).c_str(), nullptr);
    }
    HANDLE const sub = CreateFileW(exact("from/dot./sub").c_str(), 0, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    std::wstring told(0x400, L'\0');
    told.resize(GetFinalPathNameByHandleW(sub, told.data(), static_cast<DWORD>(told.size()), 0));
    CloseHandle(sub);
    if (told.find(L"dot.\\") == std::wstring::npos) {
        GTEST_SKIP() << "the system tells the path of an open directory without the dots (Wine does)";
    }
    EXPECT_TRUE(copyDirectoryFile("from", "to", false));
    EXPECT_TRUE(isThere("to/dot./sub") && isThere("to/blank /sub"));
    EXPECT_TRUE(delDir(exact("to/dot.").u8string(), true) && delDir(exact("to/blank ").u8string(), true));
    EXPECT_FALSE(isThere("to/dot.") || isThere("to/blank "));
    EXPECT_EQ(treeOf("to"), (std::vector<std::string>{"blank/", "blank/keep=keep", "dot/", "dot/keep=keep"}));
    EXPECT_TRUE(delDir("to", true) && delDir("from", true));
}

TEST_F(WindowsPaths, WhatIsHeldOpenStaysAndNothingElseIsLost)
{
    putFile("from/file", "new");
    putFile("to/file", "old");
    putFile("to/other", "other");
    fs::permissions("to/file", fs::perms::owner_read);
    HANDLE holder =
        CreateFileW(L"to\\file", GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_FALSE(copyDirectoryFile("from", "to", true));
    EXPECT_FALSE(saveTextByIODevice("to/file", "new"));
    EXPECT_EQ(treeOf("to"), (std::vector<std::string>{"file=old", "other=other"}));
    EXPECT_TRUE(isReadOnly("to/file"));
    EXPECT_FALSE(delDir("to", true));
    EXPECT_EQ(treeOf("to"), std::vector<std::string>{"file=old"});
    EXPECT_TRUE(isReadOnly("to/file"));
    CloseHandle(holder);

    EXPECT_FALSE(saveTextByIODevice("to/file", "new")) << "read-only";
    EXPECT_TRUE(copyDirectoryFile("from", "to", true));
    EXPECT_EQ(treeOf("to"), std::vector<std::string>{"file=new"});
    fs::permissions("to/file", fs::perms::owner_read);
    EXPECT_TRUE(copyDirectoryFile("to", "kept", true));
    EXPECT_TRUE(isReadOnly("kept/file"));
    SetFileAttributesW(L"to", FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(delDir("to", true));
    EXPECT_TRUE(delDir("TREE", true)) << "whatever the case; a file outside shares a read-only one of it";
    EXPECT_FALSE(fs::exists("to") || fs::exists("tree"));
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
    EXPECT_TRUE(delDir("tree/junction/", true));
    EXPECT_FALSE(isThere("tree/junction"));
    EXPECT_TRUE(delDir("copy", true));
}

} // namespace
