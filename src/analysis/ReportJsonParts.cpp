#include "analysis/ReportJsonParts.h"

namespace KVCAM::UIAPI::Ext::Formats {
namespace {

void appendQuoted(QByteArray & out, QByteArray const & text)
{
    out += '"';
    for (char const c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            out += "\\u" + QByteArray::number(static_cast<int>(c), 16).rightJustified(4, '0');
        } else {
            out += c;
        }
    }
    out += '"';
}

} // namespace

QByteArray quoted(std::string const & text)
{
    QByteArray out;
    appendQuoted(out, utf8(text));
    return out;
}

QByteArray jsonNumber(std::optional<double> value)
{
    QByteArray const text = numberText(value);
    return text.isEmpty() ? QByteArray("null") : text;
}

QByteArray jsonCounts(SeverityCounts const & counts)
{
    QByteArray out;
    for (SeverityMark const & mark : severityPalette) {
        out += out.isEmpty() ? "{\"" : ", \"";
        out += mark.name + QByteArray("\": ") +
               QByteArray::number(static_cast<qulonglong>(counts[static_cast<std::size_t>(mark.severity)]));
    }
    return out + '}';
}

void appendPlaces(QByteArray & out, std::vector<KVCAM::API::point> const & places)
{
    char const * separator = "";
    for (KVCAM::API::point const & place : places) {
        out += separator + ("{\"x_um\": " + jsonNumber(place.x)) + ", \"y_um\": " + jsonNumber(place.y) + '}';
        separator = ", ";
    }
}

QByteArray jsonNet(std::string const & net)
{
    return net.empty() ? "null" : quoted(net);
}

} // namespace KVCAM::UIAPI::Ext::Formats
