#pragma once

#include <UIAPICommon.h>

#include <QString>

#include <optional>

namespace Workbench {

/// A standard symbol's name, taken apart.
struct PadName
{
    KVCAM::UIAPI::Ext::SymbolGrammar const * grammar; ///< its family's
    QString prefix;
    QString first;
    QString second; ///< empty for a family with one size, or when it is missing
    QString rest;   ///< what follows, with its "x"
};

/// Nothing for a name that begins with no family and a size, or goes on as no standard name does.
std::optional<PadName> parsePadName(QString const & name);

/// Whether a second size follows the first in the names of a family.
bool hasSecondSize(KVCAM::UIAPI::Ext::SymbolGrammar const & grammar);

/// Whether a text is a size as it stands in a symbol name: digits, with or without decimals, and no sign.
bool isSizeText(QString const & text);

} // namespace Workbench
