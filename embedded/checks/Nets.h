#pragma once

#include "checks/CheckContext.h"
#include "checks/CopperItems.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// The numbers of the named nets by layer and feature. Empty without such nets.
class FeatureNets
{
public:
    void set(std::string const & layer, std::uint32_t feature, std::uint32_t net);
    /// `unknown` for a feature whose net has no name.
    std::uint32_t of(std::string const & layer, std::uint32_t feature) const;

private:
    std::map<std::string, std::vector<std::uint32_t>> m_nets;
};

/// Gives each item and hole the number of its net, and the results the names and a sentence on where the nets
/// come from: the step's nets file, or, without one or if its numbers do not fit, what touches. Nets without
/// a name have the greater numbers.
FeatureNets assignNets(CheckContext & context, std::vector<CopperLayer> & layers, PlatedHoles & holes,
                       CheckResults & results);

} // namespace KVCAM::Embedded
