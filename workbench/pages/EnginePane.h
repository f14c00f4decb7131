#pragma once

#include <EmbeddedEngine.h>

#include <QJsonObject>
#include <QTreeWidget>

namespace Workbench {

/// What the engine was told last, as JSON: one object for each of its records.
QJsonObject toJson(KVCAM::Embedded::LiveState const & state);

/// Shows what the engine was told last; follows every change that the library reports to the engine.
class EnginePane : public QTreeWidget
{
    Q_OBJECT

public:
    explicit EnginePane(QWidget * parent = nullptr);
    void refresh();
};

} // namespace Workbench
