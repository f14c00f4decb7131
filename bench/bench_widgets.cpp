// One keystroke in a unit-tracked field beside one in a plain QLineEdit. The difference is the cost of the
// field itself.

#include <uiapi/flat/ShowParameters.h>
#include <uiapi/flat/ViewAccess.h>
#include <widgets/FormState.h>
#include <widgets/KVLengthEdit.h>
#include <widgets/KVLineEdit.h>

#include <QApplication>
#include <QKeyEvent>
#include <QRegExpValidator>

#include <benchmark/benchmark.h>

#include <vector>

using namespace KVCAM::UIAPI;

namespace {

// Never destroyed: a registered view stays registered.
QWidget * registeredView()
{
    static QWidget * const view = [] {
        auto * const widget = new QWidget;
        Step_Config config;
        config.view = widget;
        insertStepConfig(config);
        return widget;
    }();
    return view;
}

void press(QLineEdit & edit, int key, QString const & text)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&edit, &down);
    QApplication::sendEvent(&edit, &up);
}

// Types a digit after `start` and deletes it: two keystrokes, and the text does not grow.
void typeAndErase(benchmark::State & state, QLineEdit & edit, char const * start)
{
    edit.setText(QString::fromLatin1(start));
    QString const digit = QStringLiteral("5");
    QString const none;
    for (auto _ : state) {
        press(edit, Qt::Key_5, digit);
        press(edit, Qt::Key_Backspace, none);
    }
    if (edit.text() != QLatin1String(start)) {
        state.SkipWithError("the keys did not reach the field");
    }
    state.SetItemsProcessed(state.iterations() * 2);
}

void plainLineEdit(benchmark::State & state)
{
    QLineEdit edit(registeredView());
    typeAndErase(state, edit, "12.3");
}
BENCHMARK(plainLineEdit);

// The cost of the pattern alone.
void plainLineEditWithTheSameValidator(benchmark::State & state)
{
    QLineEdit edit(registeredView());
    KVLineEdit const number(RegNumber, registeredView());
    edit.setValidator(number.validator());
    typeAndErase(state, edit, "12.3");
}
BENCHMARK(plainLineEditWithTheSameValidator);

void numberField(benchmark::State & state)
{
    KVLineEdit edit(RegNumber, registeredView());
    typeAndErase(state, edit, "12.3");
}
BENCHMARK(numberField);

void symbolField(benchmark::State & state)
{
    KVLineEdit edit(RegSymbolName, registeredView());
    typeAndErase(state, edit, "rect10x20xr");
}
BENCHMARK(symbolField);

void numberFieldWithEveryAddition(benchmark::State & state)
{
    KVLineEdit edit(RegNumber, registeredView());
    edit.setRange(KVCAM::UIAPI::Ext::Length(), KVCAM::UIAPI::Ext::Length::fromMil(1000));
    edit.setFollowView(true);
    edit.setRefusalHints(true);
    typeAndErase(state, edit, "12.3");
}
BENCHMARK(numberFieldWithEveryAddition);

// A key reads the text, judges it and writes the preview in both units.
void lengthField(benchmark::State & state)
{
    KVLengthEdit edit(registeredView());
    edit.setView(registeredView());
    edit.setRange(KVCAM::UIAPI::Ext::Length(), KVCAM::UIAPI::Ext::Length::fromMil(1000));
    edit.setValue(KVCAM::UIAPI::Ext::Length::fromMil(10));
    typeAndErase(state, edit, "(12.3mm+4*5mil)/2+0.");
}
BENCHMARK(lengthField);

// A unit switch that `own` fields follow, while `others` follow another view. Against a bare setText() of as
// many fields.
void switchOfFollowingFields(benchmark::State & state)
{
    QWidget * const view = registeredView();
    QWidget other;
    QWidget form;
    for (int i = 0; i < state.range(0) + state.range(1); ++i) {
        auto * const edit = new KVLineEdit(RegNumber, i < state.range(0) ? view : &other);
        edit->setTyped(QStringLiteral("12.3"), Ext::Unit::Inch);
        edit->setFollowView(true);
        edit->setParent(&form);
    }
    int unit = 0;
    for (auto _ : state) {
        unit = 1 - unit;
        setUnit(view, unit);
    }
    setUnit(view, 0);
}
BENCHMARK(switchOfFollowingFields)
    ->Args({100, 0})
    ->Args({1000, 0})
    ->Args({0, 0})
    ->Args({0, 1000})
    ->Unit(benchmark::kMicrosecond);

void bareTextsOfFields(benchmark::State & state)
{
    QWidget form;
    std::vector<QLineEdit *> fields;
    for (int i = 0; i < state.range(0); ++i) {
        fields.push_back(new QLineEdit(&form));
    }
    int unit = 0;
    for (auto _ : state) {
        unit = 1 - unit;
        for (QLineEdit * field : fields) {
            field->setText(unit == 0 ? QStringLiteral("12.3") : QStringLiteral("312.42"));
        }
    }
}
BENCHMARK(bareTextsOfFields)->Arg(1000)->Unit(benchmark::kMicrosecond);

// The same form with a FormState, whose fields also tell of changes.
void switchOfAFormWithState(benchmark::State & state)
{
    QWidget * const view = registeredView();
    QWidget form;
    for (int i = 0; i < state.range(0); ++i) {
        auto * const edit = new KVLineEdit(RegNumber, view);
        edit->setTyped(QStringLiteral("12.3"), Ext::Unit::Inch);
        edit->setFollowView(true);
        edit->setParent(&form);
        edit->setObjectName(QString::number(i));
    }
    Ext::FormState const kept(&form);
    int unit = 0;
    for (auto _ : state) {
        unit = 1 - unit;
        setUnit(view, unit);
    }
    setUnit(view, 0);
}
BENCHMARK(switchOfAFormWithState)->Arg(1000)->Unit(benchmark::kMicrosecond);

} // namespace
