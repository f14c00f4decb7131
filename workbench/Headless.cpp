#include "Headless.h"

#include "BoardView.h"
#include "EnginePane.h"
#include "MainWindow.h"

#include <UIAPICommon.h>

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QPixmap>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

QJsonArray layersOf(Session const & session)
{
    QJsonArray layers;
    for (Session::Layer const & layer : session.layers()) {
        QJsonArray counts;
        for (int count : layer.features) {
            counts.append(count);
        }
        layers.append(QJsonObject{{"row", layer.info.row},
                                  {"name", QString::fromStdString(layer.info.name)},
                                  {"context", QString::fromStdString(layer.info.context)},
                                  {"type", QString::fromStdString(layer.info.type)},
                                  {"polarity", QString::fromStdString(layer.info.polarity)},
                                  {"features", counts}});
    }
    return layers;
}

QJsonObject switchUnit(BoardView const & view, std::optional<KVCAM::Embedded::Box> const & outline)
{
    int const unit = getUnit(view.handle());
    setStepConfigToAPI(view.handle());
    QJsonObject facts{{"name", QString::fromStdString(view.step())},
                      {"unit", QString::fromStdString(getUnitString(view.handle()))},
                      {"engine before", toJson(KVCAM::Embedded::liveState())}};
    QJsonArray sizes;
    for (int const shown : {unit, 1 - unit}) {
        if (shown != unit) {
            setUnit(view.handle(), shown);
            facts["engine after"] = toJson(KVCAM::Embedded::liveState());
        }
        if (outline) {
            sizes.append(view.sizeText(outline->right - outline->left, outline->top - outline->bottom));
        }
    }
    setUnit(view.handle(), unit);
    facts["outline"] = sizes;
    return facts;
}

QJsonArray symbolsOf(std::string const & job)
{
    QJsonArray symbols;
    for (KVCAM::Embedded::SymbolUse const & symbol : KVCAM::Embedded::jobSymbols(job)) {
        symbols.append(QJsonObject{{"name", QString::fromStdString(symbol.name)},
                                   {"unit", symbol.unit == 0 ? "mil" : "my"},
                                   {"features", symbol.features}});
    }
    return symbols;
}

// Grabs a widget into a file; an empty path when it cannot be written.
QString screenshot(QWidget & widget, QString const & folder, QString const & name)
{
    QApplication::processEvents(); // layouts settle before the picture is taken
    QString const path = QDir(folder).filePath(name);
    return widget.grab().save(path) ? path : QString();
}

} // namespace

QJsonObject runHeadless(MainWindow & window, Session const & session, CommandLine const & commandLine)
{
    window.show();
    QJsonArray steps;
    for (std::size_t i = 0; i < session.steps().size(); ++i) {
        steps.append(switchUnit(*window.views()[i], session.steps()[i].outline));
    }
    QJsonArray screenshots;
    QString const picture = screenshot(window, commandLine.output, "workbench.png");
    if (!picture.isEmpty()) {
        screenshots.append(picture);
    }
    return {{"job", QString::fromStdString(session.job())},
            {"directory", session.directory()},
            {"steps", steps},
            {"layers", layersOf(session)},
            {"symbols", symbolsOf(session.job())},
            {"screenshots", screenshots}};
}

} // namespace Workbench
