#pragma once

#include <filesystem>

namespace KVCAM::UIAPI {

/// The home directory of the process's user according to the system's user database, regardless of the
/// environment; empty if it has none.
std::filesystem::path homeOfUser();

} // namespace KVCAM::UIAPI
