#pragma once

#include "hotkey/FuncCode.h"

#include <QMap>
#include <QString>

namespace KVCAM::UIAPI {

/// The words of the hot-key file. All are compared exactly.
struct HotkeyNames
{
    QMap<QString, int> keys;
    QMap<QString, Qt::KeyboardModifier> modifiers;
    QMap<QString, FuncCode> functions;

    void addKeys();
    void addModifiers();
    void addFunctions();
};

// The reverse look-ups, used for writing the file. Null if there is no such word.

QString nameOfKey(int key);
QString nameOfModifiers(Qt::KeyboardModifiers modifiers);
QString nameOfFunction(FuncCode code);

} // namespace KVCAM::UIAPI
