#pragma once

#include "ui/Units.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace Workbench {

/// A length as typed or stored, in the small unit of a code.
struct PadSize
{
    QString text;
    Unit unit = Unit::Inch;

    /// The text in a unit; the shortest exact one if converted.
    QString in(Unit shown) const;
    /// Rounded to nearest, saturating at the ends of qint64.
    KVCAM::UIAPI::Ext::Length length() const;
};

/// A pad's symbol: its name as typed or stored. Each of its sizes keeps the unit it was typed in; a
/// conversion always starts from what was typed, so switching units loses no digit.
class PadSymbol
{
public:
    PadSymbol() = default;
    PadSymbol(QString name, Unit unit);

    /// In unit().
    QString name() const { return in(m_unit); }
    Unit unit() const { return m_unit; }
    /// Whether the name is that of a standard symbol.
    bool hasWidth() const { return m_standard.has_value(); }
    /// False for a family with one size as well.
    bool hasHeight() const;
    /// The first size; empty without hasWidth().
    PadSize width() const;
    /// The second size; empty without hasHeight().
    PadSize height() const;
    /// Any other name is the same in both units.
    QString in(Unit shown) const { return m_standard ? m_standard->name(shown) : m_name; }
    /// Why a name that begins like a standard one is none; empty for any other name.
    QString fault() const;

    /// False, and no change, for a text that is not a size, and without the size.
    bool setWidth(PadSize const & size);
    bool setHeight(PadSize const & size);

    QJsonObject toJson() const;
    /// Nothing when a size is not a size or a unit not a unit.
    static std::optional<PadSymbol> fromJson(QJsonObject const & json);

private:
    QString m_name;
    Unit m_unit = Unit::Inch;
    std::optional<KVCAM::UIAPI::Ext::Symbol> m_standard; ///< nothing for a job's own
};

} // namespace Workbench
