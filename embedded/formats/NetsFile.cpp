#include "formats/NetsFile.h"

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
    explicit NetsReader(QString const & path) : m_reader(path) {}

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

} // namespace

NetsFile readNets(QString const & path)
{
    return NetsReader(path).read();
}

} // namespace KVCAM::Embedded
