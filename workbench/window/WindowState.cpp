#include "window/WindowState.h"

#include "window/Pane.h"

#include <glog/logging.h>

#include <QMainWindow>
#include <QSettings>
#include <QSplitter>

#include <algorithm>

namespace Workbench {

namespace {

constexpr char const * geometryKey = "window/geometry";
constexpr char const * pageKey = "window/page";
constexpr char const * unitKey = "window/unit";
constexpr char const * languageKey = "window/chinese";

QString splitterKey(QSplitter const & splitter)
{
    return "splitters/" + splitter.objectName();
}

QString paneKey(Pane const & pane)
{
    return "panes/" + pane.objectName();
}

} // namespace

QSize firstWindowSize(QSize available)
{
    return QSize(1440, 900).boundedTo(available - QSize(16, 48));
}

FirstPanes firstPanes(QSize window, QSize letter)
{
    return {std::min(window.width() * 3 / 8, 66 * letter.width()), 40 * letter.width(),
            window.width() >= 170 * letter.width(), window.height() >= 50 * letter.height()};
}

std::optional<WindowChoices> savedChoices(QString const & file)
{
    QSettings const settings(file, QSettings::IniFormat);
    WindowChoices choices;
    bool isNumber = false;
    int const unit = settings.value(unitKey).toString().toInt(&isNumber);
    if (!isNumber || !KVCAM::UIAPI::Ext::isUnitCode(unit)) {
        return std::nullopt;
    }
    choices.unit = KVCAM::UIAPI::Ext::unitOfCode(unit);
    choices.page = settings.value(pageKey).toString();
    choices.chinese = settings.value(languageKey).toString() == "true";
    return choices;
}

std::optional<WindowChoices> restoreWindow(QMainWindow & window, QString const & file)
{
    QSettings const settings(file, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError) {
        LOG(WARNING) << "workbench: no window state is read from " << file.toStdString();
        return std::nullopt;
    }
    window.restoreGeometry(settings.value(geometryKey).toByteArray());
    for (auto * splitter : window.findChildren<QSplitter *>()) {
        splitter->restoreState(settings.value(splitterKey(*splitter)).toByteArray());
    }
    for (auto * pane : window.findChildren<Pane *>()) {
        pane->setOpen(settings.value(paneKey(*pane), pane->isOpen()).toString() == "true");
    }
    return savedChoices(file);
}

bool keepWindow(QMainWindow const & window, WindowChoices const & choices, QString const & file)
{
    QSettings settings(file, QSettings::IniFormat);
    settings.setValue(geometryKey, window.saveGeometry());
    for (auto const * splitter : window.findChildren<QSplitter *>()) {
        settings.setValue(splitterKey(*splitter), splitter->saveState());
    }
    for (auto const * pane : window.findChildren<Pane *>()) {
        settings.setValue(paneKey(*pane), pane->isOpen());
    }
    settings.setValue(pageKey, choices.page);
    settings.setValue(unitKey, unitCode(choices.unit));
    settings.setValue(languageKey, choices.chinese);
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        LOG(ERROR) << "workbench: the window state cannot be written to " << file.toStdString();
        return false;
    }
    return true;
}

} // namespace Workbench
