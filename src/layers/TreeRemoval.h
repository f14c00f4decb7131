#pragma once

#include "support/DirectoryTree.h"

namespace KVCAM::UIAPI {

/// Removes the contents of the directory `name` in `holder`, and with `removeSelf` the directory too. True if
/// all of that is gone; what cannot be removed stays, along with some of its siblings. Also false if the name
/// belongs to a directory other than `id`. Links are never followed, and nothing outside is removed, even if
/// someone replaces directories with links meanwhile.
bool removeTree(Directory const & holder, Directory::Path const & name, FileId const & id, bool removeSelf);

} // namespace KVCAM::UIAPI
