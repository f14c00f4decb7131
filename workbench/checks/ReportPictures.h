#pragma once

#include "job/Session.h"

#include <UIAPICommonExt.h>

#include <QByteArray>
#include <QImage>

#include <set>
#include <string>
#include <vector>

namespace Workbench {

/// A picture of few colours as a small PNG: colours are rounded until a palette of 256 holds them all.
QByteArray smallPng(QImage const & picture);

/// The named layers of a step as the board view paints them, the whole board, in the order of the job. Beyond
/// 64 layers there are no more; without a QGuiApplication there is none.
std::vector<KVCAM::UIAPI::Ext::LayerPicture> reportPictures(Session const & session, std::string const & step,
                                                            std::set<std::string> const & layers);

} // namespace Workbench
