#include "uiapi/flat/HostAddress.h"

#include "links/HostAddress.h"
#include "support/Guard.h"
#include "support/Log.h"

namespace KVCAM::UIAPI {

std::string getHostIP()
{
    return guarded(Log::commonPara, [] { return HostAddress::getHostIP(); });
}

std::string getLocalInfo()
{
    return guarded(Log::commonPara, [] { return HostAddress::getLocalInfo(); });
}

} // namespace KVCAM::UIAPI
