#include "units/ValueLegality.h"

#include "units/UnitConversion.h"

#include <QObject>

namespace KVCAM::UIAPI::ValueLegality {
namespace {

// The composed text is what is looked up, numbers included; so has it always been.
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
