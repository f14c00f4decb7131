#include "checks/ResultFiles.h"
#include "job/CommandLine.h"
#include "job/ConfigDirectory.h"
#include "job/JobLoading.h"
#include "job/Session.h"
#include "job/SystemTwins.h"
#include "tour/Headless.h"
#include "ui/LogPane.h"
#include "window/BoardPage.h"
#include "window/Desk.h"
#include "window/MainWindow.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <glog/logging.h>

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int exitIncomplete = 1; // a headless run could not read or write everything
constexpr int exitWrongInput = 2;

void print(std::FILE * stream, QByteArray const & text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stream);
}

int fail(QString const & text)
{
    print(stderr, "uiapi-workbench: " + text.toUtf8() + '\n');
    return exitWrongInput;
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

bool canWriteInto(QString const & directory)
{
    return QDir().mkpath(directory) && QTemporaryFile(directory + "/probe-XXXXXX").open();
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
        fail(error);
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
        print(stdout, parsed.text.toUtf8());
        return 0;
    }
    if (parsed.outcome == Workbench::ParsedArguments::Outcome::Error) {
        return failWith(parsed.text, headless);
    }
    Workbench::CommandLine const & commandLine = parsed.commandLine;

    KVCAM::Embedded::setJobLimits(commandLine.limits);
    Workbench::Session session;
    if (headless) {
        QString const error =
            commandLine.job.isEmpty() ? "no job given, see --help" : session.open(commandLine.job);
        if (!error.isEmpty()) {
            return fail(error);
        }
        if (!commandLine.step.isEmpty() && !session.hasStep(commandLine.step)) {
            return fail("the job has no step \"" + commandLine.step + '"');
        }
    }
    if (!canWriteInto(commandLine.output)) {
        return failWith("cannot write to \"" + commandLine.output + '"', headless);
    }
    QString const wrongConfiguration = Workbench::enterConfiguration(commandLine.config, commandLine.output);
    if (!wrongConfiguration.isEmpty()) {
        return failWith(wrongConfiguration, headless);
    }
    KVCAM::UIAPI::Ext::setKeepSettingsBackup(true);
    KVCAM::UIAPI::Ext::setReadSavedSettingKeys(
        true); // what the settings page saves is there at the next start
    KVCAM::UIAPI::Ext::setRemovalRoots({commandLine.output + "/workbench-session"});
    if (!headless) {
        return runWindows(log, commandLine);
    }
    Workbench::readLayers(session);
    Workbench::logOpened(session);
    QStringList const repeats = Workbench::repeatLines(session);
    for (QString const & line : repeats) {
        print(stderr, "uiapi-workbench: " + line.toUtf8() + '\n');
    }
    Workbench::MainWindow window(session, log, commandLine);
    window.board().showStep(commandLine.step);
    if (!commandLine.headless) {
        print(stderr, "uiapi-workbench: no display, working as with --headless\n");
    }
    QJsonObject const facts = Workbench::runHeadless(window, session, commandLine);
    print(stdout, QJsonDocument(facts).toJson());
    for (auto const & picture : facts["screenshots"].toArray()) {
        print(stderr, "uiapi-workbench: wrote " + picture.toString().toUtf8() + '\n');
    }
    for (auto const & file : facts["analysis"].toObject()["files"].toArray()) {
        print(stderr, "uiapi-workbench: wrote " + file.toString().toUtf8() + '\n');
    }
    for (auto const & failure : facts["analysis"].toObject()["errors"].toArray()) {
        fail(failure.toString()); // of the checks; errors of layers are in the log
    }
    return facts["errors"].toArray().isEmpty() ? 0 : exitIncomplete;
}
