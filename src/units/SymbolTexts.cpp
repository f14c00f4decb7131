#include "units/SymbolTexts.h"

#include <QCoreApplication>

#include <array>
#include <cstddef>

namespace KVCAM::UIAPI::Symbols {

using Ext::SymbolFamily;
using Ext::SymbolField;

namespace {

struct FieldText
{
    SymbolField field;
    char const * name;
    char const * phrase; // %1 is the field
};

constexpr std::array fieldTexts{
    FieldText{SymbolField::Diameter, QT_TRANSLATE_NOOP("Symbols", "diameter"),
              QT_TRANSLATE_NOOP("Symbols", "diameter %1")},
    FieldText{SymbolField::Side, QT_TRANSLATE_NOOP("Symbols", "side"),
              QT_TRANSLATE_NOOP("Symbols", "side %1")},
    FieldText{SymbolField::OuterSize, QT_TRANSLATE_NOOP("Symbols", "outer size"),
              QT_TRANSLATE_NOOP("Symbols", "outside %1")},
    FieldText{SymbolField::InnerSize, QT_TRANSLATE_NOOP("Symbols", "inner size"),
              QT_TRANSLATE_NOOP("Symbols", "inside %1")},
    FieldText{SymbolField::Width, QT_TRANSLATE_NOOP("Symbols", "width"),
              QT_TRANSLATE_NOOP("Symbols", "width %1")},
    FieldText{SymbolField::Height, QT_TRANSLATE_NOOP("Symbols", "height"),
              QT_TRANSLATE_NOOP("Symbols", "height %1")},
    FieldText{SymbolField::LineWidth, QT_TRANSLATE_NOOP("Symbols", "line width"),
              QT_TRANSLATE_NOOP("Symbols", "line width %1")},
    FieldText{SymbolField::LineLength, QT_TRANSLATE_NOOP("Symbols", "line length"),
              QT_TRANSLATE_NOOP("Symbols", "line length %1")},
    FieldText{SymbolField::RingWidth, QT_TRANSLATE_NOOP("Symbols", "ring width"),
              QT_TRANSLATE_NOOP("Symbols", "ring width %1")},
    FieldText{SymbolField::RingGap, QT_TRANSLATE_NOOP("Symbols", "ring gap"),
              QT_TRANSLATE_NOOP("Symbols", "ring gap %1")},
    FieldText{SymbolField::Gap, QT_TRANSLATE_NOOP("Symbols", "spoke gap"),
              QT_TRANSLATE_NOOP("Symbols", "spoke gap %1")},
    FieldText{SymbolField::AirGap, QT_TRANSLATE_NOOP("Symbols", "air gap"),
              QT_TRANSLATE_NOOP("Symbols", "air gap %1")},
    FieldText{SymbolField::Corner, QT_TRANSLATE_NOOP("Symbols", "corner size"),
              QT_TRANSLATE_NOOP("Symbols", "corners rounded by %1")},
    FieldText{SymbolField::CornerCut, QT_TRANSLATE_NOOP("Symbols", "corner cut"),
              QT_TRANSLATE_NOOP("Symbols", "corners %1")},
    FieldText{SymbolField::TolerancePlus, QT_TRANSLATE_NOOP("Symbols", "upper tolerance"),
              QT_TRANSLATE_NOOP("Symbols", "tolerance + %1")},
    FieldText{SymbolField::ToleranceMinus, QT_TRANSLATE_NOOP("Symbols", "lower tolerance"),
              QT_TRANSLATE_NOOP("Symbols", "tolerance - %1")},
    FieldText{SymbolField::CornerList, QT_TRANSLATE_NOOP("Symbols", "corners"),
              QT_TRANSLATE_NOOP("Symbols", "only at corners %1")},
    FieldText{SymbolField::RingCount, QT_TRANSLATE_NOOP("Symbols", "number of rings"),
              QT_TRANSLATE_NOOP("Symbols", "rings %1")},
    FieldText{SymbolField::SpokeCount, QT_TRANSLATE_NOOP("Symbols", "number of spokes"),
              QT_TRANSLATE_NOOP("Symbols", "spokes %1")},
    FieldText{SymbolField::Angle, QT_TRANSLATE_NOOP("Symbols", "angle"),
              QT_TRANSLATE_NOOP("Symbols", "turned by %1 degrees")},
    FieldText{SymbolField::Plating, QT_TRANSLATE_NOOP("Symbols", "plating"), "%1"},
};
constexpr char const * chamferPhrase = QT_TRANSLATE_NOOP("Symbols", "corners cut by %1");

constexpr bool inFieldOrder()
{
    for (std::size_t i = 0; i < fieldTexts.size(); ++i) {
        if (fieldTexts[i].field != static_cast<SymbolField>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(fieldTexts.size() == Ext::symbolFieldCount && inFieldOrder());

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
static_assert(Ext::isBySymbolFamily(shapeTexts));

struct Plating
{
    char letter;
    char const * phrase;
};
constexpr std::array platings{Plating{'p', QT_TRANSLATE_NOOP("Symbols", "plated")},
                              Plating{'n', QT_TRANSLATE_NOOP("Symbols", "not plated")},
                              Plating{'v', QT_TRANSLATE_NOOP("Symbols", "via")}};

FieldText const & textOf(SymbolField field)
{
    return fieldTexts[static_cast<std::size_t>(field)];
}

} // namespace

QString translated(char const * text)
{
    return QCoreApplication::translate("Symbols", text);
}

QString fieldName(SymbolField field)
{
    return translated(textOf(field).name);
}

QString fieldPhrase(SymbolField field)
{
    return translated(textOf(field).phrase);
}

QString chamferedPhrase()
{
    return translated(chamferPhrase);
}

QString shapeName(SymbolFamily family)
{
    return translated(shapeTexts[static_cast<std::size_t>(family)].phrase);
}

QString platingName(QChar letter)
{
    for (Plating const & plating : platings) {
        if (letter == QLatin1Char(plating.letter)) {
            return translated(plating.phrase);
        }
    }
    return {};
}

} // namespace KVCAM::UIAPI::Symbols
