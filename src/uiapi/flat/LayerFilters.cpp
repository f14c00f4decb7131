#include "uiapi/flat/LayerFilters.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

std::vector<std::string> getAnalyzeAndDFMLayers(QString const & job, QString const & step)
{
    return onCommonPara([&](auto & para) { return para.getAnalyzeAndDFMLayers(job, step); });
}

} // namespace KVCAM::UIAPI
