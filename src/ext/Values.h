#pragma once

// Lengths in any unit; values and symbols, judged and described without a box or a view.
//
//   Unit, LengthScale  inch or millimetre, the small or the large unit; otherUnit(), unitOfCode(), unitCode(),
//                      isUnitCode(), nanometresPer(), unitSuffix(), unitName()
//   unitOf()           the unit of a view
//   Length             a length in whole nanometres: from and to every unit, arithmetic, text, literals
//   evaluate()         the value of a typed text: units, parentheses, ordinary precedence, where a fault is
//   checkValue()       isValueLegal() as verdict and text
//   checkNumber()      isNumValueLegal() as verdict and text
//   checkSymbol()      isSymbolValueLegal() as verdict and text
//   describeSymbol()   a symbol name in words, in both units
//   symbolGrammars     the standard families: prefix, fields, what a unit switch does
//   findSymbolGrammar() the family of a prefix
//
// The flat functions go by the same rules and show the text in a box; a dialog that shows it beside the field
// calls these. KVLineEdit::setRange() calls checkValue() and checkSymbol() at every edit.

#include "../support/SymbolFamilies.h"
#include "../uiapi/ViewUnit.h"
#include "../units/Evaluate.h"
#include "../units/Length.h"
#include "../units/SymbolDescription.h"
#include "../units/Unit.h"
#include "../units/ValueCheck.h"
