#include "feature/RemarksGroup.h"

#include "feature/FormFile.h"
#include "ui/LanguageChange.h"

#include <UIAPICommon.h>

#include <QButtonGroup>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace Workbench {

using namespace KVCAM::UIAPI;

RemarksGroup::RemarksGroup()
    : m_side(new QButtonGroup(this))
    , m_author(new QLineEdit)
    , m_note(new KVTextEdit(nullptr))
    , m_documents(new QListWidget)
{
    m_author->setObjectName("author");
    m_note->setTabChangesFocus(true);
    m_documents->setTextElideMode(Qt::ElideMiddle);
    m_documents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto * attach = new QPushButton;
    attach->setAutoDefault(false);
    connect(attach, &QPushButton::clicked, this, [this] { attachFiles(); });

    auto * form = new QFormLayout(this);
    addRow(*form, QT_TR_NOOP("Applies to"), makeSides());
    addRow(*form, QT_TR_NOOP("Author"), m_author);
    addRow(*form, QT_TR_NOOP("Note"), m_note);
    addRow(*form, QT_TR_NOOP("Documents"), m_documents);
    form->addRow(QString(), attach);
    setTextsNowAndLater(*this, [this, attach] {
        setTitle(tr("Remarks"));
        attach->setText(tr("Attach files"));
    });
}

QWidget * RemarksGroup::makeSides()
{
    m_side->setObjectName("side");
    auto * sides = new QWidget;
    auto * layout = new QHBoxLayout(sides);
    layout->setContentsMargins(0, 0, 0, 0);
    int id = 0; // a saved group is restored by the ids, which are the positions
    for (char const * text : {QT_TR_NOOP("This side"), QT_TR_NOOP("Both sides")}) {
        auto * button = new QRadioButton;
        setTextsNowAndLater(*button, [button, text] { button->setText(tr(text)); });
        m_side->addButton(button, id++);
        layout->addWidget(button);
    }
    m_side->button(0)->setChecked(true);
    return sides;
}

void RemarksGroup::addRow(QFormLayout & form, char const * title, QWidget * field)
{
    auto * label = new QLabel;
    form.addRow(label, field);
    setTextsNowAndLater(*label, [label, title] { label->setText(tr(title)); });
}

void RemarksGroup::attachFiles()
{
    auto * dialog = new KVFileDialog(window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { m_documents->addItems(dialog->selectedFiles()); });
    dialog->open();
}

void RemarksGroup::fill(QString const & author, QString const & note, QString const & document)
{
    m_author->setText(author);
    m_note->setPlainText(note);
    m_documents->addItem(document);
}

QList<QObject *> RemarksGroup::fields() const
{
    return {m_side, m_author};
}

QJsonObject RemarksGroup::extras() const
{
    QJsonArray documents;
    for (int i = 0; i < m_documents->count(); ++i) {
        documents.append(m_documents->item(i)->text());
    }
    return {{"note", m_note->toPlainText()}, {"documents", documents}};
}

void RemarksGroup::restore(SavedForm const & form)
{
    QList<QObject *> restored = fields();
    writeJsonToList(form.fields, restored);
    m_note->setPlainText(form.extra["note"].toString());
    m_documents->clear();
    for (auto const & path : form.extra["documents"].toArray()) {
        m_documents->addItem(path.toString());
    }
}

} // namespace Workbench
