#include "uiapi/UIAPICommonPara.h"

#include "support/Boxes.h"
#include "support/Log.h"
#include "support/Singleton.h"
#include "uiapi/UIAPICommonParaPrivate.h"

#include <sstream>

namespace KVCAM::UIAPI {

UIAPICommonPara * UIAPICommonPara::m_pUIAPICommonParaInstance = nullptr;

UIAPICommonPara * UIAPICommonPara::instance()
{
    // The order is fixed and visible in the log.
    return Singleton::obtain(
        m_pUIAPICommonParaInstance, [] { return new UIAPICommonPara; },
        [](UIAPICommonPara & made) {
            Private & parts = *made.d;
            guardedPara([&] { parts.ranges.loadAllRanges(); });
            guardedPara([&] { parts.categories.insertAll(); });
            guardedPara([&] { parts.builtInAttributes.initTotalAttributes(); });
            guardedPara([&] { parts.edaLink = new ConnectEDA; });
        });
}

UIAPICommonPara::UIAPICommonPara() : d(new Private) {}

UIAPICommonPara::~UIAPICommonPara()
{
    delete d;
}

UIAPICommonPara::UIAPICommonPara(UIAPICommonPara const & other) : d(new Private(*other.d)) {}

UIAPICommonPara & UIAPICommonPara::operator=(UIAPICommonPara const & other)
{
    if (this != &other) {
        guardedPara([&] { *d = *other.d; });
    }
    return *this;
}

LANGUAGE_MODE UIAPICommonPara::getCurrentLanguageMode() const
{
    return guardedPara([&] { return d->language; });
}

void UIAPICommonPara::setCurrentLanguageMode(LANGUAGE_MODE & mode)
{
    guardedPara([&] { d->language = mode; });
}

bool UIAPICommonPara::getPanelPositionStatus() const
{
    return guardedPara([&] { return d->panelPositionStatus; });
}

void UIAPICommonPara::setPanelPositionStatus(bool status)
{
    guardedPara([&] { d->panelPositionStatus = status; });
}

bool UIAPICommonPara::getCoordinateStatus() const
{
    return guardedPara([&] { return d->coordinateStatus; });
}

void UIAPICommonPara::setCoordinateStatus(bool status)
{
    guardedPara([&] { d->coordinateStatus = status; });
}

bool UIAPICommonPara::KvcamAsExe() const
{
    return guardedPara([&] { return d->kvcamAsExe; });
}

void UIAPICommonPara::SetKvcamAsExe(bool value)
{
    guardedPara([&] { d->kvcamAsExe = value; });
}

QPoint UIAPICommonPara::getCoordinatePos() const
{
    return guardedPara([&] { return d->coordinatePos; });
}

void UIAPICommonPara::setCoordinatePos(QPoint pos)
{
    guardedPara([&] { d->coordinatePos = pos; });
}

QWidget * UIAPICommonPara::getInputPtr() const
{
    return guardedPara([&] { return d->input; });
}

namespace {

std::string pointerTrace(char const * text, void const * pointer)
{
    std::ostringstream out;
    out << text << pointer;
    return out.str();
}

} // namespace

void UIAPICommonPara::setInputPtr(QWidget * widget)
{
    guardedPara([&] {
        d->livingInput = aliveWidget(widget); // the pointer itself may point to anything
        if (d->input == nullptr) {
            d->input = widget;
            Log::info(Log::commonPara, pointerTrace("setInputPtr _input ", widget));
            return;
        }
        Log::warning(Log::commonPara, pointerTrace("setInputPtr old m_input ", d->input));
        d->input = widget;
        Log::warning(Log::commonPara, pointerTrace("setInputPtr new m_input ", widget));
    });
}

QWidget * UIAPICommonPara::getSplitPtr() const
{
    return guardedPara([&] { return d->split; });
}

void UIAPICommonPara::setSplitPtr(QWidget * widget)
{
    guardedPara([&] { d->split = widget; });
}

LayerState * UIAPICommonPara::getLayerState()
{
    return guardedPara([&] { return &d->layerState; });
}

void UIAPICommonPara::getChildAttribute(std::string name, std::vector<std::string> & out) const
{
    guardedPara([&] { d->builtInAttributes.getChildAttribute(name, out); });
}

} // namespace KVCAM::UIAPI
