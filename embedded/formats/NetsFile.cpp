#include "formats/NetsFile.h"

#include "formats/Budget.h"
#include "formats/FeatureLines.h"
#include "formats/JobPaths.h"
#include "formats/LineReader.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <string_view>

namespace KVCAM::Embedded {
namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view noNet = "$NONE$";

class NetsReader
{
public:
    explicit NetsReader(QString const & path, Budget & budget) : m_reader(path, budget) {}

    NetsFile read()
    {
        while (m_reader.next()) {
            std::string_view const line = m_reader.line();
            std::string_view const record = line.substr(0, line.find(';'));
            std::string_view const key = record.substr(0, record.find_first_of(blanks));
            std::string_view const rest = trimmed(record.substr(key.size()));
            if (key == "LYR") {
                readLayers(rest);
            } else if (key == "NET") {
                readNet(rest);
            } else if (key == "FID") {
                readFeature(rest);
            }
        }
        for (NetsFile::Layer & layer : m_file.layers) {
            order(layer);
        }
        return std::move(m_file);
    }

private:
    void readLayers(std::string_view names)
    {
        if (!m_file.layers.empty()) {
            m_reader.fail("the layers are listed twice");
        }
        while (!names.empty()) {
            std::string_view const name = names.substr(0, names.find_first_of(blanks));
            m_file.layers.push_back({lowerCase(validText(name)), {}});
            names = trimmed(names.substr(name.size()));
        }
    }

    void readNet(std::string_view name)
    {
        if (name.empty()) {
            m_reader.fail("the net has no name");
        }
        m_inNet = true;
        m_net.reset();
        if (name != noNet) {
            auto const [known, added] =
                m_numbers.emplace(name, static_cast<std::uint32_t>(m_file.nets.size()));
            if (added) {
                m_file.nets.push_back(validText(name));
            }
            m_net = known->second;
        }
    }

    void readFeature(std::string_view record)
    {
        Words words(m_reader, record);
        words.next("kind of feature");
        int const layer = words.integer("layer");
        int const feature = words.integer("feature");
        words.end();
        if (!m_inNet) {
            m_reader.fail("a feature outside a net");
        }
        if (layer < 0 || static_cast<std::size_t>(layer) >= m_file.layers.size()) {
            m_reader.fail("unknown layer " + std::to_string(layer));
        }
        if (feature < 0) {
            m_reader.fail("negative feature " + std::to_string(feature));
        }
        if (m_net) {
            m_file.layers[static_cast<std::size_t>(layer)].entries.emplace_back(feature, *m_net);
        }
    }

    void order(NetsFile::Layer & layer) const
    {
        auto & entries = layer.entries;
        std::sort(entries.begin(), entries.end());
        entries.erase(std::unique(entries.begin(), entries.end()), entries.end());
        auto const twice = std::adjacent_find(
            entries.begin(), entries.end(),
            [](NetsFile::Entry const & a, NetsFile::Entry const & b) { return a.first == b.first; });
        if (twice != entries.end()) {
            m_reader.failWhole("feature " + std::to_string(twice->first) + " of layer " + quoted(layer.name) +
                               " belongs to two nets");
        }
        entries.shrink_to_fit();
    }

    LineReader m_reader;
    NetsFile m_file;
    std::map<std::string, std::uint32_t, std::less<>> m_numbers; // of the nets, by name
    bool m_inNet = false;
    std::optional<std::uint32_t> m_net; // the current one; nothing for $NONE$
};

// How many features before each place of a layer's file are deleted; none for an unchanged layer.
using Shifts = std::vector<int>;

std::vector<Shifts> shiftsOf(std::string_view names, DeletedFeatures const & deleted)
{
    std::vector<Shifts> shifts;
    for (int i = 1; !wordOf(names, i).empty(); ++i) {
        shifts.emplace_back();
        auto const layer = deleted.find(lowerCase(validText(wordOf(names, i))));
        if (layer != deleted.end()) {
            shifts.back().push_back(0);
            for (bool const gone : layer->second) {
                shifts.back().push_back(shifts.back().back() + (gone ? 1 : 0));
            }
        }
    }
    return shifts;
}

std::optional<std::size_t> index(std::string_view text)
{
    auto const value = wholeNumber(text);
    return value && *value >= 0 ? std::optional(static_cast<std::size_t>(*value)) : std::nullopt;
}

} // namespace

QByteArray editedNets(std::string_view text, DeletedFeatures const & deleted)
{
    QByteArray edited;
    edited.reserve(static_cast<int>(text.size()));
    std::vector<Shifts> shifts;
    while (!text.empty()) {
        std::string_view const line = text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1);
        text.remove_prefix(line.size());
        std::string_view const record = line.substr(0, line.find(';'));
        std::string_view const key = wordOf(record, 0);
        if (key == "LYR") {
            shifts = shiftsOf(record, deleted);
        }
        auto const layer = index(wordOf(record, 2));
        auto const feature = index(wordOf(record, 3));
        bool const isKnown = key == "FID" && layer && feature && *layer < shifts.size();
        if (isKnown && !shifts[*layer].empty()) {
            Shifts const & of = shifts[*layer];
            bool const exists = *feature + 1 < of.size();
            if (exists && of[*feature] != of[*feature + 1]) {
                continue;
            }
            int const before = exists ? of[*feature] : of.back();
            appendReplaced(edited, line, wordOf(record, 3), static_cast<int>(*feature) - before);
        } else {
            edited.append(line.data(), static_cast<int>(line.size()));
        }
    }
    return edited;
}

NetsFile readNets(QString const & path, StopFlag stop)
{
    Budget budget;
    budget.stop = stop;
    return NetsReader(path, budget).read();
}

} // namespace KVCAM::Embedded
