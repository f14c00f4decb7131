#include "layers/FilterBar.h"

#include "layers/LayerNames.h"
#include "ui/LanguageChange.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace Workbench {

using namespace KVCAM::UIAPI;

/// A key of the filter and the words offered for it, some of them combined.
struct FilterBar::Field
{
    char const * key;
    char const * title;
    std::initializer_list<char const *> words;
};

FilterBar::Field const FilterBar::fields[] = {
    {"type",
     QT_TRANSLATE_NOOP("Workbench::FilterBar", "Ty&pe"),
     {"signal", "power_ground", "mixed", "signal|power_ground|mixed", "solder_mask", "silk_screen",
      "solder_paste", "drill", "rout", "drill|rout", "component", "dielectric", "document"}},
    {"context", QT_TRANSLATE_NOOP("Workbench::FilterBar", "&Context"), {"board", "misc"}},
    {"side", QT_TRANSLATE_NOOP("Workbench::FilterBar", "S&ide"), {"top", "bottom", "inner", "top|bottom"}},
    {"pos", QT_TRANSLATE_NOOP("Workbench::FilterBar", "P&olarity"), {"positive", "negative"}},
};

namespace {

// Completes the last of the words joined by "|" in a field.
class WordCompleter : public QCompleter
{
public:
    WordCompleter(QStringList const & words, QComboBox & field) : QCompleter(words, &field), m_field(field) {}

    QStringList splitPath(QString const & text) const override { return {text.section('|', -1)}; }
    QString pathFromIndex(QModelIndex const & index) const override
    {
        QString const text = m_field.currentText();
        return text.left(text.lastIndexOf('|') + 1) + QCompleter::pathFromIndex(index);
    }

private:
    QComboBox & m_field;
};

} // namespace

FilterBar::FilterBar(Session const & session, QWidget * parent)
    : QWidget(parent)
    , m_job(QString::fromStdString(session.job()))
    , m_name(new QLineEdit)
    , m_nameTitle(new QLabel)
    , m_hides(new QCheckBox)
    , m_analysis(new QPushButton)
    , m_clear(new QPushButton)
    , m_count(new QLabel)
    , m_more(new QToolButton)
    , m_folded(new QWidget)
    , m_explanation(new QLabel)
{
    static_assert(std::size(fields) == fieldCount);
    for (Session::Layer const & layer : session.layers()) {
        m_names.push_back(layer.info.name);
    }
    makeLayout();
    m_more->setObjectName("more filters");
    m_more->setCheckable(true);
    m_more->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(m_more, &QToolButton::toggled, this, [this](bool on) {
        m_folded->setVisible(on);
        m_more->setArrowType(on ? Qt::DownArrow : Qt::RightArrow);
    });
    m_hides->setChecked(true);
    m_analysis->setObjectName("for analysis");
    m_analysis->setCheckable(true);
    m_count->setObjectName("layer count");
    m_explanation->setObjectName("explanation");
    m_explanation->setWordWrap(true);
    m_explanation->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_explanation->setMinimumHeight(2 * fontMetrics().lineSpacing()); // keeps the table below in place
    m_explanation->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(m_hides, &QCheckBox::toggled, this, &FilterBar::changed);
    connect(m_analysis, &QPushButton::toggled, this, &FilterBar::askForAnalysis);
    connect(m_clear, &QPushButton::clicked, this, [this] { ask({}); });
    refresh();
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void FilterBar::makeLayout()
{
    m_name->setObjectName("layer name");
    m_name->setClearButtonEnabled(true);
    m_nameTitle->setBuddy(m_name);
    connect(m_name, &QLineEdit::textChanged, this, &FilterBar::refresh);
    auto * head = new QHBoxLayout;
    head->addWidget(m_nameTitle);
    head->addWidget(m_name, 1);
    head->addWidget(m_count);
    head->addWidget(m_more);
    auto * grid = new QGridLayout;
    makeFields(*grid);
    auto * buttons = new QHBoxLayout;
    buttons->addWidget(m_analysis);
    buttons->addWidget(m_clear);
    buttons->addStretch(1);
    buttons->addWidget(m_hides);
    auto * folded = new QVBoxLayout(m_folded);
    folded->setContentsMargins(0, 0, 0, 0);
    folded->addLayout(grid);
    folded->addLayout(buttons);
    folded->addWidget(m_explanation);
    auto * layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(head);
    layout->addWidget(m_folded);
    m_folded->hide();
    m_more->setArrowType(Qt::RightArrow);
}

void FilterBar::makeFields(QGridLayout & layout)
{
    for (std::size_t i = 0; i < fieldCount; ++i) {
        auto * words = new QComboBox;
        words->setObjectName(fields[i].key);
        words->setEditable(true);
        words->setInsertPolicy(QComboBox::NoInsert);
        words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // lets the layer list be narrow
        words->setMinimumWidth(60);
        QStringList offered;
        for (char const * word : fields[i].words) {
            offered.append(word);
        }
        words->addItems(offered);
        words->setEditText({});
        auto * completer = new WordCompleter(offered, *words);
        completer->setCaseSensitivity(Qt::CaseSensitive); // as the filter is
        words->setCompleter(completer);
        connect(words, &QComboBox::editTextChanged, this, &FilterBar::refresh);
        m_words[i] = words;
        m_titles[i] = new QLabel;
        m_titles[i]->setBuddy(words);
        int const row = static_cast<int>(i) / 2;
        int const column = static_cast<int>(i) % 2 * 2;
        layout.addWidget(m_titles[i], row, column);
        layout.addWidget(words, row, column + 1);
        layout.setColumnStretch(column + 1, 1);
    }
}

void FilterBar::setTexts()
{
    m_nameTitle->setText(tr("Name"));
    m_name->setPlaceholderText(tr("every layer"));
    m_name->setToolTip(
        tr("Parts of names separated by |, with * for any text and ? for any letter; case does "
           "not matter."));
    for (std::size_t i = 0; i < fieldCount; ++i) {
        m_titles[i]->setText(tr(fields[i].title));
        m_words[i]->lineEdit()->setPlaceholderText(tr("every layer"));
        m_words[i]->setToolTip(tr("Words separated by |; case matters. A | at the end adds the empty word, "
                                  "which accepts layers without a value here."));
    }
    m_more->setText(tr("More"));
    m_more->setToolTip(tr("More ways to choose layers, and why one is left out"));
    m_hides->setText(tr("Hi&de others"));
    m_hides->setToolTip(tr("Hides layers that do not match instead of greying them"));
    m_analysis->setText(tr("For analysis"));
    m_analysis->setToolTip(tr("Shows the layers that analysis and checks read"));
    m_clear->setText(tr("C&lear"));
    m_clear->setToolTip(tr("Shows all layers"));
    showExplanation();
}

QMap<QString, QString> FilterBar::request() const
{
    QMap<QString, QString> request;
    for (std::size_t i = 0; i < fieldCount; ++i) {
        if (!m_words[i]->currentText().isEmpty()) {
            request[fields[i].key] = m_words[i]->currentText();
        }
    }
    return request;
}

void FilterBar::ask(QMap<QString, QString> const & request)
{
    for (QComboBox * words : m_words) {
        QSignalBlocker const blocker(words);
        words->setEditText(request.value(words->objectName()));
    }
    m_more->setChecked(m_more->isChecked() || !request.isEmpty());
    QSignalBlocker const blocker(m_name);
    m_name->clear();
    askForAnalysis(false);
}

void FilterBar::setName(QString const & words)
{
    m_name->setText(words);
}

bool FilterBar::isNamed(std::size_t layer) const
{
    return isAskedFor(QString::fromStdString(m_names[layer]), m_name->text());
}

void FilterBar::askForAnalysis(bool on)
{
    QSignalBlocker const blocker(m_analysis);
    m_analysis->setChecked(on);
    m_more->setChecked(m_more->isChecked() || on);
    for (QComboBox * words : m_words) {
        words->setEnabled(!on);
    }
    refresh();
}

void FilterBar::setStep(std::string const & step)
{
    m_step = QString::fromStdString(step);
    refresh();
}

void FilterBar::setLayer(int layer)
{
    m_layer = layer;
    showExplanation();
}

int FilterBar::matchCount() const
{
    return static_cast<int>(std::count(m_matches.begin(), m_matches.end(), true));
}

bool FilterBar::hidesOthers() const
{
    return m_hides->isChecked();
}

// The library returns names in matrix order, and they are unique in a matrix.
void FilterBar::refresh()
{
    std::vector<std::string> selected;
    if (m_analysis->isChecked()) {
        selected = getAnalyzeAndDFMLayers(m_job, m_step);
    } else {
        UIAPICommonPara::instance()->selectLayersByType(m_job, selected, request());
        m_report = Ext::explainLayerFilter(m_job, request());
    }
    m_matches.assign(m_names.size(), false);
    auto next = selected.begin();
    for (std::size_t i = 0; i < m_names.size() && next != selected.end(); ++i) {
        if (m_names[i] == *next) {
            m_matches[i] = isNamed(i);
            ++next;
        }
    }
    showExplanation();
    emit changed();
}

void FilterBar::showExplanation()
{
    m_count->setText(tr("%1 of %2 layers").arg(matchCount()).arg(m_names.size()));
    m_explanation->setText(explanation());
}

QString FilterBar::fieldTitle(QString const & key) const
{
    auto const found =
        std::find_if(std::begin(fields), std::end(fields), [&key](Field const & f) { return key == f.key; });
    return found == std::end(fields) ? key : tr(found->title).remove('&').section('(', 0, 0);
}

QString FilterBar::unmatchedText(Ext::LayerFilterFinding const & word) const
{
    QString const text = word.kind == Ext::LayerWordFault::UnknownWord
                             ? tr("%1: \"%2\" is not a word of this field.")
                             : tr("%1: no layer of the job is \"%2\".");
    return text.arg(fieldTitle(word.where), word.word);
}

QString FilterBar::analysisText() const
{
    QString const text = tr("These are the layers that analysis and checks read.");
    auto const layer = static_cast<std::size_t>(m_layer);
    if (m_layer >= 0 && !isNamed(layer)) {
        return text + ' ' + verdictText(layer);
    }
    bool const isOut = m_layer >= 0 && !m_matches.at(layer);
    return isOut ? text + ' ' + tr("\"%1\" is not one of them.").arg(QString::fromStdString(m_names[layer]))
                 : text;
}

QString FilterBar::verdictText(std::size_t layer) const
{
    QString const refusing = !isNamed(layer) ? tr("Name") : fieldTitle(m_report.layers[layer].refusedBy);
    QString const name = QString::fromStdString(m_names[layer]);
    return refusing.isEmpty() ? tr("\"%1\" matches.").arg(name)
                              : tr("\"%1\" is left out by: %2.").arg(name, refusing);
}

QString FilterBar::explanation() const
{
    if (m_analysis->isChecked()) {
        return analysisText();
    }
    if (!m_report.result) {
        return m_report.result.reason;
    }
    if (request().isEmpty() && m_name->text().trimmed().isEmpty()) {
        return tr("All layers are shown.");
    }
    QStringList sentences;
    for (Ext::LayerFilterFinding const & word : m_report.unmatchedWords) {
        sentences.append(unmatchedText(word));
    }
    if (matchCount() == 0) {
        sentences.append(tr("No layer matches."));
    }
    auto const layer = static_cast<std::size_t>(m_layer);
    if (m_layer >= 0 && layer < std::min(m_report.layers.size(), m_names.size())) {
        sentences.append(verdictText(layer));
    }
    return sentences.join(' ');
}

} // namespace Workbench
