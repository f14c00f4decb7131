#pragma once

#include "support/DirectoryTree.h"

namespace KVCAM::UIAPI {

/// Removes what is in the directory `name` of `holder`, and with `removeSelf` the directory too. True when
/// all of that is gone; what cannot be removed stays, with some of what stands beside it. False as well when
/// another directory than `id` has the name. No link is followed, and nothing is removed outside even where
/// somebody puts links in the place of directories meanwhile.
bool removeTree(Directory const & holder, Directory::Path const & name, FileId const & id, bool removeSelf);

} // namespace KVCAM::UIAPI
