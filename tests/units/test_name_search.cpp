#include "harness/UiapiTest.h"

#include "uiapi/flat/Files.h"

#include <QElapsedTimer>
#include <QStringList>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class NameSearch : public UiapiTest
{
protected:
    static QString found(QList<QString> const & items, QString const & pattern)
    {
        QList<QString> result{"left over"};
        find_input_items(items, pattern, result);
        return QStringList(result).join('|');
    }
};

TEST_F(NameSearch, ItemsMatchFromEndToEndInAnyCaseAndKeepTheirOrder)
{
    QList<QString> const items{"Top_2", "bottom", "TOP", "atop", "top.gbr", "topxgbr", "", "t\nop", "top"};
    for (auto const & [pattern, result] : std::initializer_list<std::pair<char const *, char const *>>{
             {"top*", "Top_2|TOP|top.gbr|topxgbr|top"},
             {"TOP", "TOP|top"},
             {"*top", "TOP|atop|top"},
             {"top.gbr", "top.gbr"},
             {"t*op", "TOP|t\nop|top"},
             {"b*t*m", "bottom"},
             {"*", "Top_2|bottom|TOP|atop|top.gbr|topxgbr||t\nop|top"},
             {"x", ""}}) {
        EXPECT_EQ(found(items, pattern).toStdString(), result) << pattern;
    }
}

TEST_F(NameSearch, OtherCharactersAndTheEmptyPatternAreLogged)
{
    for (char const * pattern : {"top?", "", "top ", "a-b", "[ab]", "\\", "ä", "top\nx", "\u0661", "(a*)*"}) {
        EXPECT_EQ(found({"top", "top?"}, pattern), "") << pattern;
        EXPECT_EQ(log.take(), Lines{paraError(std::string("Illegal characters: ") + pattern)});
    }
}

// Practically linear in pattern and name; a backtracking matcher would never finish.
TEST_F(NameSearch, HostilePatternsEnd)
{
    QElapsedTimer timer;
    timer.start();
    for (QString const & pattern : {QString("*a").repeated(60) + "*b", QString("*").repeated(5000) + "b",
                                    QString("a*").repeated(60) + "b", QString("a").repeated(2000) + "*b"}) {
        EXPECT_EQ(found({QString("a").repeated(2000), "c"}, pattern), "");
    }
    EXPECT_LT(timer.elapsed(), 10000);
}

} // namespace
