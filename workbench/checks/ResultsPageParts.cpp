#include "board/BoardView.h"
#include "checks/LevelsBox.h"
#include "checks/ResultsPage.h"
#include "checks/ResultsTree.h"
#include "checks/SeverityBar.h"
#include "checks/TrackWidthChart.h"
#include "checks/WaiversBox.h"
#include "ui/Colours.h"
#include "ui/TableTools.h"

#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

// The widgets of the page.

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

QWidget * ResultsPage::makeButtons()
{
    m_runButton = makeButton("run");
    m_previous = makeButton("previous");
    m_next = makeButton("next");
    m_boardButton = makeButton("board");
    m_waiveButton = makeButton("waive");
    m_summaryButton = makeButton("summary");
    m_reportButton = makeButton("report");
    auto * row = new QWidget;
    auto * layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QPushButton * button : {m_runButton, m_previous, m_next, m_boardButton, m_waiveButton}) {
        layout->addWidget(button);
    }
    layout->addStretch(1);
    layout->addWidget(m_summaryButton);
    layout->addWidget(m_reportButton);
    connect(m_runButton, &QPushButton::clicked, this, &ResultsPage::runChecks);
    connect(m_previous, &QPushButton::clicked, this, [this] { showViolation(-1); });
    connect(m_next, &QPushButton::clicked, this, [this] { showViolation(1); });
    connect(m_boardButton, &QPushButton::clicked, this, &ResultsPage::boardWanted);
    connect(m_waiveButton, &QPushButton::clicked, this, &ResultsPage::waiveSelected);
    connect(m_summaryButton, &QPushButton::clicked, this, [this] {
        exportFile(tr("Export the summary"), "summary.json", tr("Summary (*.json)"),
                   [this](QString const & path) { return m_run->writeSummary(path); });
    });
    connect(m_reportButton, &QPushButton::clicked, this, [this] {
        exportFile(tr("Export the report"), "report.html",
                   tr("HTML report (*.html);;JSON report (*.json);;CSV report (*.csv)"),
                   [this](QString const & path) {
                       ReportChoices choices;
                       choices.firstUnit = Ext::unitOf(m_view->handle());
                       return m_run->writeReport(path, choices);
                   });
    });
    return row;
}

QWidget * ResultsPage::makeBanner()
{
    m_banner = new QFrame;
    m_banner->setObjectName("out of date");
    m_banner->setFrameShape(QFrame::StyledPanel);
    m_outdated = makeLabel("outdated");
    m_outdated->setStyleSheet(faultStyle(true));
    m_again = makeButton("again");
    auto * layout = new QHBoxLayout(m_banner);
    layout->addWidget(m_outdated, 1);
    layout->addWidget(m_again);
    connect(m_again, &QPushButton::clicked, this, [this] { measure(m_run->report().step()); });
    return m_banner;
}

QWidget * ResultsPage::makeResults()
{
    m_tree = new ResultsTree(*m_model);
    connect(m_tree, &ResultsTree::currentRowChanged, this, &ResultsPage::showSelected);
    connect(m_tree, &QTreeView::activated, this, [this] {
        if (m_tree->current().entry != nullptr) {
            emit boardWanted();
        }
    });
    m_severities = new SeverityBar;
    connect(m_severities, &SeverityBar::shown, this, [this](int severity, bool on) {
        m_tree->filter().setShown(static_cast<Ext::Severity>(severity), on);
        m_tree->scrollTo(m_tree->currentIndex());
    });
    m_empty = makeLabel("empty");
    m_empty->setAlignment(Qt::AlignCenter);
    m_stack = new QStackedWidget;
    m_stack->addWidget(m_empty);
    m_stack->addWidget(m_tree);
    m_step = makeLabel("step");
    m_step->setTextFormat(Qt::PlainText);
    m_step->setWordWrap(false);
    m_note = makeLabel("note");

    auto * side = new QWidget;
    auto * layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    auto * head = new QHBoxLayout;
    head->addWidget(m_step);
    head->addWidget(m_severities, 1);
    layout->addLayout(head);
    layout->addWidget(makeBanner());
    layout->addWidget(m_note);
    layout->addWidget(m_stack, 1);
    return side;
}

QWidget * ResultsPage::makeSides()
{
    m_levels = new LevelsBox(*m_run, *m_view, [this] {
        m_model->regrade();
        m_tree->filter().regrade();
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
    m_notChecked->setObjectName("not checked");
    wrapLastColumn(*m_notChecked);
    m_notChecked->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive); // wraps as well
    m_notChecked->horizontalHeader()->resizeSection(0, 16 * fontMetrics().averageCharWidth());
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
    layout->addWidget(lower, 2);
    m_waivers = new WaiversBox;
    layout->addWidget(m_waivers, 1);
    return side;
}

QWidget * ResultsPage::makeFoot()
{
    m_written = makeLabel("written");
    m_written->setTextInteractionFlags(Qt::TextBrowserInteraction);
    m_written->setOpenExternalLinks(true);
    return m_written;
}

} // namespace Workbench
