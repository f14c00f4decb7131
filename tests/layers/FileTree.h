#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace KVCAM::Testing {

namespace fs = std::filesystem;

/// Builds file trees in the working directory and tells what is in them.
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
        std::string const name = entry.path().lexically_relative(root).generic_string();
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

} // namespace KVCAM::Testing
