#pragma once

#include <EmbeddedEngine.h>

#include <QJsonObject>
#include <QTreeWidget>

namespace Workbench {

/// The engine's latest state as JSON: one object per record.
QJsonObject toJson(KVCAM::Embedded::LiveState const & state);

/// Shows what the engine was told last, and follows every change that the library reports to it.
class EnginePane : public QTreeWidget
{
    Q_OBJECT

public:
    explicit EnginePane(QWidget * parent = nullptr);
    void refresh();
};

} // namespace Workbench
