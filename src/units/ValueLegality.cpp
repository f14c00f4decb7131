#include "units/ValueLegality.h"

#include "units/UnitConversion.h"

#include <QObject>

namespace KVCAM::UIAPI::ValueLegality {
namespace {

// The translation is looked up by the composed text, numbers included. It always has been.
QString translated(QString const & composed)
{
    return QObject::tr(composed.toUtf8().constData());
}

} // namespace

QString lengthMessage(QString const & minimum, QString const & maximum)
{
    return translated(QStringLiteral("Illegal float value\nfloating value for field is out of range: (") +
                      minimum + QStringLiteral(", ") + maximum + QStringLiteral(")"));
}

QString numberMessage(double value, double minimum, double maximum)
{
    return translated(QStringLiteral("floating value for field is out of range: ") +
                      QString::fromStdString(Units::plainText(value)) +
                      QStringLiteral("\nlegal values: from ") + QString::number(minimum) +
                      QStringLiteral(" to ") + QString::number(maximum));
}

} // namespace KVCAM::UIAPI::ValueLegality
