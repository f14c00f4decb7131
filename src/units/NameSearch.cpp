#include "units/NameSearch.h"

#include "support/NumberRuns.h"

#include <QRegExp>

#include <algorithm>
#include <array>
#include <iterator>

namespace KVCAM::UIAPI::NameSearch {
namespace {

constexpr QLatin1Char anyText('*');

bool isAllowed(QChar c)
{
    static constexpr std::array marks{'_', '.', '/', '*'};
    bool const isLetter =
        (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
    return isLetter || isAsciiDigit(c) ||
           std::any_of(marks.begin(), marks.end(), [c](char mark) { return c == QLatin1Char(mark); });
}

// "**" is equivalent to "*", but each star costs the matcher a state.
QString withoutStarRuns(QString pattern)
{
    auto const bothStars = [](QChar a, QChar b) { return a == anyText && b == anyText; };
    auto const end = std::unique(pattern.begin(), pattern.end(), bothStars);
    pattern.truncate(static_cast<int>(end - pattern.begin()));
    return pattern;
}

} // namespace

bool isPattern(QStringView pattern)
{
    return !pattern.isEmpty() && std::all_of(pattern.begin(), pattern.end(), isAllowed);
}

QList<QString> matches(QList<QString> const & items, QString const & pattern)
{
    QRegExp const wildcard(withoutStarRuns(pattern), Qt::CaseInsensitive, QRegExp::Wildcard);
    QList<QString> found;
    std::copy_if(items.begin(), items.end(), std::back_inserter(found),
                 [&](QString const & item) { return wildcard.exactMatch(item); });
    return found;
}

} // namespace KVCAM::UIAPI::NameSearch
