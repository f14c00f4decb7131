#include "support/UserHome.h"

#include <pwd.h>
#include <unistd.h>

namespace KVCAM::UIAPI {

std::filesystem::path homeOfUser()
{
    passwd const * const user = getpwuid(getuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

} // namespace KVCAM::UIAPI
