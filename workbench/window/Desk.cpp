#include "window/Desk.h"

#include "checks/ResultsPage.h"
#include "job/Boards.h"
#include "job/JobLoading.h"
#include "job/ReadingProgress.h"
#include "job/RecentBoards.h"
#include "job/SaveAs.h"
#include "job/Session.h"
#include "ui/LanguageChange.h"
#include "window/BoardPage.h"
#include "window/MainWindow.h"
#include "window/StartPage.h"
#include "window/WindowState.h"

#include <EmbeddedEngine.h>
#include <UIAPICommonExt.h>

#include <QApplication>
#include <QFileInfo>
#include <QTimer>

#include <optional>
#include <utility>
#include <vector>

namespace Workbench {

namespace Ext = KVCAM::UIAPI::Ext;

struct Desk::Board
{
    Session session;
    std::unique_ptr<MainWindow> window; // refers to the session
};

Desk::Desk(LogLines const & log, CommandLine commandLine, QString stateFile)
    : m_log(log), m_commandLine(std::move(commandLine)), m_stateFile(std::move(stateFile))
{}

Desk::~Desk() = default;

MainWindow * Desk::window() const
{
    return m_board == nullptr ? nullptr : m_board->window.get();
}

QWidget * Desk::shown() const
{
    return m_board != nullptr ? static_cast<QWidget *>(m_board->window.get()) : m_start.get();
}

void Desk::showStart()
{
    if (auto const choices = savedChoices(m_stateFile)) {
        showChinese(choices->chinese);
    }
    m_start = std::make_unique<StartPage>(recentBoards(m_stateFile));
    connect(m_start.get(), &StartPage::boardWanted, this, [this](QString const & path) { open(path); });
    m_start->show();
}

// Returns what is wrong: empty on success, nothing if the user stopped it.
std::optional<QString> Desk::read(Board & board, QString const & path, QString const & step) const
{
    ReadingProgress progress(tr("Opening %1").arg(QFileInfo(path).fileName()));
    progress.setText(QFileInfo(path).isFile() ? tr("Unpacking the archive (F1 stops)")
                                              : tr("Reading the job (F1 stops)"));
    QString error =
        board.session.open(path, [&progress](auto const & reading) { return progress.run(reading); });
    if (progress.isStopped()) {
        return std::nullopt;
    }
    if (error.isEmpty() && !step.isEmpty() && !board.session.hasStep(step)) {
        error = tr("The job has no step \"%1\".").arg(step);
    }
    if (error.isEmpty()) {
        readLayers(board.session, progress); // when this is stopped, the board is shown with what was read
    }
    return progress.isQuit() ? std::nullopt : std::optional(error);
}

bool Desk::open(QString const & path, QString const & step)
{
    if (m_board != nullptr && m_board->window->saveAs().isChanged()) {
        m_board->window->saveAs().whenSettled([this, path, step] { replace(path, step); });
        return false;
    }
    return replace(path, step);
}

bool Desk::replace(QString const & path, QString const & step)
{
    if (m_isReading) {
        return false;
    }
    auto board = std::make_unique<Board>();
    m_isReading = true; // and handles events
    std::optional<QString> const error = read(*board, path, step);
    m_isReading = false;
    if (!error || !error->isEmpty()) {
        if (error) {
            Ext::showMessage({Ext::MessageKind::Information, shown(), tr("Open a board"), *error});
        }
        return false;
    }
    logOpened(board->session);
    // Between two windows there is none, which must not end the program.
    bool const quits = QApplication::quitOnLastWindowClosed();
    QApplication::setQuitOnLastWindowClosed(false);
    std::string const before = m_board == nullptr ? std::string() : m_board->session.job();
    close();
    if (!before.empty() && before != board->session.job()) { // a job of the same name is already another
        KVCAM::Embedded::closeJob(before);
    }
    keepRecentBoard(m_stateFile, path);
    m_board = std::move(board);
    m_board->window = std::make_unique<MainWindow>(m_board->session, m_log, m_commandLine);
    MainWindow & window = *m_board->window;
    window.setRecentBoards(recentBoards(m_stateFile));
    connect(&window, &MainWindow::boardWanted, this, [this](QString const & next) { open(next); });
    connect(&window.saveAs(), &SaveAs::saved, this,
            [this](QString const & folder) { keepRecentBoard(m_stateFile, folder); });
    window.board().showStep(step);
    useWaivers(path);
    window.useStateFile(m_stateFile, m_commandLine.isUnitGiven);
    window.show();
    QApplication::setQuitOnLastWindowClosed(quits);
    return true;
}

void Desk::useWaivers(QString const & path)
{
    QString const file = forBoard(m_commandLine, path).waivers;
    if (file.isEmpty()) {
        return;
    }
    std::vector<Ext::Waiver> waivers;
    if (Ext::Result const read = Ext::readWaivers(file, waivers); !read.ok) {
        Ext::showMessage({Ext::MessageKind::Information, m_board->window.get(), file, read.reason});
    }
    m_board->window->results().setWaivers(std::move(waivers), file);
}

void Desk::close()
{
    if (m_start != nullptr) {
        m_start->close();
        m_start.release()->deleteLater();
    }
    if (m_board != nullptr) {
        m_board->window->leave(); // keeps its state
        m_closed = std::move(m_board);
        QTimer::singleShot(0, this, [this] { m_closed.reset(); });
    }
}

} // namespace Workbench
