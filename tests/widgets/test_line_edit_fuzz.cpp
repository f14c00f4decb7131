// A seeded random run over the kinds and their patterns. UIAPI_FUZZ_COUNT sets the number of fields,
// UIAPI_FUZZ_SEED the seed.
#include "LineEditTest.h"
#include "uiapi/flat/SymbolNames.h"

#include <QStringList>

#include <cmath>
#include <random>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;

namespace {

class Fuzz : public LineEditTest
{
protected:
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }
    QString const & text()
    {
        static QStringList const pieces =
            QString("1|0|25.4|.|-|+|*|/|r|rect|x|xr5|e| "
                    "|_|;|ABC|{|\\|1e308|字|\x7f|9999999999|r0.1|inf|%1|0.05|3.14159|")
                .split('|');
        return pieces[number(0, pieces.size() - 1)];
    }
    int const m_count = qEnvironmentVariableIsSet("UIAPI_FUZZ_COUNT")
                            ? qEnvironmentVariableIntValue("UIAPI_FUZZ_COUNT")
                            : 2000;

private:
    std::mt19937 m_random{static_cast<unsigned>(
        qEnvironmentVariableIsSet("UIAPI_FUZZ_SEED") ? qEnvironmentVariableIntValue("UIAPI_FUZZ_SEED") : 1)};
};

// The rules of the field, written down once more and as plainly as possible.
struct Model
{
    int const kind;
    QString shown, inchNumber, metricNumber, inchSymbol, metricSymbol;

    bool isNumber() const { return kind == 1 || kind == 3; }
    bool isSymbol() const { return kind >= 7 && kind <= 9; }
    void edited(QString const & text, int unit)
    {
        shown = text;
        if (isNumber()) {
            inchNumber = unit == 0 ? text : QString::number(text.toDouble() / 25.4, 'g', 6);
            metricNumber = unit == 0 ? QString::number(text.toDouble() * 25.4, 'g', 6) : text;
        } else if (isSymbol()) {
            inchSymbol = unit == 0 ? text : "";
            metricSymbol = unit == 0 ? "" : text;
        }
    }
    void changeunit(int unit)
    {
        if (isNumber()) {
            shown = unit == 0 ? inchNumber : metricNumber;
        } else if (isSymbol()) {
            QString & wanted = unit == 0 ? inchSymbol : metricSymbol;
            if (wanted.isEmpty()) {
                wanted = unit == 0 ? metricSymbol : inchSymbol;
                setSymbolUIData(wanted, 0);
            }
            shown = wanted;
        }
    }
};

// Half of the fields have additions on, which change no text either.
TEST_F(Fuzz, FieldsOfEveryKindShowWhatTheRulesSay)
{
    for (int i = 0; i < m_count && !HasFailure(); ++i) {
        Model model{number(0, 12), {}, {}, {}, {}, {}};
        KVLineEdit edit(KVERegExp(model.kind), &view);
        if (number(0, 1) == 1) {
            edit.setFollowView(true);
            edit.setRange(Ext::Length::fromMil(number(-10, 10)), Ext::Length::fromMil(number(0, 1000)));
            edit.setView(&view);
            edit.setKind(edit.kind());
        }
        bool isChanging = false;
        QObject::connect(&edit, &QLineEdit::textChanged, &view, [&](QString const & text) {
            if (!isChanging) {
                model.edited(text, getUnit(&view)); // also for a key that the pattern refuses
            }
        });
        for (int step = number(1, 12); step > 0; --step) {
            int const unit = number(0, 1);
            switch (number(0, 3)) {
            case 0:
                edit.setText(text() + text());
                break;
            case 1:
                isChanging = true;
                setUnit(&view, unit);
                edit.changeunit(unit);
                model.changeunit(unit);
                isChanging = false;
                break;
            default:
                edit.insert(text());
            }
            ASSERT_EQ(edit.text(), model.shown) << model.kind;
            EXPECT_TRUE(std::isnan(edit.exactValue(Ext::unitOfCode(unit))) != model.isNumber() ||
                        model.kind == 2);
            edit.exactLength();
        }
        engine.take();
    }
    EXPECT_EQ(log.take(), Lines{});
}

} // namespace
