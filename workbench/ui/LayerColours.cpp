#include "ui/LayerColours.h"

#include <glog/logging.h>

#include <QSettings>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <utility>

namespace Workbench {

namespace {

using KVCAM::API::layer_info;

constexpr double different = 90; // the least distance at which a wish is granted
constexpr char const * group = "layer-colours";

// The colour that a layer would like, by type and for copper by row; and who chooses first.
struct Preference
{
    QRgb colour;
    int rank;
};

Preference preferenceOf(layer_info const & layer)
{
    static constexpr QRgb copper[] = {0xffb5582a, 0xff2563a8, 0xff8c4a86, 0xff3f7d20,
                                      0xffb03060, 0xff0f7c80, 0xff8a6d1b};
    static constexpr std::pair<char const *, QRgb> colours[] = {
        {"solder_mask", 0xff2e7d4f}, {"solder_paste", 0xff6b7280}, {"silk_screen", 0xff3f51b5},
        {"drill", 0xff1f2937},       {"rout", 0xff5b1f1f},
    };
    if (hasCopperType(layer)) {
        return {copper[static_cast<unsigned>(layer.row) % std::size(copper)], 0};
    }
    for (auto const & [type, colour] : colours) {
        if (layer.type == type) {
            return {colour, 1};
        }
    }
    return {0xff44617b, 2};
}

// Colours to choose from, none lighter than medium.
std::vector<QRgb> palette()
{
    static constexpr std::pair<int, int> shades[] = {{230, 100}, {255, 70}, {130, 120}, {110, 75}, {200, 40}};
    constexpr int hueStep = 15;
    std::vector<QRgb> colours;
    for (auto const & [saturation, lightness] : shades) {
        for (int hue = 0; hue < 360; hue += hueStep) {
            colours.push_back(QColor::fromHsl(hue, saturation, lightness).rgb());
        }
    }
    return colours;
}

// Gives out colours and remembers how far those of the palette are from all that were given.
class Giver
{
public:
    void give(QRgb colour)
    {
        m_given.insert(colour);
        for (std::size_t i = 0; i < m_palette.size(); ++i) {
            m_distance[i] = std::min(m_distance[i], colourDistance(m_palette[i], colour));
        }
    }
    bool isDifferent(QRgb colour) const
    {
        return std::all_of(m_given.begin(), m_given.end(),
                           [colour](QRgb given) { return colourDistance(given, colour) >= different; });
    }
    QRgb mostDifferent()
    {
        auto const best = std::max_element(m_distance.begin(), m_distance.end());
        QRgb colour = m_palette[static_cast<std::size_t>(best - m_distance.begin())];
        while (m_given.count(colour) != 0) { // the palette is used up: walk through all dark colours
            unsigned const bits = ++m_walked * 0x9e375U;
            colour = qRgb(int(bits & 127U), int(bits >> 7U & 127U), int(bits >> 14U & 127U));
        }
        return colour;
    }

private:
    std::vector<QRgb> m_palette = palette();
    std::vector<double> m_distance = std::vector<double>(m_palette.size(), 1e9);
    std::set<QRgb> m_given;
    unsigned m_walked = 0; // times an odd number, so that every colour comes once
};

QString keyOf(std::string const & layer)
{
    return QString(group) + '/' + QUrl::toPercentEncoding(QString::fromStdString(layer));
}

} // namespace

bool hasCopperType(layer_info const & layer)
{
    return layer.type == "signal" || layer.type == "power_ground" || layer.type == "mixed";
}

double colourDistance(QRgb a, QRgb b)
{
    double const red = (qRed(a) + qRed(b)) / 2.0; // the eye's sensitivities depend on it
    auto const square = [](int x, int y) { return double(x - y) * (x - y); };
    return std::sqrt((2 + red / 256) * square(qRed(a), qRed(b)) + 4 * square(qGreen(a), qGreen(b)) +
                     (2 + (255 - red) / 256) * square(qBlue(a), qBlue(b)));
}

std::vector<QRgb> distinctColours(std::vector<ColourWish> const & wishes)
{
    Giver giver;
    for (ColourWish const & wish : wishes) {
        if (wish.isFixed) {
            giver.give(wish.colour);
        }
    }
    std::vector<QRgb> colours;
    for (ColourWish const & wish : wishes) {
        bool const isGranted = wish.isFixed || giver.isDifferent(wish.colour);
        colours.push_back(isGranted ? wish.colour : giver.mostDifferent());
        giver.give(colours.back());
    }
    return colours;
}

// Never destroyed: the thread that paints may outlive static objects.
LayerColours & LayerColours::shown()
{
    static auto * const colours = new LayerColours;
    return *colours;
}

void LayerColours::setLayers(std::vector<layer_info> layers)
{
    m_layers = std::move(layers);
    assign();
}

void LayerColours::useFile(QString const & file)
{
    m_file = file;
    m_chosen.clear();
    QSettings settings(file, QSettings::IniFormat);
    settings.beginGroup(group);
    for (QString const & key : settings.childKeys()) {
        QColor const colour(settings.value(key).toString());
        if (colour.isValid()) {
            m_chosen[QUrl::fromPercentEncoding(key.toLatin1()).toStdString()] = colour.rgb();
        }
    }
    assign();
}

void LayerColours::choose(std::string const & layer, QColor const & colour)
{
    if (colour.isValid()) {
        m_chosen[layer] = colour.rgb();
    } else {
        m_chosen.erase(layer);
    }
    assign();
    if (m_file.isEmpty()) {
        return;
    }
    QSettings settings(m_file, QSettings::IniFormat);
    if (colour.isValid()) {
        settings.setValue(keyOf(layer), colour.name());
    } else {
        settings.remove(keyOf(layer));
    }
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        LOG(ERROR) << "workbench: the colours cannot be written to " << m_file.toStdString();
    }
}

void LayerColours::assign()
{
    std::vector<layer_info> layers = m_layers;
    std::stable_sort(layers.begin(), layers.end(), [](layer_info const & a, layer_info const & b) {
        return preferenceOf(a).rank < preferenceOf(b).rank;
    });
    std::vector<ColourWish> wishes;
    for (layer_info const & layer : layers) {
        auto const chosen = m_chosen.find(layer.name);
        bool const isChosen = chosen != m_chosen.end();
        wishes.push_back({isChosen ? chosen->second : preferenceOf(layer).colour, isChosen});
    }
    std::vector<QRgb> const colours = distinctColours(wishes);
    std::lock_guard<std::mutex> const lock(m_mutex);
    m_colours.clear();
    for (std::size_t i = 0; i < colours.size(); ++i) {
        m_colours[layers[i].name] = colours[i];
    }
}

QColor LayerColours::of(layer_info const & layer) const
{
    std::lock_guard<std::mutex> const lock(m_mutex);
    auto const known = m_colours.find(layer.name);
    return QColor(known != m_colours.end() ? known->second : preferenceOf(layer).colour);
}

} // namespace Workbench
