#pragma once

#include <QString>

#include <optional>

namespace Workbench {

/// A family of standard symbols, as far as names are concerned.
struct PadFamily
{
    char const * prefix;
    bool hasSecond;          ///< a second size follows the first
    bool isConverted = true; ///< the library converts its names between units
};

/// A standard symbol's name, taken apart.
struct PadName
{
    PadFamily const * family;
    QString first;
    QString second; ///< empty for a family with one size, or when missing
    QString rest;   ///< what follows, including its "x"
};

/// Nothing unless the name is that of a family, with a size and what may follow it.
std::optional<PadName> parsePadName(QString const & name);

/// Whether a text is a size as written in symbol names: digits, with or without decimals, without a sign.
bool isSizeText(QString const & text);

} // namespace Workbench
