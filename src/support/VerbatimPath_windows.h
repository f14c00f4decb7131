#pragma once

#include <cstddef>
#include <string>

/// Paths as the system spells them itself: "\\?\C:\jobs", "\\?\UNC\server\share\jobs".
namespace KVCAM::UIAPI::VerbatimPath {

/// The path of an open file; empty if it has none.
std::wstring ofHandle(void * handle);
/// The length of the root: "\\?\C:\" or "\\?\UNC\server\share\".
std::size_t rootLength(std::wstring const & path);
/// The path without its last component; empty for a root.
std::wstring parent(std::wstring const & path);

} // namespace KVCAM::UIAPI::VerbatimPath
