#include "board/FeatureSymbols.h"

#include "board/Paths.h"
#include "board/SymbolPath.h"

#include <UIAPICommonExt.h>

#include <QString>

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace Workbench {

namespace Ext = KVCAM::UIAPI::Ext;

namespace {

constexpr double crossSize = 300; // micrometres; half the arm of the cross
constexpr int mostNesting = 8;
constexpr std::size_t mostElements = 100'000; // of a symbol with the symbols in it
constexpr int mostOutlined = 1000;            // elements of the outline of a symbol of the job's own

QPainterPath cross()
{
    QPainterPath lines(QPointF(-crossSize, 0));
    lines.lineTo(crossSize, 0);
    lines.moveTo(0, -crossSize);
    lines.lineTo(0, crossSize);
    return lines;
}

std::shared_ptr<FeatureSymbol const> finished(FeatureSymbol symbol)
{
    settle(symbol.path);
    return std::make_shared<FeatureSymbol const>(std::move(symbol));
}

std::shared_ptr<FeatureSymbol const> unknown()
{
    static auto const symbol = [] {
        FeatureSymbol made;
        made.path = cross();
        made.box = made.path.boundingRect();
        made.filled = false;
        made.elements = 4;
        return finished(std::move(made));
    }();
    return symbol;
}

std::shared_ptr<FeatureSymbol const> standard(Ext::Symbol const & name)
{
    FeatureSymbol symbol;
    symbol.path = symbolPath(name);
    symbol.box = symbol.path.boundingRect();
    symbol.elements = static_cast<std::size_t>(symbol.path.elementCount());
    symbol.width = std::min(symbol.box.width(), symbol.box.height());
    symbol.isSquare =
        name.family() == Ext::SymbolFamily::Square || name.family() == Ext::SymbolFamily::Rectangle;
    return finished(std::move(symbol));
}

// What is highlighted of a symbol of the job's own.
QPainterPath outlineOf(FeatureSymbol const & symbol)
{
    QPainterPath path;
    for (FeatureShape const & part : symbol.parts) {
        if (path.elementCount() + part.path.elementCount() > mostOutlined) {
            path = {};
            path.addRect(symbol.box);
            break;
        }
        path.addPath(part.outline());
    }
    return path;
}

} // namespace

std::shared_ptr<FeatureSymbol const> FeatureSymbols::find(std::string const & name, Unit unit)
{
    auto const known = m_symbols.find({name, unit});
    if (known != m_symbols.end()) {
        return known->second;
    }
    auto const parsed = Ext::Symbol::parse(QString::fromStdString(name), unit).symbol;
    auto symbol = parsed ? standard(*parsed) : own(name);
    if (symbol == nullptr) { // only here, within another symbol
        return unknown();
    }
    m_symbols.emplace(std::pair(name, unit), symbol);
    return symbol;
}

void FeatureSymbols::findAll(std::vector<KVCAM::API::feature_info> const & features,
                             std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings)
{
    std::unordered_set<std::string_view> known[2]; // by unit
    for (std::size_t i = 0; i < features.size() && i < drawings.size(); ++i) {
        if (features[i].kind != 'S') {
            Unit const unit = Ext::unitOfCode(drawings[i].unit);
            if (known[unit == Unit::Inch ? 0 : 1].insert(features[i].symbol).second) {
                find(features[i].symbol, unit);
            }
        }
    }
    m_source = {};
}

std::shared_ptr<FeatureSymbol const> FeatureSymbols::own(std::string const & name)
{
    std::string const key = QString::fromStdString(name).toLower().toStdString();
    if (!m_source) {
        return unknown();
    }
    if (m_open.size() >= mostNesting || !m_open.insert(key).second) {
        return nullptr;
    }
    KVCAM::Embedded::SymbolGraphics const graphics = m_source(name);
    FeatureSymbol symbol;
    symbol.parts = featureShapes(graphics.features, graphics.drawings, *this);
    m_open.erase(key);
    bool isFirst = true;
    for (FeatureShape const & part : symbol.parts) {
        bool const isNested = part.symbol != nullptr;
        symbol.elements +=
            isNested ? part.symbol->elements + 1 : static_cast<std::size_t>(part.path.elementCount()) + 1;
        symbol.nesting = std::max(symbol.nesting, isNested ? part.symbol->nesting + 1 : 1);
        symbol.erases = symbol.erases || !part.positive;
        symbol.box = isFirst ? part.box : joined(symbol.box, part.box);
        isFirst = false;
    }
    if (symbol.parts.empty() || symbol.elements > mostElements || symbol.nesting > mostNesting) {
        return unknown();
    }
    symbol.width = std::min(symbol.box.width(), symbol.box.height());
    symbol.path = outlineOf(symbol);
    return finished(std::move(symbol));
}

} // namespace Workbench
