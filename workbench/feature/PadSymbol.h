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

    /// The text in a unit; six significant digits if converted.
    QString in(Unit shown) const;
    /// Rounded to nearest, saturating at the ends of qint64.
    KVCAM::UIAPI::Ext::Length length() const;
};

/// A pad's symbol: its name as typed or stored, and its first two sizes, each with the unit it was typed in.
/// A conversion always starts from what was typed, so switching units loses no digit.
class PadSymbol
{
public:
    PadSymbol() = default;
    PadSymbol(QString name, Unit unit);

    QString const & name() const { return m_name; }
    Unit unit() const { return m_unit; }
    /// Whether the name belongs to a standard family whose sizes the library converts.
    bool hasWidth() const;
    /// False for a family with one size as well.
    bool hasHeight() const;
    /// Empty without hasWidth().
    PadSize const & width() const { return m_width; }
    /// Empty when the name has none, or not yet.
    PadSize const & height() const { return m_height; }
    QString in(Unit shown) const;

    void setWidth(PadSize const & size);
    void setHeight(PadSize const & size);

    QJsonObject toJson() const;
    /// Nothing when a size is not a size or a unit not a unit.
    static std::optional<PadSymbol> fromJson(QJsonObject const & json);

private:
    QString withSizes(QString const & name, Unit unit) const;

    QString m_name;
    Unit m_unit = Unit::Inch;
    PadSize m_width;
    PadSize m_height;
};

} // namespace Workbench
