#pragma once

// Lengths in any unit; values and symbols, judged and described without a box or a view.
//
//   Unit, LengthScale  inch or millimetre, the small or the large unit; otherUnit(), unitOfCode(), unitCode(),
//                      isUnitCode(), nanometresPer(), unitSuffix(), unitName()
//   unitOf()           the unit of a view
//   Length             a length in whole nanometres: from and to every unit, arithmetic, text, literals
//   evaluate()         the value of a typed text: units, parentheses, ordinary precedence, where a fault is
//   checkValue()       whether a length is in its range: the fault, the bounds, a sentence
//   checkNumber()      the same for a plain number
//   checkSymbol()      the same for every number of a symbol name
//   Symbol             a standard symbol: its name taken apart, in any unit, or what is wrong with it
//   describeSymbol()   a symbol name in words, in both units
//   symbolGrammars     the standard families: prefix, fields, what a unit switch does; symbolFieldKind()
//   findSymbolGrammar() the family of a prefix
//
// A field: evaluate() what was typed, checkValue() the length, show the sentence of the one that failed. The
// flat functions judge by doubles and show a box. KVLineEdit::setRange() calls checkValue() and checkSymbol()
// at every edit.

#include "../support/SymbolFamilies.h"
#include "../uiapi/ViewUnit.h"
#include "../units/Evaluate.h"
#include "../units/Length.h"
#include "../units/Symbol.h"
#include "../units/SymbolDescription.h"
#include "../units/Unit.h"
#include "../units/ValueCheck.h"
