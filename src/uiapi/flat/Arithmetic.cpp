#include "uiapi/flat/Arithmetic.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

double caculateData(QString expression)
{
    return onCommonPara([&](auto & para) { return para.caculateData(expression); });
}

bool judgeCaculateIsStandard(QString expression)
{
    return onCommonPara([&](auto & para) { return para.judgeCaculateIsStandard(expression); });
}

bool isValueLegal(double value, double minimum, double maximum, void const * view)
{
    return onCommonPara([&](auto & para) { return para.isValueLegal(value, minimum, maximum, view); });
}

bool isNumValueLegal(double value, double minimum, double maximum, void const * view)
{
    return onCommonPara([&](auto & para) { return para.isNumValueLegal(value, minimum, maximum, view); });
}

bool isSymbolValueLegal(QString name, double minimum, double maximum, void const * view)
{
    return onCommonPara([&](auto & para) { return para.isSymbolValueLegal(name, minimum, maximum, view); });
}

} // namespace KVCAM::UIAPI
