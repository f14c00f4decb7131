#include "checks/CopperItems.h"

#include "formats/JobPaths.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr std::size_t chunk = 4096; // features between two progress reports
constexpr std::uint8_t textMarks = markNomenclature | markString;

// Visits the features of a layer that add, with their index and the shape of their symbol; null for surfaces.
using Visit = std::function<void(std::uint32_t, Feature const &, SymbolShape const *)>;
void forEachDrawn(CheckContext & context, std::string const & layer, Visit const & visit)
{
    std::size_t size = 0;
    for (std::size_t begin = 0; begin == 0 || begin < size; begin += chunk) {
        Job & job = context.job();
        LayerGraphics const & graphics = job.graphics(context.step(), layer);
        size = graphics.file.features.size();
        for (std::size_t i = begin; i < std::min(begin + chunk, size); ++i) {
            Feature const & feature = graphics.file.features[i];
            bool const pen = feature.kind != 'S';
            if (!graphics.deleted[i] && feature.positive && (!pen || feature.symbol >= 0)) {
                visit(static_cast<std::uint32_t>(i), feature,
                      pen ? &context.shapes().find(job, graphics.file.symbols.at(feature.symbol)) : nullptr);
            }
        }
        context.reportProgress(std::min(begin + chunk, size), std::max<std::size_t>(2 * size, 1));
    }
}

// Adds what a feature draws to the latest item. Without a width, a pen draws its way.
void addFeature(ItemShapes & shapes, Feature const & feature, SymbolShape const * symbol)
{
    static Shape const point{{{0, 0}}, 0};
    auto const & p = feature.points;
    Shape const & pen = symbol == nullptr || symbol->outer.corners.empty() ? point : symbol->outer;
    if (feature.kind == 'S') {
        shapes.addContours(feature.contours);
    } else if (feature.kind == 'L') {
        shapes.addWay(pen, p[0], p[1]);
    } else if (feature.kind == 'A') {
        shapes.addArc(pen, feature);
    } else {
        Region const & copper = symbol->copper;
        bool const known = !copper.pieces.empty() || !copper.outlines.empty();
        shapes.addPieces(
            placed(known ? copper : Region{{pen}, {}}, placement(p[0], feature.angle, feature.mirrored)));
    }
}

bool isDrawn(SymbolShape const * symbol)
{
    return symbol == nullptr || symbol->kind == SymbolShape::Kind::Drawn;
}

// Whether the latest item is on the board, at least in part.
bool isOnBoard(ItemShapes const & shapes, BoardArea const & area)
{
    Pieces const & pieces = shapes.pieces();
    auto const any = [&](auto const & holds) {
        for (std::size_t piece = shapes.firstPiece(shapes.size() - 1); piece < pieces.size(); ++piece) {
            if (holds(piece)) {
                return true;
            }
        }
        return false;
    };
    auto const outline = area.profilePoint();
    return any([&](std::size_t piece) {
               return pieces.starts(piece) && area.holds(pieces[piece].corners[0]);
           }) ||
           any([&](std::size_t piece) { return area.touchesProfile(pieces[piece]); }) ||
           (outline && shapes.latestHolds(*outline));
}

double widthOf(Feature const & feature, SymbolShape const & symbol)
{
    API::point const way{feature.points[1].x - feature.points[0].x,
                         feature.points[1].y - feature.points[0].y};
    return feature.kind == 'L' && (way.x != 0 || way.y != 0) ? widthAcross(symbol.outer, way)
                                                             : symbol.narrower;
}

void addWalls(CopperLayer & copper, PlatedHoles const & holes)
{
    for (std::uint32_t hole = 0; hole < holes.list.size(); ++hole) {
        PlatedHole const & each = holes.list[hole];
        if (copper.row >= each.firstRow && copper.row <= each.lastRow) {
            copper.shapes.begin();
            copper.shapes.addPieces(holes.shapes, hole);
            CopperItem item;
            item.hole = hole;
            item.kinds = each.via ? copperVia : copperPth;
            copper.items.push_back(item);
        }
    }
}

} // namespace

PlatedHoles collectHoles(CheckContext & context, std::vector<API::layer_info> const & layers)
{
    PlatedHoles holes;
    holes.layers = layers;
    holes.shapes = ItemShapes(chordTolerance({}));
    for (std::uint32_t layer = 0; layer < layers.size(); ++layer) {
        std::string const & name = layers[layer].name;
        std::vector<Tool> const tools = context.job().tools(context.step(), name);
        auto const [first, last] = rowsOf(context.job().matrix(), name);
        HoleKind const usual = usualKind(layers[layer]);
        auto const visit = [&, firstRow = first, lastRow = last](std::uint32_t index, Feature const & feature,
                                                                 SymbolShape const * symbol) {
            if (feature.kind == 'S' || !isDrawn(symbol) || (feature.marks & textMarks) != 0 ||
                !context.area().holds(feature)) {
                return;
            }
            HoleKind const kind = kindOf(feature, symbol->narrower, tools, usual);
            if (kind != HoleKind::NonPlated) {
                holes.shapes.begin();
                addFeature(holes.shapes, feature, symbol);
                holes.list.push_back(
                    {layer, index, nothing, kind == HoleKind::Via, firstRow, lastRow, feature.points[0]});
            }
        };
        forEachDrawn(context, name, visit);
        context.endStage();
    }
    holes.shapes.index();
    return holes;
}

CopperLayer collectCopper(CheckContext & context, API::layer_info const & layer, PlatedHoles const & holes)
{
    CopperLayer copper;
    copper.name = layer.name;
    copper.row = layer.row;
    double const tolerance = chordTolerance(context.job().graphics(context.step(), layer.name).file.features);
    if (tolerance > chordTolerance({})) {
        context.note({"signal", -1, layer.name,
                      "The layer has so many arcs that spacings are measured up to " +
                          std::to_string(static_cast<int>(tolerance * 4 + 1)) + " micrometres too small."});
    }
    copper.shapes = ItemShapes(tolerance);
    forEachDrawn(context, layer.name,
                 [&](std::uint32_t index, Feature const & feature, SymbolShape const * symbol) {
                     if (!isDrawn(symbol)) {
                         return;
                     }
                     bool const text = (feature.marks & textMarks) != 0;
                     bool const track = feature.kind == 'L' || feature.kind == 'A';
                     if (track && context.area().isOutline(feature, widthOf(feature, *symbol))) {
                         return;
                     }
                     copper.shapes.begin();
                     addFeature(copper.shapes, feature, symbol);
                     if (!isOnBoard(copper.shapes, context.area())) {
                         copper.shapes.drop();
                         return;
                     }
                     CopperItem item;
                     item.feature = index;
                     item.kinds = text                  ? copperOther
                                  : track               ? copperTrack
                                  : feature.kind == 'P' ? copperPad
                                                        : copperOther;
                     copper.items.push_back(item);
                 });
    addWalls(copper, holes);
    copper.items.shrink_to_fit();
    copper.shapes.index();
    return copper;
}

ItemShapes collectRout(CheckContext & context, std::vector<API::layer_info> const & layers)
{
    ItemShapes rout(chordTolerance({}));
    for (API::layer_info const & layer : layers) {
        if (layer.type != "rout") {
            continue;
        }
        std::vector<Tool> const tools = context.job().tools(context.step(), layer.name);
        forEachDrawn(context, layer.name,
                     [&](std::uint32_t /*index*/, Feature const & feature, SymbolShape const * symbol) {
                         bool const unknown = symbol != nullptr && symbol->kind == SymbolShape::Kind::Unknown;
                         bool const cuts = symbol == nullptr ||
                                           kindOf(feature, symbol->narrower, tools, HoleKind::NonPlated) ==
                                               HoleKind::NonPlated;
                         if (!unknown && cuts && (feature.kind != 'P' || isDrawn(symbol)) &&
                             (feature.marks & textMarks) == 0) {
                             rout.begin();
                             addFeature(rout, feature, symbol);
                         }
                     });
        context.endStage();
    }
    // The polygons of the profile are too coarse.
    Step const & step = context.job().step(context.step());
    if (QString const profile = findFile(step.folder, "profile"); !profile.isEmpty()) {
        for (Feature const & feature : readFeatures(profile).features) {
            if (feature.kind == 'S') {
                rout.begin();
                rout.addContours(feature.contours);
            }
        }
    }
    rout.index();
    return rout;
}

} // namespace KVCAM::Embedded
