#pragma once

#include "ui/Units.h"

#include <QString>

#include <cstddef>
#include <optional>

namespace Workbench {

/// The symbol of a feature: its name as typed or stored. Each of its sizes keeps the unit it was typed in; a
/// conversion always starts from what was typed, so switching units loses no digit.
class PadSymbol
{
public:
    PadSymbol() = default;
    PadSymbol(QString name, Unit unit);

    /// In unit().
    QString name() const { return in(unit()); }
    /// That in which all of its sizes were typed, or else that of the name.
    Unit unit() const;
    /// Any other name than that of a standard symbol is the same in both units.
    QString in(Unit shown) const { return m_standard ? m_standard->name(shown) : m_name; }
    bool isSame(PadSymbol const & other) const { return unit() == other.unit() && name() == other.name(); }
    /// Why a name that begins like a standard one is none; empty for any other name.
    QString fault() const;

    /// Its first or second size (0 or 1); nothing if it has none.
    std::optional<KVCAM::UIAPI::Ext::Length> size(std::size_t which) const;
    /// False, and no change, without that size.
    bool setSize(std::size_t which, KVCAM::UIAPI::Ext::Length length, Unit typedIn);

private:
    QString m_name;
    Unit m_unit = Unit::Inch;
    std::optional<KVCAM::UIAPI::Ext::Symbol> m_standard; ///< nothing for a job's own
};

} // namespace Workbench
