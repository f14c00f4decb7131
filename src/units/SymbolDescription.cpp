#include "units/SymbolDescription.h"

#include "units/Symbol.h"
#include "units/SymbolTexts.h"
#include "units/UnitConversion.h"

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr char const * userSymbolPhrase = QT_TRANSLATE_NOOP("Symbols", "user symbol %1");

QString sizeText(double size, Unit unit)
{
    double const other =
        unit == Unit::Inch ? size * Units::millimetresPerInch : size / Units::millimetresPerInch;
    auto const inUnit = [](double value, Unit shown) {
        return QString::fromStdString(Units::plainText(value)) + QLatin1Char(' ') +
               unitSuffix(shown, LengthScale::Small);
    };
    return inUnit(size, unit) + QStringLiteral(" (") + inUnit(other, otherUnit(unit)) + QStringLiteral(")");
}

QString valueText(SymbolValue const & value)
{
    switch (symbolFieldKind(value.role)) {
    case SymbolFieldKind::Length:
        return Symbols::fieldPhrase(value.role).arg(sizeText(value.number, value.unit));
    case SymbolFieldKind::Corner: {
        QString const phrase =
            value.isChamfer() ? Symbols::chamferedPhrase() : Symbols::fieldPhrase(value.role);
        return phrase.arg(sizeText(value.number, value.unit));
    }
    case SymbolFieldKind::Plating:
        return Symbols::platingName(value.text.front());
    default:
        return Symbols::fieldPhrase(value.role).arg(value.text);
    }
}

} // namespace

QString describeSymbol(QString const & name, Unit unit)
{
    if (name.isEmpty()) {
        return {};
    }
    auto const symbol = Symbol::parse(name, unit).symbol;
    if (!symbol) {
        return Symbols::translated(userSymbolPhrase).arg(name);
    }
    QString text = Symbols::shapeName(symbol->family());
    bool const isSingle = symbol->grammar().layout.count == 1; // which needs no label
    for (SymbolValue const & value : symbol->values()) {
        text += QStringLiteral(", ") + (isSingle ? sizeText(value.number, unit) : valueText(value));
    }
    return text;
}

} // namespace KVCAM::UIAPI::Ext
