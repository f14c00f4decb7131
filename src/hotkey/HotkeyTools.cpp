#include "hotkey/HotkeyTools.h"

#include "hotkey/HotkeyFile.h"
#include "hotkey/KVHotKeyPrivate.h"
#include "support/WholeFile.h"

#include <QKeySequence>

#include <bitset>
#include <map>
#include <tuple>

namespace KVCAM::UIAPI::Ext {
namespace {

QString keyText(int key, Qt::KeyboardModifiers modifiers = {})
{
    return QKeySequence(key | static_cast<int>(modifiers)).toString(QKeySequence::PortableText);
}

QString keysText(HotkeyEntry const & entry)
{
    return entry.isSequence() ? keyText(entry.key) + QStringLiteral(", ") + keyText(entry.second)
                              : keyText(entry.key, entry.modifiers);
}

QString functionText(FuncCode code)
{
    QString const name = nameOfFunction(code);
    return name.isNull() ? QStringLiteral("Function %1").arg(int{code}) : name;
}

bool canFire(HotkeyEntry const & entry)
{
    return entry.isSequence() ? KeyBuffer::isGroup(entry.key, entry.second)
                              : entry.modifiers != Qt::NoModifier;
}

/// Checks bindings in search order and collects the findings.
class Judge
{
public:
    HotkeyBinding judge(HotkeyEntry const & entry, int element = -1)
    {
        HotkeyBinding binding{entry.code, nameOfFunction(entry.code), keysText(entry), false};
        QString const function = functionText(entry.code);
        auto const [first, isNew] =
            m_bound.try_emplace({entry.key, entry.second, static_cast<int>(entry.modifiers)}, entry.code);
        if (!isNew) {
            find(HotkeyFindingKind::SameKeys, element,
                 QStringLiteral("%1 has %2, which %3 has already: this binding never answers.")
                     .arg(function, binding.keys, functionText(first->second)));
        } else if (!canFire(entry)) {
            find(HotkeyFindingKind::NeverFires, element,
                 entry.isSequence()
                     ? QStringLiteral("%1 has %2, and these keys never form a sequence.")
                           .arg(function, binding.keys)
                     : QStringLiteral("%1 has %2, and a key without a modifier never answers by itself.")
                           .arg(function, binding.keys));
        } else {
            binding.answers = true;
            m_reached.set(static_cast<std::size_t>(entry.code));
        }
        return binding;
    }

    /// `member` is the element's one that is at fault, if it is not the element as a whole.
    void find(HotkeyFindingKind kind, int element, QString const & text, char const * member = nullptr)
    {
        QString where = element < 0 ? QString() : QStringLiteral("[%1]").arg(element);
        if (member != nullptr) {
            where += QLatin1Char('.') + QLatin1String(member);
        }
        findings.push_back({{where, kind, text}, element});
    }
    void findFunctionsWithoutKey()
    {
        for (HotkeyFunction const & row : HotkeyFunctions::table) {
            if (!m_reached.test(static_cast<std::size_t>(row.code))) {
                find(HotkeyFindingKind::WithoutKey, -1,
                     row.name != nullptr ? QStringLiteral("%1 has no key.").arg(QLatin1String(row.name))
                                         : QStringLiteral("Function %1 has no key; a file cannot name it.")
                                               .arg(int{row.code}));
            }
        }
    }

    std::vector<HotkeyFinding> findings;

private:
    std::map<std::tuple<int, int, int>, FuncCode> m_bound;
    std::bitset<std::size(HotkeyFunctions::table) + 1> m_reached;
};

QString faultText(HotkeyElement const & element)
{
    QString const member = QLatin1String(element.member);
    switch (*element.fault) {
    case HotkeyFindingKind::UnknownFunction:
        return QStringLiteral("\"%1\" is \"%2\", which is no function.").arg(member, element.word);
    case HotkeyFindingKind::UnknownModifier:
        return QStringLiteral("\"%1\" is \"%2\", which is no modifier.").arg(member, element.word);
    case HotkeyFindingKind::KeyBesidePair:
        return QStringLiteral("\"%1\" stands beside a sequence, which is then left out.").arg(member);
    default:
        return QStringLiteral("\"%1\" is \"%2\", which is no key.").arg(member, element.word);
    }
}

std::vector<HotkeyBinding> judged(HotkeyTables const & tables)
{
    Judge judge;
    std::vector<HotkeyBinding> result;
    for (HotkeyEntry const & entry : tables.entries()) {
        result.push_back(judge.judge(entry));
    }
    return result;
}

/// The entry of keys in words; without a key if they are no binding's.
HotkeyEntry entryOf(HotkeyBinding const & binding)
{
    QKeySequence const keys = QKeySequence::fromString(binding.keys, QKeySequence::PortableText);
    int const mask = static_cast<int>(Qt::KeyboardModifierMask);
    HotkeyEntry entry;
    entry.code = binding.code;
    if (keys.count() == 1) {
        entry.modifiers = Qt::KeyboardModifiers(keys[0] & mask);
        entry.key = keys[0] & ~mask;
    } else if (keys.count() == 2) { // a key with a modifier is no key that has a name
        entry.key = keys[0];
        entry.second = keys[1];
    }
    return entry;
}

} // namespace

std::vector<HotkeyBinding> hotkeyBindings()
{
    return judged(HotkeyAccess::read().tables);
}

std::vector<HotkeyBinding> defaultHotkeyBindings()
{
    HotkeyTables tables;
    tables.addDefaults();
    return judged(tables);
}

std::vector<HotkeyFinding> hotkeyReport()
{
    Judge judge;
    for (HotkeyEntry const & entry : HotkeyAccess::read().tables.entries()) {
        judge.judge(entry);
    }
    judge.findFunctionsWithoutKey();
    return judge.findings;
}

HotkeyFileCheck checkHotkeyFile(QString const & path)
{
    Judge judge;
    HotkeyFileCheck check;
    HotkeyDocument const file = readHotkeyFile(path);
    check.loads = file.result.ok;
    if (!check.loads) {
        judge.find(HotkeyFindingKind::Unreadable, -1, file.result.reason);
        check.findings = judge.findings;
        return check;
    }
    for (int i = 0; i < file.elements.size(); ++i) {
        HotkeyElement const element = readElement(file.elements.at(i), HotkeyAccess::read().names);
        if (element.fault) {
            judge.find(*element.fault, i, faultText(element), element.member);
        } else {
            check.bindings.push_back(judge.judge(element.entry, i));
        }
    }
    if (!file.isArray) {
        judge.find(HotkeyFindingKind::NotAnArray, -1, QStringLiteral("The top level is not an array."));
    }
    judge.findFunctionsWithoutKey();
    check.findings = judge.findings;
    return check;
}

Result lastHotkeyLoad()
{
    return HotkeyAccess::read().lastLoad;
}

std::vector<HotkeyFinding> checkHotkeyBindings(std::vector<HotkeyBinding> const & bindings)
{
    Judge judge;
    int element = 0;
    for (HotkeyBinding const & binding : bindings) {
        HotkeyEntry const entry = entryOf(binding);
        if (nameOfFunction(binding.code).isNull()) {
            judge.find(HotkeyFindingKind::UnknownFunction, element,
                       QStringLiteral("%1 has no name in a file.").arg(functionText(binding.code)));
        } else if (writeElement(entry).isNull()) {
            judge.find(HotkeyFindingKind::UnknownKey, element,
                       QStringLiteral("\"%1\" are no keys that a file can name.").arg(binding.keys));
        } else {
            judge.judge(entry, element);
        }
        ++element;
    }
    judge.findFunctionsWithoutKey();
    return judge.findings;
}

HotkeyExport exportHotkeys(QString const & path)
{
    return saveHotkeys(path, hotkeyBindings());
}

HotkeyExport saveHotkeys(QString const & path, std::vector<HotkeyBinding> const & bindings)
{
    HotkeyExport result;
    QJsonArray array;
    for (HotkeyBinding const & binding : bindings) {
        QJsonValue const element = writeElement(entryOf(binding));
        if (element.isNull()) {
            result.leftOut.push_back(binding);
        } else {
            array.append(element);
        }
    }
    result.result = WholeFile::replace(path, QJsonDocument(array).toJson());
    return result;
}

QString pendingHotkey()
{
    int const key = HotkeyAccess::read().buffer.pending();
    return key == noKey ? QString() : keyText(key);
}

std::vector<HotkeyContinuation> hotkeyContinuations()
{
    auto const & state = HotkeyAccess::read();
    Judge judge;
    std::vector<HotkeyContinuation> result;
    for (HotkeyEntry const & entry : state.tables.entries()) {
        bool const answers = judge.judge(entry).answers;
        if (answers && entry.isSequence() && entry.key == state.buffer.pending()) {
            result.push_back({keyText(entry.second), entry.code, nameOfFunction(entry.code)});
        }
    }
    return result;
}

} // namespace KVCAM::UIAPI::Ext
