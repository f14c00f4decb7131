#include "job/ReportFormat.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <array>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

struct Ending
{
    char const * text;
    Ext::ReportFormat format;
};
constexpr std::array<Ending, 4> endings{{
    {"json", Ext::ReportFormat::Json},
    {"csv", Ext::ReportFormat::Csv},
    {"html", Ext::ReportFormat::Html},
    {"xml", Ext::ReportFormat::JUnit},
}};

} // namespace

std::optional<Ext::ReportFormat> reportFormat(QString const & path)
{
    QString const suffix = QFileInfo(path).suffix().toLower();
    auto const * const found = std::find_if(endings.begin(), endings.end(),
                                            [&](Ending const & each) { return suffix == each.text; });
    return found == endings.end() ? std::nullopt : std::optional(found->format);
}

QString reportEndings()
{
    QStringList texts;
    for (Ending const & each : endings) {
        texts.append(QString(".") + each.text);
    }
    return texts.join(", ");
}

} // namespace Workbench
