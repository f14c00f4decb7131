#include "window/KeyPlan.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeySequence>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

namespace {

constexpr int mostBackups = 99;

// What rewriting a file would lose.
bool holdsUnread(Ext::HotkeyFileCheck const & check)
{
    using Kind = Ext::HotkeyFindingKind;
    return !check.loads ||
           std::any_of(check.findings.begin(), check.findings.end(), [](auto const & finding) {
               return finding.kind != Kind::SameKeys && finding.kind != Kind::NeverFires &&
                      finding.kind != Kind::WithoutKey;
           });
}

// Returns the name of the copy; empty if it cannot be made.
QString copyBeside(QString const & path)
{
    for (int i = 1; i <= mostBackups; ++i) {
        QString copy = path + ".bak" + (i > 1 ? QString::number(i) : QString());
        if (!QFileInfo::exists(copy) && QFile::copy(path, copy)) {
            return copy;
        }
    }
    return {};
}

} // namespace

KeyPlan::KeyPlan(std::vector<Binding> bindings) : m_rows(std::move(bindings))
{
    arrange();
}

// Rows of one function keep their order, and so do all that can have the same keys.
void KeyPlan::arrange()
{
    m_rows.erase(
        std::remove_if(m_rows.begin(), m_rows.end(), [](Binding const & row) { return row.keys.isEmpty(); }),
        m_rows.end());
    for (Binding const & each : Ext::defaultHotkeyBindings()) {
        auto const isSame = [&each](Binding const & row) { return row.code == each.code; };
        if (std::none_of(m_rows.begin(), m_rows.end(), isSame)) {
            m_rows.push_back({each.code, each.name, {}, false});
        }
    }
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [](Binding const & a, Binding const & b) { return a.code < b.code; });
}

void KeyPlan::take(QString const & keys)
{
    for (Binding & row : m_rows) {
        if (row.keys == keys) {
            row.keys.clear();
        }
    }
}

void KeyPlan::change(std::size_t row, QString const & keys)
{
    if (row < m_rows.size()) {
        take(keys);
        m_rows[row].keys = keys;
        arrange();
    }
}

void KeyPlan::add(std::size_t row, QString const & keys)
{
    if (row < m_rows.size()) {
        Binding added = m_rows[row];
        take(keys);
        added.keys = keys;
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(row) + 1, added);
        arrange();
    }
}

int KeyPlan::holderOf(QString const & keys, std::size_t row) const
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (i != row && m_rows[i].keys == keys) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

std::vector<KeyPlan::Binding> KeyPlan::bindings() const
{
    std::vector<Binding> bindings;
    std::copy_if(m_rows.begin(), m_rows.end(), std::back_inserter(bindings),
                 [](Binding const & row) { return !row.keys.isEmpty(); });
    return bindings;
}

// The library judges the keys, alone and for a function that has a name.
KeyVerdict verdictOn(KeyPlan const & plan, std::size_t row, QString const & keys)
{
    if (row >= plan.rows().size() || plan.rows()[row].name.isEmpty()) {
        return KeyVerdict::Impossible;
    }
    auto const findings = Ext::checkHotkeyBindings({{plan.rows()[row].code, {}, keys, false}});
    if (std::any_of(findings.begin(), findings.end(), [](auto const & each) { return each.element == 0; })) {
        return KeyVerdict::Impossible;
    }
    return plan.rows()[row].keys == keys  ? KeyVerdict::Own
           : plan.holderOf(keys, row) < 0 ? KeyVerdict::Free
                                          : KeyVerdict::Taken;
}

void KeyRecorder::press(int key, Qt::KeyboardModifiers modifiers)
{
    if (key == 0 || key == Qt::Key_unknown || (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) ||
        key == Qt::Key_AltGr) {
        return;
    }
    QString const text = QKeySequence(key | static_cast<int>(modifiers)).toString(QKeySequence::PortableText);
    bool const isSecond = modifiers == Qt::NoModifier && !m_isComplete && !m_keys.isEmpty();
    m_keys = isSecond ? m_keys + ", " + text : text;
    m_isComplete = isSecond || modifiers != Qt::NoModifier;
}

QString keysFile()
{
    return Ext::userFile(Ext::hotkeyFile);
}

KeysSaved saveKeys(std::vector<KeyPlan::Binding> const & bindings, bool keepsOld)
{
    KeysSaved saved;
    QString const path = keysFile();
    QDir().mkpath(QFileInfo(path).path());
    if (QFileInfo(path).isFile() && (keepsOld || holdsUnread(Ext::checkHotkeyFile(path)))) {
        saved.backup = copyBeside(path);
        if (saved.backup.isEmpty()) {
            saved.problem = QString("\"%1\" cannot be copied").arg(path);
            return saved;
        }
    }
    Ext::HotkeyExport const written = Ext::saveHotkeys(path, bindings);
    saved.leftOut = written.leftOut;
    saved.problem = written.result.reason;
    if (written.result.ok) {
        KVHotKey::getInstance()->uploadHotkeyModel();
        saved.problem = Ext::lastHotkeyLoad().reason;
    }
    return saved;
}

} // namespace Workbench
