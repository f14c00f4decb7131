#pragma once

#include "support/DirectoryTree.h"

namespace KVCAM::UIAPI {

/// Copies the contents of a directory into the one at `target`, which is created with its parents. `target`
/// is an absolute path without links as far as it exists. True if everything was copied; otherwise the rest
/// was still copied. False, with nothing created, if the target is the source or inside it.
///
/// Never reads below the source or writes below the target through a link, even if someone replaces
/// directories with links meanwhile.
bool copyTree(Directory const & source, Directory::Path const & target, bool overwrite);

} // namespace KVCAM::UIAPI
