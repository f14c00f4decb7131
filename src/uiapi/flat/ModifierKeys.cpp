#include "uiapi/flat/ModifierKeys.h"

#include <QGuiApplication>

namespace KVCAM::UIAPI {
namespace {

Qt::KeyboardModifiers const control = Qt::ControlModifier;
Qt::KeyboardModifiers const shift = Qt::ShiftModifier;
Qt::KeyboardModifiers const alt = Qt::AltModifier;

} // namespace

bool getCtrlEnpress()
{
    auto const held = QGuiApplication::keyboardModifiers();
    return held == control || held == (control | shift);
}

bool getShiftEnpress()
{
    auto const held = QGuiApplication::keyboardModifiers();
    return held == shift || held == (control | shift);
}

bool getAltEnpress()
{
    return QGuiApplication::keyboardModifiers() == alt;
}

} // namespace KVCAM::UIAPI
