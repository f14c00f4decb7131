#include "tour/HeadlessLayers.h"

#include "board/BoardView.h"
#include "job/Session.h"
#include "layers/ComparePage.h"
#include "layers/CompareView.h"
#include "layers/FilterBar.h"
#include "layers/LayerTable.h"
#include "window/BoardPage.h"
#include "window/HotkeyCommands.h"
#include "window/MainWindow.h"

#include <UIAPICommon.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

#include <algorithm>

namespace Workbench {

namespace {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

QJsonObject asJson(QMap<QString, QString> const & request)
{
    QJsonObject fields;
    for (auto entry = request.begin(); entry != request.end(); ++entry) {
        fields[entry.key()] = entry.value();
    }
    return fields;
}

// The first tree entry with this text that stands for this number of names.
QTreeWidgetItem * findItem(QTreeWidget const & tree, QString const & text, int names)
{
    for (QTreeWidgetItem * item : tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive)) {
        if (item->data(0, Qt::UserRole).toStringList().size() == names) {
            return item;
        }
    }
    return nullptr;
}

QJsonArray textsOf(QTreeWidgetItem const & item)
{
    QJsonArray entries;
    for (int i = 0; i < item.childCount(); ++i) {
        QJsonArray const below = textsOf(*item.child(i));
        entries.append(below.isEmpty() ? QJsonValue(item.child(i)->text(0))
                                       : QJsonValue(QJsonObject{{item.child(i)->text(0), below}}));
    }
    return entries;
}

} // namespace

QJsonObject useFilters(MainWindow & window, TakePicture const & take)
{
    struct
    {
        QMap<QString, QString> request;
        char const * picture; ///< empty: no picture
    } const questions[] = {
        {{{"type", "signal"}, {"side", "inner"}}, ""},
        {{{"type", "signal|power_ground|mixed"}, {"pos", "negative"}}, ""},
        {{{"context", "misc"}}, ""},
        {{{"type", "signal|power"}, {"context", "board"}, {"side", "inner"}, {"pos", "positive"}},
         "filter-bar.png"},
    };
    auto & bar = *window.findChild<FilterBar *>();
    QJsonArray answers;
    for (auto const & question : questions) {
        bar.ask(question.request);
        answers.append(QJsonObject{{"request", asJson(question.request)},
                                   {"layers", bar.matchCount()},
                                   {"explanation", bar.explanation()}});
        if (*question.picture != '\0') {
            take(window, question.picture);
        }
    }
    bar.askForAnalysis(true);
    int const forAnalysis = bar.matchCount();
    bar.ask({});
    return {{"answers", answers}, {"for analysis", forAnalysis}};
}

QJsonObject useComparison(MainWindow & window, Session const & session, TakePicture const & take)
{
    QStringList names;
    for (Session::Layer const & layer : session.layers()) {
        if (layer.info.type == "signal" && !layer.features.empty() &&
            layer.features.front().value_or(0) > 0) {
            names.append(QString::fromStdString(layer.info.name));
        }
    }
    if (names.size() < 2) {
        return {};
    }
    auto & page = *window.findChild<ComparePage *>();
    auto & view = *window.findChild<CompareView *>();
    window.showPage("compare");
    page.compareWith(names.first(), names.last());
    while (page.isBusy() || view.isBusy()) {
        view.grab(); // begins the picture
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    take(window, "compare.png");
    window.showPage("board");
    LayerDifference const & found = page.found();
    return {{"first", names.first()},
            {"second", names.last()},
            {"pixel in um", found.pixel},
            {"regions only in the first", static_cast<int>(found.firstRegions)},
            {"regions only in the second", static_cast<int>(found.secondRegions)},
            {"only in the first in mm2", found.onlyFirst / 1e6},
            {"only in the second in mm2", found.onlySecond / 1e6},
            {"in both in mm2", found.both / 1e6}};
}

QJsonObject useReferences(MainWindow & window, TakePicture const & take)
{
    window.showPage("references");
    take(window, "references-none.png");
    auto const & layers = *window.findChild<QListWidget *>("reference layers");
    auto const & tree = *window.findChild<QTreeWidget *>("kept references");
    auto const & latestCalls = *window.findChild<QLabel *>("told the library");
    auto const click = [&window](char const * name) { window.findChild<QPushButton *>(name)->click(); };
    for (int i = 0; i < std::min(layers.count(), 3); ++i) {
        layers.item(i)->setCheckState(Qt::Checked);
    }
    click("add");
    QJsonArray calls;
    auto const rename = [&](QString const & name, int names, QString const & newName) {
        if (QTreeWidgetItem * item = findItem(tree, name, names)) {
            item->treeWidget()->setCurrentItem(item);
            window.findChild<QLineEdit *>("new name")->setText(newName);
            click("rename");
            calls.append(latestCalls.text());
        }
    };
    QString const job = QString::fromStdString(window.board().currentView()->job());
    rename(layers.item(0)->text(), 3, "renamed layer");
    take(window, "references.png");
    rename(QString::fromStdString(window.board().currentView()->step()), 2, "renamed step");
    QJsonArray const kept = textsOf(*tree.invisibleRootItem());
    rename(job, 1, "renamed job");
    if (QTreeWidgetItem * item = findItem(tree, "renamed job", 1)) {
        item->treeWidget()->setCurrentItem(item);
        click("delete");
        calls.append(latestCalls.text());
    }
    window.showPage("board");
    return {{"calls", calls}, {"kept", kept}, {"left", tree.topLevelItemCount()}};
}

QJsonObject useUndo(MainWindow & window, Session const & session, TakePicture const & take)
{
    BoardView & view = *window.board().currentView();
    int const row = window.findChild<LayerTable *>()->selectedLayer();
    QString const job = QString::fromStdString(view.job());
    QString const step = QString::fromStdString(view.step());
    QJsonObject facts{{"layer", QString::fromStdString(view.layer())}};
    auto const note = [&](QString const & when) {
        auto const & counts = session.layers().at(static_cast<std::size_t>(row)).features;
        facts[when] = QJsonObject{{"drawn", static_cast<int>(view.features().size())},
                                  {"counted", counts.empty() ? -1 : counts.front().value_or(-1)},
                                  {"operations", Ext::undoCount(job, step)}};
    };
    note("before");
    if (view.features().empty()) {
        return facts;
    }
    HotkeyCommands & commands = window.commands();
    view.select({view.features().front().index});
    commands.perform(KP_SelectSameFeature);
    facts["selected"] = static_cast<int>(view.selected().size());
    take(window, "selected-features.png");
    window.board().deleteSelected();
    note("deleted");
    commands.perform(KP_EditUndo);
    note("undone");
    commands.perform(KP_EditUndo); // nothing is left to undo
    return facts;
}

} // namespace Workbench
