#include "tour/HeadlessBoards.h"

#include "checks/ResultsPage.h"
#include "job/Boards.h"
#include "job/ConfigDirectory.h"
#include "job/JobLoading.h"
#include "job/Session.h"
#include "tour/BoardOutcome.h"
#include "tour/Headless.h"
#include "tour/Judging.h"
#include "tour/Terminal.h"
#include "window/BoardPage.h"
#include "window/MainWindow.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryFile>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

bool canWriteInto(QString const & directory)
{
    return QDir().mkpath(directory) && QTemporaryFile(directory + "/probe-XXXXXX").open();
}

// Opens the board and prepares the process. Returns what is wrong; empty on success.
QString open(Session & session, CommandLine const & board, Yardstick & yardstick, bool & isPrepared)
{
    if (QString error = session.open(board.job); !error.isEmpty()) {
        return error;
    }
    if (!board.step.isEmpty() && !session.hasStep(board.step)) {
        return "the job has no step \"" + board.step + '"';
    }
    if (QString error = readYardstick(board, yardstick); !error.isEmpty()) {
        return error;
    }
    if (!isPrepared) { // of several boards by the first: the library reads its settings once
        if (QString error = prepare(board); !error.isEmpty()) {
            return error;
        }
        isPrepared = true;
    } else if (!canWriteInto(board.output)) {
        return "cannot write to \"" + board.output + '"';
    }
    Ext::setRemovalRoots({board.output + "/workbench-session"});
    return board.isGate() ? missingLevels() : QString();
}

QJsonObject show(BoardOutcome & outcome, Session & session, CommandLine const & board,
                 Yardstick const & yardstick, LogLines const & log)
{
    readLayers(session);
    logOpened(session);
    QStringList const repeats = repeatLines(session);
    for (QString const & line : repeats) {
        say(line);
    }
    makeFolders(board);
    MainWindow window(session, log, board);
    window.board().showStep(board.step);
    window.results().setWaivers(yardstick.waivers);
    QJsonObject facts = runHeadless(window, session, board, yardstick.baselineOrNull());
    if (!facts["errors"].toArray().isEmpty()) {
        outcome.exit = ExitCode::Incomplete; // errors of layers are in the log
    }
    QJsonObject const analysis = facts["analysis"].toObject();
    for (QJsonValue const & names : {QJsonValue(facts["screenshots"]), analysis["files"]}) {
        for (auto const & file : names.toArray()) {
            outcome.files.append(file.toString());
        }
    }
    for (auto const & error : analysis["errors"].toArray()) {
        outcome.errors.append(error.toString());
    }
    if (window.results().run().hasResult()) {
        judge(outcome, window.results().run().report(), board, yardstick);
    }
    return facts;
}

} // namespace

QString prepare(CommandLine const & commandLine)
{
    if (!canWriteInto(commandLine.output)) {
        return "cannot write to \"" + commandLine.output + '"';
    }
    if (QString error = enterConfiguration(commandLine.config, commandLine.output); !error.isEmpty()) {
        return error;
    }
    Ext::setKeepSettingsBackup(true);
    Ext::setReadSavedSettingKeys(true); // what the settings page saves is there at the next start
    Ext::setRemovalRoots({commandLine.output + "/workbench-session"});
    return {};
}

int runHeadlessBoards(CommandLine const & commandLine, LogLines const & log)
{
    BoardLines const lines = boardLines(commandLine);
    if (!lines.error.isEmpty()) {
        say(lines.error);
        return static_cast<int>(ExitCode::WrongInput);
    }
    bool const isSeveral = lines.boards.size() > 1;
    std::vector<BoardOutcome> outcomes;
    QJsonArray allFacts;
    bool isPrepared = false;
    for (CommandLine const & board : lines.boards) {
        BoardOutcome outcome;
        outcome.board = boardName(board.job);
        Session session;
        Yardstick yardstick;
        if (QString const error = open(session, board, yardstick, isPrepared); error.isEmpty()) {
            allFacts.append(show(outcome, session, board, yardstick, log));
        } else {
            fail(outcome, ExitCode::WrongInput, error);
        }
        KVCAM::Embedded::closeJob(session.job());
        for (QString const & file : outcome.files) {
            say("wrote " + file);
        }
        sayAll(outcome, isSeveral);
        outcomes.push_back(outcome);
    }
    if (isSeveral) {
        print(stdout, QJsonDocument(allFacts).toJson());
    } else if (!allFacts.isEmpty()) {
        print(stdout, QJsonDocument(allFacts[0].toObject()).toJson());
    }
    return static_cast<int>(worst(outcomes));
}

} // namespace Workbench
