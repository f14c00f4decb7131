#include "feature/PadSymbol.h"

#include "board/PadName.h"
#include "feature/FormFile.h"

#include <UIAPICommon.h>

#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// A name whose sizes can be shown and set, since the library converts the whole name.
std::optional<PadName> sizedName(QString const & name)
{
    auto parts = parsePadName(name);
    bool const isConverted = parts && parts->grammar->rewrite != Ext::SymbolRewrite::Unchanged;
    return isConverted ? parts : std::nullopt;
}

// The library converts names only; a length is converted as the size of a round.
QString converted(QString name, Unit from, Unit to)
{
    if (from != to) {
        setSymbolUIData(name, Ext::unitCode(to));
    }
    return name;
}

} // namespace

QString PadSize::in(Unit shown) const
{
    return text.isEmpty() ? QString() : converted('r' + text, unit, shown).mid(1);
}

Ext::Length PadSize::length() const
{
    return Ext::Length::from(text.toDouble(), unit, Ext::LengthScale::Small);
}

PadSymbol::PadSymbol(QString name, Unit unit) : m_name(std::move(name)), m_unit(unit)
{
    if (auto const parts = sizedName(m_name)) {
        m_width = {parts->first, unit};
        m_height = {parts->second, unit};
    }
}

bool PadSymbol::hasWidth() const
{
    return sizedName(m_name).has_value();
}

bool PadSymbol::hasHeight() const
{
    auto const parts = sizedName(m_name);
    return parts && hasSecondSize(*parts->grammar);
}

QString PadSymbol::in(Unit shown) const
{
    // A user-defined name may only look as if it had sizes.
    return hasWidth() ? withSizes(converted(m_name, m_unit, shown), shown) : m_name;
}

void PadSymbol::setWidth(PadSize const & size)
{
    m_width = size;
    m_name = withSizes(m_name, m_unit);
}

void PadSymbol::setHeight(PadSize const & size)
{
    m_height = size;
    m_name = withSizes(m_name, m_unit);
}

QString PadSymbol::withSizes(QString const & name, Unit unit) const
{
    auto const parts = sizedName(name);
    if (!parts || m_width.text.isEmpty()) {
        return name;
    }
    QString const start = parts->prefix + m_width.in(unit);
    if (m_height.text.isEmpty()) {
        return start + parts->rest;
    }
    bool const isUnfinished = parts->second.isEmpty() && parts->rest == "x"; // "rect10x" gets its height
    return start + 'x' + m_height.in(unit) + (isUnfinished ? QString() : parts->rest);
}

QJsonObject PadSymbol::toJson() const
{
    return {{"name", m_name},          {"unit", unitCode(m_unit)},
            {"width", m_width.text},   {"width unit", unitCode(m_width.unit)},
            {"height", m_height.text}, {"height unit", unitCode(m_height.unit)}};
}

std::optional<PadSymbol> PadSymbol::fromJson(QJsonObject const & json)
{
    for (char const * key : {"unit", "width unit", "height unit"}) {
        if (!isUnit(json[key])) {
            return std::nullopt;
        }
    }
    PadSymbol symbol(json["name"].toString(), Ext::unitOfCode(json["unit"].toInt()));
    PadSize const width{json["width"].toString(), Ext::unitOfCode(json["width unit"].toInt())};
    PadSize const height{json["height"].toString(), Ext::unitOfCode(json["height unit"].toInt())};
    for (auto const & [target, size] :
         {std::pair(&symbol.m_width, width), std::pair(&symbol.m_height, height)}) {
        if (!size.text.isEmpty() && !isSizeText(size.text)) {
            return std::nullopt;
        }
        *target = size;
    }
    return symbol;
}

} // namespace Workbench
