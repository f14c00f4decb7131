#include "config/BuiltInAttributes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace KVCAM::UIAPI {
namespace {

constexpr char const * none[] = {nullptr};
constexpr char const * areas[] = {"bga_area", "half", "v-cut", "unknown", nullptr};
constexpr char const * ballGrid[] = {"bga_area", nullptr};
constexpr char const * plating[] = {"non_plated", "plated", nullptr};
constexpr char const * closeness[] = {"same_close", "different_close", nullptr};
constexpr char const * mark[] = {"mark", nullptr};
constexpr char const * viaMaking[] = {"laser", "drilled", nullptr};
constexpr char const * repairs[] = {"repair", "repair_line", "broken", "trace", nullptr};
constexpr char const * impedance[] = {"sig1", "sig2", "sig3", "sig4", "sig5", "dif1",
                                      "dif2", "dif3", "dif4", "dif5", nullptr};

constexpr std::array<BuiltInAttributes::Row, 31> table = {{
    {".area", areas},
    {".avoid_shave", closeness},
    {".ball_pad", none},
    {".bga", ballGrid},
    {".dfm_added_shave", closeness},
    {".drill", plating},
    {".drill_noopt", plating},
    {".detch_comp", none},
    {".fiducial_mark", mark},
    {".fiducial_name", mark},
    {".gold_finger", none},
    {".ignore_action", none},
    {".imp_line", impedance},
    {".imp_info", impedance},
    {".imp_line_bot", impedance},
    {".imp_line_top", impedance},
    {".is_cappad", none},
    {".laser_via_pad", viaMaking},
    {".nomenclature", none},
    {".npth_pad", none},
    {".patch", repairs},
    {".pattern_fill", none},
    {".pth_pad", none},
    {".shave", closeness},
    {".sliver_fill", none},
    {".smd", none},
    {".tear_drop", none},
    {".via_pad", none},
    {".via_type", viaMaking},
    {".plating_line", none},
    {".plating_bar", none},
}};

constexpr bool namesAreUniqueSystemNames()
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].name[0] != '.') {
            return false;
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (std::string_view(table[i].name) == table[j].name) {
                return false;
            }
        }
    }
    return true;
}
static_assert(namesAreUniqueSystemNames());

} // namespace

void BuiltInAttributes::initTotalAttributes()
{
    m_begin = table.data();
    m_end = m_begin + table.size();
}

void BuiltInAttributes::getChildAttribute(std::string const & name, std::vector<std::string> & out) const
{
    auto const row = std::find_if(begin(), end(), [&](Row const & each) { return each.name == name; });
    out.clear(); // not earlier: the name may be an element of it
    if (row != end()) {
        for (char const * const * value = row->offered; *value != nullptr; ++value) {
            out.emplace_back(*value);
        }
    }
}

} // namespace KVCAM::UIAPI
