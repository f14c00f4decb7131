#include "layers/ComparePage.h"

#include "board/BoardTexts.h"
#include "board/PanelSteps.h"
#include "job/Session.h"
#include "layers/CompareView.h"
#include "ui/LanguageChange.h"
#include "ui/LayerColours.h"
#include "ui/TableTools.h"
#include "ui/Units.h"

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace Workbench {

namespace {

constexpr int lookAtProgress = 100; // milliseconds

using KVCAM::UIAPI::Ext::Length;
using KVCAM::UIAPI::Ext::LengthScale;

QString millimetres(double micrometres)
{
    return Length::fromMicrometres(micrometres).text(Unit::Millimetre, LengthScale::Large, 3);
}

QString inches(double micrometres)
{
    return Length::fromMicrometres(micrometres).text(Unit::Inch, LengthScale::Large, 4);
}

QString squareMillimetres(double area)
{
    return QString::number(area / 1e6, 'f', area < 1e6 ? 6 : 3);
}

QString swatch(QRgb colour)
{
    return QString("<span style=\"color:%1\">\u25a0</span> ").arg(QColor(colour).name());
}

} // namespace

ComparePage::ComparePage(Session const & session, QWidget * parent)
    : QWidget(parent)
    , m_session(session)
    , m_first(new QComboBox)
    , m_second(new QComboBox)
    , m_visibleOnly(new QCheckBox)
    , m_run(new QPushButton)
    , m_stop(new QPushButton)
    , m_progress(new QProgressBar)
    , m_look(new QTimer(this))
    , m_legend(new QLabel)
    , m_text(new QLabel)
    , m_table(makeTable(QStringList{{}, {}, {}, {}, {}, {}}))
    , m_view(new CompareView)
{
    m_first->setObjectName("first layer");
    m_second->setObjectName("second layer");
    m_run->setObjectName("compare");
    m_stop->setObjectName("stop");
    m_text->setObjectName("comparison");
    m_table->setObjectName("regions");
    m_table->horizontalHeader()->setStretchLastSection(false);
    for (Session::Layer const & layer : session.layers()) {
        for (QComboBox * box : {m_first, m_second}) {
            box->addItem(QString::fromStdString(layer.info.name));
        }
    }
    chooseCopper();
    makeLayout();
    connect(m_look, &QTimer::timeout, this, [this] { m_progress->setValue(*m_percent); });
    connect(m_run, &QPushButton::clicked, this, &ComparePage::compare);
    connect(m_stop, &QPushButton::clicked, this, &ComparePage::stop);
    connect(m_table, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (row >= 0) {
            m_view->showRegion(m_found.regions.at(static_cast<std::size_t>(row)).box);
        }
    });
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void ComparePage::makeLayout()
{
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_legend->setTextFormat(Qt::RichText);
    auto * tools = new QHBoxLayout;
    for (QWidget * each : {static_cast<QWidget *>(m_first), static_cast<QWidget *>(m_second),
                           static_cast<QWidget *>(m_visibleOnly), static_cast<QWidget *>(m_run),
                           static_cast<QWidget *>(m_stop), static_cast<QWidget *>(m_progress)}) {
        tools->addWidget(each);
    }
    tools->addStretch(1);
    auto * side = new QWidget;
    auto * list = new QVBoxLayout(side);
    list->setContentsMargins(0, 0, 0, 0);
    list->addWidget(m_text);
    list->addWidget(m_table, 1);
    auto * sides = new QSplitter(Qt::Horizontal);
    sides->setObjectName("comparison sides");
    sides->setChildrenCollapsible(false);
    sides->addWidget(m_view);
    sides->addWidget(side);
    sides->setSizes({620, 560}); // parts of any width
    auto * layout = new QVBoxLayout(this);
    layout->addLayout(tools);
    layout->addWidget(m_legend);
    layout->addWidget(sides, 1);
    m_stop->setEnabled(false);
    m_progress->setVisible(false);
    m_progress->setValue(0);
}

void ComparePage::setTexts()
{
    m_run->setText(tr("Compare"));
    m_stop->setText(tr("Stop"));
    m_visibleOnly->setText(tr("Only the part in view"));
    m_visibleOnly->setToolTip(
        tr("Looks at a smaller part with the same number of pixels, and so more finely"));
    m_first->setToolTip(tr("The first layer"));
    m_second->setToolTip(tr("The second layer"));
    m_table->setHorizontalHeaderLabels({tr("Only in"), tr("Area (mm²)"), tr("Size (mm)"), tr("Size (inch)"),
                                        tr("Place (mm)"), tr("Place (inch)")});
    showFound();
}

void ComparePage::setStep(std::string const & step)
{
    stop();
    m_step = step;
    m_layers = nullptr;
    m_view->setLayers(nullptr);
    setState(State::Nothing);
}

// At first, the outer copper layers.
void ComparePage::chooseCopper()
{
    QComboBox * next = m_first;
    for (std::size_t i = 0; i < m_session.layers().size(); ++i) {
        if (hasCopperType(m_session.layers()[i].info)) {
            next->setCurrentIndex(static_cast<int>(i));
            next = m_second;
        }
    }
}

void ComparePage::choose(QString const & first, QString const & second)
{
    m_first->setCurrentText(first);
    if (second != first) {
        m_second->setCurrentText(second);
    }
}

void ComparePage::compareWith(QString const & first, QString const & second)
{
    choose(first, second);
    if (second != first) {
        m_visibleOnly->setChecked(false);
        compare();
    }
}

// Null if a layer cannot be read: a difference from nothing would mislead.
std::shared_ptr<ComparedLayers const> ComparePage::read()
{
    auto layers = std::make_shared<ComparedLayers>();
    PanelSteps panel(m_session.job(), m_step);
    for (auto const & [box, shapes] : {std::make_pair(m_first, &layers->first), //
                                       std::make_pair(m_second, &layers->second)}) {
        if (box->currentIndex() < 0) {
            return nullptr;
        }
        auto const & info = m_session.layers().at(static_cast<std::size_t>(box->currentIndex())).info;
        auto const own = std::make_shared<LayerShapes const>(m_session.job(), m_step, info);
        if (own->state() != LayerShapes::State::Read) {
            m_problem = emptyLayerText(*own);
            return nullptr;
        }
        *shapes = panel.shapes(info);
        shapes->push_back({own, {}});
    }
    return layers;
}

void ComparePage::compare()
{
    stop();
    QString const names[] = {m_first->currentText(), m_second->currentText()};
    bool const isSame = m_layers != nullptr && names[0] == m_names[0] && names[1] == m_names[1];
    QRectF const visible = m_view->visible();
    bool const isKept = isSame && !m_isOutOfDate;
    if (!isKept) {
        m_layers = read();
        m_names[0] = names[0];
        m_names[1] = names[1];
    }
    m_isOutOfDate = false;
    bool const isPart = m_visibleOnly->isChecked() && isKept && !visible.isEmpty();
    if (!isPart) {
        m_view->setLayers(m_layers);
    }
    if (m_layers == nullptr) {
        setState(State::Unreadable);
        return;
    }
    QRectF const area = isPart ? visible : m_layers->extent();
    auto const found = std::make_shared<LayerDifference>();
    *m_percent = 0;
    setState(State::Busy);
    m_work.begin(
        [=, layers = m_layers, percent = m_percent](BackgroundWork::Cancelled const & cancelled) {
            *found = compareLayers(*layers, area, comparedPixels, *percent, cancelled);
        },
        [=](bool isWhole) {
            setState(isWhole ? State::Done : State::OutOfMemory);
            m_found = isWhole ? std::move(*found) : LayerDifference();
            showFound();
        });
}

void ComparePage::stop()
{
    if (m_work.isBusy()) {
        m_work.cancel();
        setState(State::Stopped);
    }
}

void ComparePage::setState(State state)
{
    m_state = state;
    m_found = {};
    m_stop->setEnabled(state == State::Busy);
    m_progress->setVisible(state == State::Busy);
    state == State::Busy ? m_look->start(lookAtProgress) : m_look->stop();
    if (state != State::Done) {
        showFound();
    }
}

void ComparePage::setOutOfDate()
{
    if (m_layers != nullptr) {
        m_isOutOfDate = true;
        showFound();
    }
}

void ComparePage::showFound()
{
    QString const names[] = {m_names[0].toHtmlEscaped(), m_names[1].toHtmlEscaped()};
    m_legend->setText(m_layers == nullptr
                          ? QString()
                          : swatch(onlyFirstColour) + tr("only in %1").arg(names[0]) + "&nbsp; " +
                                swatch(onlySecondColour) + tr("only in %1").arg(names[1]) + "&nbsp; " +
                                swatch(bothColour) + tr("in both"));
    m_text->setText(stateText());
    fillTable();
}

QString ComparePage::stateText() const
{
    switch (m_state) {
    case State::Nothing:
        return tr("Choose two layers and compare them. Compared is what they draw in the step in front; the "
                  "polarity of the matrix does not count.");
    case State::Unreadable:
        return m_problem;
    case State::Busy:
        return tr("Comparing...");
    case State::Stopped:
        return tr("The comparison was stopped.");
    case State::OutOfMemory:
        return tr("There is not enough memory for the comparison.");
    case State::Done:
        break;
    }
    return foundText();
}

QString ComparePage::foundText() const
{
    if (m_found.pixel <= 0) {
        return tr("Both layers are empty in this step.");
    }
    QStringList lines;
    if (m_isOutOfDate) {
        lines.append(tr("The step has changed since: compare again."));
    }
    long long const regions = m_found.firstRegions + m_found.secondRegions;
    lines.append(regions == 0 ? tr("No difference was seen.")
                              : tr("Only in %1: %2 mm² in %3 regions. Only in %4: %5 mm² in %6 regions.")
                                    .arg(m_names[0], squareMillimetres(m_found.onlyFirst),
                                         QString::number(m_found.firstRegions), m_names[1],
                                         squareMillimetres(m_found.onlySecond),
                                         QString::number(m_found.secondRegions)));
    if (!m_found.regions.empty()) {
        lines.append(tr("The largest region has %1 mm², the smallest %2 mm².")
                         .arg(squareMillimetres(m_found.regions.front().area),
                              squareMillimetres(m_found.regions.back().area)));
    }
    lines.append(tr("In both: %1 mm².").arg(squareMillimetres(m_found.both)));
    if (regions > static_cast<long long>(m_found.regions.size())) {
        lines.append(tr("Listed are the largest and the smallest: %1 of %2.")
                         .arg(m_found.regions.size())
                         .arg(regions));
    }
    lines.append(
        tr("Seen in pixels of %1 µm (%2 mil): what is thinner may be missed or seem a pixel wide, sizes "
           "are uncertain by as much, and edges that differ by half a pixel count as equal.")
            .arg(m_found.pixel, 0, 'f', 2)
            .arg(m_found.pixel / micrometresPer(Unit::Inch), 0, 'f', 3));
    if (m_found.area != m_layers->extent()) {
        lines.append(tr("Only a part was compared, %1 x %2 mm; regions may be cut at its edge.")
                         .arg(millimetres(m_found.area.width()), millimetres(m_found.area.height())));
    }
    return lines.join('\n');
}

void ComparePage::fillTable()
{
    QSignalBlocker const blocker(m_table);
    m_table->setRowCount(0);
    auto const pair = [](QString (*text)(double), double x, double y, char const * between) {
        return text(x) + between + text(y);
    };
    for (LayerRegion const & region : m_found.regions) {
        double const width = region.box.width();
        double const height = region.box.height();
        addRow(*m_table,
               {m_names[region.isFirst ? 0 : 1], squareMillimetres(region.area),
                pair(millimetres, width, height, " x "), pair(inches, width, height, " x "),
                pair(millimetres, region.place.x(), region.place.y(), ", "),
                pair(inches, region.place.x(), region.place.y(), ", ")},
               {1});
    }
}

} // namespace Workbench
