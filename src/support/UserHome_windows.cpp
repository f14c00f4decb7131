#include "support/UserHome.h"

#include <array>

#include <windows.h>

#include <shlobj.h>

namespace KVCAM::UIAPI {

std::filesystem::path homeOfUser()
{
    std::array<wchar_t, MAX_PATH> folder{};
    bool const isKnown =
        SHGetFolderPathW(nullptr, CSIDL_PROFILE, nullptr, SHGFP_TYPE_CURRENT, folder.data()) == S_OK;
    return isKnown ? folder.data() : L"";
}

} // namespace KVCAM::UIAPI
