#pragma once

#include "analysis/HtmlReportParts.h"

#include <optional>

/// The cells of a report's tables.
namespace KVCAM::UIAPI::Ext::Html {

/// From the start of a table to that of its body, in an element that scrolls; `heads` are its head cells.
QByteArray tableStart(QByteArray const & heads);
QByteArray tableEnd();

/// A head cell; `kind` tells how its column is sorted: 'n' by number, 't' as text, 's' by severity, 0 not.
QByteArray head(QByteArray const & title, char kind, char const * classes = "");
/// Of a length's two columns.
QByteArray lengthHeads(Texts const & text, QByteArray const & title);
///@{
/// What all tables of measurements have: severity, measured value, limit, layer, place, nets.
QByteArray measurementHeads(Texts const & text);
QByteArray measurementCells(Page const & page, ReportCategory const & category, ReportEntry const & entry);
///@}

/// Up to its attributes, with the class of the severity.
QByteArray rowStart(Severity severity);
/// The two cells of a length; a dash where there is none.
QByteArray lengthCells(Texts const & text, std::optional<Length> length);
/// The content of a cell: in both units, one above the other.
QByteArray placeCell(Texts const & text, std::optional<KVCAM::API::point> const & place);
/// The content of a cell; one net only once.
QByteArray netsCell(EntryNets const & nets);
/// The content of a cell. Ids are long and for copying only, so they are folded.
QByteArray idCell(Texts const & text, std::string const & id);

/// Says how many measurements are counted only, and where they are; empty if none.
QByteArray leftOutNote(Page const & page, std::size_t count);

} // namespace KVCAM::UIAPI::Ext::Html
