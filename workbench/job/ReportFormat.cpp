#include "job/ReportFormat.h"

#include <QFileInfo>

namespace Workbench {

using namespace KVCAM::UIAPI;

std::optional<Ext::ReportFormat> reportFormat(QString const & path)
{
    QString const suffix = QFileInfo(path).suffix().toLower();
    if (suffix == "json") {
        return Ext::ReportFormat::Json;
    }
    if (suffix == "html") {
        return Ext::ReportFormat::Html;
    }
    return suffix == "csv" ? std::optional(Ext::ReportFormat::Csv) : std::nullopt;
}

} // namespace Workbench
