#pragma once

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
    /// The first and the last layer that a drill or rout layer goes through, by its name; "" where the matrix
    /// leaves them out. They need not be layers of the matrix.
    std::map<std::string, std::pair<std::string, std::string>> spans;
};

/// Throws JobError. Blocks must be whole, their numbers positive and distinct, their names distinct without
/// regard to case and fit to name a folder.
Matrix readMatrix(QString const & path);

} // namespace KVCAM::Embedded
