#pragma once

#include "FuncCode.h"
#include "UIAPICommonExport.h"

#include <QObject>

#include <functional>
#include <vector>

class QKeyEvent;
class QWidget;

namespace KVCAM::UIAPI::Ext {

/// The hot keys of a widget, as attached by attachHotkeys(): key presses in it and its children go to
/// KVHotKey. A child of the widget, which deletes it; delete it to end the hot keys earlier. GUI thread only.
/// \since 0.2
///
/// KVHotKey is not asked about
/// - keys that the widget with the focus needs: what is typed into a field, an editable combo box or a text,
///   what moves or searches in a list, table or combo box, and the usual combinations for copying and
///   editing there. They end a sequence that has begun. A combination for which such a widget has no use is a
///   hot key;
/// - shortcuts of the widget's actions and buttons, which Qt takes first;
/// - presses in another window: an open menu or list of a combo box, a dialog above;
/// - presses in a child with hot keys of its own;
/// - plain keys held down.
///
/// A press that gives a function, or begins a sequence, reaches no widget. Any other goes on to the one with
/// the focus: Escape and Enter still close a dialog.
class UIAPICOMMON_EXPORT HotkeyAttachment : public QObject
{
    Q_OBJECT

public:
    /// As attachHotkeys() without a function.
    explicit HotkeyAttachment(QWidget & widget);
    /// Ends the hot keys.
    ~HotkeyAttachment() override;

    /// The functions that a combination held down requests again and again, such as moving the picture. None
    /// at first.
    void setRepeating(std::vector<FuncCode> codes);
    /// Asked at each press: while it returns false, all keys are the widgets'. For a page that is not in
    /// front. Empty, the default, means always.
    void setCondition(std::function<bool()> condition);

signals:
    /// A function was requested. A slot may delete the widget. A slot must not throw; if it does, the
    /// exception is logged.
    void triggered(KVCAM::FuncCode code);
    /// After each press that KVHotKey was asked about, and after triggered(): what pendingHotkey() and
    /// hotkeyContinuations() say may have changed.
    void keySeen();

protected:
    /// Sees the key presses of the application.
    bool eventFilter(QObject * receiver, QEvent * event) override;

private:
    bool isOurs(QObject const * receiver) const;
    bool press(QKeyEvent & event);

    QWidget & m_widget;
    std::vector<FuncCode> m_repeating;
    std::function<bool()> m_condition;
};

/// Attaches the hot keys to a dialog, page or other widget and all its children, also those made later.
/// `run` is called with each function requested; it may delete the widget. Hot keys attached to the widget
/// before end.
/// \since 0.2
UIAPICOMMON_EXPORT HotkeyAttachment * attachHotkeys(QWidget & widget, std::function<void(FuncCode)> run = {});

} // namespace KVCAM::UIAPI::Ext
