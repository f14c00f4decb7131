#pragma once

#include "analysis/HtmlReport.h"

#include <QByteArray>
#include <QString>
#include <QTranslator>

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

/// The parts of a report's HTML. They compose text; whatever is not fixed passes through escaped(). The
/// result is well-formed XML too: void elements are closed, attributes quoted.
namespace KVCAM::UIAPI::Ext::Html {

constexpr int longestName = 200;        ///< characters of a text of the board
constexpr int longestSentence = 8000;   ///< characters of a reason
constexpr std::size_t mostNotes = 1000; ///< things not checked that are listed

///@{
/// A text for the content of an element or a quoted attribute. See htmlReport() for what is shown otherwise.
QByteArray escaped(QString const & text, int longest = longestName);
QByteArray escaped(std::string const & text);
///@}
/// The same in an element of its own, so that a text from right to left leaves its surroundings in order.
QByteArray isolated(std::string const & text);
/// With commas between thousands.
QByteArray countText(std::size_t count);

/// The texts of a report in its language, escaped.
class Texts
{
public:
    explicit Texts(HtmlReportOptions const & options);

    /// A fixed sentence; `parts` take the places %1 to %9 and are escaped already.
    QByteArray operator()(char const * english, std::initializer_list<QByteArray> parts = {}) const;
    /// In words.
    QByteArray severity(Severity severity) const;
    /// Icon, letter and word.
    QByteArray sign(Severity severity) const;
    /// "3 mil (76.2 µm)" or the other way round; a dash for a level that is no number.
    QByteArray both(double value, Unit unit) const;
    QByteArray checkName(std::string const & name) const;
    QByteArray reason(std::string const & sentence) const;

    bool isChinese() const { return m_isChinese; }
    Unit first() const { return m_first; }
    Unit second() const { return m_first == Unit::Inch ? Unit::Millimetre : Unit::Inch; }

private:
    QTranslator m_catalogue;
    ReportTexts const & m_names;
    ReportTexts const & m_sentences;
    bool m_isChinese;
    Unit m_first;
};

/// "mil" or "µm".
QByteArray unitText(Unit unit);
/// In the small unit: micrometres exactly, mil with three decimals.
QByteArray lengthText(Length length, Unit unit);
/// The class of a severity in the style: "R", "Y", "G", "N".
char letterOf(Severity severity);

/// What is listed of one check.
struct CheckListing
{
    ReportCategory const * category = nullptr;
    std::size_t waived = 0;            ///< accepted by a waiver
    std::vector<std::size_t> listed;   ///< indices of entries, the worst first; none is waived
    std::vector<std::size_t> accepted; ///< those waived, in the same order
    std::size_t firstNumber = 0;       ///< of the first row; the rows of a report are counted from 1
};

/// What is listed of a report; in the order of its categories.
struct Listing
{
    std::vector<CheckListing> checks;
    std::size_t entries = 0; ///< all measurements
    std::size_t listed = 0;  ///< those listed
};
Listing listingOf(AnalysisReport const & report, HtmlReportOptions const & options);

/// What the sections are made of.
struct Page
{
    AnalysisReport const & report;
    HtmlReportOptions const & options;
    Texts const & text;
    Listing const & listing;
};

///@{
/// A section; empty if there is nothing to say.
QByteArray checksSection(Page const & page);
QByteArray waivedSection(Page const & page);
QByteArray comparisonSection(Page const & page);
QByteArray widthsSection(Page const & page);
QByteArray picturesSection(Page const & page);
///@}

///@{
/// The text of the one style element and of the one script element.
QByteArray const & style();
QByteArray const & script();
///@}
/// Allows nothing but these two and pictures within the file.
QByteArray contentPolicy();

} // namespace KVCAM::UIAPI::Ext::Html
