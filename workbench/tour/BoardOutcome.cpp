#include "tour/BoardOutcome.h"

#include "tour/Terminal.h"

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <functional>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

/// A column with a number.
struct Column
{
    char const * name;
    QString (*text)(BoardOutcome const & outcome); ///< of a board that was checked
    bool isOfComparison = false;                   ///< shown only if a board has one
};

template <Ext::Severity severity>
QString countText(BoardOutcome const & outcome)
{
    return QString::number(outcome.counts[static_cast<std::size_t>(severity)]);
}

template <Ext::Change change>
QString changeText(BoardOutcome const & outcome)
{
    return outcome.changes ? QString::number((*outcome.changes)[static_cast<std::size_t>(change)])
                           : QString('-');
}

constexpr std::array<Column, 10> columns{{
    {"red", countText<Ext::Severity::Red>},
    {"yellow", countText<Ext::Severity::Yellow>},
    {"green", countText<Ext::Severity::Green>},
    {"none", countText<Ext::Severity::None>},
    {"waived", [](BoardOutcome const & outcome) { return QString::number(outcome.waived); }},
    {"new", changeText<Ext::Change::New>, true},
    {"worse", changeText<Ext::Change::Worse>, true},
    {"fixed", changeText<Ext::Change::Fixed>, true},
    {"not checked", [](BoardOutcome const & outcome) { return QString::number(outcome.notChecked); }},
    {"seconds", [](BoardOutcome const & outcome) { return QString::number(outcome.seconds, 'f', 2); }},
}};

constexpr int nameColumns = 2; // board and step

QStringList rowOf(BoardOutcome const & outcome, bool withComparison)
{
    QStringList row{printable(outcome.board), printable(outcome.step)};
    for (Column const & column : columns) {
        if (withComparison || !column.isOfComparison) {
            row.append(outcome.isChecked ? column.text(outcome) : QString('-'));
        }
    }
    row.append(QString::number(static_cast<int>(outcome.exit)));
    return row;
}

QStringList headRow(bool withComparison)
{
    QStringList row{"board", "step"};
    for (Column const & column : columns) {
        if (withComparison || !column.isOfComparison) {
            row.append(column.name);
        }
    }
    row.append("exit");
    return row;
}

template <class Counts>
void add(Counts & sum, Counts const & counts)
{
    std::transform(sum.begin(), sum.end(), counts.begin(), sum.begin(), std::plus<>());
}

BoardOutcome sumOf(std::vector<BoardOutcome> const & outcomes)
{
    BoardOutcome sum;
    sum.board = QString("%1 boards").arg(outcomes.size());
    sum.isChecked = true;
    sum.exit = worst(outcomes);
    for (BoardOutcome const & outcome : outcomes) {
        add(sum.counts, outcome.counts);
        if (outcome.changes) {
            sum.changes = sum.changes.value_or(Ext::ChangeCounts{});
            add(*sum.changes, *outcome.changes);
        }
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
        if (outcome.changes) {
            QJsonObject changes;
            for (std::size_t i = 0; i < Ext::changeNames.size(); ++i) {
                changes[QLatin1String(Ext::changeNames[i])] = static_cast<double>((*outcome.changes)[i]);
            }
            facts["changes"] = changes;
        }
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
    bool const withComparison =
        std::any_of(outcomes.begin(), outcomes.end(),
                    [](BoardOutcome const & outcome) { return outcome.changes.has_value(); });
    std::vector<QStringList> rows{headRow(withComparison)};
    for (BoardOutcome const & outcome : outcomes) {
        rows.push_back(rowOf(outcome, withComparison));
    }
    if (outcomes.size() > 1) {
        rows.push_back(rowOf(sumOf(outcomes), withComparison));
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
    for (QString const & text : outcome.notes + outcome.errors) {
        say(before + text);
    }
}

} // namespace Workbench
