#include "pages/EnginePane.h"

#include "ui/LanguageChange.h"

#include <UIAPICommon.h>

#include <QHeaderView>

#include <utility>

namespace Workbench {

QJsonObject toJson(KVCAM::Embedded::LiveState const & state)
{
    auto const & show = state.show;
    auto const & selection = state.selection;
    return {{"show parameters", QJsonObject{{"unit", show.unit},
                                            {"width", show.width},
                                            {"negative", show.negative},
                                            {"textax", show.textax},
                                            {"profile", show.profile}}},
            {"selection", QJsonObject{{"select", selection.select},
                                      {"clear", selection.clear},
                                      {"display", selection.display},
                                      {"operation", selection.operation},
                                      {"location", selection.location},
                                      {"touching", selection.touching}}},
            {"selected parameter", state.select.selected_para},
            {"calculation threads", state.threadCount},
            {"layer backup", QJsonObject{{"use suffix", state.backup.use_suffix},
                                         {"suffix", QString::fromStdString(state.backup.suffix)}}}};
}

EnginePane::EnginePane(QWidget * parent) : QTreeWidget(parent)
{
    setTextsNowAndLater(*this, [this] { setHeaderLabels({tr("Record"), tr("Value")}); });
    setSelectionMode(QAbstractItemView::NoSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    connect(KVCAM::UIAPI::Ext::Notifier::instance(), &KVCAM::UIAPI::Ext::Notifier::viewChanged, this,
            &EnginePane::refresh);
    refresh();
}

void EnginePane::refresh()
{
    clear();
    QJsonObject const state = toJson(KVCAM::Embedded::liveState());
    for (auto record = state.begin(); record != state.end(); ++record) {
        auto * item = new QTreeWidgetItem(this, {record.key()});
        if (!record->isObject()) {
            item->setText(1, record->toVariant().toString());
        }
        QJsonObject const fields = record->toObject();
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            new QTreeWidgetItem(item, {field.key(), field->toVariant().toString()});
        }
    }
    expandAll();
}

} // namespace Workbench
