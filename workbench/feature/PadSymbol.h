#pragma once

#include "ui/Units.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace Workbench {

/// A length as it was typed or stored, in the small unit of a code.
struct PadSize
{
    QString text;
    int unit = inchUnit;

    /// The text in a unit, six significant digits where it has to be converted.
    QString in(int otherUnit) const;
    /// To the nearest; saturates at the ends of qint64.
    qint64 nanometres() const;
};

/// A pad's symbol: its name as it was typed or stored, and its first two sizes, each with the unit it was
/// typed in. Asking for a unit converts what was typed, never what was converted before, so that no digit
/// is lost by switching.
class PadSymbol
{
public:
    PadSymbol() = default;
    PadSymbol(QString name, int unit);

    QString const & name() const { return m_name; }
    int unit() const { return m_unit; }
    /// Whether the name is of a standard family whose sizes the library turns from one unit into the other.
    bool hasWidth() const;
    /// False for a family with one size, too.
    bool hasHeight() const;
    /// Empty without hasWidth().
    PadSize const & width() const { return m_width; }
    /// Empty when the name does not have it, or not yet.
    PadSize const & height() const { return m_height; }
    QString in(int otherUnit) const;

    void setWidth(PadSize const & size);
    void setHeight(PadSize const & size);

    QJsonObject toJson() const;
    /// Nothing when the text of a size is no size or a unit is neither 0 nor 1.
    static std::optional<PadSymbol> fromJson(QJsonObject const & json);

private:
    QString withSizes(QString const & name, int unit) const;

    QString m_name;
    int m_unit = inchUnit;
    PadSize m_width;
    PadSize m_height;
};

} // namespace Workbench
