#include "uiapi/UIAPICommonPara.h"

#include "support/Log.h"
#include "uiapi/UIAPICommonParaPrivate.h"

#include <sstream>

namespace KVCAM::UIAPI {

UIAPICommonPara * UIAPICommonPara::m_pUIAPICommonParaInstance = nullptr;

UIAPICommonPara * UIAPICommonPara::instance()
{
    if (m_pUIAPICommonParaInstance == nullptr) {
        m_pUIAPICommonParaInstance = new UIAPICommonPara;
    }
    return m_pUIAPICommonParaInstance;
}

// What is loaded here is loaded in a fixed order, which the log shows: the range files (loadAllRanges), the
// category tables, the attribute list, and last the EDA link. No flat function may be called: instance() is
// not stored.
UIAPICommonPara::UIAPICommonPara() : d(new Private)
{
    d->ranges.loadAllRanges();
    d->categories.insertAll();
    d->builtInAttributes.initTotalAttributes();
    d->edaLink = new ConnectEDA;
}

UIAPICommonPara::~UIAPICommonPara()
{
    delete d;
}

UIAPICommonPara::UIAPICommonPara(UIAPICommonPara const & other) : d(new Private(*other.d)) {}

UIAPICommonPara & UIAPICommonPara::operator=(UIAPICommonPara const & other)
{
    if (this != &other) {
        *d = *other.d;
    }
    return *this;
}

LANGUAGE_MODE UIAPICommonPara::getCurrentLanguageMode() const
{
    return d->language;
}

void UIAPICommonPara::setCurrentLanguageMode(LANGUAGE_MODE & mode)
{
    d->language = mode;
}

bool UIAPICommonPara::getPanelPositionStatus() const
{
    return d->panelPositionStatus;
}

void UIAPICommonPara::setPanelPositionStatus(bool status)
{
    d->panelPositionStatus = status;
}

bool UIAPICommonPara::getCoordinateStatus() const
{
    return d->coordinateStatus;
}

void UIAPICommonPara::setCoordinateStatus(bool status)
{
    d->coordinateStatus = status;
}

bool UIAPICommonPara::KvcamAsExe() const
{
    return d->kvcamAsExe;
}

void UIAPICommonPara::SetKvcamAsExe(bool value)
{
    d->kvcamAsExe = value;
}

QPoint UIAPICommonPara::getCoordinatePos() const
{
    return d->coordinatePos;
}

void UIAPICommonPara::setCoordinatePos(QPoint pos)
{
    d->coordinatePos = pos;
}

QWidget * UIAPICommonPara::getInputPtr() const
{
    return d->input;
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
    if (d->input == nullptr) {
        d->input = widget;
        Log::info(Log::commonPara, pointerTrace("setInputPtr _input ", widget));
        return;
    }
    Log::warning(Log::commonPara, pointerTrace("setInputPtr old m_input ", d->input));
    d->input = widget;
    Log::warning(Log::commonPara, pointerTrace("setInputPtr new m_input ", widget));
}

QWidget * UIAPICommonPara::getSplitPtr() const
{
    return d->split;
}

void UIAPICommonPara::setSplitPtr(QWidget * widget)
{
    d->split = widget;
}

LayerState * UIAPICommonPara::getLayerState()
{
    return &d->layerState;
}

void UIAPICommonPara::getChildAttribute(std::string name, std::vector<std::string> & out) const
{
    d->builtInAttributes.getChildAttribute(name, out);
}

} // namespace KVCAM::UIAPI
