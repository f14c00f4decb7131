#include "ext/Analysis.h"

#include "uiapi/UIAPICommonParaPrivate.h"
#include "uiapi/flat/Forward.h"

#include <QObject>

namespace KVCAM::UIAPI {

std::vector<Ext::RangeSource> Ext::loadedRangeFiles()
{
    return Flat::onCommonPara(
        [](UIAPICommonPara & para) { return CommonParaAccess::ranges(para).loadedFiles(); });
}

Ext::Result Ext::saveRanges(std::string const & rangeName)
{
    // A caught exception must not look like a successful save.
    Result result{false,
                  QObject::tr("The file \"%1\" cannot be written.").arg(QString::fromStdString(rangeName))};
    Flat::onCommonPara(
        [&](UIAPICommonPara & para) { result = CommonParaAccess::ranges(para).saveRanges(rangeName); });
    return result;
}

} // namespace KVCAM::UIAPI
