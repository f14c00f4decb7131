#include "analysis/ReportFormats.h"

#include <QStringList>
#include <QXmlStreamWriter>

#include <algorithm>
#include <map>
#include <utility>

namespace KVCAM::UIAPI::Ext::Formats {
namespace {

constexpr std::size_t listedViolations = 20;

/// What a build server shows as one line.
struct Case
{
    QString name;
    std::vector<ReportEntry const *> violations; ///< as bad as what fails, or worse
    std::size_t waived = 0;
    QString reason; ///< why it was not checked
};

/// The cases of one table, in the order in which they were met.
struct Class
{
    QString name;
    ReportCategory const * category = nullptr; ///< null for what was not checked
    std::vector<Case> cases;
};

// XML 1.0 has no way to write other characters.
QString xmlText(std::string const & text)
{
    QString out = QString::fromStdString(text);
    auto const isForbidden = [](QChar c) {
        bool const isControl = c < QChar(0x20) && c != '\t' && c != '\n' && c != '\r';
        return isControl || c == QChar(0xFFFE) || c == QChar(0xFFFF);
    };
    auto * const end = std::remove_if(out.begin(), out.end(), isForbidden);
    out.truncate(static_cast<int>(end - out.begin()));
    return out;
}

QString className(AnalysisReport const & report, std::string const & table)
{
    return xmlText(report.job() + '.' + report.step() + '.' + table);
}

Class classOf(AnalysisReport const & report, ReportCategory const & category, Severity failFrom)
{
    Class made{className(report, category.table), &category, {}};
    std::map<std::string, Case> byLayer;
    for (ReportEntry const & entry : category.entries) {
        Case & target = byLayer[entry.layer];
        if (isViolation(entry, failFrom)) {
            target.violations.push_back(&entry);
        }
        target.waived += entry.waiver ? 1 : 0;
    }
    for (auto & [layer, each] : byLayer) {
        each.name = xmlText(layer.empty() ? category.name : category.name + ", " + layer);
        made.cases.push_back(std::move(each));
    }
    if (made.cases.empty()) { // run, and nothing found
        made.cases.push_back({xmlText(category.name), {}, 0, {}});
    }
    return made;
}

// The reasons of one name are one case: servers take cases of one name for one.
std::vector<Class> unchecked(AnalysisReport const & report)
{
    std::vector<Class> classes;
    for (NotChecked const & check : report.notChecked()) {
        QString const table = className(report, check.table);
        QString const name = xmlText(check.name) + QStringLiteral(" (not checked)");
        auto const named = [](QString const & wanted) {
            return [&wanted](auto const & each) { return each.name == wanted; };
        };
        auto target = std::find_if(classes.begin(), classes.end(), named(table));
        if (target == classes.end()) {
            target = classes.insert(target, Class{table, nullptr, {}});
        }
        auto & cases = target->cases;
        auto each = std::find_if(cases.begin(), cases.end(), named(name));
        if (each == cases.end()) {
            each = cases.insert(each, Case{name, {}, 0, {}});
        }
        each->reason += (each->reason.isEmpty() ? QString() : QStringLiteral(" ")) + xmlText(check.reason);
    }
    return classes;
}

QString number(std::optional<double> value)
{
    return QString::fromLatin1(numberText(value));
}

QString lengthText(ReportEntry const & entry, Unit unit)
{
    return number(inUnit(entry.measured, unit)) + QLatin1Char(' ') + QLatin1String(smallUnitName(unit));
}

QString lineOf(ReportCategory const & category, ReportEntry const & entry, Unit unit)
{
    Unit const other = unit == Unit::Inch ? Unit::Millimetre : Unit::Inch;
    QString line = QStringLiteral("%1: %2 (%3), limit %4 %5")
                       .arg(QLatin1String(markOf(entry.severity).name), lengthText(entry, unit),
                            lengthText(entry, other), number(limitOf(category, entry)),
                            QLatin1String(smallUnitName(unit)));
    if (entry.position) {
        line += QStringLiteral(", at %1, %2 um").arg(number(entry.position->x), number(entry.position->y));
    }
    return line + QLatin1Char('\n');
}

void writeFailure(QXmlStreamWriter & xml, Case & each, ReportCategory const & category, Unit unit)
{
    bool const isLargeBad = category.levels && senseOf(*category.levels) == Sense::LargerIsWorse;
    auto const isWorse = [isLargeBad](ReportEntry const * a, ReportEntry const * b) {
        if (a->severity != b->severity) {
            return a->severity > b->severity;
        }
        return isLargeBad ? *b->measured < *a->measured : *a->measured < *b->measured; // graded: measured
    };
    std::vector<ReportEntry const *> & all = each.violations;
    std::size_t const listed = std::min(all.size(), listedViolations);
    std::partial_sort(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(listed), all.end(), isWorse);
    QString text;
    for (std::size_t i = 0; i < listed; ++i) {
        text += lineOf(category, *all[i], unit);
    }
    if (listed < all.size()) {
        text += QStringLiteral("and %1 more\n").arg(all.size() - listed);
    }
    QString const worst = lineOf(category, *all.front(), unit).trimmed();
    xml.writeStartElement(QStringLiteral("failure"));
    xml.writeAttribute(QStringLiteral("type"), QLatin1String(markOf(all.front()->severity).name));
    xml.writeAttribute(QStringLiteral("message"),
                       QStringLiteral("%1 violation(s), the worst %2").arg(all.size()).arg(worst));
    xml.writeCharacters(text);
    xml.writeEndElement();
}

void writeCase(QXmlStreamWriter & xml, Class const & group, Case & each, Unit unit)
{
    xml.writeStartElement(QStringLiteral("testcase"));
    xml.writeAttribute(QStringLiteral("classname"), group.name);
    xml.writeAttribute(QStringLiteral("name"), each.name);
    xml.writeAttribute(QStringLiteral("time"), QStringLiteral("0"));
    if (group.category == nullptr) {
        xml.writeEmptyElement(QStringLiteral("skipped"));
        xml.writeAttribute(QStringLiteral("message"), each.reason);
    } else if (!each.violations.empty()) {
        writeFailure(xml, each, *group.category, unit);
    }
    if (each.waived != 0) {
        xml.writeTextElement(QStringLiteral("system-out"), QStringLiteral("%1 waived").arg(each.waived));
    }
    xml.writeEndElement();
}

} // namespace

QByteArray junit(AnalysisReport const & report, Severity failFrom)
{
    std::vector<Class> classes;
    for (ReportCategory const & category : report.categories()) {
        classes.push_back(classOf(report, category, failFrom));
    }
    std::size_t skipped = 0;
    for (Class & group : unchecked(report)) {
        skipped += group.cases.size();
        classes.push_back(std::move(group));
    }
    std::size_t cases = 0;
    std::size_t failures = 0;
    for (Class const & group : classes) {
        cases += group.cases.size();
        failures += static_cast<std::size_t>(
            std::count_if(group.cases.begin(), group.cases.end(),
                          [](Case const & each) { return !each.violations.empty(); }));
    }
    QByteArray out;
    QXmlStreamWriter xml(&out);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("testsuites"));
    xml.writeStartElement(QStringLiteral("testsuite"));
    xml.writeAttribute(QStringLiteral("name"), xmlText(report.job() + '/' + report.step()));
    for (auto const & [name, count] : {std::pair("tests", cases),
                                       {"failures", failures},
                                       {"errors", std::size_t{0}},
                                       {"skipped", skipped}}) {
        xml.writeAttribute(QLatin1String(name), QString::number(count));
    }
    for (Class & group : classes) {
        for (Case & each : group.cases) {
            writeCase(xml, group, each, report.levelUnit());
        }
    }
    xml.writeEndDocument();
    return out;
}

} // namespace KVCAM::UIAPI::Ext::Formats
