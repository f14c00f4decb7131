#include "feature/PadSymbol.h"

#include "feature/FormFile.h"

#include <UIAPICommonExt.h>

#include <cstddef>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

PadSize sizeOf(Ext::Symbol const & symbol, std::size_t index)
{
    Ext::SymbolValue const & value = symbol.values()[index];
    return {value.text, value.unit};
}

// Sizes in symbol names are digits, with or without decimals, without a sign.
bool isSizeText(QString const & text)
{
    return Ext::Symbol::parse('r' + text, Unit::Inch).ok;
}

} // namespace

QString PadSize::in(Unit shown) const
{
    return text.isEmpty() || unit == shown ? text : length().text(shown, Ext::LengthScale::Small);
}

Ext::Length PadSize::length() const
{
    return Ext::Length::from(text.toDouble(), unit, Ext::LengthScale::Small);
}

PadSymbol::PadSymbol(QString name, Unit unit)
    : m_name(std::move(name)), m_unit(unit), m_standard(Ext::Symbol::parse(m_name, unit).symbol)
{}

bool PadSymbol::hasHeight() const
{
    return m_standard && m_standard->values().size() > 1 &&
           Ext::symbolFieldKind(m_standard->values()[1].role) == Ext::SymbolFieldKind::Length;
}

PadSize PadSymbol::width() const
{
    return hasWidth() ? sizeOf(*m_standard, 0) : PadSize();
}

PadSize PadSymbol::height() const
{
    return hasHeight() ? sizeOf(*m_standard, 1) : PadSize();
}

QString PadSymbol::fault() const
{
    Ext::SymbolReading const reading = Ext::Symbol::parse(m_name, m_unit);
    bool const isOwn =
        reading.fault == Ext::SymbolFault::Empty || reading.fault == Ext::SymbolFault::UnknownFamily;
    return isOwn ? QString() : reading.reason;
}

bool PadSymbol::setWidth(PadSize const & size)
{
    return hasWidth() && m_standard->setValue(0, size.text, size.unit) == Ext::SymbolFault::None;
}

bool PadSymbol::setHeight(PadSize const & size)
{
    return hasHeight() && m_standard->setValue(1, size.text, size.unit) == Ext::SymbolFault::None;
}

QJsonObject PadSymbol::toJson() const
{
    return {{"name", name()},          {"unit", unitCode(m_unit)},
            {"width", width().text},   {"width unit", unitCode(width().unit)},
            {"height", height().text}, {"height unit", unitCode(height().unit)}};
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
    for (PadSize const & size : {width, height}) {
        if (!size.text.isEmpty() && !isSizeText(size.text)) {
            return std::nullopt;
        }
    }
    // An empty size, and one that the name has not, leaves the name as it is.
    symbol.setWidth(width);
    symbol.setHeight(height);
    return symbol;
}

} // namespace Workbench
