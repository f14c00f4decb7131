#pragma once

#include "analysis/CategoryDictionary.h"
#include "analysis/RangeStore.h"
#include "config/BuiltInAttributes.h"
#include "layers/LayerBookkeeping.h"
#include "links/ConnectEDA.h"
#include "links/PluginCommandRelay.h"
#include "support/Compiler.h"
#include "support/Guard.h"
#include "support/Log.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/ViewRegistry.h"

#include <QPointer>
#include <QWidget>

#include <utility>

namespace KVCAM::UIAPI {

/// The components of UIAPICommonPara, held by value: a copy copies them all.
struct UIAPICommonPara::Private
{
    ViewRegistry views;
    LANGUAGE_MODE language = LANGUAGE_ENGLISH;
    bool panelPositionStatus = false;
    bool coordinateStatus = false;
    bool kvcamAsExe = true;
    QPoint coordinatePos;
    QWidget * input = nullptr;     // not owned, may be destroyed
    QPointer<QWidget> livingInput; // the same, null once it is destroyed
    QWidget * split = nullptr;     // not owned
    LayerState layerState;
    BuiltInAttributes builtInAttributes;
    RangeStore ranges;
    CategoryDictionary categories;
    LayerBookkeeping layers;
    PluginCommandRelay pluginCommands;
    QPointer<ConnectEDA> edaLink; // shared by the copies, not owned
};

/// Every public method runs inside this. The methods are part of the library's boundary, like the flat
/// functions.
template <class Body>
auto guardedPara(Body && body, int line = UIAPI_CALLER_LINE)
{
    return guarded(Log::commonPara, std::forward<Body>(body), line);
}

/// Gives the `Ext` functions, which are not methods of UIAPICommonPara, access to the components.
struct CommonParaAccess
{
    using Parts = UIAPICommonPara::Private;
    static Parts & parts(UIAPICommonPara & para) { return *para.d; }
    /// Null before its first use: for what must not create it.
    static UIAPICommonPara * existing() { return UIAPICommonPara::m_pUIAPICommonParaInstance; }
    static RangeStore & ranges(UIAPICommonPara & para) { return para.d->ranges; }
};

} // namespace KVCAM::UIAPI
