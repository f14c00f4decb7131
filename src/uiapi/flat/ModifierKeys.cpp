#include "uiapi/flat/ModifierKeys.h"

#include "support/Compiler.h"
#include "support/Guard.h"
#include "support/Log.h"

#include <QGuiApplication>

namespace KVCAM::UIAPI {
namespace {

Qt::KeyboardModifiers const control = Qt::ControlModifier;
Qt::KeyboardModifiers const shift = Qt::ShiftModifier;
Qt::KeyboardModifiers const alt = Qt::AltModifier;

Qt::KeyboardModifiers heldKeys(int line = UIAPI_CALLER_LINE)
{
    return guarded(
        Log::commonPara, [] { return QGuiApplication::keyboardModifiers(); }, line);
}

} // namespace

bool getCtrlEnpress()
{
    auto const held = heldKeys();
    return held == control || held == (control | shift);
}

bool getShiftEnpress()
{
    auto const held = heldKeys();
    return held == shift || held == (control | shift);
}

bool getAltEnpress()
{
    return heldKeys() == alt;
}

} // namespace KVCAM::UIAPI
