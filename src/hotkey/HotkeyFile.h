#pragma once

#include "hotkey/HotkeyNames.h"
#include "hotkey/HotkeyTables.h"
#include "hotkey/HotkeyTools.h"
#include "support/Result.h"

#include <QJsonArray>
#include <QJsonValue>

#include <optional>

namespace KVCAM::UIAPI {

/// What an element of the hot-key file binds, or why it binds nothing.
struct HotkeyElement
{
    HotkeyEntry entry;
    std::optional<Ext::HotkeyFindingKind> fault; ///< without one the entry is to be added
    char const * member = "";                    ///< the member that is at fault
    QString word;                                ///< what it says
};

HotkeyElement readElement(QJsonValue const & element, HotkeyNames const & names);

/// What an element needs to be to bind the entry; null when the file has no words for it.
QJsonValue writeElement(HotkeyEntry const & entry);

/// A file of hot keys as it was read.
struct HotkeyDocument
{
    Ext::Result result; ///< why nothing was read
    bool isArray = false;
    QJsonArray elements; ///< none when the top level is no array
};

HotkeyDocument readHotkeyFile(QString const & path);

/// The tables of a file. Elements that bind nothing are left out without a word.
HotkeyTables readTables(QJsonArray const & array, HotkeyNames const & names);

} // namespace KVCAM::UIAPI
