#include "layers/LayerFilter.h"

#include <QStringList>

#include <algorithm>
#include <string_view>
#include <utility>

namespace KVCAM::UIAPI::LayerFilter {
namespace {

constexpr bool keysStandInTheirOrder()
{
    for (std::size_t i = 0; i < keyFacts.size(); ++i) {
        if (static_cast<std::size_t>(keyFacts[i].key) != i) {
            return false;
        }
    }
    return true;
}
static_assert(keysStandInTheirOrder());

constexpr std::string_view boardContext = "board";
constexpr std::string_view signalType = "signal";

constexpr std::array<std::string_view, 8> analysedTypes = {
    signalType, "power_ground", "mixed", "solder_mask", "silk_screen", "solder_paste", "drill", "rout"};

/// A word of "pos" and the polarity it stands for.
struct PolarityWord
{
    char const * word;
    char const * polarity;
};
constexpr std::array<PolarityWord, 2> polarityWords = {{{"positive", "POS"}, {"negative", "NEG"}}};

using NameRange = std::pair<Names::const_iterator, Names::const_iterator>;

/// A word of "side": the board signal layers on that side. There is at least one board signal layer.
struct SideWord
{
    char const * word;
    NameRange (*range)(Names const & board);
};

NameRange top(Names const & board)
{
    return {board.begin(), board.begin() + 1};
}

NameRange bottom(Names const & board)
{
    return {board.end() - 1, board.end()};
}

// With three layers none is an inner one, not even the middle one.
NameRange inner(Names const & board)
{
    return board.size() > 3 ? NameRange(board.begin() + 1, board.end() - 1)
                            : NameRange(board.end(), board.end());
}

constexpr std::array<SideWord, 3> sideWords = {{{"top", top}, {"bottom", bottom}, {"inner", inner}}};

template <class Table>
bool hasWord(Table const & table, QString const & word)
{
    return std::any_of(table.begin(), table.end(),
                       [&word](auto const & row) { return word == QLatin1String(row.word); });
}

} // namespace

KeyFact const * findKey(QString const & name)
{
    auto const found = std::find_if(keyFacts.begin(), keyFacts.end(), [&name](KeyFact const & fact) {
        return name == QLatin1String(fact.name);
    });
    return found == keyFacts.end() ? nullptr : &*found;
}

void appendWords(QString const & value, Words & words)
{
    QStringList const parts = value.split(QLatin1Char('|'), Qt::KeepEmptyParts);
    for (QString const & part : parts) {
        words.append(part);
    }
}

bool isInVocabulary(Key key, QString const & word)
{
    switch (key) {
    case Key::Side:
        return hasWord(sideWords, word);
    case Key::Pos:
        return hasWord(polarityWords, word);
    default:
        return true;
    }
}

Names boardSignalLayers(Layers const & layers)
{
    Names names;
    for (Layer const & layer : layers) {
        if (layer.context == boardContext && layer.type == signalType) {
            names.push_back(layer.name);
        }
    }
    return names;
}

WordSet::WordSet(Key key, Words const & words, Names const & board) : m_acceptsAll(words.isEmpty())
{
    if (key == Key::Type || key == Key::Context) {
        for (QString const & word : words) {
            m_values.insert(word.toStdString());
        }
    } else if (key == Key::Pos) {
        for (PolarityWord const & row : polarityWords) {
            if (words.contains(QLatin1String(row.word))) {
                m_values.insert(row.polarity);
            }
        }
    } else if (!board.empty()) {
        for (SideWord const & row : sideWords) {
            if (words.contains(QLatin1String(row.word))) {
                auto const [first, last] = row.range(board);
                m_values.insert(first, last);
            }
        }
    }
}

bool accepts(Key key, Layer const & layer, Words const & words, Names const & board)
{
    if (words.isEmpty()) {
        return true;
    }
    std::string const & value = layer.*factOf(key).field;
    switch (key) {
    case Key::Pos:
        return std::any_of(polarityWords.begin(), polarityWords.end(), [&](PolarityWord const & row) {
            return value == row.polarity && words.contains(QLatin1String(row.word));
        });
    case Key::Side:
        return !board.empty() && std::any_of(sideWords.begin(), sideWords.end(), [&](SideWord const & row) {
            auto const [first, last] = row.range(board);
            return words.contains(QLatin1String(row.word)) && std::find(first, last, value) != last;
        });
    default:
        return std::any_of(words.begin(), words.end(),
                           [&](QString const & word) { return word.toStdString() == value; });
    }
}

Selector::Selector(Request const & request, Layers const & layers)
{
    Names const board = boardSignalLayers(layers);
    for (KeyFact const & fact : keyFacts) {
        Words words;
        // A loop: a map may hold a key more than once.
        for (auto entry = request.cbegin(); entry != request.cend(); ++entry) {
            if (entry.key() == QLatin1String(fact.name)) {
                appendWords(entry.value(), words);
            }
        }
        m_accepted[static_cast<std::size_t>(fact.key)] = WordSet(fact.key, words, board);
    }
}

std::optional<Key> Selector::refusal(Layer const & layer) const
{
    for (KeyFact const & fact : keyFacts) {
        if (!m_accepted[static_cast<std::size_t>(fact.key)].accepts(layer.*fact.field)) {
            return fact.key;
        }
    }
    return std::nullopt;
}

Names select(Layers const & layers, Request const & request)
{
    Selector const selector(request, layers);
    Names names;
    for (Layer const & layer : layers) {
        if (!selector.refusal(layer)) {
            names.push_back(layer.name);
        }
    }
    return names;
}

Names analysable(Layers const & layers)
{
    Names names;
    for (Layer const & layer : layers) {
        if (layer.context == boardContext &&
            std::find(analysedTypes.begin(), analysedTypes.end(), layer.type) != analysedTypes.end()) {
            names.push_back(layer.name);
        }
    }
    return names;
}

} // namespace KVCAM::UIAPI::LayerFilter
