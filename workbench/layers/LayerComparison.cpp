#include "layers/LayerComparison.h"

#include "board/LayerPainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <new>

namespace Workbench {

namespace {

constexpr std::size_t listed = 500;     // regions of each end
constexpr double leastPixel = 0.05;     // micrometres; files are no finer
constexpr int pixelsAtOnce = 4'000'000; // of a slice: 16 MB for each layer

// How much of each pixel a layer covers is its alpha.
QImage coverage(PictureTask::Layer const & layer, QTransform const & toPicture, QSize size,
                std::atomic<bool> const & cancelled)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (PictureTask::Shapes const & shapes : layer) {
        if (!cancelled && !image.isNull()) {
            QPainter painter(&image);
            LayerPainter(painter, image.rect(), Qt::black, cancelled)
                .paint(shapes.layer->shapes(), shapes.place * toPicture);
        }
    }
    return image;
}

QRgb const * rowOf(QImage const & image, int y)
{
    return reinterpret_cast<QRgb const *>(image.constScanLine(y));
}

// White paper with three inks, each by its part of the pixel.
QRgb mixed(int first, int second)
{
    int const both = std::min(first, second);
    int const paper = 255 - std::max(first, second);
    auto const channel = [&](int one, int other, int shared) {
        return (255 * paper + one * (first - both) + other * (second - both) + shared * both) / 255;
    };
    return qRgb(channel(qRed(onlyFirstColour), qRed(onlySecondColour), qRed(bothColour)),
                channel(qGreen(onlyFirstColour), qGreen(onlySecondColour), qGreen(bothColour)),
                channel(qBlue(onlyFirstColour), qBlue(onlySecondColour), qBlue(bothColour)));
}

LayerRegion onBoard(DifferingRegion const & region, double pixel, QPointF topLeft)
{
    auto const place = [&](double x, double y) {
        return QPointF(topLeft.x() + x * pixel, topLeft.y() - y * pixel);
    };
    QRectF const box(region.box);
    return {region.kind == Pixel::OnlyFirst, static_cast<double>(region.pixels) * pixel * pixel,
            QRectF(place(box.left(), box.bottom()), place(box.right(), box.top())),
            place(region.place.x() + 0.5, region.place.y() + 0.5)};
}

} // namespace

QRectF ComparedLayers::extent() const
{
    QRectF extent;
    bool isFirst = true;
    for (PictureTask::Layer const * layer : {&first, &second}) {
        for (PictureTask::Shapes const & shapes : *layer) {
            if (!shapes.layer->shapes().empty()) {
                QRectF const box = shapes.place.mapRect(shapes.layer->extent());
                extent = isFirst ? box : joined(extent, box);
                isFirst = false;
            }
        }
    }
    return extent;
}

LayerDifference compareLayers(ComparedLayers const & layers, QRectF const & area, int longerSide,
                              std::atomic<int> & percent, std::atomic<bool> const & cancelled)
{
    LayerDifference result;
    double const longest = std::max(area.width(), area.height());
    if (!(longest > 0) || !std::isfinite(longest) || longerSide < 1) {
        return result;
    }
    result.area = area;
    result.pixel = std::max(longest / longerSide, leastPixel);
    int const width = std::max(1, static_cast<int>(std::ceil(area.width() / result.pixel)));
    int const height = std::max(1, static_cast<int>(std::ceil(area.height() / result.pixel)));
    int const sliceHeight = std::clamp(pixelsAtOnce / width, 1, height);
    QPointF const topLeft(area.left(), area.top() + area.height()); // y points up on the board
    double const scale = 1 / result.pixel;
    Difference difference(listed);
    std::vector<Pixel> row(static_cast<std::size_t>(width));
    for (int top = 0; top < height && !cancelled; top += sliceHeight) {
        QSize const size(width, std::min(sliceHeight, height - top));
        QTransform const toSlice(scale, 0, 0, -scale, -topLeft.x() * scale, topLeft.y() * scale - top);
        QImage const first = coverage(layers.first, toSlice, size, cancelled);
        QImage const second = coverage(layers.second, toSlice, size, cancelled);
        if (first.isNull() || second.isNull()) {
            throw std::bad_alloc();
        }
        for (int y = 0; y < size.height() && !cancelled; ++y) {
            QRgb const * one = rowOf(first, y);
            QRgb const * other = rowOf(second, y);
            for (Pixel & pixel : row) {
                pixel = pixelOf(qAlpha(*one++), qAlpha(*other++));
            }
            difference.addRow(row);
        }
        percent = static_cast<int>(100LL * (top + size.height()) / height);
    }
    difference.finish();
    double const square = result.pixel * result.pixel;
    result.onlyFirst = static_cast<double>(difference.pixels(Pixel::OnlyFirst)) * square;
    result.onlySecond = static_cast<double>(difference.pixels(Pixel::OnlySecond)) * square;
    result.both = static_cast<double>(difference.pixels(Pixel::Both)) * square;
    result.firstRegions = difference.count(Pixel::OnlyFirst);
    result.secondRegions = difference.count(Pixel::OnlySecond);
    for (DifferingRegion const & region : difference.regions()) {
        result.regions.push_back(onBoard(region, result.pixel, topLeft));
    }
    return result;
}

QImage paintComparison(ComparedLayers const & layers, QTransform const & boardToPicture, QSize size,
                       std::atomic<bool> const & cancelled)
{
    QImage const first = coverage(layers.first, boardToPicture, size, cancelled);
    QImage const second = coverage(layers.second, boardToPicture, size, cancelled);
    QImage picture(size, QImage::Format_RGB32);
    if (first.isNull() || second.isNull() || picture.isNull() || cancelled) {
        return {};
    }
    for (int y = 0; y < size.height(); ++y) {
        auto * pixel = reinterpret_cast<QRgb *>(picture.scanLine(y));
        QRgb const * one = rowOf(first, y);
        QRgb const * other = rowOf(second, y);
        for (int x = 0; x < size.width(); ++x) {
            *pixel++ = mixed(qAlpha(*one++), qAlpha(*other++));
        }
    }
    return picture;
}

} // namespace Workbench
