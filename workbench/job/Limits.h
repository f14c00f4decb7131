#pragma once

#include <EmbeddedRecords.h>

#include <QString>

namespace Workbench {

/// Sets a limit from "NAME=NUMBER", the name being that of a member. Returns why that cannot be done; empty
/// on success.
QString setLimit(KVCAM::Embedded::JobLimits & limits, QString const & text);

/// The names with their defaults, for a help text.
QString limitNames();

} // namespace Workbench
