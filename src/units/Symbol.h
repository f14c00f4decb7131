#pragma once

#include "../support/Result.h"
#include "../support/SymbolFamilies.h"
#include "Length.h"
#include "UIAPICommonExport.h"
#include "Unit.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

/// \addtogroup symbols
namespace KVCAM::UIAPI::Ext {

/// Why a name is not that of a standard symbol. The comment says which part is marked.
/// \since 0.1
enum class SymbolFault : int
{
    None,              ///< it is
    Empty,             ///< there is no name
    UnknownFamily,     ///< what stands before the first digit is no family's prefix: a job's own symbol
    FieldMissing,      ///< the place where the field should stand; nothing is marked
    TooManyFields,     ///< all that follows the last field, with its "x"
    NotANumber,        ///< what should be digits, with or without a point between them
    NotAWholeNumber,   ///< what should be a count
    TooLarge,          ///< a length beyond 9.2e18 nanometres, a count or angle beyond 2147483647
    CornerKindMissing, ///< a field that begins with neither "r" nor "c"
    ChamferNotAllowed, ///< a field that begins with "c" in a family with rounded corners only
    NotCorners,        ///< what should be digits out of 1234, each once
    NotPlating         ///< what should be "p", "n" or "v"
};
/// Number of faults, None included.
inline constexpr int symbolFaultCount = 12;

/// A field of a standard symbol.
/// \since 0.1
struct SymbolValue
{
    SymbolField role = SymbolField::Diameter; ///< what it says; symbolFieldKind() tells what it holds
    Unit unit = Unit::Inch;                   ///< in whose small unit it was written
    QString text;      ///< as written: "10.0", "r5" for a Corner, "13" for a CornerList, "p" for Plating
    Length length;     ///< of a Length or Corner, to the nearest nanometre, halves away from zero; else 0
    double number = 0; ///< as written: a length in the small unit; 0 for a CornerList and Plating

    /// Whether it is a Corner which is cut, not rounded.
    [[nodiscard]] bool isChamfer() const
    {
        return role == SymbolField::Corner && text.startsWith(QLatin1Char('c'));
    }
};

struct SymbolReading;

/// A standard symbol: a family and its fields, each as it was written, so that no unit switch loses a digit.
/// Depends on neither locale nor views; logs nothing and shows no box.
/// \since 0.1
class Symbol
{
public:
    /// Reads a well-formed name of a family, as the default engine takes it, whose lengths are in the small
    /// unit of `unit`; a field AirGap of those that may have one is allowed as well. Sizes may be 0 and are
    /// never negative. Whether they fit each other is not looked at.
    [[nodiscard]] static UIAPICOMMON_EXPORT SymbolReading parse(QString const & name, Unit unit);

    /// The family's row of symbolGrammars.
    [[nodiscard]] SymbolGrammar const & grammar() const noexcept { return *m_grammar; }
    /// The same as grammar().family.
    [[nodiscard]] SymbolFamily family() const noexcept { return m_grammar->family; }
    /// In the order of the name, which is that of grammar().layout; at least its required ones.
    [[nodiscard]] std::vector<SymbolValue> const & values() const noexcept { return m_values; }
    /// The field with a role; null if the symbol has none. Valid until the symbol changes.
    [[nodiscard]] UIAPICOMMON_EXPORT SymbolValue const * find(SymbolField role) const noexcept;

    /// The name with its lengths in the small unit of `shown`. A field that was written in it stands as it
    /// was written; any other is the shortest text that reads back as the same length. Unlike
    /// setSymbolUIData() this converts every family, and in both directions.
    [[nodiscard]] UIAPICOMMON_EXPORT QString name(Unit shown) const;

    /// Writes another text into a field of values(). Leaves the symbol as it is and returns why for a text
    /// that the field cannot hold, TooManyFields if there is no such field.
    UIAPICOMMON_EXPORT SymbolFault setValue(std::size_t index, QString const & text, Unit unit);

private:
    Symbol() = default;

    SymbolGrammar const * m_grammar = nullptr; // never null once parsed
    std::vector<SymbolValue> m_values;
};

/// A symbol, or why a name is none: `reason` is a translated sentence, which names the field.
/// \since 0.1
struct SymbolReading : Result
{
    std::optional<Symbol> symbol;          ///< exactly if ok
    SymbolFault fault = SymbolFault::None; ///< None exactly if ok
    std::optional<SymbolField> field;      ///< the faulty one, if it is a field's fault
    int position = 0;                      ///< of the fault in the name, in UTF-16 units
    int size = 0;                          ///< of the faulty part
};

} // namespace KVCAM::UIAPI::Ext
