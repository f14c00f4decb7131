#include "checks/ResultFiles.h"
#include "job/CommandLine.h"
#include "job/ConfigDirectory.h"
#include "job/ExitCode.h"
#include "job/SystemTwins.h"
#include "tour/ChecksOnly.h"
#include "tour/HeadlessBoards.h"
#include "tour/Terminal.h"
#include "ui/LogPane.h"
#include "window/Desk.h"
#include "window/MainWindow.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <glog/logging.h>

#include <QApplication>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>

namespace {

int fail(QString const & text)
{
    Workbench::say(text);
    return static_cast<int>(Workbench::ExitCode::WrongInput);
}

// With a window there may be no terminal to read from.
int failWith(QString const & text, bool headless)
{
    if (!headless) {
        QMessageBox::critical(nullptr, "uiapi-workbench", text);
    }
    return fail(text);
}

// Without arguments, as after a double click, files go to the user's documents: the current directory is the
// program's, and often read-only.
QStringList argumentsOf(QApplication const & application, bool headless)
{
    QStringList arguments = application.arguments();
    if (arguments.size() == 1 && !headless && Workbench::defaultJob().isEmpty()) {
        QString const documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        arguments << "--output" << documents + "/uiapi-workbench";
    }
    return arguments;
}

// Qt's messages about the desktop belong into the log, not between the lines on the terminal.
void logQtMessage(QtMsgType type, QMessageLogContext const & /*context*/, QString const & text)
{
    if (text.startsWith("This plugin does not support ")) {
        return; // reported by the offscreen platform for every window
    }
    bool const isError = type == QtCriticalMsg || type == QtFatalMsg;
    google::LogMessage("Qt", 0, isError ? google::GLOG_ERROR : google::GLOG_INFO).stream()
        << text.toUtf8().constData();
}

// For a run with a window, in which a box can be read.
void writeResults(Workbench::MainWindow & window, Workbench::CommandLine const & commandLine)
{
    using namespace KVCAM::UIAPI;
    window.showPage("results");
    for (QString const & error : Workbench::writeResults(window.results(), commandLine).errors) {
        Workbench::say(error);
        Ext::showMessage({Ext::MessageKind::Information, &window, window.windowTitle(), error});
    }
}

int runWindows(Workbench::LogLines const & log, Workbench::CommandLine const & commandLine)
{
    Workbench::Desk desk(log, commandLine, Workbench::configurationDirectory() + "/workbench.ini");
    if (commandLine.job.isEmpty() || !desk.open(commandLine.job, commandLine.step)) {
        desk.showStart();
    } else if (!commandLine.summary.isEmpty() || !commandLine.reports.isEmpty()) {
        QTimer::singleShot(0, desk.window(), [&] { writeResults(*desk.window(), commandLine); });
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char ** argv)
{
    Workbench::useParentConsole();
    KVCAM::UIAPI::Ext::startLogging(argv[0]); // warnings and errors; the window shows every line
    Workbench::LogLines log;
    qInstallMessageHandler(logQtMessage);
    if (Workbench::runsChecksOnly(argc, argv)) {
        QCoreApplication const application(argc, argv);
        return Workbench::runChecksOnly(Workbench::parseArguments(QCoreApplication::arguments()));
    }
    bool const headless = Workbench::runsHeadless(argc, argv);
    if (headless) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        Workbench::findFontsOffscreen();
    }
    // The desktop's scale, also one such as 150 %.
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setStyle("fusion");
    if (headless) { // screenshots must not depend on the desktop's font
        QFont font = QApplication::font();
        font.setPointSize(10);
        QApplication::setFont(font);
    }

    auto const parsed = Workbench::parseArguments(argumentsOf(application, headless));
    if (parsed.outcome == Workbench::ParsedArguments::Outcome::Print) {
        Workbench::print(stdout, parsed.text.toUtf8());
        return 0;
    }
    if (parsed.outcome == Workbench::ParsedArguments::Outcome::Error) {
        return failWith(parsed.text, headless);
    }
    Workbench::CommandLine const & commandLine = parsed.commandLine;

    KVCAM::Embedded::setJobLimits(commandLine.limits);
    if (headless) {
        if (commandLine.job.isEmpty()) {
            return fail("no job given, see --help");
        }
        if (!commandLine.headless) {
            Workbench::say("no display, working as with --headless");
        }
        return Workbench::runHeadlessBoards(commandLine, log);
    }
    QString const error = Workbench::prepare(commandLine);
    return error.isEmpty() ? runWindows(log, commandLine) : failWith(error, headless);
}
