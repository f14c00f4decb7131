#include "analysis/ViolationId.h"

#include "analysis/ReportFormats.h"
#include "support/Narrowing.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <functional>
#include <string_view>
#include <system_error>
#include <tuple>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr std::string_view hexDigits = "0123456789ABCDEF";
constexpr char const * nothing = "-";
constexpr char itemSeparator = '~'; // neither a cell nor a formula of a spreadsheet begins after it

bool isPlain(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '.' || c == '-';
}

void appendText(std::string & out, std::string const & text)
{
    if (text.empty()) {
        out += nothing;
    } else if (text == nothing) {
        out += "%2D";
    } else {
        for (char const c : text) {
            if (isPlain(c)) {
                out += c;
            } else {
                auto const byte = static_cast<unsigned char>(c);
                out += {'%', hexDigits[byte / 16], hexDigits[byte % 16]};
            }
        }
    }
}

// Accepts too much: whoever reads an id compares it with what would be written.
std::string textOf(std::string_view part)
{
    if (part == nothing) {
        return {};
    }
    std::string text;
    for (std::size_t i = 0; i < part.size(); ++i) {
        bool const isEncoded = part[i] == '%' && i + 2 < part.size();
        std::size_t const high = isEncoded ? hexDigits.find(part[i + 1]) : std::string_view::npos;
        std::size_t const low = isEncoded ? hexDigits.find(part[i + 2]) : std::string_view::npos;
        if (high != std::string_view::npos && low != std::string_view::npos) {
            text += static_cast<char>(high * 16 + low);
            i += 2;
        } else {
            text += part[i];
        }
    }
    return text;
}

std::optional<int> numberOf(std::string_view part)
{
    int number = 0;
    auto const [end, error] = std::from_chars(part.data(), part.data() + part.size(), number);
    bool const isWhole = error == std::errc() && end == part.data() + part.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

std::optional<std::vector<KVCAM::API::point>> placesOf(std::string_view part)
{
    std::vector<KVCAM::API::point> places;
    if (part == nothing) {
        return places;
    }
    for (std::string_view const place : split(part, itemSeparator)) {
        std::vector<std::string_view> const coordinates = split(place, ',');
        if (coordinates.size() != 2) {
            return std::nullopt;
        }
        auto const x = numberOf(coordinates[0]);
        auto const y = numberOf(coordinates[1]);
        if (!x || !y) {
            return std::nullopt;
        }
        places.push_back({static_cast<double>(*x), static_cast<double>(*y)});
    }
    return places;
}

// Makes the texts valid, the places whole micrometres, and puts the items in order.
void normalise(ViolationName & name)
{
    for (std::string * text : {&name.table, &name.layer, &name.nets[0], &name.nets[1]}) {
        if (!Formats::isAscii(*text)) {
            *text = Formats::utf8(*text).toStdString();
        }
    }
    for (KVCAM::API::point & place : name.places) {
        place = {static_cast<double>(saturatedInt(std::round(place.x))),
                 static_cast<double>(saturatedInt(std::round(place.y)))};
    }
    auto & [net, otherNet] = name.nets;
    bool const isOrderedByNet = !net.empty() && !otherNet.empty() && net != otherNet;
    bool const isNetAfter = std::pair(otherNet.empty(), otherNet) < std::pair(net.empty(), net);
    if (name.places.size() == 2) {
        auto const key = [&](std::size_t i) { return std::pair(name.places[i].x, name.places[i].y); };
        if (isOrderedByNet ? isNetAfter : key(1) < key(0)) {
            std::swap(name.places[0], name.places[1]);
        }
    }
    if (isNetAfter) {
        std::swap(net, otherNet);
    }
}

std::string textOfNormalised(ViolationName const & name)
{
    std::string out;
    appendText(out, name.table);
    out += '/' + std::to_string(name.number) + '/';
    appendText(out, name.layer);
    char separator = '/';
    for (KVCAM::API::point const & place : name.places) {
        out +=
            separator + std::to_string(saturatedInt(place.x)) + ',' + std::to_string(saturatedInt(place.y));
        separator = itemSeparator;
    }
    out += name.places.empty() ? "/-/" : "/";
    appendText(out, name.nets[0]);
    if (!name.nets[1].empty()) {
        out += itemSeparator;
        appendText(out, name.nets[1]);
    }
    return name.copy == 1 ? out : out + '#' + std::to_string(name.copy);
}

bool isSamePlace(ViolationName const & a, ViolationName const & b, bool isCrossed, double tolerance)
{
    std::size_t const count = a.places.size();
    for (std::size_t i = 0; i < count; ++i) {
        KVCAM::API::point const & from = a.places[i];
        KVCAM::API::point const & to = b.places[isCrossed && count == 2 ? 1 - i : i];
        if (!(std::hypot(from.x - to.x, from.y - to.y) <= tolerance)) {
            return false;
        }
    }
    return true;
}

} // namespace

namespace Formats {

std::vector<int> copyNumbers(ReportCategory const & category)
{
    // Few entries are named alike: their texts are only made again for those with equal hashes.
    using Hashed = std::pair<std::size_t, std::size_t>; // hash and entry
    std::vector<Hashed> order;
    order.reserve(category.entries.size());
    for (ReportEntry const & entry : category.entries) {
        order.emplace_back(std::hash<std::string>()(violationId(category, entry)), order.size());
    }
    std::sort(order.begin(), order.end());
    std::vector<int> copies(order.size(), 1);
    for (auto first = order.begin(); first != order.end();) {
        auto const end =
            std::find_if(first, order.end(), [&](Hashed const & each) { return each.first != first->first; });
        if (end - first > 1) {
            using Named = std::tuple<std::string, std::optional<Length>, int, int, std::size_t>;
            std::vector<Named> alike;
            for (; first != end; ++first) {
                ReportEntry const & entry = category.entries[first->second];
                alike.emplace_back(violationId(category, entry), entry.measured, entry.value, entry.level,
                                   first->second);
            }
            std::sort(alike.begin(), alike.end());
            for (std::size_t i = 1; i < alike.size(); ++i) {
                bool const isCopy = std::get<0>(alike[i]) == std::get<0>(alike[i - 1]);
                copies[std::get<4>(alike[i])] = isCopy ? copies[std::get<4>(alike[i - 1])] + 1 : 1;
            }
        }
        first = end;
    }
    return copies;
}

std::string copyId(ReportCategory const & category, ReportEntry const & entry, int copy)
{
    ViolationName name = violationName(category, entry);
    name.copy = copy;
    return textOfNormalised(name);
}

} // namespace Formats

ViolationName violationName(ReportCategory const & category, ReportEntry const & entry)
{
    ViolationName name{category.table, category.number, entry.layer, entry.places, entry.nets, 1};
    normalise(name);
    return name;
}

std::string violationId(ViolationName const & name)
{
    ViolationName ordered = name;
    normalise(ordered);
    return textOfNormalised(ordered);
}

std::string violationId(ReportCategory const & category, ReportEntry const & entry)
{
    return textOfNormalised(violationName(category, entry));
}

std::vector<std::string> violationIds(ReportCategory const & category)
{
    std::vector<int> const copies = Formats::copyNumbers(category);
    std::vector<std::string> ids;
    ids.reserve(copies.size());
    for (ReportEntry const & entry : category.entries) {
        ids.push_back(Formats::copyId(category, entry, copies[ids.size()]));
    }
    return ids;
}

std::optional<ViolationName> parseViolationId(std::string const & id)
{
    constexpr std::size_t partCount = 5;
    std::vector<std::string_view> const copyParts = split(id, '#');
    std::vector<std::string_view> const parts = split(copyParts[0], '/');
    if (parts.size() != partCount || copyParts.size() > 2) {
        return std::nullopt;
    }
    auto const number = numberOf(parts[1]);
    auto places = placesOf(parts[3]);
    auto const copy = copyParts.size() == 2 ? numberOf(copyParts[1]) : std::optional(1);
    std::vector<std::string_view> const nets = split(parts[4], itemSeparator);
    if (!number || !places || !copy || *copy < 1 || nets.size() > 2) {
        return std::nullopt;
    }
    ViolationName name{textOf(parts[0]),
                       *number,
                       textOf(parts[2]),
                       std::move(*places),
                       {textOf(nets[0]), nets.size() == 2 ? textOf(nets[1]) : std::string()},
                       *copy};
    normalise(name);
    return textOfNormalised(name) == id ? std::optional(std::move(name)) : std::nullopt;
}

bool isSameViolation(ViolationName const & a, ViolationName const & b, Length tolerance)
{
    if (std::tie(a.table, a.number, a.layer) != std::tie(b.table, b.number, b.layer) ||
        a.places.size() != b.places.size()) {
        return false;
    }
    double const limit = tolerance.toMicrometres();
    bool const isStraight = a.nets == b.nets;
    bool const isCrossed = a.nets[0] == b.nets[1] && a.nets[1] == b.nets[0];
    bool const isEither =
        (isStraight || isCrossed) && (a.nets[0].empty() || a.nets[1].empty() || a.nets[0] == a.nets[1]);
    return ((isStraight || isEither) && isSamePlace(a, b, false, limit)) ||
           ((isCrossed || isEither) && isSamePlace(a, b, true, limit));
}

} // namespace KVCAM::UIAPI::Ext
