#include "tour/ChecksOnly.h"

#include "checks/AnalysisRun.h"
#include "checks/ResultFiles.h"
#include "job/Boards.h"
#include "job/ConfigDirectory.h"
#include "job/Session.h"
#include "tour/BoardOutcome.h"
#include "tour/Judging.h"
#include "tour/Terminal.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <glog/logging.h>

#include <QElapsedTimer>
#include <QJsonDocument>

#include <algorithm>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

int refuse(QString const & text)
{
    say(text);
    return static_cast<int>(ExitCode::WrongInput);
}

// Nobody can answer a box.
Ext::MessageAnswer logMessage(Ext::Message const & message)
{
    LOG(WARNING) << "workbench: " << message.text.toStdString();
    return message.kind == Ext::MessageKind::Question ? Ext::MessageAnswer::No : Ext::MessageAnswer::Ok;
}

// The step as the job spells it; the first one without a name.
std::string stepOf(Session const & session, QString const & name)
{
    auto const & steps = session.steps();
    auto const found = std::find_if(steps.begin(), steps.end(), [&](Session::Step const & step) {
        return QString::fromStdString(step.name).compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == steps.end() ? steps.front().name : found->name;
}

void checkStep(BoardOutcome & outcome, Session const & session, CommandLine const & board,
               TerminalProgress & progress)
{
    Yardstick yardstick;
    if (QString const error = readYardstick(board, yardstick); !error.isEmpty()) {
        return fail(outcome, ExitCode::WrongInput, error);
    }
    AnalysisRun run(session);
    run.setWaivers(yardstick.waivers);
    std::string const step = stepOf(session, board.step);
    outcome.step = QString::fromStdString(step);
    bool const isDone = run.run(step, [&progress](int done, int total) {
        progress.show(done, total);
        return true;
    }) == AnalysisRun::Outcome::Done;
    progress.clear();
    if (!isDone) {
        return fail(outcome, ExitCode::Incomplete, "the checks failed: " + run.error());
    }
    makeFolders(board);
    WrittenResults const written = writeFiles(run, board, yardstick.baselineOrNull());
    outcome.files = written.files;
    for (QString const & error : written.errors) {
        fail(outcome, ExitCode::Incomplete, error);
    }
    judge(outcome, run.report(), board, yardstick);
}

BoardOutcome check(CommandLine const & board, TerminalProgress & progress)
{
    QElapsedTimer timer;
    timer.start();
    BoardOutcome outcome;
    outcome.board = boardName(board.job);
    progress.next(outcome.board);
    Session session;
    if (QString const error = session.open(board.job); !error.isEmpty()) {
        fail(outcome, ExitCode::WrongInput, error);
    } else {
        if (board.step.isEmpty() || session.hasStep(board.step)) {
            checkStep(outcome, session, board, progress);
        } else {
            fail(outcome, ExitCode::WrongInput, "the job has no step \"" + board.step + '"');
        }
        KVCAM::Embedded::closeJob(session.job());
        Ext::clearUnifiedResults();
    }
    progress.clear();
    outcome.seconds = static_cast<double>(timer.elapsed()) / 1000;
    return outcome;
}

} // namespace

int runChecksOnly(ParsedArguments const & parsed)
{
    if (parsed.outcome == ParsedArguments::Outcome::Print) {
        print(stdout, parsed.text.toUtf8());
        return 0;
    }
    if (parsed.outcome == ParsedArguments::Outcome::Error) {
        return refuse(parsed.text);
    }
    CommandLine const & commandLine = parsed.commandLine;
    BoardLines const lines = boardLines(commandLine);
    if (!lines.error.isEmpty()) {
        return refuse(lines.error);
    }
    QString const config = readOnlyConfiguration(commandLine.config, lines.boards.front().output);
    if (QString const error = enterConfiguration(config, {}); !error.isEmpty()) {
        return refuse(error);
    }
    Ext::setEdaLinkReceives(false); // a window on the same computer may need the port
    Ext::setMessagePresenter(logMessage);
    Ext::setReadSavedSettingKeys(true);
    if (QString const error = commandLine.isGate() ? missingLevels() : QString(); !error.isEmpty()) {
        return refuse(error);
    }
    KVCAM::Embedded::setJobLimits(commandLine.limits);
    TerminalProgress progress(static_cast<int>(lines.boards.size()));
    std::vector<BoardOutcome> outcomes;
    for (CommandLine const & board : lines.boards) {
        outcomes.push_back(check(board, progress));
        sayAll(outcomes.back(), lines.boards.size() > 1);
    }
    print(stdout, commandLine.json ? QJsonDocument(toJson(outcomes)).toJson() : tableText(outcomes).toUtf8());
    return static_cast<int>(worst(outcomes));
}

} // namespace Workbench
