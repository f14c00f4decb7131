#pragma once

#include <array>
#include <string>
#include <type_traits>

/// \addtogroup templates
namespace KVCAM::UIAPI {

/// How a layer's role is recognised from its name: a name prefix and suffix for each of twelve roles. A plain
/// aggregate of UTF-8 texts in this order: name, prefixes, suffixes. Not interpreted here.
struct AutoMatrixTmp
{
    std::string name; ///< of the template

    ///@{
    /// Name prefix of a layer of this role.
    std::string prefix_solder_paste_top;
    std::string prefix_silk_screen_top;
    std::string prefix_solder_mask_top;
    std::string prefix_signal_top;
    std::string prefix_signal;
    std::string prefix_signal_bottom;
    std::string prefix_solder_mask_bottom;
    std::string prefix_silk_screen_bottom;
    std::string prefix_solder_paste_bottom;
    std::string prefix_drill;
    std::string prefix_rout;
    std::string prefix_outline;
    ///@}

    ///@{
    /// Name suffix of a layer of this role.
    std::string suffix_solder_paste_top;
    std::string suffix_silk_screen_top;
    std::string suffix_solder_mask_top;
    std::string suffix_signal_top;
    std::string suffix_signal;
    std::string suffix_signal_bottom;
    std::string suffix_solder_mask_bottom;
    std::string suffix_silk_screen_bottom;
    std::string suffix_solder_paste_bottom;
    std::string suffix_drill;
    std::string suffix_rout;
    std::string suffix_outline;
    ///@}
};

static_assert(std::is_aggregate_v<AutoMatrixTmp>);
static_assert(sizeof(AutoMatrixTmp) == 25 * sizeof(std::string), "a name and two texts for each role");

namespace Ext {

/// One layer role of a template.
struct AutoMatrixRole
{
    char const * key;                   ///< in template files
    std::string AutoMatrixTmp::*prefix; ///< the member that holds the prefix
    std::string AutoMatrixTmp::*suffix; ///< and the suffix
};

/// The twelve roles in the order of the members.
inline constexpr std::array<AutoMatrixRole, 12> autoMatrixRoles = {{
    {"solder_paste_top", &AutoMatrixTmp::prefix_solder_paste_top, &AutoMatrixTmp::suffix_solder_paste_top},
    {"silk_screen_top", &AutoMatrixTmp::prefix_silk_screen_top, &AutoMatrixTmp::suffix_silk_screen_top},
    {"solder_mask_top", &AutoMatrixTmp::prefix_solder_mask_top, &AutoMatrixTmp::suffix_solder_mask_top},
    {"signal_top", &AutoMatrixTmp::prefix_signal_top, &AutoMatrixTmp::suffix_signal_top},
    {"signal", &AutoMatrixTmp::prefix_signal, &AutoMatrixTmp::suffix_signal},
    {"signal_bottom", &AutoMatrixTmp::prefix_signal_bottom, &AutoMatrixTmp::suffix_signal_bottom},
    {"solder_mask_bottom", &AutoMatrixTmp::prefix_solder_mask_bottom,
     &AutoMatrixTmp::suffix_solder_mask_bottom},
    {"silk_screen_bottom", &AutoMatrixTmp::prefix_silk_screen_bottom,
     &AutoMatrixTmp::suffix_silk_screen_bottom},
    {"solder_paste_bottom", &AutoMatrixTmp::prefix_solder_paste_bottom,
     &AutoMatrixTmp::suffix_solder_paste_bottom},
    {"drill", &AutoMatrixTmp::prefix_drill, &AutoMatrixTmp::suffix_drill},
    {"rout", &AutoMatrixTmp::prefix_rout, &AutoMatrixTmp::suffix_rout},
    {"outline", &AutoMatrixTmp::prefix_outline, &AutoMatrixTmp::suffix_outline},
}};
static_assert(sizeof(AutoMatrixTmp) == (1 + 2 * autoMatrixRoles.size()) * sizeof(std::string));

} // namespace Ext

} // namespace KVCAM::UIAPI
