#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::Embedded {

/// Which features of a step belong to which net, as its nets file lists them.
struct NetsFile
{
    /// A feature's place in its layer's file, from 0, and its net.
    using Entry = std::pair<std::uint32_t, std::uint32_t>;

    struct Layer
    {
        std::string name;           ///< lower case
        std::vector<Entry> entries; ///< ascending, each feature once
    };

    std::vector<Layer> layers;
    std::vector<std::string> nets; ///< names; without those of what belongs to no net
};

/// Reads a whole nets file, of which it uses only the lists of features. Throws JobError, also for a feature
/// in two nets.
NetsFile readNets(QString const & path);

} // namespace KVCAM::Embedded
