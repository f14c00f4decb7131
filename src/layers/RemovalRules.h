#pragma once

#include "support/DirectoryTree.h"

#include <filesystem>
#include <vector>

/// Which directories must not be removed.
namespace KVCAM::UIAPI::RemovalRules {

/// The input of the rule. Directories are identified by id, because two paths may lead to the same one.
struct Facts
{
    std::vector<FileId> kept;  ///< directories to keep, with the links and directories that contain them
    bool isRestricted = false; ///< whether only what is below `roots` may be removed
    std::vector<FileId> roots;
};

/// Whether the first directory of the lineage may be removed: not a root, not a direct child of one, not a
/// kept one and, with a restriction, below one of its roots.
bool mayRemove(Lineage const & place, Facts const & facts);

/// The facts for directories to keep and the roots of a restriction; no roots, no restriction. Paths that do
/// not exist add nothing.
Facts factsOf(std::vector<std::filesystem::path> const & kept,
              std::vector<std::filesystem::path> const & roots);

/// The facts for the current directory, the home directories of environment and user database, and the roots
/// set by Ext::setRemovalRoots().
Facts currentFacts();

} // namespace KVCAM::UIAPI::RemovalRules
