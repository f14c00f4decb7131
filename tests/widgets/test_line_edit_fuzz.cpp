// A seeded random run over the kinds and their patterns. UIAPI_FUZZ_COUNT sets the number of fields,
// UIAPI_FUZZ_SEED the seed.
#include "LineEditTest.h"

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

TEST_F(Fuzz, FieldsOfEveryKindStayConsistent)
{
    for (int i = 0; i < m_count && !HasFailure(); ++i) {
        KVLineEdit edit(KVERegExp(number(0, 12)), &view);
        if (number(0, 1) == 1) {
            edit.setFollowView(true);
            edit.setRange(Ext::Length::fromMil(number(-10, 10)), Ext::Length::fromMil(number(0, 1000)));
        }
        for (int step = number(1, 12); step > 0; --step) {
            int const unit = number(0, 1);
            switch (number(0, 3)) {
            case 0:
                edit.setText(text() + text());
                break;
            case 1:
                setUnit(&view, unit);
                edit.changeunit(unit);
                break;
            default:
                edit.insert(text());
            }
        }
        // There and back shows the same text, whatever was typed.
        int const unit = getUnit(&view);
        edit.changeunit(unit);
        QString const shown = edit.text();
        double const exact = edit.exactValue(Ext::unitOfCode(unit));
        edit.changeunit(1 - unit);
        edit.changeunit(unit);
        EXPECT_EQ(edit.text(), shown);
        double const again = edit.exactValue(Ext::unitOfCode(unit));
        EXPECT_TRUE(again == exact || (std::isnan(again) && std::isnan(exact)));
        engine.take();
    }
    EXPECT_EQ(log.take(), Lines{});
}

} // namespace
