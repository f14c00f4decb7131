#include "board/LayerShapes.h"

#include <iterator>
#include <utility>

namespace Workbench {

LayerShapes::LayerShapes(std::string const & job, std::string const & step, KVCAM::API::layer_info info)
    : m_info(std::move(info)), m_features(KVCAM::Embedded::features(job, step, m_info.name))
{
    if (!KVCAM::Embedded::lastError().empty()) {
        m_state = State::Unreadable;
    } else if (KVCAM::Embedded::isCutToTables(job, step, m_info.name)) {
        m_state = State::CutToTables;
    }
    m_drawings = KVCAM::Embedded::featureDrawings(job, step, m_info.name);
    m_symbols = FeatureSymbols(
        [job](std::string const & name) { return KVCAM::Embedded::symbolGraphics(job, name); });
    m_symbols.findAll(m_features, m_drawings);
}

std::vector<FeatureShape> const & LayerShapes::shapes() const
{
    std::call_once(m_isMade, [this] {
        m_shapes = featureShapes(m_features, m_drawings, m_symbols);
        m_drawings = {};
        m_symbols = FeatureSymbols(SymbolSource());
    });
    return m_shapes;
}

QColor LayerShapes::colour() const
{
    return layerColour(m_info);
}

QRectF LayerShapes::extent() const
{
    if (shapes().empty()) {
        return {};
    }
    QRectF extent = shapes().front().box;
    for (FeatureShape const & shape : shapes()) {
        extent = joined(extent, shape.box);
    }
    return extent;
}

QColor layerColour(KVCAM::API::layer_info const & layer)
{
    // The number of colours is prime, so that copper layers at regular distances still differ.
    static constexpr char const * copper[] = {"#b5582a", "#2563a8", "#8c4a86", "#3f7d20",
                                              "#b03060", "#0f7c80", "#8a6d1b"};
    static constexpr std::pair<char const *, char const *> colours[] = {
        {"solder_mask", "#2e7d4f"}, {"solder_paste", "#6b7280"}, {"silk_screen", "#3f51b5"},
        {"drill", "#1f2937"},       {"rout", "#5b1f1f"},
    };
    for (char const * type : {"signal", "power_ground", "mixed"}) {
        if (layer.type == type) {
            return copper[static_cast<unsigned>(layer.row) % std::size(copper)];
        }
    }
    for (auto const & [type, colour] : colours) {
        if (layer.type == type) {
            return colour;
        }
    }
    return "#44617b";
}

} // namespace Workbench
