#pragma once

#include "support/DirectoryTree.h"

#include <filesystem>
#include <vector>

/// Which directories must not be removed.
namespace KVCAM::UIAPI::RemovalRules {

/// What the rule is told. Directories are told apart by their ids, since two paths may lead to one.
struct Facts
{
    std::vector<FileId> kept;  ///< directories that stay, with the links and directories that hold them
    bool isRestricted = false; ///< whether only what lies below `roots` may go
    std::vector<FileId> roots;
};

/// Whether what the lineage begins with may be removed: no root, no direct child of one, nothing that is
/// kept, and with a restriction only what lies below one of its roots.
bool mayRemove(Lineage const & place, Facts const & facts);

/// The facts for directories to keep and the roots of a restriction, which without any is none. What does not
/// exist adds nothing.
Facts factsOf(std::vector<std::filesystem::path> const & kept,
              std::vector<std::filesystem::path> const & roots);

/// With the current directory, the home directories of environment and user database, and the roots that
/// Ext::setRemovalRoots() was told.
Facts currentFacts();

} // namespace KVCAM::UIAPI::RemovalRules
