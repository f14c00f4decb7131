#pragma once

#include "window/KeyPlan.h"

#include <QLineEdit>

namespace Workbench {

/// Takes the keys that are pressed in it instead of a text. Tab leaves it, and Escape empties it.
class KeyField : public QLineEdit
{
    Q_OBJECT

public:
    explicit KeyField(QWidget * parent = nullptr);

    QString const & keys() const { return m_recorder.keys(); }
    bool isComplete() const { return m_recorder.isComplete(); }
    void empty();

signals:
    void keysChanged();
    /// Return was pressed.
    void confirmed();

protected:
    bool event(QEvent * event) override;
    void keyPressEvent(QKeyEvent * event) override;

private:
    KeyRecorder m_recorder;
};

} // namespace Workbench
