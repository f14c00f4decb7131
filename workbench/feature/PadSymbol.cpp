#include "feature/PadSymbol.h"

#include <UIAPICommonExt.h>

#include <algorithm>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

bool hasUnit(Ext::SymbolValue const & value)
{
    auto const kind = Ext::symbolFieldKind(value.role);
    return kind == Ext::SymbolFieldKind::Length || kind == Ext::SymbolFieldKind::Corner;
}

} // namespace

PadSymbol::PadSymbol(QString name, Unit unit)
    : m_name(std::move(name)), m_unit(unit), m_standard(Ext::Symbol::parse(m_name, unit).symbol)
{}

Unit PadSymbol::unit() const
{
    if (!m_standard) {
        return m_unit;
    }
    auto const & values = m_standard->values();
    bool const isOther = std::all_of(values.begin(), values.end(), [this](Ext::SymbolValue const & value) {
        return !hasUnit(value) || value.unit != m_unit;
    });
    return isOther ? otherUnit(m_unit) : m_unit;
}

QString PadSymbol::fault() const
{
    Ext::SymbolReading const reading = Ext::Symbol::parse(m_name, m_unit);
    bool const isOwn =
        reading.fault == Ext::SymbolFault::Empty || reading.fault == Ext::SymbolFault::UnknownFamily;
    return isOwn ? QString() : reading.reason;
}

std::optional<Ext::Length> PadSymbol::size(std::size_t which) const
{
    bool const has = m_standard && which < m_standard->values().size() && which < 2 &&
                     Ext::symbolFieldKind(m_standard->values()[which].role) == Ext::SymbolFieldKind::Length;
    return has ? std::optional(m_standard->values()[which].length) : std::nullopt;
}

bool PadSymbol::setSize(std::size_t which, Ext::Length length, Unit typedIn)
{
    return size(which) && m_standard->setValue(which, length.text(typedIn, Ext::LengthScale::Small),
                                               typedIn) == Ext::SymbolFault::None;
}

} // namespace Workbench
