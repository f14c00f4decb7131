#pragma once

#include "board/FeatureShapes.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Workbench {

/// The symbols of a layer, each looked up once per name and unit. A job's own symbol is drawn as its file
/// says, with the symbols in it. A cross of hairlines stands for one that has no drawing, is part of itself,
/// is nested more than 8 deep or has more than 100,000 path elements.
class FeatureSymbols
{
public:
    explicit FeatureSymbols(SymbolSource source) : m_source(std::move(source)) {}

    /// Never null.
    std::shared_ptr<FeatureSymbol const> find(std::string const & name, Unit unit);
    /// Looks up the symbols of these features and drops the source, so that another thread may go on.
    void findAll(std::vector<KVCAM::API::feature_info> const & features,
                 std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings);

private:
    // Null for one that must not be read, being too deep in others or in itself.
    std::shared_ptr<FeatureSymbol const> own(std::string const & name);

    SymbolSource m_source;
    std::map<std::pair<std::string, Unit>, std::shared_ptr<FeatureSymbol const>> m_symbols;
    std::set<std::string> m_open; // the job's own that are being read
};

} // namespace Workbench
