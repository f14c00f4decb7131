#include "window/CheatSheet.h"

#include "ui/FileDialogs.h"
#include "ui/LanguageChange.h"
#include "ui/Legible.h"
#include "ui/TableTools.h"
#include "window/HotkeyCommands.h"

#include <UIAPICommon.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

CheatSheet::CheatSheet(QWidget * parent)
    : QDialog(parent)
    , m_tabs(new QTabWidget)
    , m_bindings(makeTable(QStringList{{}, {}, {}, {}}))
    , m_findings(makeTable(QStringList{{}, {}}))
    , m_file(new QLabel)
    , m_hint(new QLabel)
{
    resize(720, 560);
    m_bindings->setObjectName("bindings");
    m_findings->setObjectName("findings");
    m_file->setObjectName("file");
    m_file->setWordWrap(true);
    m_hint->setObjectName("hint");
    wrapLastColumn(*m_findings);

    auto * own = new QWidget;
    auto * ownLayout = new QVBoxLayout(own);
    ownLayout->addWidget(m_file);
    ownLayout->addWidget(m_findings, 1);
    m_tabs->addTab(m_bindings, {});
    m_tabs->addTab(own, {});

    auto * buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto * load = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    connect(load, &QPushButton::clicked, this, &CheatSheet::loadAgain);
    auto * write = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    connect(write, &QPushButton::clicked, this, &CheatSheet::chooseExport);

    auto * layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(m_hint);
    layout->addWidget(buttons);
    setTextsNowAndLater(*this, [this, buttons, load, write] {
        setWindowTitle(tr("Hot keys"));
        m_tabs->setTabText(0, tr("Keys"));
        m_tabs->setTabText(1, tr("Own file"));
        m_bindings->setHorizontalHeaderLabels({tr("Keys"), tr("Command"), tr("Function"), tr("Remark")});
        m_findings->setHorizontalHeaderLabels({tr("Element"), tr("Finding")});
        load->setText(tr("Load the file again"));
        write->setText(tr("Export..."));
        buttons->button(QDialogButtonBox::Close)->setText(tr("Close"));
        refresh();
    });
}

void CheatSheet::refresh()
{
    showBindings();
    showFile();
}

void CheatSheet::showOwnFile()
{
    m_tabs->setCurrentIndex(1);
}

void CheatSheet::exportTo(QString const & path)
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

void CheatSheet::loadAgain()
{
    KVHotKey::getInstance()->uploadHotkeyModel();
    m_hint->clear();
    refresh();
}

void CheatSheet::chooseExport()
{
    askForFile(*this, tr("Export the hot keys"), Ext::hotkeyFile, "*.json",
               [this](QString const & path) { exportTo(path); });
}

void CheatSheet::showBindings()
{
    m_bindings->setRowCount(0);
    for (Ext::HotkeyBinding const & binding : Ext::hotkeyBindings()) {
        QString const remark = !binding.answers                             ? tr("never answers")
                               : !HotkeyCommands::isAvailable(binding.code) ? tr("not available in this host")
                                                                            : QString();
        addRow(*m_bindings, {binding.keys, HotkeyCommands::text(binding.code), binding.name, remark});
        if (!remark.isEmpty()) {
            for (int column = 0; column < m_bindings->columnCount(); ++column) {
                m_bindings->item(m_bindings->rowCount() - 1, column)->setForeground(dimmedText());
            }
        }
    }
}

void CheatSheet::showFile()
{
    QFileInfo const file{QString(Ext::hotkeyFile)};
    QString const path = QDir::toNativeSeparators(QDir::cleanPath(file.absoluteFilePath()));
    Ext::HotkeyFileCheck const check = Ext::checkHotkeyFile(Ext::hotkeyFile);
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
