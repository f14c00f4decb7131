#include "checks/LevelsBox.h"

#include "board/BoardView.h"
#include "checks/AnalysisRun.h"
#include "checks/LevelsEditor.h"
#include "checks/MeasureTexts.h"
#include "ui/CategoryNames.h"
#include "ui/Colours.h"
#include "ui/LanguageChange.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

LevelsBox::LevelsBox(AnalysisRun & run, BoardView & view, std::function<void()> regrade)
    : m_run(run)
    , m_view(&view)
    , m_regrade(std::move(regrade))
    , m_layout(new QVBoxLayout(this))
    , m_hint(new QLabel)
    , m_save(new QPushButton)
{
    m_hint->setObjectName("levels hint");
    m_hint->setWordWrap(true);
    m_hint->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_save->setObjectName("save levels");
    auto * foot = new QHBoxLayout;
    foot->addWidget(m_hint, 1);
    foot->addWidget(m_save, 0, Qt::AlignTop);
    m_layout->addLayout(foot);
    m_editor = new LevelsEditor(view);
    m_layout->insertWidget(0, m_editor);
    connect(m_editor, &LevelsEditor::levelEdited, this,
            [this](char const * level, double mil) { changeLevel(level, mil); });
    connect(m_save, &QPushButton::clicked, this, [this] { saveLevels(); });
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void LevelsBox::setView(BoardView & view)
{
    if (&view != m_view) {
        m_view = &view;
        m_editor->setView(view);
    }
    showCategory(m_category);
}

void LevelsBox::showCategory(Ext::ReportCategory const * category)
{
    m_category = category;
    m_editor->show(category != nullptr ? category->levels : std::nullopt);
    setTexts();
}

void LevelsBox::setTexts()
{
    QString const unit = smallUnitName(m_view->handle());
    m_save->setText(tr("Save &levels"));
    m_save->setEnabled(m_category != nullptr && m_run.isUnsaved(m_category->table));
    m_hint->setStyleSheet(faultStyle(m_save->isEnabled()));
    setTitle(m_category == nullptr ? tr("Levels (%1)").arg(unit)
                                   : tr("Levels of %1 (%2)").arg(shownName(m_category->name), unit));
    m_hint->setText(hint());
}

QString LevelsBox::hint() const
{
    if (m_category == nullptr) {
        return tr("Select a check to see its levels.");
    }
    QString const table = QString::fromStdString(m_category->table);
    QStringList sentences;
    if (!m_category->levels) {
        sentences.append(tr("The range files have no levels for this check: it is shown without colour."));
    } else if (!isGrading(*m_category->levels)) {
        sentences.append(tr("These levels contradict each other and grade nothing."));
    }
    if (m_save->isEnabled()) {
        sentences.append(tr("Not saved: levels of %1 were changed.").arg(table));
    } else if (sentences.isEmpty()) {
        sentences.append(tr("As in the range file %1.json.").arg(table));
    }
    return sentences.join('\n');
}

void LevelsBox::changeLevel(char const * level, double mil)
{
    if (m_category != nullptr) {
        m_run.changeLevel(m_category->table, m_category->name, level, mil);
        m_regrade();
    }
}

void LevelsBox::saveLevels()
{
    if (m_category == nullptr) {
        return;
    }
    Ext::Result const result = m_run.saveLevels(m_category->table);
    setTexts();
    if (!result.ok) {
        Ext::showMessage({Ext::MessageKind::Information, this, tr("Levels"), result.reason});
    }
}

} // namespace Workbench
