#include "PadSymbol.h"

#include <UIAPICommon.h>

#include <QRegularExpression>

#include <cmath>
#include <utility>

namespace Workbench {

namespace {

// Family, first size, second size, the rest.
QRegularExpressionMatch match(QString const & name)
{
    static QRegularExpression const pattern(
        R"(^(r|s|rect|oval|oval_h|di|el|oct|tri|donut_[rs])(\d+\.?\d*)(?:x(\d+\.?\d*))?(x.*)?$)");
    return pattern.match(name);
}

// The library converts names, and a length is the size of a round.
QString converted(QString name, int from, int to)
{
    if (from != to) {
        KVCAM::UIAPI::setSymbolUIData(name, to);
    }
    return name;
}

} // namespace

QString PadSize::in(int otherUnit) const
{
    return text.isEmpty() ? QString() : converted('r' + text, unit, otherUnit).mid(1);
}

qint64 PadSize::nanometres() const
{
    return std::llround(text.toDouble() * (unit == 0 ? 25400 : 1000));
}

PadSymbol::PadSymbol(QString name, int unit)
    : m_name(std::move(name))
    , m_unit(unit)
    , m_width{match(m_name).captured(2), unit}
    , m_height{match(m_name).captured(3), unit}
{}

QString PadSymbol::in(int otherUnit) const
{
    return withSizes(converted(m_name, m_unit, otherUnit), otherUnit);
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

QString PadSymbol::withSizes(QString const & name, int unit) const
{
    auto const parts = match(name);
    if (!parts.hasMatch() || m_width.text.isEmpty()) {
        return name;
    }
    QString const second = m_height.text.isEmpty() ? QString() : 'x' + m_height.in(unit);
    return parts.captured(1) + m_width.in(unit) + second + parts.captured(4);
}

QJsonObject PadSymbol::toJson() const
{
    return {{"name", m_name},          {"unit", m_unit},
            {"width", m_width.text},   {"width unit", m_width.unit},
            {"height", m_height.text}, {"height unit", m_height.unit}};
}

PadSymbol PadSymbol::fromJson(QJsonObject const & json)
{
    PadSymbol symbol;
    symbol.m_name = json["name"].toString();
    symbol.m_unit = json["unit"].toInt();
    symbol.m_width = {json["width"].toString(), json["width unit"].toInt()};
    symbol.m_height = {json["height"].toString(), json["height unit"].toInt()};
    return symbol;
}

} // namespace Workbench
