#pragma once

#include "hotkey/HotkeyNames.h"
#include "hotkey/HotkeyTables.h"
#include "hotkey/HotkeyTools.h"
#include "support/Result.h"

#include <QJsonArray>
#include <QJsonValue>

#include <optional>

namespace KVCAM::UIAPI {

/// The binding of an element of the hot-key file, or why it binds nothing.
struct HotkeyElement
{
    HotkeyEntry entry;
    std::optional<Ext::HotkeyFindingKind> fault; ///< if empty, the entry is to be added
    char const * member = "";                    ///< the faulty member
    QString word;                                ///< its text
};

HotkeyElement readElement(QJsonValue const & element, HotkeyNames const & names);

/// The element that binds the entry; null if the file format cannot express it.
QJsonValue writeElement(HotkeyEntry const & entry);

/// A hot-key file as read.
struct HotkeyDocument
{
    Ext::Result result; ///< why nothing was read
    bool isArray = false;
    QJsonArray elements; ///< empty if the top level is not an array
};

HotkeyDocument readHotkeyFile(QString const & path);

/// The tables of a file. Elements that bind nothing are silently skipped.
HotkeyTables readTables(QJsonArray const & array, HotkeyNames const & names);

} // namespace KVCAM::UIAPI
