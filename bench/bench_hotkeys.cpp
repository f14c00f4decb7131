// One key press: the look-up in the default table, and in a table of 1,000 single keys and 1,000 sequences,
// beside one QHash look-up.

#include <UIAPICommon.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QTemporaryDir>

namespace {

using namespace KVCAM;

constexpr int manyEntries = 1000;

/// Half are sequences, all different, half are single keys. The look-up is for the last of each kind.
void loadMany()
{
    QJsonArray array;
    for (int i = 0; i < manyEntries; ++i) {
        bool const isLast = i == manyEntries - 1;
        array.append(QJsonObject{{"func_name", "KK_SnapGrid"},
                                 {"key1", QString(QChar('0' + i / 40))},
                                 {"key2", QString(QChar('0' + i % 40))}});
        // There are fewer than 1,000 single keys: all the others are the same.
        array.append(
            QJsonObject{{"func_name", "KP_Measure"}, {"Modifier", "Ctrl"}, {"key", isLast ? "Q" : "X"}});
    }
    QDir().mkpath("config");
    QFile file(UIAPI::Ext::hotkeyFile);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(array).toJson()) < 0) {
        qFatal("cannot write the bindings");
    }
    file.close();
    KVHotKey::getInstance()->uploadHotkeyModel();
    if (UIAPI::Ext::hotkeyBindings().size() != 2 * manyEntries) {
        qFatal("the bindings were not loaded");
    }
}

void loadDefaults()
{
    QFile::remove(UIAPI::Ext::hotkeyFile);
    delete KVHotKey::m_pKVHotKeyInstance;
    KVHotKey::m_pKVHotKeyInstance = nullptr;
    KVHotKey::getInstance();
}

void press(benchmark::State & state, int key, Qt::KeyboardModifiers modifiers, int before, FuncCode expected)
{
    KVHotKey & keys = *KVHotKey::getInstance();
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    for (auto _ : state) {
        if (before != 0) {
            keys.buffClear();
            keys.buffAddKey(static_cast<Qt::Key>(before));
        }
        FuncCode const code = keys.getFunctionCode(&event);
        if (code != expected) {
            state.SkipWithError("another code");
            break;
        }
    }
}

void defaultSingle(benchmark::State & state)
{
    loadDefaults();
    press(state, Qt::Key_V, Qt::ShiftModifier, 0, KP_Measure);
}
BENCHMARK(defaultSingle);

void defaultSequence(benchmark::State & state)
{
    loadDefaults();
    press(state, Qt::Key_N, {}, Qt::Key_S, KK_Hightlight);
}
BENCHMARK(defaultSequence);

void lastSingleOf1000(benchmark::State & state)
{
    loadMany();
    press(state, Qt::Key_Q, Qt::ControlModifier, 0, KP_Measure);
}
BENCHMARK(lastSingleOf1000);

void lastSequenceOf1000(benchmark::State & state)
{
    loadMany();
    int const last = manyEntries - 1;
    press(state, '0' + last % 40, {}, '0' + last / 40, KK_SnapGrid);
}
BENCHMARK(lastSequenceOf1000);

void bareHash(benchmark::State & state)
{
    QHash<int, FuncCode> codes;
    for (int i = 0; i < state.range(0); ++i) {
        codes.insert(i * 7, KP_Measure);
    }
    int key = static_cast<int>(state.range(0) - 1) * 7;
    for (auto _ : state) {
        benchmark::DoNotOptimize(key);
        benchmark::DoNotOptimize(codes.value(key));
    }
}
BENCHMARK(bareHash)->Arg(41)->Arg(manyEntries);

} // namespace

int main(int argc, char ** argv)
{
    QCoreApplication application(argc, argv);
    QTemporaryDir directory;
    QDir::setCurrent(directory.path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QDir::setCurrent(QDir::rootPath());
    return 0;
}
