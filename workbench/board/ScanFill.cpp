#include "board/ScanFill.h"

#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace Workbench {

namespace {

constexpr int samples = 4; // of a pixel, in each direction
constexpr int lookAtFlag = 256;

// Where a line enters and leaves the inside: a bit for each row of samples of a pixel, at the first column of
// samples beyond the line.
class Crossings
{
public:
    Crossings(QSize size, double sampleHeight)
        : m_columns(size.width() * samples + 1)
        , m_height(sampleHeight)
        , m_rowsPerCell(sampleHeight < 1 ? samples : 1)
        , m_sampleRows(static_cast<int>(std::ceil(size.height() / sampleHeight)))
        , m_bits(static_cast<std::size_t>(m_columns) *
                 static_cast<std::size_t>((m_sampleRows + m_rowsPerCell - 1) / m_rowsPerCell))
    {}

    // The rows of samples from the first value to before the second are crossed.
    std::pair<int, int> rows(double top, double bottom) const
    {
        auto const row = [this](double y) {
            return static_cast<int>(std::clamp(std::ceil(y / m_height - 0.5), 0.0, double(m_sampleRows)));
        };
        return {row(top), row(bottom)};
    }

    void add(QPointF from, QPointF to)
    {
        if (from.y() > to.y()) {
            std::swap(from, to);
        }
        auto const [first, last] = rows(from.y(), to.y());
        double const slope = first < last ? (to.x() - from.x()) / (to.y() - from.y()) : 0;
        for (int row = first; row < last; ++row) {
            double const x = from.x() + ((row + 0.5) * m_height - from.y()) * slope;
            double const column = std::ceil(x * samples - 0.5);
            int const place =
                column > 0 ? static_cast<int>(std::min(column, double(m_columns - 1))) : 0; // 0 for NaN, too
            m_bits[cell(row) + static_cast<std::size_t>(place)] ^=
                static_cast<std::uint8_t>(1 << row % m_rowsPerCell);
        }
    }

    // The number of samples inside, by pixel of a row.
    void count(int y, std::vector<int> & inside) const
    {
        static constexpr std::array<std::uint8_t, 16> ones{0, 1, 1, 2, 1, 2, 2, 3, 1, 2, 2, 3, 2, 3, 3, 4};
        int const row = m_rowsPerCell > 1 ? y * samples : static_cast<int>(y / m_height);
        std::uint8_t const * bits = m_bits.data() + cell(std::min(row, m_sampleRows - 1));
        unsigned isInside = 0;
        for (int & number : inside) {
            number = 0;
            for (int i = 0; i < samples; ++i) {
                isInside ^= *bits++;
                number += ones.at(isInside & 15U);
            }
        }
    }
    int most() const { return samples * m_rowsPerCell; }

private:
    std::size_t cell(int row) const
    {
        return static_cast<std::size_t>(row / m_rowsPerCell) * static_cast<std::size_t>(m_columns);
    }

    int m_columns;
    double m_height;
    int m_rowsPerCell;
    int m_sampleRows;
    std::vector<std::uint8_t> m_bits;
};

template <class Visit>
void forEachEdge(QList<QPolygonF> const & polygons, QPointF origin, Visit const & visit)
{
    for (QPolygonF const & polygon : polygons) {
        for (int i = 0; i < polygon.size(); ++i) {
            visit(polygon[i] - origin, polygon[i + 1 < polygon.size() ? i + 1 : 0] - origin);
        }
    }
}

// The distance of rows of samples that keeps the steps below their limit.
double sampleHeightFor(double rows, double most)
{
    return rows * samples <= most ? 1.0 / samples : std::max(1.0, std::ceil(rows / most));
}

} // namespace

QImage ScanFill::run()
{
    steps = 0;
    if (frame.isEmpty()) {
        return {};
    }
    QList<QPolygonF> const polygons = path.toSubpathPolygons(toPixels);
    double rows = 0; // of pixels, crossed by all edges
    forEachEdge(polygons, frame.topLeft(), [&](QPointF from, QPointF to) {
        double const height = frame.height();
        rows += std::abs(std::clamp(to.y(), 0.0, height) - std::clamp(from.y(), 0.0, height));
    });
    Crossings crossings(frame.size(), sampleHeightFor(rows, static_cast<double>(limit)));
    std::size_t edges = 0;
    bool isCancelled = false;
    forEachEdge(polygons, frame.topLeft(), [&](QPointF from, QPointF to) {
        isCancelled = isCancelled || (++edges % lookAtFlag == 0 && cancelled);
        if (!isCancelled) {
            auto const [first, last] = crossings.rows(std::min(from.y(), to.y()), std::max(from.y(), to.y()));
            steps += static_cast<std::size_t>(last - first);
            crossings.add(from, to);
        }
    });
    if (cancelled) {
        return {};
    }
    std::vector<QRgb> colours;
    for (int i = 0; i <= crossings.most(); ++i) {
        colours.push_back(qPremultiply(
            qRgba(colour.red(), colour.green(), colour.blue(), colour.alpha() * i / crossings.most())));
    }
    QImage image(frame.size(), QImage::Format_ARGB32_Premultiplied);
    std::vector<int> inside(static_cast<std::size_t>(frame.width()));
    for (int y = 0; y < frame.height() && !image.isNull(); ++y) {
        crossings.count(y, inside);
        auto * pixel = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int const number : inside) {
            *pixel++ = colours[static_cast<std::size_t>(number)];
        }
    }
    return image;
}

} // namespace Workbench
