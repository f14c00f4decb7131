#pragma once

#include "config/AttributeCatalogue.h"
#include "config/AutoMatrixStore.h"
#include "config/CamMateNodes.h"
#include "config/GlobalConfigStore.h"
#include "config/OpenJobs.h"
#include "config/UIAPIGlobalVar.h"

namespace KVCAM::UIAPI {

/// The components of UIAPIGlobalVar, by value.
struct UIAPIGlobalVar::Private
{
    OpenJobs openJobs;
    std::vector<KVCAM::API::point> realBox;
    GlobalConfigStore config;
    AutoMatrixStore templates;
    AttributeCatalogue attributes;
    CamMateNodes camMateNodes;
};

} // namespace KVCAM::UIAPI
