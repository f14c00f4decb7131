#pragma once

#include "harness/UiapiTest.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStringList>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace KVCAM::Testing {

namespace fs = std::filesystem;

// Whether there are links for everyone, pipes, permissions of directories and names of any bytes. What
// Windows has instead is in test_paths_windows.cpp.
constexpr bool isPosix = fs::path::preferred_separator == '/';

/// Builds and lists file trees in the working directory.
inline void putFile(fs::path const & path, std::string const & text)
{
    if (path.has_parent_path()) {
        fs::create_directories(path.parent_path());
    }
    std::ofstream(path, std::ios::binary) << text;
}

inline std::string textOf(fs::path const & path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// "path/" for a directory, "path=content" for a file, "path>target" for a link, "path?" for anything else,
/// sorted.
inline std::vector<std::string> treeOf(fs::path const & root)
{
    std::vector<std::string> lines;
    for (fs::directory_entry const & entry : fs::recursive_directory_iterator(root)) {
        std::string const name = entry.path().lexically_relative(root).generic_u8string();
        switch (entry.symlink_status().type()) {
        case fs::file_type::directory:
            lines.push_back(name + "/");
            break;
        case fs::file_type::regular:
            lines.push_back(name + "=" + textOf(entry.path()));
            break;
        case fs::file_type::symlink:
            lines.push_back(name + ">" + fs::read_symlink(entry.path()).generic_string());
            break;
        default:
            lines.push_back(name + "?");
        }
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

inline QString text(std::string const & bytes)
{
    return QString::fromStdString(bytes);
}

// Names as a file system may hold them; the last for Linux is no text in any encoding that a locale has.
#if defined(Q_OS_WIN)
inline std::vector<std::string> const oddNames{" x", ".hidden", "-rf", "#%&;'", "Größe 测试"};
#else
inline std::vector<std::string> const oddNames
{
    "a\nb", " ", ".hidden", "-rf", "*", "back\\slash", "Größe 测试",
#if defined(Q_OS_LINUX)
        "\xff\xfe\x80",
#endif
};
#endif

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
            putFile(fs::u8path("tree/odd" + name) / fs::u8path(name), name);
        }
        if (isPosix) {
            fs::create_directory_symlink(fs::absolute("outside"), "tree/link");
            fs::create_directory_symlink("../../outside", "tree/sub/relative");
            fs::create_symlink(fs::absolute("outside/keep"), "tree/filelink");
            fs::create_symlink("nowhere", "tree/dangling");
            fs::create_directory_symlink(".", "tree/loop");
        }
        fs::create_hard_link("outside/keep", "tree/hard");
        fs::permissions("outside/keep", fs::perms::owner_read); // a change through "hard" would show
        m_outside = treeOf("outside");
        m_permissions = fs::status("outside/keep").permissions();
        m_tree = treeOf("tree");
    }

    void TearDown() override
    {
        EXPECT_EQ(treeOf("outside"), m_outside);
        EXPECT_EQ(fs::status("outside/keep").permissions(), m_permissions);
        EXPECT_EQ(log.take(), Lines{});
        // The test's own directory goes through Qt, which overlooks the oddest name of Linux.
        for (fs::directory_entry const & entry : fs::directory_iterator(isPosix ? "." : "outside/sub")) {
            fs::remove_all(entry);
        }
        UiapiTest::TearDown();
    }

    std::vector<std::string> m_outside;
    std::vector<std::string> m_tree;
    fs::perms m_permissions{};
};

/// Runs this case again: with an ordinary user's rights, since root may write everywhere, or with some
/// resource limited.
inline bool runAgain(QString const & with, QStringList arguments, char const * name)
{
    arguments << QCoreApplication::applicationFilePath() << QString("--gtest_filter=") + name;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(with, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

inline QStringList const asUser{"--reuid=65534", "--regid=65534", "--clear-groups"};

} // namespace KVCAM::Testing
