#pragma once

#include "formats/StopFlag.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
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

/// By the lower-case name of a layer, which of its features are deleted.
using DeletedFeatures = std::map<std::string, std::vector<bool>>;
/// The text of a nets file after features are gone, whose places in their layers' files are the numbers in
/// it: what was listed of them is left out, and those behind them get their new numbers. Nets and subnets
/// stay, even without features, since other files count them. Lines that cannot be read stay.
QByteArray editedNets(std::string_view text, DeletedFeatures const & deleted);

/// Reads a whole nets file, of which it uses only the lists of features. Throws JobError, also for a feature
/// in two nets.
NetsFile readNets(QString const & path, StopFlag stop = {});

} // namespace KVCAM::Embedded
