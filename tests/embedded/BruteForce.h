#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// Spacings by trying everything with everything, for comparison with the checks: it reads the text of the
/// files itself and shares nothing with the engine. Micrometres. It knows round, square, rectangular and oval
/// symbols.
namespace KVCAM::Testing::Brute {

struct Point
{
    double x = 0;
    double y = 0;
};

/// What is within a radius of a stretch.
struct Stroke
{
    Point from;
    Point to;
    double radius = 0;
};

/// A feature of a layer: strokes, and what their first `edges` enclose, odd-even.
struct Graphic
{
    std::size_t index = 0;
    char kind = 0;
    std::vector<Stroke> strokes;
    std::size_t edges = 0;
    std::string net;                                     ///< empty: not listed
    std::array<double, 4> box{1e30, 1e30, -1e30, -1e30}; ///< left, bottom, right, top
};

std::vector<Graphic> readLayer(std::string const & path);
/// The net of each listed feature of a layer; without those of $NONE$.
std::map<std::size_t, std::string> readNets(std::string const & path, std::string const & layer);

/// At most a millimetre.
double distance(Graphic const & a, Graphic const & b);
/// To be called when the strokes are complete.
void measureBox(Graphic & graphic);
/// Whether the boxes are farther apart than this.
bool areApart(Graphic const & a, Graphic const & b, double distance);

} // namespace KVCAM::Testing::Brute
