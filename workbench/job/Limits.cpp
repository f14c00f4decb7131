#include "job/Limits.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace Workbench {
namespace {

using KVCAM::Embedded::JobLimits;

struct Limit
{
    char const * name;
    long long JobLimits::*value;
};
constexpr std::array<Limit, 12> limits{{
    {"steps", &JobLimits::steps},
    {"layers", &JobLimits::layers},
    {"symbols", &JobLimits::symbols},
    {"points", &JobLimits::points},
    {"profilePoints", &JobLimits::profilePoints},
    {"fileBytes", &JobLimits::fileBytes},
    {"bytes", &JobLimits::bytes},
    {"archiveBytes", &JobLimits::archiveBytes},
    {"archiveEntries", &JobLimits::archiveEntries},
    {"archiveDepth", &JobLimits::archiveDepth},
    {"archiveRatio", &JobLimits::archiveRatio},
    {"seconds", &JobLimits::seconds},
}};

} // namespace

QString setLimit(JobLimits & values, QString const & text)
{
    QString const name = text.section('=', 0, 0).trimmed();
    auto const * const found =
        std::find_if(limits.begin(), limits.end(), [&name](Limit const & each) { return name == each.name; });
    if (found == limits.end()) {
        return "there is no limit \"" + name + "\", only " + limitNames();
    }
    bool isNumber = false;
    long long const value = text.section('=', 1).trimmed().toLongLong(&isNumber);
    if (!isNumber || value < 0) {
        return "a limit is given as NAME=NUMBER, not \"" + text + '"';
    }
    values.*found->value = value;
    return {};
}

QString limitNames()
{
    QStringList names;
    for (Limit const & each : limits) {
        names.append(QString("%1=%2").arg(each.name).arg(JobLimits().*each.value));
    }
    return names.join(", ");
}

} // namespace Workbench
