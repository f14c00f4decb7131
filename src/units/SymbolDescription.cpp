#include "units/SymbolDescription.h"

#include "support/NumberRuns.h"
#include "units/DecimalText.h"
#include "units/SymbolParts.h"
#include "units/UnitConversion.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cstddef>

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr char const * context = "Symbols";

struct FieldText
{
    SymbolField field;
    char const * phrase; // %1 is the field
};

constexpr std::array fieldTexts{
    FieldText{SymbolField::Diameter, QT_TRANSLATE_NOOP("Symbols", "diameter %1")},
    FieldText{SymbolField::Side, QT_TRANSLATE_NOOP("Symbols", "side %1")},
    FieldText{SymbolField::OuterSize, QT_TRANSLATE_NOOP("Symbols", "outside %1")},
    FieldText{SymbolField::InnerSize, QT_TRANSLATE_NOOP("Symbols", "inside %1")},
    FieldText{SymbolField::Width, QT_TRANSLATE_NOOP("Symbols", "width %1")},
    FieldText{SymbolField::Height, QT_TRANSLATE_NOOP("Symbols", "height %1")},
    FieldText{SymbolField::LineWidth, QT_TRANSLATE_NOOP("Symbols", "line width %1")},
    FieldText{SymbolField::LineLength, QT_TRANSLATE_NOOP("Symbols", "line length %1")},
    FieldText{SymbolField::RingWidth, QT_TRANSLATE_NOOP("Symbols", "ring width %1")},
    FieldText{SymbolField::RingGap, QT_TRANSLATE_NOOP("Symbols", "ring gap %1")},
    FieldText{SymbolField::Gap, QT_TRANSLATE_NOOP("Symbols", "spoke gap %1")},
    FieldText{SymbolField::AirGap, QT_TRANSLATE_NOOP("Symbols", "air gap %1")},
    FieldText{SymbolField::Corner, QT_TRANSLATE_NOOP("Symbols", "corners rounded by %1")},
    FieldText{SymbolField::CornerCut, QT_TRANSLATE_NOOP("Symbols", "corners %1")},
    FieldText{SymbolField::TolerancePlus, QT_TRANSLATE_NOOP("Symbols", "tolerance + %1")},
    FieldText{SymbolField::ToleranceMinus, QT_TRANSLATE_NOOP("Symbols", "tolerance - %1")},
    FieldText{SymbolField::CornerList, QT_TRANSLATE_NOOP("Symbols", "only at corners %1")},
    FieldText{SymbolField::RingCount, QT_TRANSLATE_NOOP("Symbols", "rings %1")},
    FieldText{SymbolField::SpokeCount, QT_TRANSLATE_NOOP("Symbols", "spokes %1")},
    FieldText{SymbolField::Angle, QT_TRANSLATE_NOOP("Symbols", "turned by %1 degrees")},
    FieldText{SymbolField::Plating, "%1"},
};
constexpr char const * chamferPhrase = QT_TRANSLATE_NOOP("Symbols", "corners cut by %1");
constexpr char const * userSymbolPhrase = QT_TRANSLATE_NOOP("Symbols", "user symbol %1");

constexpr bool inFieldOrder()
{
    for (std::size_t i = 0; i < fieldTexts.size(); ++i) {
        if (fieldTexts[i].field != static_cast<SymbolField>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(fieldTexts.size() == symbolFieldCount && inFieldOrder());

struct ShapeText
{
    SymbolFamily family;
    char const * phrase;
};

constexpr std::array shapeTexts{
    ShapeText{SymbolFamily::Round, QT_TRANSLATE_NOOP("Symbols", "round")},
    ShapeText{SymbolFamily::Square, QT_TRANSLATE_NOOP("Symbols", "square")},
    ShapeText{SymbolFamily::Rectangle, QT_TRANSLATE_NOOP("Symbols", "rectangle")},
    ShapeText{SymbolFamily::Oval, QT_TRANSLATE_NOOP("Symbols", "oval")},
    ShapeText{SymbolFamily::HalfOval, QT_TRANSLATE_NOOP("Symbols", "half oval")},
    ShapeText{SymbolFamily::Diamond, QT_TRANSLATE_NOOP("Symbols", "diamond")},
    ShapeText{SymbolFamily::Octagon, QT_TRANSLATE_NOOP("Symbols", "octagon")},
    ShapeText{SymbolFamily::Ellipse, QT_TRANSLATE_NOOP("Symbols", "ellipse")},
    ShapeText{SymbolFamily::Triangle, QT_TRANSLATE_NOOP("Symbols", "triangle")},
    ShapeText{SymbolFamily::RoundButterfly, QT_TRANSLATE_NOOP("Symbols", "round butterfly")},
    ShapeText{SymbolFamily::SquareButterfly, QT_TRANSLATE_NOOP("Symbols", "square butterfly")},
    ShapeText{SymbolFamily::LyingHexagon, QT_TRANSLATE_NOOP("Symbols", "horizontal hexagon")},
    ShapeText{SymbolFamily::StandingHexagon, QT_TRANSLATE_NOOP("Symbols", "vertical hexagon")},
    ShapeText{SymbolFamily::Hole, QT_TRANSLATE_NOOP("Symbols", "hole")},
    ShapeText{SymbolFamily::RoundDonut, QT_TRANSLATE_NOOP("Symbols", "round donut")},
    ShapeText{SymbolFamily::SquareDonut, QT_TRANSLATE_NOOP("Symbols", "square donut")},
    ShapeText{SymbolFamily::SquareRoundDonut,
              QT_TRANSLATE_NOOP("Symbols", "square donut with a round inside")},
    ShapeText{SymbolFamily::OvalDonut, QT_TRANSLATE_NOOP("Symbols", "oval donut")},
    ShapeText{SymbolFamily::RectangleDonut, QT_TRANSLATE_NOOP("Symbols", "rectangular donut")},
    ShapeText{SymbolFamily::RoundThermal, QT_TRANSLATE_NOOP("Symbols", "round thermal")},
    ShapeText{SymbolFamily::RoundSquaredThermal,
              QT_TRANSLATE_NOOP("Symbols", "round thermal with square ends")},
    ShapeText{SymbolFamily::SquareRoundThermal,
              QT_TRANSLATE_NOOP("Symbols", "square thermal with a round inside")},
    ShapeText{SymbolFamily::SquareThermal, QT_TRANSLATE_NOOP("Symbols", "square thermal")},
    ShapeText{SymbolFamily::SquareOpenThermal,
              QT_TRANSLATE_NOOP("Symbols", "square thermal with open corners")},
    ShapeText{SymbolFamily::RectangleThermal, QT_TRANSLATE_NOOP("Symbols", "rectangular thermal")},
    ShapeText{SymbolFamily::RectangleOpenThermal,
              QT_TRANSLATE_NOOP("Symbols", "rectangular thermal with open corners")},
    ShapeText{SymbolFamily::OvalThermal, QT_TRANSLATE_NOOP("Symbols", "oval thermal")},
    ShapeText{SymbolFamily::Moire, QT_TRANSLATE_NOOP("Symbols", "moire")},
};
static_assert(isBySymbolFamily(shapeTexts));

struct Plating
{
    char letter;
    char const * phrase;
};
constexpr std::array platings{Plating{'p', QT_TRANSLATE_NOOP("Symbols", "plated")},
                              Plating{'n', QT_TRANSLATE_NOOP("Symbols", "not plated")},
                              Plating{'v', QT_TRANSLATE_NOOP("Symbols", "via")}};

QString translated(char const * text)
{
    return QCoreApplication::translate(context, text);
}

// At least one digit and at most one point.
bool isSize(QStringView text)
{
    return std::all_of(text.begin(), text.end(), isNumberCharacter) &&
           std::any_of(text.begin(), text.end(), isAsciiDigit) &&
           std::count(text.begin(), text.end(), QLatin1Char('.')) <= 1;
}

QString sizeText(QStringView text, Unit unit)
{
    double const size = decimalValue(text);
    double const other =
        unit == Unit::Inch ? size * Units::millimetresPerInch : size / Units::millimetresPerInch;
    auto const inUnit = [](double value, Unit shown) {
        return QString::fromStdString(Units::plainText(value)) + QLatin1Char(' ') +
               unitSuffix(shown, LengthScale::Small);
    };
    return inUnit(size, unit) + QStringLiteral(" (") + inUnit(other, otherUnit(unit)) + QStringLiteral(")");
}

// A field in words; empty when its text cannot be what its field says.
QString fieldText(SymbolField field, QStringView text, Unit unit)
{
    char const * const phrase = fieldTexts[static_cast<std::size_t>(field)].phrase;
    switch (field) {
    case SymbolField::Corner: {
        bool const isRound = text.startsWith(QLatin1Char('r'));
        if (!(isRound || text.startsWith(QLatin1Char('c'))) || !isSize(text.mid(1))) {
            return {};
        }
        return translated(isRound ? phrase : chamferPhrase).arg(sizeText(text.mid(1), unit));
    }
    case SymbolField::CornerList: {
        auto const isCorner = [](QChar c) { return c >= QLatin1Char('1') && c <= QLatin1Char('4'); };
        if (text.isEmpty() || !std::all_of(text.begin(), text.end(), isCorner)) {
            return {};
        }
        return translated(phrase).arg(text.toString());
    }
    case SymbolField::Plating:
        for (Plating const & plating : platings) {
            if (text.size() == 1 && text.front() == QLatin1Char(plating.letter)) {
                return translated(plating.phrase);
            }
        }
        return {};
    default:
        if (!isSize(text)) {
            return {};
        }
        return translated(phrase).arg(isSymbolLength(field) ? sizeText(text, unit) : text.toString());
    }
}

// The family's shape and its fields in words; empty if a field does not fit.
QString standardText(SymbolGrammar const & grammar, QStringView fields, Unit unit)
{
    Symbols::SymbolParts const parts = Symbols::splitParts(fields);
    auto const count = static_cast<std::size_t>(parts.size());
    SymbolLayout const & layout = grammar.layout;
    if (count < layout.required || count > layout.count) {
        return {};
    }
    QString text = translated(shapeTexts[static_cast<std::size_t>(grammar.family)].phrase);
    for (std::size_t i = 0; i < count; ++i) {
        QStringView const part = parts[static_cast<int>(i)];
        QString const field = fieldText(layout.fields[i], part, unit);
        if (field.isEmpty()) {
            return {};
        }
        // a single size needs no label
        text += QStringLiteral(", ") + (layout.count == 1 ? sizeText(part, unit) : field);
    }
    return text;
}

} // namespace

QString describeSymbol(QString const & name, Unit unit)
{
    if (name.isEmpty()) {
        return {};
    }
    QStringView const prefix = Symbols::symbolPrefix(name);
    QString text;
    if (SymbolGrammar const * grammar = Symbols::findGrammar(prefix)) {
        text = standardText(*grammar, QStringView(name).mid(prefix.size()), unit);
    }
    return text.isEmpty() ? translated(userSymbolPhrase).arg(name) : text;
}

} // namespace KVCAM::UIAPI::Ext
