#pragma once

#include <QString>

#include <optional>

namespace Workbench {

/// A family of standard symbols, as far as its names go.
struct PadFamily
{
    char const * prefix;
    bool hasSecond;          ///< whether a second size follows the first
    bool isConverted = true; ///< whether the library turns its names from one unit into the other
};

/// A standard symbol's name, taken apart.
struct PadName
{
    PadFamily const * family;
    QString first;
    QString second; ///< empty for a family with one size, or when it is missing
    QString rest;   ///< what follows, with its "x"
};

/// Nothing for a name that begins with no family and a size, or goes on as no standard name does.
std::optional<PadName> parsePadName(QString const & name);

/// Whether a text is a size as it stands in a symbol name: digits, with or without decimals, and no sign.
bool isSizeText(QString const & text);

} // namespace Workbench
