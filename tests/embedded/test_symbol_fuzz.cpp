#include "embedded/CheckTest.h"

#include <algorithm>
#include <cmath>
#include <random>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

constexpr double pi = 3.14159265358979323846;

// A line or an arc, drawn with a round pen or as the side of a surface; micrometres.
struct Path
{
    API::point from;
    API::point to;
    API::point centre;
    bool arc = false;
    bool clockwise = false;
    double pen = 0; // radius

    std::vector<API::point> points() const
    {
        constexpr int count = 600;
        double const begin = std::atan2(from.y - centre.y, from.x - centre.x);
        double const radius = std::hypot(from.x - centre.x, from.y - centre.y);
        double sweep = std::atan2(to.y - centre.y, to.x - centre.x) - begin;
        sweep += clockwise && sweep > 0 ? -2 * pi : !clockwise && sweep < 0 ? 2 * pi : 0;
        std::vector<API::point> all;
        for (int i = 0; i <= count; ++i) {
            double const part = 1.0 * i / count;
            double const angle = begin + part * sweep;
            all.push_back(
                arc ? API::point{centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)}
                    : API::point{from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)});
        }
        return all;
    }
};

QByteArray text(API::point p)
{
    return QByteArray::number(p.x / 1000, 'f', 9) + ' ' + QByteArray::number(p.y / 1000, 'f', 9) + ' ';
}

double toSegment(API::point p, API::point a, API::point b)
{
    double const x = b.x - a.x;
    double const y = b.y - a.y;
    double const square = x * x + y * y;
    double const t = square > 0 ? std::clamp(((p.x - a.x) * x + (p.y - a.y) * y) / square, 0.0, 1.0) : 0;
    return std::hypot(p.x - a.x - t * x, p.y - a.y - t * y);
}

// A symbol's drawing made at random, and its measures from nothing but points along its paths.
class Sketch
{
public:
    explicit Sketch(unsigned seed) : m_random(seed)
    {
        for (int i = 0; i < 2; ++i) {
            std::vector<API::point> const corners{corner(), corner(), corner(), corner()};
            drawing += "S P 0\nOB " + text(corners[0]) + "I\n";
            m_outlines.emplace_back();
            for (std::size_t j = 0; j < corners.size(); ++j) {
                Path const side = path(corners[j], corners[(j + 1) % corners.size()]);
                drawing += (side.arc ? "OC " : "OS ") + text(side.to) + rest(side) + '\n';
                add(side, m_outlines.back());
            }
            drawing += "OE\nSE\n";
            Path stroke = path(corner(), corner());
            stroke.pen = 100.0 + 200 * i;
            std::string const pen = " " + std::to_string(i) + " P 0 ";
            drawing += (stroke.arc ? "A " : "L ") + text(stroke.from) + text(stroke.to) +
                       (stroke.arc ? text(stroke.centre) : "") + pen.c_str() +
                       (!stroke.arc        ? ""
                        : stroke.clockwise ? "Y"
                                           : "N") +
                       '\n';
            add(stroke, m_strokes.emplace_back());
            m_pens.push_back(stroke.pen);
        }
    }

    double any(double most) { return std::round(std::uniform_real_distribution(-most, most)(m_random)); }
    API::point corner() { return {any(2000), any(2000)}; }

    double distance(API::point p) const
    {
        double least = 1e300;
        for (auto const & outline : m_outlines) {
            bool inside = false;
            for (std::size_t i = 0; i + 1 < outline.size(); ++i) {
                API::point const a = outline[i];
                API::point const b = outline[i + 1];
                least = std::min(least, toSegment(p, a, b));
                bool const crossed =
                    (a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x);
                inside = inside != crossed;
            }
            least = inside ? 0 : least;
        }
        for (std::size_t i = 0; i < m_strokes.size(); ++i) {
            for (std::size_t j = 0; j + 1 < m_strokes[i].size(); ++j) {
                least = std::min(least, toSegment(p, m_strokes[i][j], m_strokes[i][j + 1]) - m_pens[i]);
            }
        }
        return std::max(0.0, least);
    }

    double leastWidth() const
    {
        double least = 1e300;
        for (int half = 0; half < 360; ++half) { // degrees
            double const angle = half * pi / 360;
            double const x = std::cos(angle);
            double const y = std::sin(angle);
            double low = 1e300;
            double high = -1e300;
            auto const take = [&](std::vector<API::point> const & points, double pen) {
                for (API::point const & p : points) {
                    double const along = p.x * x + p.y * y;
                    low = std::min(low, along - pen);
                    high = std::max(high, along + pen);
                }
            };
            for (std::size_t i = 0; i < m_strokes.size(); ++i) {
                take(m_outlines[i], 0);
                take(m_strokes[i], m_pens[i]);
            }
            least = std::min(least, high - low);
        }
        return least;
    }

    QByteArray drawing = "UNITS=MM\n$0 r200\n$1 r600\n";

private:
    static QByteArray rest(Path const & side)
    {
        return side.arc ? text(side.centre) + (side.clockwise ? "Y" : "N") : QByteArray();
    }
    static void add(Path const & path, std::vector<API::point> & to)
    {
        std::vector<API::point> const points = path.points();
        to.insert(to.end(), points.begin(), points.end());
    }
    Path path(API::point from, API::point to)
    {
        double const off = any(1000) / 700;
        API::point const centre{(from.x + to.x - off * (to.y - from.y)) / 2,
                                (from.y + to.y + off * (to.x - from.x)) / 2};
        return {from, to, centre, any(10) > 0, any(10) > 0, 0};
    }

    std::mt19937 m_random;
    std::vector<std::vector<API::point>> m_outlines;
    std::vector<std::vector<API::point>> m_strokes;
    std::vector<double> m_pens;
};

TEST_F(CheckTest, SymbolsOfAJobsOwnMeasureAsTheirPointsDo)
{
    makeJob(row(1, "TOP", "SIGNAL"));
    int apart = 0;
    for (unsigned seed = 0; seed < 40; ++seed) {
        Sketch sketch(seed);
        write("jobs/board/symbols/inner/features", sketch.drawing);
        write("jobs/board/symbols/own/features", "UNITS=MM\n$0 inner\nP 0 0 0 P 0 9 -33\n");
        for (int i = 0; i < 3; ++i) {
            API::point const at = sketch.corner();
            double const expected = std::max(0.0, sketch.distance(at) - 100);
            // Turned clockwise, then mirrored; twice for the symbol in a symbol.
            double const angle = sketch.any(360);
            bool const mirrored = seed % 2 == 0;
            auto const placed = [](API::point p, double degrees, bool flip) {
                double const c = std::cos(degrees * pi / 180);
                double const s = std::sin(degrees * pi / 180);
                return API::point{(flip ? -1 : 1) * (p.x * c + p.y * s), p.y * c - p.x * s};
            };
            API::point const there = placed(placed(at, -33, true), angle, mirrored);
            QByteArray const own =
                QByteArray("P 0 0 0 P 0 ") + (mirrored ? "9 " : "8 ") + QByteArray::number(angle) + " ;0\n";
            QByteArray const disc = "P " + text(there) + "1 P 0 0 ;0\n";
            fill("top", "UNITS=MM\n$0 own\n$1 r200\n@0 .smd\n" + (i == 0 ? own + disc : disc + own));
            ASSERT_TRUE(open()) << Embedded::lastError();
            auto const results = check();
            int const found = signal(results, "top", 12).at(0).points.at(4);
            EXPECT_LE(found, std::lround(expected + 0.01)) << "seed " << seed;
            EXPECT_GE(found, std::lround(std::max(0.0, expected - 0.26))) << "seed " << seed;
            apart += expected > 0 ? 1 : 0;
            if (i == 0) {
                auto const sizes = signal(results, "top", 45); // the disc is narrower
                double const width = sketch.leastWidth();
                EXPECT_LE(sizes.at(1).points.at(2), width + 0.6) << "seed " << seed;
                EXPECT_GE(sizes.at(1).points.at(2), width - 25) << "seed " << seed;
            }
        }
    }
    EXPECT_GT(apart, 20) << "the drawings leave room";
}

} // namespace
