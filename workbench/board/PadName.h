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
    QString second; ///< empty for a family with one size, or when missing
    QString rest;   ///< what follows, including its "x"
};

/// Nothing unless the name is that of a family, with a size and what may follow it.
std::optional<PadName> parsePadName(QString const & name);

/// Whether a second size follows the first in the names of a family.
bool hasSecondSize(KVCAM::UIAPI::Ext::SymbolGrammar const & grammar);

/// Whether a text is a size as written in symbol names: digits, with or without decimals, without a sign.
bool isSizeText(QString const & text);

} // namespace Workbench
