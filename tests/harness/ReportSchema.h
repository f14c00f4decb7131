#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>

namespace KVCAM::Testing {

/// Validates JSON reports by the schema with a public validator, and checks that damaged copies of the last
/// are refused. Skips the test without the validator.
inline void expectReportsFitSchema(QStringList const & reports)
{
    QString const source = UIAPI_SOURCE_DIR;
    QProcess python;
    python.setProcessChannelMode(QProcess::MergedChannels);
    python.start("python3", QStringList{source + "/tests/harness/check_reports.py",
                                        source + "/docs/analysis-report-2.schema.json"} +
                                reports);
    if (!python.waitForStarted()) {
        GTEST_SKIP() << "python3 is not installed";
    }
    EXPECT_TRUE(python.waitForFinished(60000));
    constexpr int isSkipped = 77;
    if (python.exitCode() == isSkipped) {
        GTEST_SKIP() << python.readAll().toStdString();
    }
    EXPECT_EQ(python.exitCode(), 0) << python.readAll().toStdString();
}

} // namespace KVCAM::Testing
