#pragma once

#include "support/SymbolFamilies.h"

#include <QChar>
#include <QString>

/// What symbols and their fields are called, translated.
namespace KVCAM::UIAPI::Symbols {

/// A text of the catalogue's context "Symbols".
QString translated(char const * text);

QString fieldName(Ext::SymbolField field);   ///< "height"
QString fieldPhrase(Ext::SymbolField field); ///< "height %1"
QString chamferedPhrase();                   ///< that of a Corner which is cut, not rounded
QString shapeName(Ext::SymbolFamily family); ///< "square donut"
QString platingName(QChar letter);           ///< "plated"; empty for a letter that says nothing

} // namespace KVCAM::UIAPI::Symbols
