#pragma once

#include <QCoreApplication>

namespace Workbench {

/// Translates the texts of the window's parts, which have one context in the catalogue.
struct WindowTexts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::MainWindow)
};

} // namespace Workbench
