// Symbol names by view: unit and engine are queried here, the rules are in units/.

#include "support/UserDirectory.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/UIAPICommonParaPrivate.h"
#include "units/SymbolName.h"

#include <kvcam/Engine.h>

namespace KVCAM::UIAPI {

void UIAPICommonPara::setSymbolUIData(QString & name, int unit) const
{
    guardedPara([&] { name = Symbols::toOtherUnit(name, unit); });
}

std::string UIAPICommonPara::getSymbolNameByUnit(std::string const & name, int unit) const
{
    return guardedPara([&] { return Symbols::fromMil(QString::fromStdString(name), unit).toStdString(); });
}

void UIAPICommonPara::setSymbolDataByUnit(void const * view, QString & name) const
{
    guardedPara([&] { name = Symbols::runsToOtherUnit(name, getUnit(view)); });
}

void UIAPICommonPara::setSymbolDataByMilUnit(void const * view, QString & name) const
{
    guardedPara([&] { name = Symbols::runsFromMil(name, getUnit(view)); });
}

void UIAPICommonPara::setSymbolAPIData(void const * view, QString & name) const
{
    guardedPara([&] {
        // The engine is asked first: an unknown name then needs no view look-up.
        KVCAM::API::symboltype type{};
        int first = 0;
        int second = 0;
        if (KVCAM::API::identify_symbol(name.toStdString(), type, first, second, false)) {
            name = Symbols::runsToMil(name, getUnit(view));
        }
    });
}

void UIAPICommonPara::getKvlibSpecialSymbol(std::vector<std::string> & names) const
{
    guardedPara([&] {
        static constexpr char const * library = "KVLIB";
        if (!KVCAM::API::is_job_opened(library)) {
            KVCAM::API::open_job(Ext::userFile(QStringLiteral("./job")).toStdString(), library);
        }
        KVCAM::API::get_special_symbol_names(library, names);
    });
}

} // namespace KVCAM::UIAPI
