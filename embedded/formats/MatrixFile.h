#pragma once

#include "formats/Budget.h"

#include <kvcam/Records.h>

#include <QString>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::Embedded {

/// The steps and layers of a job in the order of their columns and rows, as the engine reports them: names,
/// contexts and types in lower case, polarity "POS" or "NEG".
struct Matrix
{
    std::vector<std::string> steps;
    std::vector<API::layer_info> layers;
    /// The first and last layer that each drill or rout layer passes through, by its name; "" if the matrix
    /// omits them. They need not be layers of the matrix.
    std::map<std::string, std::pair<std::string, std::string>> spans;
};

/// Throws JobError. Blocks must be complete, their numbers positive and distinct, their names distinct
/// regardless of case and usable as folder names, their counts within the limits.
Matrix readMatrix(QString const & path, Budget & budget);

} // namespace KVCAM::Embedded
