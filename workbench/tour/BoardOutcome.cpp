#include "tour/BoardOutcome.h"

#include "checks/AnalysisRun.h"
#include "tour/Terminal.h"

#include <QJsonArray>

#include <algorithm>
#include <array>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

/// A column with a number.
struct Column
{
    char const * name;
    QString (*text)(BoardOutcome const & outcome); ///< of a board that was checked
};

template <Ext::Severity severity>
QString countText(BoardOutcome const & outcome)
{
    return QString::number(outcome.counts[static_cast<std::size_t>(severity)]);
}

constexpr std::array<Column, 7> columns{{
    {"red", countText<Ext::Severity::Red>},
    {"yellow", countText<Ext::Severity::Yellow>},
    {"green", countText<Ext::Severity::Green>},
    {"none", countText<Ext::Severity::None>},
    {"waived", [](BoardOutcome const & outcome) { return QString::number(outcome.waived); }},
    {"not checked", [](BoardOutcome const & outcome) { return QString::number(outcome.notChecked); }},
    {"seconds", [](BoardOutcome const & outcome) { return QString::number(outcome.seconds, 'f', 2); }},
}};

constexpr int nameColumns = 2; // board and step

QStringList rowOf(BoardOutcome const & outcome)
{
    QStringList row{printable(outcome.board), printable(outcome.step)};
    for (Column const & column : columns) {
        row.append(outcome.isChecked ? column.text(outcome) : QString('-'));
    }
    row.append(QString::number(static_cast<int>(outcome.exit)));
    return row;
}

BoardOutcome sumOf(std::vector<BoardOutcome> const & outcomes)
{
    BoardOutcome sum;
    sum.board = QString("%1 boards").arg(outcomes.size());
    sum.isChecked = true;
    sum.exit = worst(outcomes);
    for (BoardOutcome const & outcome : outcomes) {
        std::transform(sum.counts.begin(), sum.counts.end(), outcome.counts.begin(), sum.counts.begin(),
                       std::plus<>());
        sum.waived += outcome.waived;
        sum.notChecked += outcome.notChecked;
        sum.seconds += outcome.seconds;
    }
    return sum;
}

QJsonObject toJson(BoardOutcome const & outcome)
{
    QJsonObject facts{{"board", outcome.board},
                      {"step", outcome.step},
                      {"checked", outcome.isChecked},
                      {"seconds", outcome.seconds},
                      {"files", QJsonArray::fromStringList(outcome.files)},
                      {"errors", QJsonArray::fromStringList(outcome.errors)},
                      {"notes", QJsonArray::fromStringList(outcome.notes)},
                      {"exit", static_cast<int>(outcome.exit)}};
    if (outcome.isChecked) {
        QJsonObject counts;
        for (Ext::SeverityMark const & mark : Ext::severityPalette) {
            counts[QLatin1String(mark.name)] =
                static_cast<double>(outcome.counts[static_cast<std::size_t>(mark.severity)]);
        }
        facts["counts"] = counts;
        facts["waived"] = static_cast<double>(outcome.waived);
        facts["not checked"] = static_cast<double>(outcome.notChecked);
    }
    return facts;
}

} // namespace

void fail(BoardOutcome & outcome, ExitCode exit, QString const & error)
{
    outcome.errors.append(error);
    outcome.exit = worse(outcome.exit, exit);
}

void judge(BoardOutcome & outcome, AnalysisRun const & run, CommandLine const & board)
{
    Ext::AnalysisReport const & report = run.report();
    outcome.isChecked = true;
    outcome.notChecked = report.notChecked().size();
    for (Ext::ReportCategory const & category : report.categories()) {
        for (Ext::ReportEntry const & entry : category.entries) {
            if (entry.waiver) {
                ++outcome.waived;
                continue;
            }
            ++outcome.counts[static_cast<std::size_t>(entry.severity)];
            if (board.failOn && isViolation(entry, *board.failOn)) {
                outcome.exit = ExitCode::Violation;
            }
        }
    }
}

QString missingLevels()
{
    for (char const * table : {drillTable, signalTable}) {
        std::vector<Analysis_Ranges_Record> records;
        getRanges(table, records);
        if (records.empty()) {
            return QString("the configuration has no levels in \"%1\", so that nothing could fail")
                .arg(table);
        }
    }
    return {};
}

ExitCode worst(std::vector<BoardOutcome> const & outcomes)
{
    ExitCode exit = ExitCode::Fine;
    for (BoardOutcome const & outcome : outcomes) {
        exit = worse(exit, outcome.exit);
    }
    return exit;
}

QString tableText(std::vector<BoardOutcome> const & outcomes)
{
    std::vector<QStringList> rows{{"board", "step"}};
    for (Column const & column : columns) {
        rows.front().append(column.name);
    }
    rows.front().append("exit");
    for (BoardOutcome const & outcome : outcomes) {
        rows.push_back(rowOf(outcome));
    }
    if (outcomes.size() > 1) {
        rows.push_back(rowOf(sumOf(outcomes)));
    }
    QString text;
    for (QStringList const & row : rows) {
        QString line;
        for (int i = 0; i < row.size(); ++i) {
            int width = 0;
            for (QStringList const & each : rows) {
                width = std::max(width, each[i].size());
            }
            line += i < nameColumns ? row[i].leftJustified(width) : row[i].rightJustified(width);
            line += i + 1 < row.size() ? "  " : "\n";
        }
        text += line;
    }
    return text;
}

QJsonObject toJson(std::vector<BoardOutcome> const & outcomes)
{
    QJsonArray boards;
    for (BoardOutcome const & outcome : outcomes) {
        boards.append(toJson(outcome));
    }
    return {{"boards", boards}, {"exit", static_cast<int>(worst(outcomes))}};
}

void sayAll(BoardOutcome const & outcome, bool withBoard)
{
    QString const before = withBoard ? printable(outcome.board) + ": " : QString();
    for (QString const & file : outcome.files) {
        say("wrote " + file);
    }
    for (QString const & text : outcome.notes + outcome.errors) {
        say(before + text);
    }
}

} // namespace Workbench
