#include "layers/JobFilesTest.h"

#include "layers/RemovalRoots.h"
#include "layers/RemovalRules.h"
#include "layers/TreeRemoval.h"
#include "uiapi/flat/Files.h"

#include <QFileInfo>
#include <QProcess>

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <sstream>
#include <thread>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

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
    if (!isPosix) {
        GTEST_SKIP() << "links take a privilege here; for junctions see WindowsPaths";
    }
    for (char const * end : {"", "/", "//"}) {
        fs::create_directory_symlink("outside", "link");
        EXPECT_FALSE(delDir(std::string("link") + end, false));
        EXPECT_TRUE(fs::is_symlink("link"));
        EXPECT_TRUE(delDir(std::string("link") + end, true));
        EXPECT_FALSE(fs::is_symlink("link"));
    }
    // A link inside the path itself is followed: the path names it.
    fs::create_directory_symlink("tree", "way");
    EXPECT_TRUE(delDir("way/sub", true));
    EXPECT_FALSE(fs::exists("tree/sub"));
}

TEST_F(JobFilesTest, WhatMustStayIsRefused)
{
    fs::create_directories("home/user"); // which is one on Linux only: elsewhere no variable tells it
    qputenv("HOME", fs::absolute("home/user").string().c_str());
    fs::create_directories("work/here/below");
    fs::current_path("work/here");
    std::vector<std::string> const before = treeOf("../..");
    std::string const here = fs::current_path().string();
    std::string const world = fs::current_path().parent_path().parent_path().filename().string();
    std::string paths =
        ". .. ./ ../ below/. below/.. ../here ../../work ../../none ../../tree/file ../../tree/filelink "
        "../../tree/dangling ";
    paths +=
        isPosix ? "../../home/user ../../home " : "../HERE ..\\Here ../../WORK/. below\\.. below/../../here ";
    std::istringstream stream(paths + here + ' ' + here + "/ ../../../" + world);
    std::vector<std::string> refused(std::istream_iterator<std::string>(stream), {});
    refused.insert(refused.end(), {"", std::string("below\0x", 7), std::string("below\0", 6)});
    for (std::string const & path : refused) {
        EXPECT_FALSE(delDir(path, true)) << path;
        EXPECT_FALSE(delDir(path, false)) << path;
    }
    EXPECT_EQ(treeOf("../.."), before);
    EXPECT_TRUE(delDir("below", true));
    fs::current_path("../..");
}

// The rules for protected directories are tested with numbers only, since no test may try. The root is "1"
// and comes last; 5 is protected; without roots ("-") there is no restriction.
TEST(RemovalRules, RootsTheirChildrenAndWhatIsKeptStay)
{
    auto const ids = [](std::string const & digits) {
        Lineage list;
        for (char const digit : digits) {
            list.push_back({7, 0, std::uint64_t(digit)});
        }
        return list;
    };
    struct Row
    {
        char const * place;
        std::string roots;
        bool mayGo;
    };
    for (Row const & row :
         {Row{"", "-", false}, Row{"1", "-", false}, Row{"21", "-", false}, Row{"321", "-", true},
          Row{"521", "-", false}, Row{"6521", "-", true}, Row{"321", "", false}, Row{"321", "3", false},
          Row{"4321", "3", true}, Row{"4321", "92", true}, Row{"4321", "9", false}, Row{"5321", "3", false},
          Row{"21", "1", false}}) {
        EXPECT_EQ(RemovalRules::mayRemove(ids(row.place), {ids("5"), row.roots != "-", ids(row.roots)}),
                  row.mayGo)
            << row.place << " below " << row.roots;
    }
}

TEST_F(JobFilesTest, WhatIsKeptIsKnownByItsIdentity)
{
    auto const idOf = [](char const * path) { return Directory::at(path).id(); };
    auto const keeps = [](RemovalRules::Facts const & facts, FileId const & id) {
        return std::find(facts.kept.begin(), facts.kept.end(), id) != facts.kept.end();
    };
    char const * const home = isPosix ? "home" : "tree/SUB"; // to Windows the same directory
    if (isPosix) {
        fs::create_directory_symlink("tree/sub", home);
    }
    RemovalRules::Facts const facts = RemovalRules::factsOf({fs::path(home) / "deep", "none", ""}, {});
    for (char const * path : {"tree/sub/deep", "tree/sub", "tree", ".", "..", isPosix ? "/" : "\\"}) {
        EXPECT_TRUE(keeps(facts, idOf(path))) << path;
    }
    EXPECT_TRUE(!isPosix || keeps(facts, Directory::at("").look(home).id)) << "the link that leads there";
    EXPECT_FALSE(keeps(facts, idOf("tree/empty")) || keeps(facts, idOf("outside")));

    // The user's home is recognised whatever the environment says.
    QProcess process;
    process.start("sh", {"-c", "getent passwd $(id -u) | cut -d: -f6"});
    QByteArray const told = process.waitForFinished() ? process.readAll().trimmed() : qgetenv("USERPROFILE");
    qputenv(isPosix ? "HOME" : "USERPROFILE", "tree/empty");
    for (char const * path : {told.constData(), isPosix ? "tree/empty" : "TREE/..", "."}) {
        ASSERT_NE(idOf(path), FileId()) << path;
        EXPECT_TRUE(keeps(RemovalRules::currentFacts(), idOf(path))) << path;
    }
}

TEST_F(JobFilesTest, AHandleStaysWithWhatWasJudged)
{
    EXPECT_FALSE(removeTree(Directory::at(""), "tree", Directory::at("outside").id(), true));
    EXPECT_EQ(treeOf("tree"), m_tree);
    DirectoryCursor cursor(Directory::at("tree"));
    cursor.enter(cursor.here().enter("sub"));
    fs::rename("tree/sub", "moved");
    // The way up would lead elsewhere, unless the system still tells the former one.
    EXPECT_FALSE(cursor.leave() && cursor.here().id() != Directory::at("tree").id());
}

TEST_F(JobFilesTest, RemovalCanBeRestrictedToFoldersOfTheHost)
{
    putFile("jobs/tree/job/file", "");
    auto const removes = [](QStringList const & roots, char const * path) {
        Ext::setRemovalRoots(roots);
        return delDir(path, true);
    };
    EXPECT_FALSE(removes({"tree/sub", "none"}, "tree/empty"));
    EXPECT_FALSE(removes({"tree/sub"}, "tree/sub"));
    EXPECT_FALSE(removes({""}, "tree/sub"));
    EXPECT_TRUE(removes({"none", "tree/"}, "tree/sub/deep"));
    Ext::setRemovalRoots({"tree"});
    fs::rename("tree", "moved");
    if (isPosix) {
        fs::create_directory_symlink("outside", "way");
        EXPECT_FALSE(removes({"moved"}, "moved/link/sub")) << "leads out";
        EXPECT_FALSE(removes({"way"}, "moved/sub"));
        EXPECT_FALSE(removes({"moved"}, "way")) << "a link, too";
        Ext::setRemovalRoots({"tree"});
        fs::create_directory_symlink("jobs/tree", "tree");
        EXPECT_FALSE(delDir("tree/job", true)) << "what stands there since then";
    }
    EXPECT_TRUE(removes({}, "moved/sub"));
}

/// While it lives, swaps a directory for a link to "outside" and back.
class Swapper
{
public:
    explicit Swapper(fs::path place) : m_place(std::move(place)), m_thread([this] { run(); }) {}
    ~Swapper()
    {
        m_stops = true;
        m_thread.join();
    }

private:
    void run()
    {
        std::error_code error;
        while (!m_stops) {
            fs::create_directory_symlink(fs::current_path() / "outside", "bait", error);
            fs::rename(m_place, "aside", error);
            fs::rename("bait", m_place, error);
            fs::rename(m_place, "bait", error);
            fs::rename("aside", m_place, error);
        }
    }

    fs::path const m_place;
    std::atomic<bool> m_stops{false};
    std::thread m_thread;
};

TEST_F(JobFilesTest, NothingOutsideIsTouchedWhileDirectoriesTurnIntoLinks)
{
    if (!isPosix) {
        GTEST_SKIP() << "links take a privilege here";
    }
    std::vector<std::string> const names{"0", "1", "2", "3", "4", "5", "6", "7"};
    for (std::string const & name : names) {
        putFile("outside/" + name, "secret");
        putFile("from/sub/" + name, "");
    }
    fs::create_directories("to/sub");
    m_outside = treeOf("outside");
    for (std::string const place : {"tree", "tree/sub", "to/sub", "from/sub"}) {
        for (int round = 0; round < 100 && !HasFailure(); ++round) {
            bool const removes = place.substr(0, 4) == "tree";
            for (std::string const & name : removes ? names : std::vector<std::string>()) {
                putFile("tree/" + name, "");
                fs::create_directories("tree/sub");
                fs::remove("tree/sub/" + name);
                fs::create_symlink("nowhere", "tree/sub/" + name);
            }
            {
                Swapper const swapper(place);
                removes ? delDir("tree", false) : copyDirectoryFile("from", "to", true);
            }
            EXPECT_EQ(treeOf("outside"), m_outside) << place << " in round " << round;
            EXPECT_THAT(treeOf("to"), ::testing::Not(::testing::Contains(::testing::HasSubstr("secret"))));
        }
    }
}

TEST_F(JobFilesTest, ReadOnlyPartsGo)
{
    if (!isPosix) {
        GTEST_SKIP() << "directories have no such permissions here; for files see WindowsPaths";
    }
    if (QFileInfo("/").isWritable()) {
        if (QProcess::execute("setpriv",
                              asUser + QStringList{"test", "-x", QCoreApplication::applicationFilePath()}) !=
            0) {
            GTEST_SKIP() << "no other user's rights to be had here";
        }
        EXPECT_TRUE(runAgain("setpriv", asUser, "JobFilesTest.ReadOnlyPartsGo"));
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

    // Not removable: a directory inside one that cannot be changed.
    fs::create_directories("closed/sub");
    fs::permissions("closed", noWrite);
    EXPECT_FALSE(delDir("closed/sub", true));
    EXPECT_TRUE(fs::is_directory("closed/sub"));
    EXPECT_TRUE(delDir("closed", true));
    fs::permissions("outside/sub", fs::perms::owner_all);

    // A copy leaves out what cannot be read and copies the rest.
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

} // namespace
