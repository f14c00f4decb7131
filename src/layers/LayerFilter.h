#pragma once

#include <kvcam/Records.h>

#include <QMap>
#include <QString>
#include <QVector>

#include <array>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

/// Selects the layers of a matrix that a request asks for. A request maps keys to words joined by "|"; a
/// layer is selected if every key with words accepts it.
namespace KVCAM::UIAPI::LayerFilter {

using Layer = KVCAM::API::layer_info;
using Layers = std::vector<Layer>;
using Request = QMap<QString, QString>;
using Words = QVector<QString>;
using Names = std::vector<std::string>;

/// The keys in the order in which they are checked.
enum class Key : int
{
    Type,
    Context,
    Side,
    Pos
};

/// A key: its name, and the layer field that its words are checked against.
struct KeyFact
{
    Key key;
    char const * name;
    std::string Layer::*field;
};

inline constexpr std::array<KeyFact, 4> keyFacts = {{
    {Key::Type, "type", &Layer::type},
    {Key::Context, "context", &Layer::context},
    {Key::Side, "side", &Layer::name}, // equal names are on the same side
    {Key::Pos, "pos", &Layer::polarity},
}};

constexpr KeyFact const & factOf(Key key)
{
    return keyFacts[static_cast<std::size_t>(key)];
}

/// Null for an ignored key.
KeyFact const * findKey(QString const & name);

/// Appends the words of a value. An empty part is a word, and so is an empty value.
void appendWords(QString const & value, Words & words);

/// Whether the key knows the word. Any word may be a type or a context.
bool isInVocabulary(Key key, QString const & word);

/// The names of the layers of context "board" and type "signal", in order.
Names boardSignalLayers(Layers const & layers);

/// What one word list accepts; without words, every layer.
class WordSet
{
public:
    /// `board` is only read for Key::Side: the board signal layers in order.
    WordSet(Key key, Words const & words, Names const & board);
    WordSet() = default;

    bool accepts(std::string const & value) const { return m_acceptsAll || m_values.count(value) != 0; }
    std::unordered_set<std::string> const & values() const { return m_values; }

private:
    bool m_acceptsAll = true;
    std::unordered_set<std::string> m_values;
};

/// One word list against one layer, without a WordSet: scans the words and, for Key::Side, `board`.
bool accepts(Key key, Layer const & layer, Words const & words, Names const & board = {});

/// A request against the layers of one matrix. The words are looked up once, so the cost per layer does not
/// depend on their number.
class Selector
{
public:
    Selector(Request const & request, Layers const & layers);

    /// The first key that rejects the layer; none if it is selected.
    std::optional<Key> refusal(Layer const & layer) const;

private:
    std::array<WordSet, keyFacts.size()> m_accepted;
};

/// The names of the selected layers in their order.
Names select(Layers const & layers, Request const & request);

/// The names of the board layers that analysis and DFM checks read, in their order.
Names analysable(Layers const & layers);

} // namespace KVCAM::UIAPI::LayerFilter
