#pragma once

#include <QLatin1String>
#include <QString>
#include <QStringView>

/// Numbers in typed texts and symbol names, in Qt's C locale.
namespace KVCAM::UIAPI {

/// The result of QString::toDouble() without an error flag: 0 for text that is not a number, an infinity for
/// one that is too large. Accepts "inf", "nan", exponents and surrounding blanks.
double decimalValue(QStringView text);
double latinDecimalValue(QLatin1String text); ///< the same of Latin-1 text

/// Appends the general form with six significant digits: "10", "0.03937", "1234.57", "1e+06".
void appendSixDigits(QString & out, double value);

} // namespace KVCAM::UIAPI
