#include "checks/ResultsPage.h"

#include "board/BoardView.h"
#include "checks/LevelsBox.h"
#include "checks/MeasureTexts.h"
#include "checks/ResultsModel.h"
#include "checks/TrackWidthChart.h"
#include "ui/Colours.h"
#include "ui/FileDialogs.h"
#include "ui/LanguageChange.h"
#include "ui/TableTools.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStringList>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWindow>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

QLabel * makeLabel(char const * name)
{
    auto * label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QPushButton * makeButton(char const * name)
{
    auto * button = new QPushButton;
    button->setObjectName(name);
    return button;
}

} // namespace

ResultsPage::ResultsPage(Session const & session, BoardView & view, QWidget * parent)
    : QWidget(parent)
    , m_run(std::make_shared<AnalysisRun>(session))
    , m_view(&view)
    , m_model(new ResultsModel(*m_run, this))
{
    m_model->setView(view.handle());
    m_runButton = makeButton("run");
    m_boardButton = makeButton("board");
    m_summaryButton = makeButton("summary");
    m_reportButton = makeButton("report");
    auto * buttons = new QHBoxLayout;
    buttons->addWidget(m_runButton);
    buttons->addWidget(m_boardButton);
    buttons->addStretch(1);
    buttons->addWidget(m_summaryButton);
    buttons->addWidget(m_reportButton);

    auto * splitter = new QSplitter(Qt::Horizontal);
    splitter->setObjectName("results and levels");
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(makeTree());
    splitter->addWidget(makeSides());
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({920, 480});

    auto * layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(splitter, 1);

    connect(m_runButton, &QPushButton::clicked, this, &ResultsPage::runChecks);
    connect(m_boardButton, &QPushButton::clicked, this, &ResultsPage::boardWanted);
    connect(m_summaryButton, &QPushButton::clicked, this, [this] {
        exportFile(tr("Export the summary"), "summary.json", tr("Summary (*.json)"),
                   [this](QString const & path) { return m_run->writeSummary(path); });
    });
    connect(m_reportButton, &QPushButton::clicked, this, [this] {
        exportFile(tr("Export the report"), "report.json", tr("JSON report (*.json);;CSV report (*.csv)"),
                   [this](QString const & path) { return m_run->writeReport(path); });
    });
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this,
            [this](void const * changed, Ext::ViewAspects aspects) {
                if (changed == m_view->handle() && aspects.testFlag(Ext::ViewAspect::Unit)) {
                    setView(*m_view);
                }
            });
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

QWidget * ResultsPage::makeTree()
{
    m_tree = new QTreeView;
    m_tree->setUniformRowHeights(true); // otherwise each of 100,000 rows would be measured
    m_tree->setAlternatingRowColors(true);
    m_tree->setModel(m_model);
    m_tree->header()->setStretchLastSection(true);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this, &ResultsPage::showSelected);
    connect(m_tree, &QTreeView::activated, this, [this](QModelIndex const & index) {
        if (m_model->at(index).entry != nullptr) {
            emit boardWanted();
        }
    });
    m_empty = makeLabel("empty");
    m_empty->setAlignment(Qt::AlignCenter);
    m_stack = new QStackedWidget;
    m_stack->addWidget(m_empty);
    m_stack->addWidget(m_tree);
    m_counts = makeLabel("counts");
    m_counts->setTextFormat(Qt::RichText);
    m_note = makeLabel("note");

    auto * side = new QWidget;
    auto * layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_counts);
    layout->addWidget(m_note);
    layout->addWidget(m_stack, 1);
    return side;
}

QWidget * ResultsPage::makeSides()
{
    m_levels = new LevelsBox(*m_run, *m_view, [this] {
        m_model->regrade();
        refresh();
    });

    m_chart = new TrackWidthChart;
    m_chart->setView(m_view->handle());
    auto * scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setWidget(m_chart);
    m_chartBox = new QGroupBox;
    (new QVBoxLayout(m_chartBox))->addWidget(scroll);

    m_notChecked = makeTable({{}, {}});
    wrapLastColumn(*m_notChecked);
    m_notCheckedBox = new QGroupBox;
    (new QVBoxLayout(m_notCheckedBox))->addWidget(m_notChecked);

    auto * lower = new QSplitter(Qt::Vertical);
    lower->setObjectName("chart and unchecked");
    lower->setChildrenCollapsible(false);
    lower->addWidget(m_chartBox);
    lower->addWidget(m_notCheckedBox);
    lower->setSizes({300, 300});
    auto * side = new QWidget;
    auto * layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_levels);
    layout->addWidget(lower, 1);
    return side;
}

void ResultsPage::setView(BoardView & view)
{
    m_view = &view;
    m_levels->setView(view);
    m_model->setView(view.handle());
    m_chart->setView(view.handle());
    setTexts();
    fitColumns();
}

void ResultsPage::fitColumns()
{
    for (int column = 0; column < ResultsModel::ColumnCount; ++column) {
        m_tree->resizeColumnToContents(column);
    }
}

bool ResultsPage::runChecks()
{
    // No parent: it could delete the dialog while the dialog handles events in setValue().
    KVProgressDialog progress;
    progress.winId(); // creates the handle
    progress.windowHandle()->setTransientParent(window()->windowHandle());
    progress.setMinimumDuration(300); // milliseconds
    progress.setWindowTitle(tr("Checks"));
    progress.setLabelText(tr("Measuring step %1 (F1 stops)").arg(QString::fromStdString(m_view->step())));
    progress.setCancelButtonText(tr("Stop"));
    progress.setWindowModality(Qt::ApplicationModal);
    QPointer<ResultsPage> const alive(this);
    std::shared_ptr<AnalysisRun> const run = m_run; // finishes even without the page
    AnalysisRun::Outcome const outcome = run->run(m_view->step(), [&](int done, int total) {
        progress.setMaximum(total);
        progress.setValue(done);
        return alive && !progress.isDialogStop() && !progress.wasCanceled();
    });
    if (!alive) {
        return false;
    }
    m_outcome = outcome;
    bool const isNew = m_outcome == AnalysisRun::Outcome::Done;
    if (isNew) {
        m_model->reload();
        m_tree->setCurrentIndex(m_model->index(0, 0));
        fitColumns();
    }
    refresh();
    return isNew;
}

bool ResultsPage::showCheck(std::string const & table, int number)
{
    QModelIndex const category = m_model->find(table, number);
    if (!category.isValid()) {
        return false;
    }
    QModelIndex worst = category;
    for (int layer = 0; layer < m_model->rowCount(category); ++layer) {
        // The engine sorts the measurements of a layer, so the first is the smallest.
        QModelIndex const first = m_model->index(0, 0, m_model->index(layer, 0, category));
        Ext::ReportEntry const * found = m_model->at(worst).entry;
        auto const measured = m_model->at(first).entry->measured;
        if (found == nullptr || (measured && (!found->measured || *measured < *found->measured))) {
            worst = first;
        }
    }
    m_tree->setCurrentIndex(worst);
    m_tree->scrollTo(worst, QAbstractItemView::PositionAtCenter);
    return true;
}

void ResultsPage::setTexts()
{
    m_runButton->setText(tr("Run the &checks"));
    m_runButton->setToolTip(tr("Measures the step that the board page shows and files the results"));
    m_boardButton->setText(tr("Sho&w on the board"));
    m_summaryButton->setText(tr("E&xport summary..."));
    m_reportButton->setText(tr("Ex&port report..."));
    m_tree->setAccessibleName(tr("Results by check and layer"));
    m_chart->setAccessibleName(tr("Smallest track width of each layer"));
    m_chartBox->setTitle(tr("Smallest track width of each layer (%1)").arg(smallUnitName(m_view->handle())));
    m_notCheckedBox->setTitle(tr("Not checked"));
    m_notChecked->setHorizontalHeaderLabels({tr("Check or layer"), tr("Reason")});
    m_model->refreshTexts();
    refresh();
}

void ResultsPage::refresh()
{
    QString const step = QString::fromStdString(m_view->step());
    bool const hasRows = m_model->rowCount() > 0;
    m_stack->setCurrentIndex(hasRows ? 1 : 0);
    m_empty->setText(
        m_run->hasResult()
            ? tr("There was nothing to check in step %1.").arg(QString::fromStdString(m_run->report().step()))
            : tr("The checks have not been run yet. They measure step %1, the one on the board page.")
                  .arg(step));
    m_counts->setText(m_run->hasResult() ? countsText() : QString());
    QString note;
    if (m_outcome == AnalysisRun::Outcome::Failed) {
        note = tr("The checks of step %1 failed: %2").arg(step, m_run->error());
    } else if (m_outcome == AnalysisRun::Outcome::Cancelled) {
        note = m_run->hasResult() ? tr("The checks were stopped; these are the results of the run before.")
                                  : tr("The checks were stopped.");
    } else if (hasRows && !m_run->hasLevels()) {
        note = tr("No levels: everything is shown without colour.");
    }
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
    m_note->setStyleSheet(faultStyle(m_outcome == AnalysisRun::Outcome::Failed));
    m_summaryButton->setEnabled(m_run->hasResult());
    m_reportButton->setEnabled(m_run->hasResult());
    Ext::ReportCategory const * lines = m_run->report().find(signalTable, linesNumber);
    m_chart->setWidths(m_run->trackWidths(), lines != nullptr ? lines->levels : std::nullopt);
    showNotChecked();
    showLevels();
}

QString ResultsPage::countsText() const
{
    Ext::SeverityCounts const counts = m_run->report().counts();
    QStringList texts;
    for (auto mark = Ext::severityPalette.rbegin(); mark != Ext::severityPalette.rend(); ++mark) {
        texts.append(QString("<b style=\"color: %1\">%2</b> %3 %4")
                         .arg(colourOf(mark->severity).name(), signOf(mark->severity), wordOf(mark->severity))
                         .arg(counts[static_cast<std::size_t>(mark->severity)]));
    }
    return tr("Step %1").arg(QString::fromStdString(m_run->report().step())).toHtmlEscaped() +
           "&nbsp;&nbsp; " + texts.join("&nbsp;&nbsp; ");
}

void ResultsPage::showNotChecked()
{
    m_notChecked->setRowCount(0);
    for (Ext::NotChecked const & check : m_run->report().notChecked()) {
        addRow(*m_notChecked, {QString::fromStdString(check.name), QString::fromStdString(check.reason)});
    }
    m_notChecked->resizeRowsToContents();
}

void ResultsPage::showLevels()
{
    ResultsModel::Row const row = m_model->at(m_tree->currentIndex());
    m_boardButton->setEnabled(row.entry != nullptr);
    m_levels->showCategory(row.category);
}

void ResultsPage::showSelected()
{
    showLevels();
    ResultsModel::Row const row = m_model->at(m_tree->currentIndex());
    if (row.entry == nullptr || !row.entry->position) {
        return;
    }
    QString const unit = smallUnitName(m_view->handle());
    QString text = QString::fromStdString(row.category->name);
    if (row.entry->measured) {
        text += ": " + measuredText(m_view->handle(), *row.entry->measured) + ' ' + unit;
    }
    Ext::SeverityMark const & mark = Ext::markOf(row.entry->severity);
    emit measurementSelected(QString::fromStdString(m_run->report().step()),
                             QString::fromStdString(*row.layer),
                             {row.entry->position->x, row.entry->position->y, colourOf(mark.severity),
                              QString(QLatin1Char(mark.letter)), text});
}

void ResultsPage::exportFile(QString const & title, QString const & name, QString const & filter,
                             std::function<Ext::Result(QString const &)> const & write)
{
    askForFile(*this, title, name, filter, [this, title, write](QString const & path) {
        Ext::Result const result = write(path);
        if (!result.ok) {
            Ext::showMessage({Ext::MessageKind::Information, this, title, result.reason});
        }
    });
}

} // namespace Workbench
