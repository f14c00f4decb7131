#pragma once

#include "support/SymbolFamilies.h"

#include <QStringView>
#include <QVarLengthArray>

/// Symbol names taken apart.
namespace KVCAM::UIAPI::Symbols {

/// The leading characters of a name up to the first '0' to '9'.
QStringView symbolPrefix(QStringView name);

using SymbolParts = QVarLengthArray<QStringView, 12>;

/// Splits at every "x"; empty parts are kept.
SymbolParts splitParts(QStringView name);

/// The family whose prefix this is exactly, case included; null for a user's own symbol.
Ext::SymbolGrammar const * findGrammar(QStringView prefix);
/// As findGrammar(), but one trailing "x" of the prefix is forgiven for a rectangle: an empty width stands
/// before the "x" in "rectx5".
Ext::SymbolGrammar const * findRewriteGrammar(QStringView prefix);

} // namespace KVCAM::UIAPI::Symbols
