#pragma once

#include "../support/Result.h"
#include "../units/Unit.h"
#include "AnalysisReport.h"
#include "UIAPICommonExport.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

struct ReportComparison;

/// The language of a report's fixed sentences, whatever language the program shows.
enum class ReportLanguage : int
{
    English,
    SimplifiedChinese
};

/// What a layer looks like. The host paints it; the report puts the marks of the violations on it.
struct LayerPicture
{
    std::string layer;    ///< name, UTF-8
    std::string mimeType; ///< "image/png", "image/jpeg", "image/webp" or "image/svg+xml"
    QByteArray bytes;     ///< of the image file
    double left = 0;      ///< micrometres: what the image shows from edge to edge, y upwards
    double bottom = 0;    ///< micrometres
    double right = 0;     ///< micrometres
    double top = 0;       ///< micrometres
};

/// Gives a name or a sentence of the report, UTF-8, in the report's language.
using ReportTexts = std::function<QString(std::string const & english)>;

/// How a report is written as HTML.
struct HtmlReportOptions
{
    ReportLanguage language = ReportLanguage::English; ///< of the fixed sentences
    Unit firstUnit = Unit::Inch;        ///< each length is given in both units, in this one first
    std::vector<LayerPicture> pictures; ///< shown in this order; of another type or without an area: left out
    std::vector<std::string> copperLayers; ///< those measured, in the chart of track widths also without a
                                           ///< track; others follow by name
    std::size_t listedPerCheck = 500;      ///< the worst measurements of a check that are listed
    std::size_t listedInAll = 2000;        ///< of all checks together; each gets an equal share
    std::size_t passingPerCheck = 5;       ///< of those listed, how many may have no severity
    ReportComparison const * comparison = nullptr; ///< with an earlier report, shown if there is one
    QString dataFile;       ///< name of the file with all measurements, for the reader; empty: not known
    ReportTexts checkNames; ///< of the checks; as they are until set
    ReportTexts sentences;  ///< why something was not checked; as they are until set
};

/// The report as one HTML file that needs nothing else: no network, no other file, and scripts only to sort
/// and to filter. Its content policy allows exactly its own style and script. Texts of the board are shown as
/// text whatever they contain; what cannot be seen, such as a control character or a change of the direction
/// of writing, is shown as its code "[U+202E]", and texts beyond 200 characters are cut. The worst
/// measurements are listed, the others counted.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT QByteArray htmlReport(AnalysisReport const & report,
                                                       HtmlReportOptions const & options);

/// Writes htmlReport() to a file, as writeReport() does.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT Result writeHtmlReport(AnalysisReport const & report,
                                                        HtmlReportOptions const & options,
                                                        QString const & path);

} // namespace KVCAM::UIAPI::Ext
