#include "TestFiles.h"
#include "checks/AnalysisRun.h"
#include "job/Session.h"

#include <analysis/ReportComparison.h>
#include <analysis/ReportReader.h>

#include <QDirIterator>

#include <algorithm>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

constexpr char const * topLayer = "/steps/pcb/layers/top/features";

void copyTree(QString const & from, QString const & to)
{
    for (QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        QString const file = files.next();
        writeFile(to + file.mid(from.size()), readFile(file));
    }
}

Ext::AnalysisReport reportOf(QString const & job)
{
    Session session;
    EXPECT_EQ(session.open(QDir().absoluteFilePath(job)), "");
    AnalysisRun run(session);
    EXPECT_EQ(run.run("pcb"), AnalysisRun::Outcome::Done) << run.error().toStdString();
    return run.report();
}

// All but what is unchanged: "worse Lines top 200>150".
QStringList changesOf(Ext::ReportComparison const & comparison)
{
    QStringList changes;
    for (Ext::ReportChange const & change : comparison.changes) {
        if (change.change != Ext::Change::Unchanged) {
            auto const um = [](std::optional<Ext::Length> value) {
                return value ? QString::number(value->toMicrometres()) : QString("-");
            };
            changes += QString("%1 %2 %3 %4>%5")
                           .arg(Ext::changeName(change.change), QString::fromStdString(change.name),
                                QString::fromStdString(change.layer), um(change.before), um(change.after));
        }
    }
    return changes;
}

// A track made narrower, a pad moved by 20 um, another pad taken away.
TEST(Baseline, AChangedBoardDiffersWhereItWasChanged)
{
    copyTree(QString(UIAPI_SOURCE_DIR) + "/samples/config/ranges/fabrication", "config/ranges/fabrication");
    copyTree(sampleJob, "demo");
    copyTree(sampleJob, "changed");
    QByteArray features = readFile(QString("changed") + topLayer);
    for (auto const & [from, to] :
         {std::pair("\nL 21.7 18.2 18.5 18.2 3 P 0", "\nL 21.7 18.2 18.5 18.2 6 P 0"),
          std::pair("\nP 30.3 19.8 0 P", "\nP 30.32 19.8 0 P"),
          std::pair("\nP 24 25.3 0 P 0 1 ;0,1=0,2=0", "")}) {
        ASSERT_EQ(features.count(from), 1) << from;
        features.replace(from, to);
    }
    features.replace("F 180", "F 179");
    writeFile(QString("changed") + topLayer, features);

    ASSERT_TRUE(Ext::writeReport(reportOf("demo"), Ext::ReportFormat::Json, "baseline.json"));
    Ext::AnalysisReport baseline;
    ASSERT_EQ(Ext::readReport("baseline.json", baseline).reason, "");
    Ext::AnalysisReport const changed = reportOf("changed");
    Ext::ReportComparison const comparison = Ext::compareReports(baseline, changed);
    EXPECT_EQ(changesOf(comparison), (QStringList{"fixed Pads top 500>-", "worse Lines top 200>150"}));
    EXPECT_GT(comparison.count(Ext::Change::Unchanged), 100U);

    // The moved pad is known by its place: without tolerance it is another one.
    Ext::ReportComparison const exact = Ext::compareReports(baseline, changed, {});
    EXPECT_EQ(exact.count(Ext::Change::New), 1U);
}

} // namespace
