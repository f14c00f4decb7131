#pragma once

#include "EmbeddedRecords.h"
#include "formats/Budget.h"

#include <kvcam/Records.h>

#include <QString>

#include <vector>

namespace KVCAM::Embedded {

/// What the engine uses of a step's header.
struct StepHeader
{
    QString path;                    ///< for messages; empty without a file
    API::point datum;                ///< micrometres
    std::vector<StepRepeat> repeats; ///< names in lower case
    std::vector<int> lines;          ///< of each repeat, where its block begins
};

/// Reads a step header or throws JobError. A repeat of which nothing but the name is given stands once at the
/// panel's origin. FLIP and MIRROR mean the same: a repeated step is turned clockwise about its datum, then
/// mirrored in x like a pad, then its datum is moved to its place. The grid itself is neither turned nor
/// mirrored, and layers keep their names.
StepHeader readStepHeader(QString const & path, Budget & budget);

} // namespace KVCAM::Embedded
