#pragma once

#include "EmbeddedRecords.h"
#include "formats/StopFlag.h"

#include <chrono>
#include <string>

namespace KVCAM::Embedded {

/// The limits of a job and what has been used of them. Readers add to it; a copy is used for what is not
/// kept, so that failed or repeated readings do not count.
struct Budget
{
    JobLimits limits;                           ///< as given when the job was opened
    long long bytes = 0;                        ///< read from files, unpacked
    long long points = 0;                       ///< features, contours and their sides
    long long symbols = 0;                      ///< entries of symbol tables and own symbols
    std::chrono::steady_clock::duration time{}; ///< spent reading
    StopFlag stop;                              ///< of the reading that the budget is for
};

/// Which limit of what has been read is exceeded, for a message that begins with the file; empty if none is.
std::string exceededLimit(Budget const & budget);

} // namespace KVCAM::Embedded
