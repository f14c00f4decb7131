#pragma once

#include "EmbeddedRecords.h"
#include "formats/Budget.h"
#include "formats/FeaturesFile.h"
#include "formats/NetsFile.h"

#include <QString>

#include <memory>
#include <string>
#include <vector>

class QTemporaryDir;

namespace KVCAM::Embedded {

/// The current graphics of a layer: the contents of its file, and which features are deleted.
struct LayerGraphics
{
    FeaturesFile file;
    std::vector<bool> deleted; ///< as many as features
    bool cutToTables = false;  ///< the file holds only the head and the tables
    bool missing = false;      ///< there is no file
};

/// What reading files of a step needs. It is a copy, so that any thread can read while the job changes or is
/// closed.
struct FilesSource
{
    QString folder; ///< of the layer or the step; empty if there is none
    Budget budget;  ///< of the job when the source was made
    std::shared_ptr<QTemporaryDir> unpacked;
};

/// What reading a layer's features has given.
struct LayerContents
{
    LayerGraphics graphics;
    std::string error; ///< why they cannot be read; empty after success
    Budget before;     ///< of the job, with which reading began
    Budget after;      ///< with what was read, if it succeeded
};
/// What reading a step's nets has given.
struct NetsContents
{
    NetsFile nets; ///< empty if there is no file
    std::string error;
};

///@{
/// Read files and use nothing else, in any thread. Throw ReadingStopped when the budget's flag is set.
LayerContents readLayer(FilesSource const & source);
NetsContents readNets(FilesSource const & source);
/// The tools are not kept, and add to no budget. Throws JobError.
std::vector<Tool> readTools(FilesSource const & source);
///@}

} // namespace KVCAM::Embedded
