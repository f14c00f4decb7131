#include "checks/ReportPictures.h"

#include "board/BoardPicture.h"
#include "board/LayerShapes.h"
#include "board/PanelSteps.h"
#include "board/ViewPort.h"

#include <EmbeddedEngine.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImageWriter>
#include <QRectF>
#include <QSize>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr std::size_t mostPictures = 64;
constexpr int pictureWidth = 1000; // pixels
constexpr int leastHeight = 200;   // pixels
constexpr int mostHeight = 1400;   // pixels: a page
constexpr int paletteSize = 256;

// The picture with the colours of a palette, with `bits` of each channel; nothing if these are too many.
std::optional<QImage> inPalette(QImage const & picture, int bits)
{
    unsigned const mask = 0xffU << (8 - bits) & 0xffU;
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    std::map<QRgb, int> known;
    QVector<QRgb> palette;
    for (int y = 0; y < picture.height(); ++y) {
        auto const * from = reinterpret_cast<QRgb const *>(picture.constScanLine(y));
        uchar * to = indexed.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            // Rounding keeps black and white as they are.
            auto const rounded = [mask, bits](int channel) {
                int const kept = static_cast<int>(static_cast<unsigned>(channel) & mask);
                return kept | kept >> bits;
            };
            QRgb const colour =
                qRgb(rounded(qRed(from[x])), rounded(qGreen(from[x])), rounded(qBlue(from[x])));
            auto const [entry, isNew] = known.try_emplace(colour, palette.size());
            if (isNew) {
                if (palette.size() == paletteSize) {
                    return std::nullopt;
                }
                palette.append(colour);
            }
            to[x] = static_cast<uchar>(entry->second);
        }
    }
    indexed.setColorTable(palette);
    return indexed;
}

// As the board view shows it when it opens: the profile, else what the step repeats, else the features.
QRectF boardExtent(std::string const & job, std::string const & step, QPainterPath const & profile,
                   LayerShapes const & layer)
{
    QRectF extent = profile.boundingRect();
    if (KVCAM::Embedded::Box box; extent.isEmpty() && KVCAM::Embedded::profileBox(job, step, box)) {
        extent = QRectF(QPointF(box.left, box.bottom), QPointF(box.right, box.top));
    }
    return extent.isEmpty() ? layer.extent() : extent;
}

ViewPort portFor(QRectF const & extent)
{
    double const height =
        extent.width() > 0 ? std::ceil(pictureWidth * extent.height() / extent.width()) : mostHeight;
    ViewPort port;
    port.setSize(QSize(pictureWidth, static_cast<int>(std::clamp<double>(height, leastHeight, mostHeight))));
    port.setExtent(extent);
    return port;
}

} // namespace

QByteArray smallPng(QImage const & picture)
{
    QImage const exact = picture.convertToFormat(QImage::Format_RGB32);
    QImage small = exact;
    for (int bits = 8; bits > 1; --bits) {
        if (auto indexed = inPalette(exact, bits)) {
            small = std::move(*indexed);
            break;
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "png");
    writer.setCompression(100);
    return writer.write(small) ? bytes : QByteArray();
}

std::vector<Ext::LayerPicture> reportPictures(Session const & session, std::string const & step,
                                              std::set<std::string> const & layers)
{
    std::vector<Ext::LayerPicture> pictures;
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr) {
        return pictures;
    }
    QPainterPath const profile = profilePath(session.job(), step);
    PanelSteps panel(session.job(), step);
    for (Session::Layer const & layer : session.layers()) {
        if (layers.count(layer.info.name) == 0 || pictures.size() == mostPictures) {
            continue;
        }
        auto const shapes = std::make_shared<LayerShapes const>(session.job(), step, layer.info);
        ViewPort const port = portFor(boardExtent(session.job(), step, profile, *shapes));
        if (port.scale() <= 0) {
            continue;
        }
        PictureTask task;
        task.size = port.size().toSize();
        task.boardToWidget = port.boardToWidget();
        task.profile = profile;
        task.repeats = panel.outlines();
        task.layers = {panel.shapes(layer.info)};
        task.layers.back().push_back({shapes, {}});
        std::atomic<bool> const cancelled{false};
        QRectF const visible = port.visible();
        pictures.push_back({layer.info.name, "image/png", smallPng(paintPicture(task, cancelled)),
                            visible.left(), visible.top(), visible.right(), visible.bottom()});
        panel.keep({});
    }
    return pictures;
}

} // namespace Workbench
