#include "hotkey/HotkeyFile.h"

#include "support/WholeFile.h"

#include <QJsonObject>

namespace KVCAM::UIAPI {
namespace {

using Ext::HotkeyFindingKind;

constexpr char const * functionMember = "func_name";
constexpr char const * modifierMember = "Modifier";
constexpr char const * keyMember = "key";
constexpr char const * firstMember = "key1";
constexpr char const * secondMember = "key2";

/// An element, read member by member; the first fault is kept.
class Reader
{
public:
    Reader(QJsonValue const & element, HotkeyElement & out) : m_object(element.toObject()), m_out(out) {}

    /// A missing member and a non-string member give the empty text.
    QString text(char const * member) const { return m_object.value(QLatin1String(member)).toString(); }

    template <class Value, class Target>
    void look(char const * member, HotkeyWords<Value> const & words, HotkeyFindingKind kind, Target & target)
    {
        QString const word = text(member);
        if (Value const * const value = words.find(word)) {
            target = *value;
        } else {
            fail(kind, member, word);
        }
    }
    void fail(HotkeyFindingKind kind, char const * member, QString const & word)
    {
        if (!m_out.fault) {
            m_out.fault = kind;
            m_out.member = member;
            m_out.word = word;
        }
    }

private:
    QJsonObject m_object;
    HotkeyElement & m_out;
};

} // namespace

HotkeyElement readElement(QJsonValue const & element, HotkeyNames const & names)
{
    HotkeyElement result;
    HotkeyEntry & entry = result.entry;
    Reader reader(element, result);
    reader.look(functionMember, names.functions, HotkeyFindingKind::UnknownFunction, entry.code);
    bool const hasFirst = !reader.text(firstMember).isEmpty();
    bool const hasSecond = !reader.text(secondMember).isEmpty();
    // Half a pair counts as none: the element is then a single key.
    if (!hasFirst || !hasSecond) {
        if (hasFirst != hasSecond && reader.text(keyMember).isEmpty()) {
            reader.fail(HotkeyFindingKind::UnknownKey, hasFirst ? secondMember : firstMember, {});
        }
        reader.look(keyMember, names.keys, HotkeyFindingKind::UnknownKey, entry.key);
        reader.look(modifierMember, names.modifiers, HotkeyFindingKind::UnknownModifier, entry.modifiers);
        return result;
    }
    if (QString const key = reader.text(keyMember); !key.isEmpty()) {
        reader.fail(HotkeyFindingKind::KeyBesidePair, keyMember, key);
    }
    reader.look(firstMember, names.keys, HotkeyFindingKind::UnknownKey, entry.key);
    reader.look(secondMember, names.keys, HotkeyFindingKind::UnknownKey, entry.second);
    return result;
}

QJsonValue writeElement(HotkeyEntry const & entry)
{
    QString const function = nameOfFunction(entry.code);
    QString const key = nameOfKey(entry.key);
    QString const other = entry.isSequence() ? nameOfKey(entry.second) : nameOfModifiers(entry.modifiers);
    if (function.isNull() || key.isNull() || other.isNull()) {
        return {};
    }
    QJsonObject element{{functionMember, function}};
    element[QLatin1String(entry.isSequence() ? firstMember : keyMember)] = key;
    element[QLatin1String(entry.isSequence() ? secondMember : modifierMember)] = other;
    return element;
}

HotkeyDocument readHotkeyFile(QString const & path)
{
    WholeFile::ReadResult const file = WholeFile::readJson(path, QIODevice::Text);
    return {{file.status == WholeFile::ReadStatus::Ok, file.reason},
            file.document.isArray(),
            file.document.array()};
}

HotkeyTables readTables(QJsonArray const & array, HotkeyNames const & names)
{
    HotkeyTables tables;
    for (QJsonValue const element : array) {
        HotkeyElement const read = readElement(element, names);
        if (!read.fault) {
            tables.add(read.entry);
        }
    }
    return tables;
}

} // namespace KVCAM::UIAPI
