#include "hotkey/KVHotKey.h"

#include "hotkey/HotkeyFile.h"
#include "hotkey/KVHotKeyPrivate.h"
#include "support/Compiler.h"
#include "support/Guard.h"
#include "support/Log.h"
#include "support/Singleton.h"
#include "support/UserDirectory.h"

#include <QKeyEvent>

#include <utility>

namespace KVCAM {

using namespace UIAPI;

namespace {

// Every public method and every step of the load runs inside this.
template <class Body>
auto guardedKeys(Body && body, int line = UIAPI_CALLER_LINE)
{
    return guarded(Log::hotKey, std::forward<Body>(body), line);
}

} // namespace

KVHotKey * KVHotKey::m_pKVHotKeyInstance = nullptr;

KVHotKey * KVHotKey::getInstance()
{
    return Singleton::obtain(
        m_pKVHotKeyInstance, [] { return new KVHotKey; },
        [](KVHotKey & made) {
            guardedKeys([&] { made.initAllMap(); });
            made.initHotkeyTable();
            made.uploadHotkeyModel();
        });
}

KVHotKey::KVHotKey() : d(new Private) {}

KVHotKey::~KVHotKey()
{
    delete d;
}

FuncCode KVHotKey::getFunctionCode(QKeyEvent * event)
{
    return guardedKeys([&]() -> FuncCode {
        if (event == nullptr) {
            return KP_NoFunction;
        }
        if (event->modifiers() != Qt::NoModifier) {
            d->buffer.clear();
            return d->tables.find(event->key(), event->modifiers());
        }
        d->buffer.add(event->key());
        return d->buffer.hasGroup() ? d->tables.find({d->buffer.previous, d->buffer.latest}) : KP_NoFunction;
    });
}

void KVHotKey::buffAddKey(Qt::Key key)
{
    int const code = key; // any number, not only named ones
    guardedKeys([&] { d->buffer.add(code); });
}

void KVHotKey::buffClear()
{
    guardedKeys([&] { d->buffer.clear(); });
}

bool KVHotKey::buffHasGroup()
{
    return guardedKeys([&] { return d->buffer.hasGroup(); });
}

// Deliberately keeps the sequences: a second call adds a second set.
void KVHotKey::initHotkeyTable()
{
    guardedKeys([&] {
        d->tables.singles.clear();
        d->tables.addDefaults();
    });
}

void KVHotKey::uploadHotkeyModel()
{
    guardedKeys([&] {
        HotkeyDocument const file = readHotkeyFile(Ext::userFile(QLatin1String(Ext::hotkeyFile)));
        if (file.result) {
            updateHotkeyTable(file.elements);
        }
        d->lastLoad = file.result;
    });
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
