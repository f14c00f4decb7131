#pragma once

#include <filesystem>

namespace KVCAM::UIAPI {

/// The home directory that the system's user database has for the user who runs the process, whatever the
/// environment says; empty when it has none.
std::filesystem::path homeOfUser();

} // namespace KVCAM::UIAPI
