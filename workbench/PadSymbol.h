#pragma once

#include <QString>

namespace Workbench {

/// A pad's symbol name as it was typed or stored, with the unit of its sizes: 0 mil, 1 micrometre. Asking for
/// the other unit converts what was typed, never what was converted before.
struct PadSymbol
{
    QString name;
    int unit = 0;

    QString in(int otherUnit) const;
};

/// The first two sizes of a symbol name as they stand there; the second is empty for a family with one size.
/// False for a name that begins with no family, as a user's own symbols may.
bool readSizes(QString const & name, QString & width, QString & height);
/// The name with these sizes in place of its first ones. A name without sizes comes back as it is.
QString withSizes(QString const & name, QString const & width, QString const & height);

} // namespace Workbench
