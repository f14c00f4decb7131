#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

namespace Workbench {

/// What a run of the program gave.
struct ProgramResult
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
    QJsonObject facts; ///< a JSON object that was printed
};

/// With a LeakSanitizer in the program, ignores the platform's leaks.
inline QProcessEnvironment programEnvironment()
{
    QFile suppressions("leaks.txt");
    EXPECT_TRUE(suppressions.open(QIODevice::WriteOnly));
    suppressions.write("leak:libqoffscreen.so\nleak:libfontconfig\nleak:libQt5DBus\n");
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.remove("UIAPI_WORKBENCH_JOB");
    variables.insert("LSAN_OPTIONS",
                     "print_suppressions=0:suppressions=" + QDir().absoluteFilePath("leaks.txt"));
    return variables;
}

/// Runs the program to its end.
inline ProgramResult runProgram(QStringList const & arguments)
{
    QProcess program;
    program.setProcessEnvironment(programEnvironment());
    program.start(WORKBENCH_PROGRAM, arguments);
    ProgramResult result;
    if (program.waitForFinished(60000) && program.exitStatus() == QProcess::NormalExit) {
        result.exitCode = program.exitCode();
    }
    result.out = program.readAllStandardOutput().replace("\r\n", "\n");
    result.err = program.readAllStandardError().replace("\r\n", "\n");
    result.facts = QJsonDocument::fromJson(result.out).object();
    return result;
}

} // namespace Workbench
