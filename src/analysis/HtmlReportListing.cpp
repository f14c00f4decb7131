#include "analysis/HtmlReportParts.h"

#include <algorithm>
#include <cstddef>

namespace KVCAM::UIAPI::Ext::Html {
namespace {

// Worse first: by severity, then by the measured value in the sense of the levels, those without a value
// last; equal ones in the report's order.
class Worse
{
public:
    explicit Worse(ReportCategory const & category)
        : m_entries(category.entries)
        , m_sense(category.levels ? senseOf(*category.levels) : Sense::SmallerIsWorse)
    {}

    bool operator()(std::size_t left, std::size_t right) const
    {
        ReportEntry const & a = m_entries[left];
        ReportEntry const & b = m_entries[right];
        if (a.severity != b.severity) {
            return a.severity > b.severity;
        }
        if (a.measured.has_value() != b.measured.has_value()) {
            return a.measured.has_value();
        }
        if (a.measured && *a.measured != *b.measured) {
            return m_sense == Sense::SmallerIsWorse ? *a.measured < *b.measured : *b.measured < *a.measured;
        }
        return left < right;
    }

private:
    std::vector<ReportEntry> const & m_entries;
    Sense m_sense;
};

void keepWorst(std::vector<std::size_t> & entries, std::size_t most, Worse const & worse)
{
    auto const end = entries.begin() + static_cast<std::ptrdiff_t>(std::min(most, entries.size()));
    std::partial_sort(entries.begin(), end, entries.end(), worse);
    entries.erase(end, entries.end());
    entries.shrink_to_fit();
}

CheckListing listingOf(ReportCategory const & category, HtmlReportOptions const & options)
{
    CheckListing check;
    check.category = &category;
    std::vector<std::size_t> passing;
    for (std::size_t i = 0; i < category.entries.size(); ++i) {
        ReportEntry const & entry = category.entries[i];
        if (entry.waiver) {
            check.accepted.push_back(i);
        } else {
            (entry.severity == Severity::None ? passing : check.listed).push_back(i);
        }
    }
    check.waived = check.accepted.size();
    Worse const worse(category);
    keepWorst(passing, options.passingPerCheck, worse);
    keepWorst(check.accepted, options.listedPerCheck, worse);
    keepWorst(check.listed, options.listedPerCheck, worse);
    check.listed.insert(check.listed.end(), passing.begin(), passing.end());
    check.listed.resize(std::min(check.listed.size(), options.listedPerCheck));
    return check;
}

// The largest share that is not too much in all: a check with few rows leaves its room to the others.
std::size_t shareOf(std::vector<CheckListing> const & checks, std::size_t most)
{
    std::vector<std::size_t> sizes;
    sizes.reserve(checks.size());
    for (CheckListing const & check : checks) {
        sizes.push_back(check.listed.size());
    }
    std::sort(sizes.begin(), sizes.end());
    std::size_t room = most;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        std::size_t const share = room / (sizes.size() - i);
        if (sizes[i] > share) {
            return share;
        }
        room -= sizes[i];
    }
    return most;
}

} // namespace

Listing listingOf(AnalysisReport const & report, HtmlReportOptions const & options)
{
    Listing listing;
    for (ReportCategory const & category : report.categories()) {
        listing.checks.push_back(listingOf(category, options));
    }
    std::size_t const share = shareOf(listing.checks, options.listedInAll);
    for (CheckListing & check : listing.checks) {
        check.listed.resize(std::min(check.listed.size(), share));
        check.firstNumber = listing.listed + 1;
        listing.listed += check.listed.size();
        listing.entries += check.category->entries.size();
    }
    return listing;
}

} // namespace KVCAM::UIAPI::Ext::Html
