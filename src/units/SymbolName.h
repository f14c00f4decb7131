#pragma once

#include <QString>

/// Converts symbol names between units. Sizes in a name are mil or micrometres. `unit` is a unit code, 0 inch
/// and 1 millimetre; each function says what other codes mean. A number run is a maximal run of '0' to '9'
/// and '.'; a sign is text. Converted lengths are in general form with six significant digits, so a million
/// becomes "1e+06"; a length that is not a number counts as 0.
namespace KVCAM::UIAPI::Symbols {

// Family-aware: the lengths of a standard symbol are converted; angles, counts and corner lists are kept. A
// name of no known family, or whose fields do not fit its family, is unchanged.

/// The lengths / 25.4 for unit 0, else * 25.4.
QString toOtherUnit(QString const & name, int unit);
/// The lengths, in mil, at 3 decimals for unit 0; else in micrometres at 2 decimals, where a result one
/// hundredth off a whole micrometre becomes whole. Unlike toOtherUnit() this accepts an empty width.
QString fromMil(QString const & name, int unit);

// Generic: every number run of any name is converted. In a name with as many number runs as text runs, the
// result starts with a text run: "10x" becomes "x254".

/// The runs * 25.4 at 2 decimals for unit 1, else / 25.4 at 3 decimals.
QString runsToOtherUnit(QString const & name, int unit);
/// The runs, in mil, in micrometres at 2 decimals for unit 1 (whole as in fromMil()), else at 3 decimals.
QString runsFromMil(QString const & name, int unit);
/// The runs / 25.4 at 3 decimals for unit 1, else their own text.
QString runsToMil(QString const & name, int unit);

} // namespace KVCAM::UIAPI::Symbols
