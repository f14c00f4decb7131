#pragma once

// Lengths in any unit; values and symbols, judged and described without a box or a view.
//
//   Unit               inch or millimetre; LengthScale is the small or the large unit of each
//   otherUnit()        the one that a unit is not
//   unitOfCode()       the unit of a code of the flat functions
//   unitCode()         the code of a unit
//   isUnitCode()       whether a number is one
//   nanometresPer()    how long a unit is
//   unitSuffix()       what follows a number
//   unitName()         a unit in words
//   unitOf()           the unit of a view
//   Length             a length in whole nanometres: from and to every unit, arithmetic, text, literals
//   evaluate()         the value of a typed text: units, parentheses, ordinary precedence, where a fault is
//   checkValue()       whether a length is in its range: the fault, the bounds, a sentence
//   checkNumber()      the same for a plain number
//   checkSymbol()      the same for every number of a symbol name
//   Symbol             a standard symbol: its name taken apart, in any unit, or what is wrong with it
//   describeSymbol()   a symbol name in words, in both units
//   symbolGrammars     the standard families: prefix, fields, what a unit switch does
//   findSymbolGrammar() the family of a prefix
//   symbolFieldKind()  what a field holds: a length, a count, an angle
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
