#include "checks/Nets.h"

#include "checks/NetJoin.h"
#include "formats/JobPaths.h"
#include "formats/LineReader.h"
#include "formats/NetsFile.h"

#include <QDir>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double touching = 0.1;    // micrometres: what files round
constexpr std::size_t chunk = 1024; // items between two progress reports

// The items of all layers and then the holes, numbered through. The wall of a hole is the hole.
class Numbers
{
public:
    explicit Numbers(std::vector<CopperLayer> const & layers, PlatedHoles const & holes)
    {
        for (CopperLayer const & layer : layers) {
            m_first.push_back(m_count);
            m_count += static_cast<std::uint32_t>(layer.items.size());
        }
        m_holes = m_count;
        m_count += static_cast<std::uint32_t>(holes.list.size());
    }

    std::uint32_t count() const { return m_count; }
    std::uint32_t ofHole(std::uint32_t hole) const { return m_holes + hole; }
    std::uint32_t of(std::vector<CopperLayer> const & layers, std::size_t layer, std::uint32_t item) const
    {
        std::uint32_t const hole = layers[layer].items[item].hole;
        return hole == nothing ? m_first[layer] + item : ofHole(hole);
    }

private:
    std::vector<std::uint32_t> m_first; // by layer
    std::uint32_t m_holes = 0;
    std::uint32_t m_count = 0;
};

// The reason without the path, which differs by machine, and for an archive each time that it is opened.
std::string reasonOf(JobError const & error, QString const & file)
{
    std::string reason = error.what();
    std::string const path = QDir::cleanPath(file).toStdString() + ':';
    if (reason.compare(0, path.size(), path) == 0) {
        reason.erase(0, path.size());
        bool const hasLine = !reason.empty() && reason.front() != ' ';
        reason = hasLine ? "line " + reason : reason.substr(std::min<std::size_t>(1, reason.size()));
    }
    return reason;
}

std::optional<NetsFile> readFile(CheckContext & context)
{
    QString const folder = findFolder(context.job().step(context.step()).folder, "eda");
    QString const file = folder.isEmpty() ? QString() : findFile(folder, "data");
    try {
        return file.isEmpty() ? std::nullopt : std::optional(readNets(file));
    } catch (JobError const & error) {
        throw JobError(reasonOf(error, file));
    }
}

// Why the numbers of a file do not fit the job; empty if they do. Layers without copper or holes do not
// matter.
std::string misfit(CheckContext & context, NetsFile const & file)
{
    std::vector<API::layer_info> const & known = context.job().matrix().layers;
    for (NetsFile::Layer const & layer : file.layers) {
        auto const info = std::find_if(known.begin(), known.end(),
                                       [&](API::layer_info const & each) { return each.name == layer.name; });
        if (layer.entries.empty()) {
            continue;
        }
        if (info == known.end()) {
            return "it names a layer " + quoted(layer.name) + " that the job does not have";
        }
        bool const matters = info->type == "signal" || info->type == "power_ground" ||
                             info->type == "mixed" || info->type == "drill" || info->type == "rout";
        if (info->context != "board" || !matters) {
            continue;
        }
        LayerGraphics const & graphics = context.job().graphics(context.step(), layer.name);
        auto const [feature, net] = layer.entries.back();
        if (!graphics.cutToTables && feature >= graphics.file.features.size()) {
            return "its net " + quoted(file.nets[net]) + " has feature " + std::to_string(feature) +
                   " of layer " + quoted(layer.name) + ", which has " +
                   std::to_string(graphics.file.features.size());
        }
    }
    return {};
}

// Calls take(number of the item, net) for each listed feature in an ascending list of items.
template <class FeatureOf, class Take>
void matchEntries(NetsFile::Layer const & layer, std::uint32_t count, FeatureOf const & featureOf,
                  Take const & take)
{
    auto entry = layer.entries.begin();
    for (std::uint32_t item = 0; item < count; ++item) {
        std::uint32_t const feature = featureOf(item);
        while (entry != layer.entries.end() && entry->first < feature) {
            ++entry;
        }
        if (feature != nothing && entry != layer.entries.end() && entry->first == feature) {
            take(item, entry->second);
        }
    }
}

void list(NetsFile const & file, std::vector<CopperLayer> const & layers, PlatedHoles const & holes,
          Numbers const & numbers, NetSets & sets)
{
    for (NetsFile::Layer const & listed : file.layers) {
        for (std::size_t i = 0; i < layers.size(); ++i) {
            if (layers[i].name == listed.name) {
                matchEntries(
                    listed, layers[i].shapes.size(),
                    [&](std::uint32_t item) { return layers[i].items[item].feature; },
                    [&](std::uint32_t item, std::uint32_t net) {
                        sets.list(numbers.of(layers, i, item), net);
                    });
            }
        }
        auto first = holes.list.begin();
        for (std::uint32_t i = 0; i < holes.layers.size(); ++i) {
            auto const end = std::find_if(first, holes.list.end(),
                                          [i](PlatedHole const & hole) { return hole.layer != i; });
            if (holes.layers[i].name == listed.name) {
                matchEntries(
                    listed, static_cast<std::uint32_t>(end - first),
                    [&](std::uint32_t hole) { return first[hole].feature; },
                    [&](std::uint32_t hole, std::uint32_t net) {
                        auto const before = static_cast<std::uint32_t>(first - holes.list.begin());
                        sets.list(numbers.ofHole(before + hole), net);
                    });
            }
            first = end;
        }
    }
}

// Unites what touches on a layer.
class LayerJoin
{
public:
    LayerJoin(std::vector<CopperLayer> const & layers, std::size_t layer, Numbers const & numbers,
              NetSets & sets)
        : m_shapes(layers[layer].shapes), m_sets(sets)
    {
        for (std::uint32_t item = 0; item < m_shapes.size(); ++item) {
            m_numbers.push_back(numbers.of(layers, layer, item));
            m_asks.push_back(!sets.isListed(m_numbers.back()));
        }
        joinCopies();
    }

    void run(CheckContext const & context, std::size_t done, std::size_t total)
    {
        std::vector<std::uint32_t> items;
        for (std::size_t piece = 0; piece < m_shapes.pieces().size(); ++piece) {
            items.push_back(m_numbers[m_shapes.pieces().itemOf(piece)]);
        }
        std::vector<std::uint32_t> regionItems;
        for (std::size_t region = 0; region < m_shapes.regionCount(); ++region) {
            regionItems.push_back(m_numbers[m_shapes.itemOfRegion(region)]);
        }
        NetJoin pieces(m_shapes.grid(), std::move(items), m_sets);
        NetJoin regions(m_shapes.regionGrid(), std::move(regionItems), m_sets);
        for (std::uint32_t item = 0; item < m_shapes.size(); ++item) {
            if (item % chunk == 0) {
                context.reportProgress(done + item, total);
            }
            for (std::size_t piece = m_shapes.firstPiece(item); piece < m_shapes.endPiece(item); ++piece) {
                if (m_asks[item]) {
                    joinPiece(pieces, item, piece);
                }
                if (m_shapes.pieces().starts(piece)) {
                    joinRegions(regions, item, m_shapes.pieces()[piece].corners[0]);
                }
            }
        }
    }

private:
    // The same drawn again touches, and touches the same: only the first asks.
    void joinCopies()
    {
        std::vector<std::uint32_t> order = m_shapes.singles();
        std::sort(order.begin(), order.end(), [this](std::uint32_t a, std::uint32_t b) {
            int const way = m_shapes.compare(a, b);
            return way < 0 ||
                   (way == 0 && (m_asks[a] != m_asks[b] ? !m_asks[a] : a < b)); // listed ones first
        });
        for (std::size_t i = 1; i < order.size(); ++i) {
            if (m_asks[order[i]] && m_shapes.compare(order[i - 1], order[i]) == 0) {
                m_sets.unite(m_numbers[order[i - 1]], m_numbers[order[i]]);
                m_asks[order[i]] = false;
            }
        }
    }

    void joinPiece(NetJoin & join, std::uint32_t item, std::size_t piece)
    {
        PieceView const view = m_shapes.pieces()[piece];
        join.join(m_numbers[item], m_shapes.grid().box(piece), touching, [&](std::size_t other) {
            std::uint32_t const its = m_shapes.pieces().itemOf(other);
            bool const askedBefore = its < item && m_asks[its];
            return !askedBefore && gapBetween(view, m_shapes.pieces()[other]).distance <= touching;
        });
    }

    void joinRegions(NetJoin & join, std::uint32_t item, API::point at)
    {
        join.join(m_numbers[item], boxOf(at), 0,
                  [&](std::size_t region) { return m_shapes.holds(region, at); });
    }

    ItemShapes const & m_shapes;
    NetSets & m_sets;
    std::vector<std::uint32_t> m_numbers; // by item
    std::vector<bool> m_asks;             // which items look for what touches them: those not listed
};

} // namespace

void FeatureNets::set(std::string const & layer, std::uint32_t feature, std::uint32_t net)
{
    std::vector<std::uint32_t> & nets = m_nets[layer];
    if (feature >= nets.size()) {
        nets.resize(feature + 1, RecordNets::unknown);
    }
    nets[feature] = net;
}

std::uint32_t FeatureNets::of(std::string const & layer, std::uint32_t feature) const
{
    auto const nets = m_nets.find(layer);
    return nets == m_nets.end() || feature >= nets->second.size() ? RecordNets::unknown
                                                                  : nets->second[feature];
}

FeatureNets assignNets(CheckContext & context, std::vector<CopperLayer> & layers, PlatedHoles & holes,
                       CheckResults & results)
{
    std::string reason = "the step has no eda/data";
    std::optional<NetsFile> file;
    try {
        file = readFile(context);
        if (file) {
            reason = misfit(context, *file);
            if (!reason.empty()) {
                reason = "eda/data does not fit the job: " + reason;
            } else if (file->nets.empty()) {
                reason = "eda/data lists no nets";
            }
        }
    } catch (JobError const & error) {
        reason = std::string("eda/data cannot be used: ") + error.what();
    }

    Numbers const numbers(layers, holes);
    NetSets sets(numbers.count());
    std::uint32_t listed = 0;
    if (reason.empty()) {
        list(*file, layers, holes, numbers, sets);
        listed = static_cast<std::uint32_t>(file->nets.size());
    }
    std::size_t done = 0;
    std::size_t const total = std::max<std::size_t>(numbers.count(), 1) + holes.list.size() * layers.size();
    for (std::size_t i = 0; i < layers.size(); ++i) {
        LayerJoin(layers, i, numbers, sets).run(context, done, total);
        done += layers[i].items.size();
    }

    // A net of the file may consist of sets that do not touch.
    auto const netOf = [&](std::uint32_t number) {
        std::uint32_t const net = sets.listedNet(number);
        return net == nothing ? listed + sets.find(number) : net;
    };
    FeatureNets named;
    auto const name = [&](std::string const & layer, std::uint32_t feature, std::uint32_t net) {
        if (net < listed && feature != nothing) {
            named.set(layer, feature, net);
        }
    };
    for (std::size_t i = 0; i < layers.size(); ++i) {
        for (std::uint32_t item = 0; item < layers[i].items.size(); ++item) {
            CopperItem & each = layers[i].items[item];
            each.net = netOf(numbers.of(layers, i, item));
            name(layers[i].name, each.feature, each.net);
        }
    }
    for (std::uint32_t hole = 0; hole < holes.list.size(); ++hole) {
        PlatedHole & each = holes.list[hole];
        each.net = netOf(numbers.ofHole(hole));
        name(holes.layers[each.layer].name, each.feature, each.net);
    }
    if (reason.empty()) {
        results.recordNets.names = std::move(file->nets);
    }
    results.nets = reason.empty() ? "The nets are those of eda/data (" + std::to_string(listed) +
                                        "); what it does not list belongs to what it touches."
                                  : "The nets come from copper and plated holes that touch: " + reason + '.';
    return named;
}

} // namespace KVCAM::Embedded
