#include "hotkey/KVHotKey.h"

#include "hotkey/HotkeyFile.h"
#include "hotkey/KVHotKeyPrivate.h"
#include "support/JsonFile.h"

namespace KVCAM {

using namespace UIAPI;

KVHotKey * KVHotKey::m_pKVHotKeyInstance = nullptr;

KVHotKey * KVHotKey::getInstance()
{
    if (m_pKVHotKeyInstance == nullptr) {
        m_pKVHotKeyInstance = new KVHotKey;
    }
    return m_pKVHotKeyInstance;
}

KVHotKey::KVHotKey() : d(new Private)
{
    initAllMap();
    initHotkeyTable();
    uploadHotkeyModel();
}

KVHotKey::~KVHotKey()
{
    delete d;
}

FuncCode KVHotKey::getFunctionCode(QKeyEvent * event)
{
    if (event == nullptr) {
        return KP_NoFunction;
    }
    if (event->modifiers() != Qt::NoModifier) {
        d->buffer.clear();
        return d->tables.find(event->key(), event->modifiers());
    }
    d->buffer.add(event->key());
    return d->buffer.hasGroup() ? d->tables.find({d->buffer.previous, d->buffer.latest}) : KP_NoFunction;
}

void KVHotKey::buffAddKey(Qt::Key key)
{
    d->buffer.add(key);
}

void KVHotKey::buffClear()
{
    d->buffer.clear();
}

bool KVHotKey::buffHasGroup()
{
    return d->buffer.hasGroup();
}

// The sequences stay on purpose: a second call adds a second set of them.
void KVHotKey::initHotkeyTable()
{
    d->tables.singles.clear();
    d->tables.addDefaults();
}

void KVHotKey::uploadHotkeyModel()
{
    JsonFile::ReadResult const file = JsonFile::read(QLatin1String(Ext::hotkeyFile), QIODevice::Text);
    if (file.status == JsonFile::ReadStatus::Ok) {
        updateHotkeyTable(file.document.array());
    }
}

void KVHotKey::initKeyNameMap()
{
    d->names.addKeys();
}

void KVHotKey::initKeyboardModifiersMap()
{
    d->names.addModifiers();
}

void KVHotKey::initFuncNameMap()
{
    d->names.addFunctions();
}

void KVHotKey::initAllMap()
{
    initKeyNameMap();
    initKeyboardModifiersMap();
    initFuncNameMap();
}

void KVHotKey::updateHotkeyTable(QJsonArray const & array)
{
    d->tables = readTables(array, d->names);
}

} // namespace KVCAM
