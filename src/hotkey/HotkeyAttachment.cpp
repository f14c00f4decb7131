#include "hotkey/HotkeyAttachment.h"

#include "hotkey/HotkeyTools.h"
#include "hotkey/KVHotKey.h"
#include "hotkey/KeyOwner.h"
#include "support/Guard.h"
#include "support/Log.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

HotkeyAttachment * attachedTo(QWidget const & widget)
{
    return widget.findChild<HotkeyAttachment *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

HotkeyAttachment::HotkeyAttachment(QWidget & widget) : m_widget(widget)
{
    delete attachedTo(widget);
    setParent(&widget);
    QCoreApplication::instance()->installEventFilter(this);
}

HotkeyAttachment::~HotkeyAttachment() = default;

void HotkeyAttachment::setRepeating(std::vector<FuncCode> codes)
{
    m_repeating = std::move(codes);
}

void HotkeyAttachment::setCondition(std::function<bool()> condition)
{
    m_condition = std::move(condition);
}

// A key ignored by its receiver is sent to the parents as well; only the first receiver counts. Of several
// attachments above it, the nearest one.
bool HotkeyAttachment::isOurs(QObject const * receiver) const
{
    QWidget const * const window = m_widget.window();
    QWidget const * const first = window->focusWidget() != nullptr ? window->focusWidget() : window;
    if (receiver != first) {
        return false;
    }
    QWidget const * nearest = first;
    while (nearest != nullptr && attachedTo(*nearest) == nullptr) {
        nearest = nearest->parentWidget();
    }
    return nearest == &m_widget && (!m_condition || m_condition());
}

bool HotkeyAttachment::eventFilter(QObject * receiver, QEvent * event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    return guarded(Log::hotKey, [&] {
        if (!isOurs(receiver)) {
            return false;
        }
        auto & pressed = static_cast<QKeyEvent &>(*event);
        KeyTaker const taker = keyTakerOf(static_cast<QWidget const &>(*receiver));
        if (keepsKey(taker, pressed.key(), pressed.modifiers())) {
            KVHotKey::getInstance()->buffClear(); // what is typed elsewhere continues no sequence
            return false;
        }
        return press(pressed);
    });
}

bool HotkeyAttachment::press(QKeyEvent & event)
{
    if (event.isAutoRepeat() && event.modifiers() == Qt::NoModifier) {
        return false; // a key held down does not begin a sequence
    }
    FuncCode const code = KVHotKey::getInstance()->getFunctionCode(&event);
    bool const isTaken = code != KP_NoFunction || !hotkeyContinuations().empty();
    if (event.isAutoRepeat() &&
        std::find(m_repeating.begin(), m_repeating.end(), code) == m_repeating.end()) {
        return isTaken; // and does not switch back
    }
    QPointer<HotkeyAttachment> const alive(this);
    if (code != KP_NoFunction) {
        guarded(Log::hotKey, [&] { emit triggered(code); });
    }
    if (alive) {
        emit keySeen();
    }
    return isTaken;
}

HotkeyAttachment * attachHotkeys(QWidget & widget, std::function<void(FuncCode)> run)
{
    auto * attachment = new HotkeyAttachment(widget);
    if (run) {
        QObject::connect(attachment, &HotkeyAttachment::triggered, attachment, std::move(run));
    }
    return attachment;
}

} // namespace KVCAM::UIAPI::Ext
