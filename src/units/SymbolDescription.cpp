#include "units/SymbolDescription.h"

#include "support/NumberRuns.h"
#include "units/DecimalText.h"
#include "units/SymbolFamilies.h"
#include "units/UnitConversion.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cstddef>

namespace KVCAM::UIAPI::Ext {
namespace {

using Symbols::FieldRole;

constexpr char const * context = "Symbols";

struct RoleText
{
    FieldRole role;
    char const * phrase; // %1 is the field
};

constexpr std::array roleTexts{
    RoleText{FieldRole::Diameter, QT_TRANSLATE_NOOP("Symbols", "diameter %1")},
    RoleText{FieldRole::Side, QT_TRANSLATE_NOOP("Symbols", "side %1")},
    RoleText{FieldRole::OuterSize, QT_TRANSLATE_NOOP("Symbols", "outside %1")},
    RoleText{FieldRole::InnerSize, QT_TRANSLATE_NOOP("Symbols", "inside %1")},
    RoleText{FieldRole::Width, QT_TRANSLATE_NOOP("Symbols", "width %1")},
    RoleText{FieldRole::Height, QT_TRANSLATE_NOOP("Symbols", "height %1")},
    RoleText{FieldRole::LineWidth, QT_TRANSLATE_NOOP("Symbols", "line width %1")},
    RoleText{FieldRole::LineLength, QT_TRANSLATE_NOOP("Symbols", "line length %1")},
    RoleText{FieldRole::RingWidth, QT_TRANSLATE_NOOP("Symbols", "ring width %1")},
    RoleText{FieldRole::RingGap, QT_TRANSLATE_NOOP("Symbols", "ring gap %1")},
    RoleText{FieldRole::Gap, QT_TRANSLATE_NOOP("Symbols", "spoke gap %1")},
    RoleText{FieldRole::AirGap, QT_TRANSLATE_NOOP("Symbols", "air gap %1")},
    RoleText{FieldRole::Corner, QT_TRANSLATE_NOOP("Symbols", "corners rounded by %1")},
    RoleText{FieldRole::CornerCut, QT_TRANSLATE_NOOP("Symbols", "corners %1")},
    RoleText{FieldRole::TolerancePlus, QT_TRANSLATE_NOOP("Symbols", "tolerance + %1")},
    RoleText{FieldRole::ToleranceMinus, QT_TRANSLATE_NOOP("Symbols", "tolerance - %1")},
    RoleText{FieldRole::CornerList, QT_TRANSLATE_NOOP("Symbols", "only at corners %1")},
    RoleText{FieldRole::RingCount, QT_TRANSLATE_NOOP("Symbols", "rings %1")},
    RoleText{FieldRole::SpokeCount, QT_TRANSLATE_NOOP("Symbols", "spokes %1")},
    RoleText{FieldRole::Angle, QT_TRANSLATE_NOOP("Symbols", "turned by %1 degrees")},
    RoleText{FieldRole::Plating, "%1"},
};
constexpr char const * chamferPhrase = QT_TRANSLATE_NOOP("Symbols", "corners cut by %1");
constexpr char const * userSymbolPhrase = QT_TRANSLATE_NOOP("Symbols", "user symbol %1");

constexpr bool inRoleOrder()
{
    for (std::size_t i = 0; i < roleTexts.size(); ++i) {
        if (roleTexts[i].role != static_cast<FieldRole>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(roleTexts.size() == Symbols::fieldRoles && inRoleOrder());

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

QString sizeText(QStringView text, int unit)
{
    double const size = decimalValue(text);
    bool const isMil = unit == Units::inch;
    double const other = isMil ? size * Units::millimetresPerInch : size / Units::millimetresPerInch;
    auto const inUnit = [](double value, int code) {
        return QString::fromStdString(Units::plainText(value) + " " + Units::nameByKind(code, 1));
    };
    int const own = isMil ? Units::inch : Units::millimetre;
    return inUnit(size, own) + QStringLiteral(" (") + inUnit(other, isMil ? Units::millimetre : Units::inch) +
           QStringLiteral(")");
}

// A field in words; empty when its text cannot be what its role says.
QString fieldText(FieldRole role, QStringView text, int unit)
{
    char const * const phrase = roleTexts[static_cast<std::size_t>(role)].phrase;
    switch (role) {
    case FieldRole::Corner: {
        bool const isRound = text.startsWith(QLatin1Char('r'));
        if (!(isRound || text.startsWith(QLatin1Char('c'))) || !isSize(text.mid(1))) {
            return {};
        }
        return translated(isRound ? phrase : chamferPhrase).arg(sizeText(text.mid(1), unit));
    }
    case FieldRole::CornerList: {
        auto const isCorner = [](QChar c) { return c >= QLatin1Char('1') && c <= QLatin1Char('4'); };
        if (text.isEmpty() || !std::all_of(text.begin(), text.end(), isCorner)) {
            return {};
        }
        return translated(phrase).arg(text.toString());
    }
    case FieldRole::Plating:
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
        return translated(phrase).arg(Symbols::isLength(role) ? sizeText(text, unit) : text.toString());
    }
}

// The family's shape and its fields in words; empty when a field does not fit.
QString standardText(Symbols::Family const & family, QStringView fields, int unit)
{
    Symbols::SymbolParts const parts = Symbols::splitParts(fields);
    auto const count = static_cast<std::size_t>(parts.size());
    if (count < family.required || count > family.fieldCount) {
        return {};
    }
    QString text = translated(family.shape);
    for (std::size_t i = 0; i < count; ++i) {
        QStringView const part = parts[static_cast<int>(i)];
        QString field = fieldText(family.fields[i], part, unit);
        if (field.isEmpty()) {
            return {};
        }
        // an only size needs no name
        text += QStringLiteral(", ") + (family.fieldCount == 1 ? sizeText(part, unit) : field);
    }
    return text;
}

} // namespace

QString describeSymbol(QString const & name, int unit)
{
    if (name.isEmpty()) {
        return {};
    }
    QStringView const prefix = Symbols::symbolPrefix(name);
    QString text;
    if (Symbols::Family const * family = Symbols::findFamily(prefix)) {
        text = standardText(*family, QStringView(name).mid(prefix.size()), unit);
    }
    return text.isEmpty() ? translated(userSymbolPhrase).arg(name) : text;
}

} // namespace KVCAM::UIAPI::Ext
