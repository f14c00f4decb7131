#pragma once

#include "analysis/ReportFormats.h"

#include <QByteArray>

#include <optional>
#include <string>
#include <vector>

/// What reports and comparisons have in common as JSON.
namespace KVCAM::UIAPI::Ext::Formats {

/// The text in quotation marks, escaped. Invalid UTF-8 becomes replacement characters.
QByteArray quoted(std::string const & text);
/// null if there is none or it is not finite.
QByteArray jsonNumber(std::optional<double> value);
/// An object with a member for each severity.
QByteArray jsonCounts(SeverityCounts const & counts);
/// Appends the places as objects, separated by commas.
void appendPlaces(QByteArray & out, std::vector<KVCAM::API::point> const & places);
/// null for an unknown net.
QByteArray jsonNet(std::string const & net);

/// Appends `[`, one line per element and `]`.
template <class Elements, class Append>
void appendJsonArray(QByteArray & out, QByteArray const & indentation, Elements const & elements,
                     Append appendElement)
{
    char const * separator = "\n";
    out += '[';
    for (auto const & element : elements) {
        out += separator + indentation + "  ";
        appendElement(element);
        separator = ",\n";
    }
    out += (elements.empty() ? QByteArray() : "\n" + indentation) + ']';
}

} // namespace KVCAM::UIAPI::Ext::Formats
