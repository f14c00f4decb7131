#pragma once

#include "support/DirectoryTree.h"

namespace KVCAM::UIAPI {

/// Copies what is in a directory into the one at `target`, an absolute path without links as far as it
/// exists, which is created with its parents. True when all of it was copied; otherwise the rest was. False
/// with nothing created for a target that is the source or inside it.
///
/// Below the source nothing is read, and below the target nothing written, by way of a link, even where
/// somebody puts links in the place of directories meanwhile.
bool copyTree(Directory const & source, Directory::Path const & target, bool overwrite);

} // namespace KVCAM::UIAPI
