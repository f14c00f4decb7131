#pragma once

#include <algorithm>

namespace Workbench {

/// How the program ends; ascending, see worse().
enum class ExitCode : int
{
    Fine = 0,
    Incomplete = 1, ///< something could not be read, checked or written
    WrongInput = 2, ///< a wrong option, or a job, step, baseline or file of waivers that is not there
    Violation = 3   ///< what --fail-on or --fail-on-new asks for was found
};

/// Of several reasons, or several boards, the highest counts.
constexpr ExitCode worse(ExitCode a, ExitCode b)
{
    return std::max(a, b);
}

} // namespace Workbench
