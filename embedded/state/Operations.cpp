#include "formats/LineReader.h"
#include "geometry/StandardSymbol.h"
#include "state/Job.h"

#include <algorithm>
#include <utility>

namespace KVCAM::Embedded {
namespace {

// The entry of a symbol in a layer's table, and whether it had to be made.
std::pair<int, bool> entryOf(FeaturesFile & file, SymbolEntry const & symbol)
{
    auto const known = std::find_if(file.symbols.begin(), file.symbols.end(), [&symbol](auto const & each) {
        return each.second.name == symbol.name && each.second.unit == symbol.unit;
    });
    if (known != file.symbols.end()) {
        return {known->first, false};
    }
    int index = 0; // the first free one: the highest may be the highest integer
    for (auto entry = file.symbols.begin(); entry != file.symbols.end() && entry->first == index; ++entry) {
        ++index;
    }
    file.symbols.emplace(index, symbol);
    return {index, true};
}

} // namespace

void Job::checkFeature(LayerGraphics const & target, std::string const & layer, int feature) const
{
    if (feature < 0 || static_cast<std::size_t>(feature) >= target.deleted.size() ||
        target.deleted[static_cast<std::size_t>(feature)]) {
        throw JobError(m_name + ": layer \"" + layer + "\" has no feature " + std::to_string(feature));
    }
}

Operation Job::checked(std::string const & stepName, std::string const & layer,
                       std::vector<int> const & indices, SymbolEntry symbol)
{
    LayerGraphics const & target = graphics(stepName, layer);
    Operation operation;
    operation.layer = layer;
    operation.features = indices;
    operation.symbol = std::move(symbol);
    std::vector<int> & list = operation.features;
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
    for (int const index : list) {
        checkFeature(target, layer, index);
    }
    if (list.empty()) {
        throw JobError(m_name + ": no features are given");
    }
    if (!operation.isDeletion()) {
        checkChange(target, operation);
    }
    return operation;
}

void Job::checkChange(LayerGraphics const & target, Operation & change) const
{
    constexpr std::size_t longestName = 128; // that files may hold
    SymbolEntry & symbol = change.symbol;
    if (!standardSymbol(symbol.name)) {
        std::string const own = symbolFolder(symbol.name);
        if (own.empty()) {
            throw JobError(m_name + ": " + quoted(symbol.name) +
                           " is neither a standard symbol nor one of the job's own");
        }
        symbol = {own, target.file.unit}; // its name holds no sizes
    }
    bool const isPlain = std::all_of(symbol.name.begin(), symbol.name.end(),
                                     [](char c) { return static_cast<unsigned char>(c) > ' '; });
    if (!isPlain || symbol.name.size() > longestName || validText(symbol.name) != symbol.name) {
        throw JobError(m_name + ": a features file cannot hold the symbol name " + quoted(symbol.name));
    }
    auto const has = [&](int index) {
        Feature const & feature = target.file.features[static_cast<std::size_t>(index)];
        if (feature.symbol < 0) {
            throw JobError(m_name + ": feature " + std::to_string(index) + " of layer \"" + change.layer +
                           "\" is a surface, which has no symbol");
        }
        SymbolEntry const & old = target.file.symbols.at(feature.symbol);
        return old.name == symbol.name && old.unit == symbol.unit;
    };
    std::vector<int> & list = change.features;
    list.erase(std::remove_if(list.begin(), list.end(), has), list.end());
    if (list.empty()) {
        throw JobError(m_name + ": the features have the symbol " + quoted(symbol.name) + " already");
    }
    for (int const index : list) {
        change.before.push_back(target.file.features[static_cast<std::size_t>(index)].symbol);
    }
}

void Job::apply(std::string const & stepName, Operation operation)
{
    LayerGraphics & target = graphics(stepName, operation.layer);
    std::vector<Operation> & history = step(stepName).history;
    history.reserve(history.size() + 1); // first, like all that may throw
    if (operation.isDeletion()) {
        for (int const index : operation.features) {
            target.deleted[static_cast<std::size_t>(index)] = true;
        }
    } else {
        auto const [symbol, isNew] = entryOf(target.file, operation.symbol);
        operation.addedSymbol = isNew ? symbol : -1;
        for (int const index : operation.features) {
            target.file.features[static_cast<std::size_t>(index)].symbol = symbol;
        }
    }
    operation.number = ++m_operations;
    history.push_back(std::move(operation));
}

bool Job::undo(std::string const & stepName)
{
    Step * const owner = findStep(stepName);
    if (owner == nullptr || owner->history.empty()) {
        return false;
    }
    Operation const & latest = owner->history.back();
    LayerGraphics & target = graphics(stepName, latest.layer);
    for (std::size_t i = 0; i < latest.features.size(); ++i) {
        auto const index = static_cast<std::size_t>(latest.features[i]);
        if (latest.isDeletion()) {
            target.deleted[index] = false;
        } else {
            target.file.features[index].symbol = latest.before[i];
        }
    }
    target.file.symbols.erase(latest.addedSymbol);
    owner->history.pop_back();
    return true;
}

bool Job::isChanged() const
{
    return std::any_of(m_steps.begin(), m_steps.end(),
                       [](Step const & each) { return each.latest() != each.saved; });
}

void Job::setSaved()
{
    for (Step & each : m_steps) {
        each.saved = each.latest();
    }
}

} // namespace KVCAM::Embedded
