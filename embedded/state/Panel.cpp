#include "state/Panel.h"

#include "formats/LineReader.h"
#include "geometry/CheckGeometry.h"
#include "state/Job.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <string>

namespace KVCAM::Embedded {
namespace {

constexpr int mostNesting = 32; // steps within steps

// Turned clockwise about the origin, exactly for quarter turns, then mirrored in x.
API::point turned(API::point p, double angle, bool mirrored)
{
    double const turn = std::fmod(std::fmod(angle, 360) + 360, 360);
    double cosine = std::cos(turn * pi / 180);
    double sine = std::sin(turn * pi / 180);
    if (double const quarters = turn / 90; quarters == std::floor(quarters)) {
        static constexpr std::array<int, 5> sines{0, 1, 0, -1, 0};
        auto const quarter = static_cast<std::size_t>(quarters) % 4;
        sine = sines.at(quarter);
        cosine = sines.at(quarter + 1);
    }
    double const x = p.x * cosine + p.y * sine;
    return {mirrored ? -x : x, p.y * cosine - p.x * sine};
}

API::point placed(API::point p, StepPlacement const & where)
{
    API::point const offset = turned(p, where.angle, where.mirrored);
    return {where.x + offset.x, where.y + offset.y};
}

// Where the origin of a repeated step lies, as the member of its grid in that column and row.
StepPlacement member(StepRepeat const & repeat, API::point datum, int column, int row)
{
    API::point const offset = turned(datum, repeat.angle, repeat.mirrored);
    return {repeat.name, repeat.x + column * repeat.dx - offset.x, repeat.y + row * repeat.dy - offset.y,
            repeat.angle, repeat.mirrored};
}

// A placement within a placed step. Turning after mirroring is mirroring after turning the other way.
StepPlacement within(StepPlacement const & outer, StepPlacement const & inner)
{
    API::point const place = placed({inner.x, inner.y}, outer);
    double const turn = inner.mirrored ? -outer.angle : outer.angle;
    return {inner.name, place.x, place.y, std::fmod(turn + inner.angle, 360),
            outer.mirrored != inner.mirrored};
}

class PanelCheck
{
public:
    explicit PanelCheck(std::vector<Step> & steps) : m_steps(steps), m_heights(steps.size(), unknown)
    {
        for (std::size_t i = 0; i < steps.size(); ++i) {
            m_byName.emplace(steps[i].name, i);
        }
    }

    // How many steps are nested below this one; sets its extent.
    int visit(std::size_t index, int depth)
    {
        if (m_heights[index] >= 0) {
            return m_heights[index];
        }
        m_heights[index] = open;
        Step & step = m_steps[index];
        int height = 0;
        for (std::size_t i = 0; i < step.header.repeats.size(); ++i) {
            StepRepeat const & repeat = step.header.repeats[i];
            auto const found = m_byName.find(repeat.name);
            if (found == m_byName.end()) {
                fail(step, i, "there is no step " + quoted(repeat.name));
            }
            if (m_heights[found->second] == open) {
                fail(step, i, "the step " + quoted(repeat.name) + " repeats itself");
            }
            int const below = depth < mostNesting ? visit(found->second, depth + 1) : mostNesting;
            height = std::max(height, below + 1);
            if (height > mostNesting) {
                fail(step, i, "steps are nested more than " + std::to_string(mostNesting) + " deep");
            }
            extend(step, repeat, m_steps[found->second]);
        }
        m_heights[index] = height;
        return height;
    }

private:
    static constexpr int unknown = -1;
    static constexpr int open = -2; // being visited

    [[noreturn]] static void fail(Step const & step, std::size_t repeat, std::string const & reason)
    {
        throw JobError(step.header.path.toStdString() + ':' + std::to_string(step.header.lines[repeat]) +
                       ": " + reason);
    }

    // The first and the last member of a grid have its extreme places.
    static void extend(Step & panel, StepRepeat const & repeat, Step const & repeated)
    {
        std::optional<Box> const box = repeated.extent();
        if (!box) {
            return;
        }
        for (StepPlacement const & where :
             {member(repeat, repeated.header.datum, 0, 0),
              member(repeat, repeated.header.datum, repeat.nx - 1, repeat.ny - 1)}) {
            for (API::point const corner : {API::point{box->left, box->bottom},
                                            {box->right, box->bottom},
                                            {box->left, box->top},
                                            {box->right, box->top}}) {
                API::point const p = placed(corner, where);
                panel.repeatBox = panel.repeatBox.value_or(boxOf(p));
                include(*panel.repeatBox, p);
            }
        }
    }

    std::vector<Step> & m_steps;
    std::vector<int> m_heights;
    std::map<std::string, std::size_t> m_byName;
};

struct Expansion
{
    std::map<std::string, Step const *> byName;
    std::size_t limit;
    std::vector<StepPlacement> found;

    // As deep as steps are nested, which has been checked.
    void add(Step const & panel, StepPlacement const & where)
    {
        for (StepRepeat const & repeat : panel.header.repeats) {
            Step const & repeated = *byName.at(repeat.name);
            for (int row = 0; row < repeat.ny; ++row) {
                for (int column = 0; column < repeat.nx; ++column) {
                    if (found.size() >= limit) {
                        return;
                    }
                    StepPlacement const next =
                        within(where, member(repeat, repeated.header.datum, column, row));
                    found.push_back(next);
                    add(repeated, next);
                }
            }
        }
    }
};

} // namespace

void checkPanels(std::vector<Step> & steps)
{
    PanelCheck check(steps);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        check.visit(i, 0);
    }
}

std::vector<StepPlacement> placements(std::vector<Step> const & steps, Step const & panel, std::size_t limit)
{
    if (panel.header.repeats.empty()) { // nearly all of what may be thousands
        return {};
    }
    Expansion expansion{{}, limit, {}};
    for (Step const & step : steps) {
        expansion.byName.emplace(step.name, &step);
    }
    expansion.add(panel, {});
    return std::move(expansion.found);
}

} // namespace KVCAM::Embedded
