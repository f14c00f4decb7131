#include "ui/Legible.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace Workbench {

namespace {

constexpr double enough = 3;          // the library's severities have no more on white
constexpr double leastContrast = 4.5; // of what is changed

double luminance(QColor const & colour)
{
    auto const linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mixed(QColor const & a, QColor const & b, double part)
{
    auto const mix = [part](double from, double to) {
        return std::clamp(from + (to - from) * part, 0.0, 1.0);
    };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

} // namespace

double contrast(QColor const & a, QColor const & b)
{
    auto const [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

QColor legible(QColor colour, QColor const & background)
{
    if (contrast(colour, background) >= enough) {
        return colour;
    }
    bool const isDark = contrast(Qt::white, background) > contrast(Qt::black, background);
    QColor const end(isDark ? Qt::white : Qt::black);
    QColor shown = colour;
    for (int tenth = 1; tenth <= 10 && contrast(shown, background) < leastContrast; ++tenth) {
        shown = mixed(colour, end, tenth / 10.0);
    }
    return shown;
}

QColor legibleText(QColor const & colour)
{
    return legible(colour, QGuiApplication::palette().color(QPalette::Base));
}

QColor dimmedText()
{
    QPalette const palette = QGuiApplication::palette();
    return mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.4);
}

} // namespace Workbench
