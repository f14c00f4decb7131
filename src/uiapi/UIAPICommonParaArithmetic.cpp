// Typed values: logging, boxes and view look-ups. The rules are in units/.

#include "support/Boxes.h"
#include "support/Log.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/UIAPICommonParaPrivate.h"
#include "units/Expression.h"
#include "units/NameSearch.h"
#include "units/ValueLegality.h"

#include <QObject>

namespace KVCAM::UIAPI {

double UIAPICommonPara::caculateData(QString expression) const
{
    return guardedPara([&] { return Expression::evaluate(expression); });
}

bool UIAPICommonPara::judgeCaculate(QString & earlier, QString & later) const
{
    return guardedPara([&] { return Expression::takesOff(earlier, later); });
}

bool UIAPICommonPara::judgeCaculateIsStandard(QString expression) const
{
    return guardedPara([&] {
        Expression::Form const form = Expression::formOf(expression);
        if (form == Expression::Form::NonDigitPair) {
            Log::error(Log::commonPara, "CaculateData ERROR");
            showInformation(nullptr, QObject::tr("CaculateData ERROR"));
        }
        return form == Expression::Form::Standard;
    });
}

bool UIAPICommonPara::isValueLegal(double value, double minimum, double maximum, void const * view) const
{
    return guardedPara([&]() -> bool {
        // Each bound is converted by its own call, so an unknown view is logged once per bound.
        double const low = getUnitJudgeDouble(view, minimum);
        double const high = getUnitJudgeDouble(view, maximum);
        if (ValueLegality::isWithin(value, low, high)) {
            return true;
        }
        QString const lowText = getUnitJudgeString(view, minimum, 2);
        QString const highText = getUnitJudgeString(view, maximum, 2);
        showInformation(aliveWidget(view), ValueLegality::lengthMessage(lowText, highText));
        return false;
    });
}

bool UIAPICommonPara::isValueLegal1(double value, double minimum, double maximum, void const * view) const
{
    return guardedPara([&] { return isValueLegal(value, minimum, maximum, view); });
}

bool UIAPICommonPara::isNumValueLegal(double value, double minimum, double maximum, void const * view) const
{
    return guardedPara([&]() -> bool {
        if (ValueLegality::isWithin(value, minimum, maximum)) {
            return true;
        }
        showInformation(aliveWidget(view), ValueLegality::numberMessage(value, minimum, maximum));
        return false;
    });
}

bool UIAPICommonPara::isSymbolValueLegal(QString name, double minimum, double maximum,
                                         void const * view) const
{
    return guardedPara([&]() -> bool {
        return ValueLegality::everyNumber(
            name, [&](double value) { return isValueLegal1(value, minimum, maximum, view); });
    });
}

void UIAPICommonPara::find_input_items(QList<QString> items, QString pattern, QList<QString> & result) const
{
    guardedPara([&] {
        result.clear();
        if (NameSearch::isPattern(pattern)) {
            result = NameSearch::matches(items, pattern);
        } else {
            Log::error(Log::commonPara, "Illegal characters: " + pattern.toStdString());
        }
    });
}

} // namespace KVCAM::UIAPI
