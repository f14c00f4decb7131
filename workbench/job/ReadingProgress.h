#pragma once

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <QElapsedTimer>
#include <QString>

namespace Workbench {

/// Does readings in a thread, one after the other, while the windows answer. After 0.3 s a dialog over all of
/// them says what is read. F1 there or its button stops reading, and so does the end of the program; what was
/// begun then ends by itself and is dropped.
class ReadingProgress
{
public:
    explicit ReadingProgress(QString const & title);

    /// Says what is read from now on.
    void setText(QString const & text) { m_dialog.setLabelText(text); }
    /// How many readings there will be from now on; until this is called, that is not known.
    void setCount(int count);
    /// False when it was stopped, also before.
    bool run(KVCAM::Embedded::Reading reading);
    bool isStopped() const { return m_isStopped; }
    /// The program is to end; isStopped() too.
    bool isQuit() const { return m_isQuit; }

private:
    struct Work;
    void handleEvents(Work const & work);

    KVProgressDialog m_dialog; // without a parent, which might be deleted first
    QElapsedTimer m_time;
    QElapsedTimer m_handled; // since events were
    int m_done = 0;
    bool m_isStopped = false;
    bool m_isQuit = false;
};

} // namespace Workbench
