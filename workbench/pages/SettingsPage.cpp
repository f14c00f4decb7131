#include "pages/SettingsPage.h"

#include "job/ConfigDirectory.h"
#include "ui/Colours.h"
#include "ui/LanguageChange.h"
#include "ui/TableTools.h"

#include <EmbeddedEngine.h>

#include <UIAPICommon.h>

#include <QCheckBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include <limits>

namespace Workbench {

using namespace KVCAM::UIAPI;

struct Setting
{
    char const * title;
    char const * key; ///< in "server.json"; for settings that can be written
    QVariant (*read)();
    void (*write)(QVariant const &); ///< null: read only at the library's start
};

namespace {

QVariant text(std::string const & value)
{
    return QString::fromStdString(value);
}

UIAPIGlobalVar & globals()
{
    return *UIAPIGlobalVar::instance();
}

// Getters are flat functions; most setters exist only as methods of UIAPIGlobalVar. The suffix record has no
// getter: the library passes it to the engine, which is asked for it.
constexpr Setting settings[] = {
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Server address"), "ServerIp",
     [] { return text(getServerIP()); },
     [](QVariant const & v) { globals().setServerIP(v.toString().toStdString()); }},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Client address"), "ClientIp",
     [] { return text(getClientIP()); },
     [](QVariant const & v) { globals().setClientIP(v.toString().toStdString()); }},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Server port"), "Port",
     [] { return QVariant(getServerPort()); },
     [](QVariant const & v) { globals().setServerPort(v.toInt()); }},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Database path"), "DBPath",
     [] { return text(getDBPath()); },
     [](QVariant const & v) { globals().setDBPath(v.toString().toStdString()); }},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Share path"), "SharePath",
     [] { return text(getSharePath()); },
     [](QVariant const & v) { globals().setSharePath(v.toString().toStdString()); }},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Operating system code"), "OS",
     [] { return QVariant(getOS()); }, [](QVariant const & v) { globals().setOS(v.toInt()); }},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Timeout"), "TimeOut",
     [] { return QVariant(getTimeout()); }, [](QVariant const & v) { globals().setTimeout(v.toInt()); }},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Selection-outside hint"), "SelectionOutsideHint",
     [] { return QVariant(getSelectionOutsideHint()); },
     [](QVariant const & v) { setSelectionOutsideHint(v.toBool()); }},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Calculation threads"), "ThreadCount",
     [] { return QVariant(getThreadCount()); }, [](QVariant const & v) { setThreadCount(v.toInt()); }},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Backup layers take the suffix"), nullptr,
     [] { return QVariant(KVCAM::Embedded::liveState().backup.use_suffix); }, nullptr},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Backup layer suffix"), nullptr,
     [] { return text(KVCAM::Embedded::liveState().backup.suffix); }, nullptr},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Layer copy suffix"), nullptr,
     [] { return text(getLayerCopySuffix()); }, nullptr},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Movement factor"), nullptr,
     [] { return QVariant(getMovementFactor()); }, nullptr},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Shift factor"), nullptr,
     [] { return QVariant(getShiftConfict()); }, nullptr},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Contour accuracy"), nullptr,
     [] { return QVariant(getContourAccuracy()); }, nullptr},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Hot keys may be modified"), nullptr,
     [] { return QVariant(getModifyHotKey()); }, nullptr},
    {QT_TRANSLATE_NOOP("Workbench::SettingsPage", "Python home"), nullptr,
     [] { return QVariant(getPythonHome()); }, nullptr},
};
static_assert(std::size(settings) == 17);

QString kindText(Ext::DiagnosticKind kind)
{
    switch (kind) {
    case Ext::DiagnosticKind::MissingFile:
        return SettingsPage::tr("missing file");
    case Ext::DiagnosticKind::OpenFailed:
        return SettingsPage::tr("cannot be opened");
    case Ext::DiagnosticKind::ParseError:
        return SettingsPage::tr("not JSON");
    case Ext::DiagnosticKind::MissingKey:
        return SettingsPage::tr("missing key");
    case Ext::DiagnosticKind::WrongType:
        return SettingsPage::tr("wrong type");
    case Ext::DiagnosticKind::UnknownKey:
        return SettingsPage::tr("unknown key");
    case Ext::DiagnosticKind::DuplicateElement:
        return SettingsPage::tr("duplicate");
    case Ext::DiagnosticKind::KeyNotReadBack:
        return SettingsPage::tr("not read back");
    case Ext::DiagnosticKind::IndexTaken:
        return SettingsPage::tr("index taken");
    case Ext::DiagnosticKind::BackupFailed:
        return SettingsPage::tr("no backup");
    case Ext::DiagnosticKind::SaveFailed:
        return SettingsPage::tr("not saved");
    }
    return {};
}

} // namespace

SettingsPage::SettingsPage(QWidget * parent) : QWidget(parent)
{
    auto * values = new QGroupBox;
    auto * form = new QGridLayout(values);
    form->setColumnStretch(1, 1);
    for (Setting const & setting : settings) {
        addSetting(*form, setting);
    }
    form->setRowStretch(form->rowCount(), 1);

    m_diagnostics = makeTable({{}, {}, {}, {}});
    wrapLastColumn(*m_diagnostics);
    auto * findings = new QGroupBox;
    auto * findingsLayout = new QVBoxLayout(findings);
    m_summary = new QLabel;
    findingsLayout->addWidget(m_summary);
    findingsLayout->addWidget(m_diagnostics);

    auto * layout = new QHBoxLayout(this);
    layout->addWidget(values, 2);
    layout->addWidget(findings, 3);
    setTextsNowAndLater(*this, [this, values, findings] {
        values->setTitle(tr("Settings of server.json"));
        findings->setTitle(tr("What the loaders found"));
        m_diagnostics->setHorizontalHeaderLabels({tr("File"), tr("Key"), tr("Finding"), tr("Text")});
        refreshDiagnostics();
    });
}

void SettingsPage::addSetting(QGridLayout & form, Setting const & setting)
{
    int const row = form.rowCount();
    QVariant const value = setting.read();
    QWidget * editor = nullptr;
    if (value.type() == QVariant::Bool) {
        auto * box = new QCheckBox;
        box->setChecked(value.toBool());
        connect(box, &QCheckBox::toggled, this, [this, &setting](bool on) { store(setting, on); });
        editor = box;
    } else if (value.type() == QVariant::Int && setting.write != nullptr) {
        auto * box = new QSpinBox;
        box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        box->setValue(value.toInt());
        connect(box, &QSpinBox::editingFinished, this,
                [this, &setting, box] { store(setting, box->value()); });
        editor = box;
    } else {
        auto * line = new QLineEdit(value.toString());
        connect(line, &QLineEdit::editingFinished, this,
                [this, &setting, line] { store(setting, line->text()); });
        editor = line;
    }
    editor->setObjectName(setting.title);
    editor->setEnabled(setting.write != nullptr);
    auto * title = new QLabel;
    form.addWidget(title, row, 0);
    form.addWidget(editor, row, 1);
    auto * state = new QLabel;
    state->setObjectName(QString(setting.title) + " state");
    m_states[&setting] = state;
    form.addWidget(state, row, 2);
    setTextsNowAndLater(*title, [this, title, state, &setting] {
        title->setText(tr(setting.title));
        state->setText(stateText(setting));
    });
}

QString SettingsPage::stateText(Setting const & setting) const
{
    if (setting.write == nullptr) {
        return tr("read at start only");
    }
    return m_unsaved.count(&setting) == 0 ? tr("saved at once") : tr("not saved");
}

void SettingsPage::store(Setting const & setting, QVariant const & value)
{
    if (setting.write == nullptr || (setting.read() == value && m_unsaved.count(&setting) == 0)) {
        return;
    }
    setting.write(value);
    m_unsaved.insert(&setting);
    // The library writes all settings at every save and does not report a failure, so the file is read.
    // Earlier failures may have reached it now.
    QJsonObject const stored = readJsonObject(configurationDirectory() + "/server.json");
    for (auto const & [each, state] : m_states) {
        if (m_unsaved.count(each) == 0) {
            continue;
        }
        bool const isSaved = stored[QLatin1String(each->key)] == QJsonValue::fromVariant(each->read());
        if (isSaved) {
            m_unsaved.erase(each);
        }
        state->setText(stateText(*each));
        state->setStyleSheet(faultStyle(!isSaved));
    }
}

void SettingsPage::refreshDiagnostics()
{
    m_diagnostics->setRowCount(0);
    m_summary->setText(Ext::diagnostics().empty() ? tr("All files were read, and nothing is wrong with them.")
                                                  : tr("Findings: %1").arg(Ext::diagnostics().size()));
    for (Ext::Diagnostic const & finding : Ext::diagnostics()) {
        addRow(*m_diagnostics,
               {QFileInfo(finding.file).fileName(), finding.where, kindText(finding.kind), finding.text});
    }
    m_diagnostics->resizeRowsToContents();
}

} // namespace Workbench
