#pragma once

#include "state/Job.h"

#include <QString>

namespace KVCAM::Embedded {

/// Writes a job with its operations to a new folder, as saveJobAs() says. Throws JobError; then nothing is
/// left behind.
void saveJob(Job & job, QString const & target);

} // namespace KVCAM::Embedded
