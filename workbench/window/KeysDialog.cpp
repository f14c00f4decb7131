#include "window/KeysDialog.h"

#include "ui/FileDialogs.h"
#include "ui/LanguageChange.h"
#include "ui/Legible.h"
#include "ui/TableTools.h"
#include "window/HotkeyCommands.h"
#include "window/KeyField.h"
#include "window/WindowState.h"

#include <UIAPICommon.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

namespace {

QString ownFile()
{
    return QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(keysFile()).absoluteFilePath()));
}

} // namespace

KeysDialog::KeysDialog(QWidget * parent)
    : QDialog(parent)
    , m_tabs(new QTabWidget)
    , m_search(new QLineEdit)
    , m_bindings(makeTable(QStringList{{}, {}, {}, {}}))
    , m_field(new KeyField)
    , m_verdict(new QLabel)
    , m_findings(makeTable(QStringList{{}, {}}))
    , m_file(new QLabel)
    , m_hint(new QLabel)
{
    resize(firstWindowSize(screen()->availableSize()).boundedTo({760, 600}));
    m_findings->setObjectName("findings");
    m_file->setObjectName("file");
    m_file->setWordWrap(true);
    m_hint->setObjectName("hint");
    m_hint->setWordWrap(true);
    wrapLastColumn(*m_findings);

    auto * own = new QWidget;
    auto * ownLayout = new QVBoxLayout(own);
    ownLayout->addWidget(m_file);
    ownLayout->addWidget(m_findings, 1);
    m_tabs->addTab(makeKeysTab(), {});
    m_tabs->addTab(own, {});
    auto * layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(m_hint);
    makeButtons();
    m_search->setFocus();
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

QWidget * KeysDialog::makeKeysTab()
{
    m_bindings->setObjectName("bindings");
    m_search->setObjectName("search");
    m_search->setClearButtonEnabled(true);
    m_field->setObjectName("new keys");
    m_verdict->setObjectName("verdict");
    m_verdict->setWordWrap(true);
    m_assign = new QPushButton;
    m_add = new QPushButton;
    m_remove = new QPushButton;
    m_assign->setObjectName("assign");
    m_add->setObjectName("add keys");
    m_remove->setObjectName("remove keys");
    for (QPushButton * button : {m_assign, m_add, m_remove}) {
        button->setAutoDefault(false); // Return in the search changes nothing
    }
    auto * change = new QHBoxLayout;
    change->addWidget(m_field, 1);
    change->addWidget(m_assign);
    change->addWidget(m_add);
    change->addWidget(m_remove);
    auto * tab = new QWidget;
    auto * layout = new QVBoxLayout(tab);
    layout->addWidget(m_search);
    layout->addWidget(m_bindings, 1);
    layout->addLayout(change);
    layout->addWidget(m_verdict);
    connect(m_search, &QLineEdit::textChanged, this, &KeysDialog::filter);
    connect(m_bindings, &QTableWidget::currentCellChanged, this, &KeysDialog::showVerdict);
    connect(m_bindings, &QTableWidget::cellActivated, m_field, [this] { m_field->setFocus(); });
    connect(m_field, &KeyField::keysChanged, this, &KeysDialog::showVerdict);
    connect(m_field, &KeyField::confirmed, m_assign, &QPushButton::click);
    connect(m_assign, &QPushButton::clicked, this, [this] { assign(false); });
    connect(m_add, &QPushButton::clicked, this, [this] { assign(true); });
    connect(m_remove, &QPushButton::clicked, this, &KeysDialog::remove);
    return tab;
}

void KeysDialog::makeButtons()
{
    auto * buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto const add = [this, buttons](void (KeysDialog::*act)()) {
        auto * button = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, act);
        return button;
    };
    m_reset = add(&KeysDialog::resetAll);
    m_load = add(&KeysDialog::loadAgain);
    m_export = add(&KeysDialog::chooseExport);
    m_close = buttons->button(QDialogButtonBox::Close);
    m_close->setAutoDefault(false);
    layout()->addWidget(buttons);
}

void KeysDialog::setTexts()
{
    setWindowTitle(tr("Hot keys"));
    m_tabs->setTabText(0, tr("Keys"));
    m_tabs->setTabText(1, tr("Own file"));
    m_bindings->setHorizontalHeaderLabels({tr("Keys"), tr("Command"), tr("Function"), tr("Remark")});
    m_findings->setHorizontalHeaderLabels({tr("Element"), tr("Finding")});
    m_search->setPlaceholderText(tr("Search commands and keys"));
    m_field->setPlaceholderText(tr("Press the new keys here"));
    m_assign->setText(tr("Change"));
    m_assign->setToolTip(tr("Gives the selected command these keys instead of its own"));
    m_add->setText(tr("Add"));
    m_add->setToolTip(tr("Gives the selected command these keys as well"));
    m_remove->setText(tr("Remove"));
    m_remove->setToolTip(tr("Takes the keys from the selected command"));
    m_reset->setText(tr("Default keys"));
    m_reset->setToolTip(tr("Gives all commands their default keys; the file with yours is kept as a copy"));
    m_load->setText(tr("Load the file again"));
    m_export->setText(tr("Export..."));
    m_close->setText(tr("Close"));
    refresh();
}

void KeysDialog::refresh()
{
    m_plan = KeyPlan(Ext::hotkeyBindings());
    showBindings();
    showFile();
}

void KeysDialog::showOwnFile()
{
    m_tabs->setCurrentIndex(1);
}

void KeysDialog::exportTo(QString const & path)
{
    Ext::HotkeyExport const result = Ext::exportHotkeys(path);
    QStringList lines;
    lines.append(result.result.ok ? tr("Written to \"%1\".").arg(QDir::toNativeSeparators(path))
                                  : result.result.reason);
    for (Ext::HotkeyBinding const & binding : result.leftOut) {
        lines.append(tr("%1 is left out: the file has no name for what it does.").arg(binding.keys));
    }
    m_hint->setText(lines.join(' '));
    showFile();
}

void KeysDialog::loadAgain()
{
    KVHotKey::getInstance()->uploadHotkeyModel();
    m_hint->clear();
    refresh();
}

void KeysDialog::chooseExport()
{
    askForFile(*this, tr("Export the hot keys"), keysFile(), "*.json",
               [this](QString const & path) { exportTo(path); });
}

std::size_t KeysDialog::row() const
{
    return m_bindings->currentRow() < 0 ? m_plan.rows().size()
                                        : static_cast<std::size_t>(m_bindings->currentRow());
}

void KeysDialog::assign(bool adds)
{
    QString const keys = m_field->keys();
    KeyVerdict const verdict = verdictOn(m_plan, row(), keys);
    if (m_field->isComplete() && (verdict == KeyVerdict::Free || verdict == KeyVerdict::Taken)) {
        adds ? m_plan.add(row(), keys) : m_plan.change(row(), keys);
        save(false);
    }
}

void KeysDialog::remove()
{
    m_plan.change(row(), {});
    save(false);
}

void KeysDialog::resetAll()
{
    m_plan = KeyPlan(Ext::defaultHotkeyBindings());
    save(true);
}

void KeysDialog::save(bool keepsOld)
{
    KeysSaved const saved = saveKeys(m_plan.bindings(), keepsOld);
    QStringList lines;
    lines.append(saved.problem.isEmpty() ? tr("Written to \"%1\".").arg(ownFile())
                                         : tr("The keys are not saved: %1").arg(saved.problem));
    if (!saved.backup.isEmpty()) {
        lines.append(
            tr("The file that was there is now \"%1\".").arg(QDir::toNativeSeparators(saved.backup)));
    }
    for (Ext::HotkeyBinding const & binding : saved.leftOut) {
        lines.append(tr("%1 is left out: the file has no name for what it does.").arg(binding.keys));
    }
    m_hint->setText(lines.join(' '));
    m_field->empty();
    refresh();
}

void KeysDialog::showBindings()
{
    int const selected = m_bindings->currentRow();
    {
        QSignalBlocker const blocker(m_bindings);
        m_bindings->setRowCount(0);
        for (Ext::HotkeyBinding const & binding : m_plan.rows()) {
            QString const remark = binding.keys.isEmpty() ? tr("no keys")
                                   : !binding.answers     ? tr("never answers")
                                   : !HotkeyCommands::isAvailable(binding.code)
                                       ? tr("not available in this host")
                                       : QString();
            addRow(*m_bindings, {binding.keys, HotkeyCommands::text(binding.code), binding.name, remark});
            if (!remark.isEmpty()) {
                for (int column = 0; column < m_bindings->columnCount(); ++column) {
                    m_bindings->item(m_bindings->rowCount() - 1, column)->setForeground(dimmedText());
                }
            }
        }
        m_bindings->setCurrentCell(selected, 0);
    }
    filter();
    showVerdict();
}

void KeysDialog::filter()
{
    QString const words = m_search->text().trimmed();
    for (int row = 0; row < m_bindings->rowCount(); ++row) {
        bool isFound = false;
        for (int column = 0; column < m_bindings->columnCount(); ++column) {
            isFound = isFound || m_bindings->item(row, column)->text().contains(words, Qt::CaseInsensitive);
        }
        m_bindings->setRowHidden(row, !isFound);
        if (!isFound && row == m_bindings->currentRow()) {
            m_bindings->setCurrentCell(-1, -1); // what is not seen is not changed
        }
    }
}

void KeysDialog::showVerdict()
{
    bool const isSelected = row() < m_plan.rows().size();
    QString const keys = m_field->keys();
    QString text;
    bool isPossible = false;
    if (!isSelected) {
        text = tr("Select a command to change its keys.");
    } else if (keys.isEmpty()) {
        text = tr("Press a key with Ctrl or Shift, or two plain keys one after the other.");
    } else if (!m_field->isComplete()) {
        text = tr("%1 begins a sequence: press the second key.").arg(keys);
    } else {
        KeyVerdict const verdict = verdictOn(m_plan, row(), keys);
        int const holder = m_plan.holderOf(keys, row());
        isPossible = verdict == KeyVerdict::Free || verdict == KeyVerdict::Taken;
        text =
            verdict == KeyVerdict::Free  ? tr("%1 is free.").arg(keys)
            : verdict == KeyVerdict::Own ? tr("The command has %1.").arg(keys)
            : verdict == KeyVerdict::Taken
                ? tr("%1 belongs to \"%2\", which loses it.")
                      .arg(keys, HotkeyCommands::text(m_plan.rows()[static_cast<std::size_t>(holder)].code))
                : tr("%1 cannot be a hot key: only letters, digits, arrows and some signs can, with Ctrl or "
                     "Shift or in a pair of plain keys.")
                      .arg(keys);
    }
    m_verdict->setText(text);
    m_assign->setEnabled(isPossible);
    m_add->setEnabled(isPossible);
    m_remove->setEnabled(isSelected && !m_plan.rows()[row()].keys.isEmpty());
}

void KeysDialog::showFile()
{
    QFileInfo const file(keysFile());
    QString const path = ownFile();
    Ext::HotkeyFileCheck const check = Ext::checkHotkeyFile(keysFile());
    m_findings->setRowCount(0);
    for (Ext::HotkeyFinding const & finding : check.findings) {
        addRow(*m_findings,
               {finding.element < 0 ? QString() : QString::number(finding.element + 1), finding.text});
    }
    m_findings->resizeRowsToContents();
    m_file->setText(check.loads ? tr("%1 holds %2 bindings. Findings: %3.")
                                      .arg(path, QString::number(check.bindings.size()),
                                           QString::number(check.findings.size()))
                    : file.exists() ? tr("%1 cannot be loaded; the keys stay as they are.").arg(path)
                                    : tr("There is no file %1; the default keys are in use.").arg(path));
}

} // namespace Workbench
