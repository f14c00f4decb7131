// Every symbol name of real boards and of public parsers' tests, where such a collection is at hand: the
// folder UIAPI_SHARED_DIR, with symbol_names.txt and jobs/. Skipped without it.
#include "harness/SharedFolder.h"
#include "harness/UiapiTest.h"

#include "uiapi/flat/SymbolNames.h"
#include "uiapi/flat/ViewAccess.h"
#include "units/SymbolDescription.h"
#include "units/SymbolFamilies.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <type_traits>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class SharedNames : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        readLines(sharedPath("symbol_names.txt"),
                  [this](QString const & line) { m_names.insert(line.section('\t', 0, 0)); });
        QDirIterator files(sharedPath("jobs"), {"features", "features.tables"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            readLines(files.next(), [this](QString const & line) {
                static QRegularExpression const entry("^\\$\\d+ (.+?)(?: +[IM])?$");
                if (auto const match = entry.match(line); match.hasMatch()) {
                    m_names.insert(match.captured(1));
                }
            });
        }
        m_names.remove(QString());
        if (m_names.isEmpty()) {
            GTEST_SKIP() << "no collection of names at hand";
        }
        for (int unit : {0, 1}) {
            Step_Config config;
            config.view = viewHandle(unit);
            config.show_param.unit = unit;
            insertStepConfig(config);
        }
    }

    template <class Take>
    static void readLines(QString const & path, Take const & take)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly)) {
            while (!file.atEnd()) {
                take(QString::fromUtf8(file.readLine()).trimmed());
            }
        }
    }

    QSet<QString> m_names;
};

template <class Rewrite, class Which>
QString rewritten(Rewrite const & rewrite, Which which, QString name)
{
    if constexpr (std::is_same_v<Which, int>) {
        rewrite(name, which);
    } else {
        rewrite(which, name);
    }
    return name;
}

TEST_F(SharedNames, EveryNameGoesThroughEveryRewriteInBothUnits)
{
    static QRegularExpression const wholeSizes("^[a-z_]+[0-9]{1,3}(x[0-9]{1,3})*$");
    int cameBack = 0;
    for (QString const & name : m_names) {
        SCOPED_TRACE(name.toStdString());
        Symbols::Family const * const family = Symbols::findFamily(Symbols::symbolPrefix(name));
        bool const isKept = family == nullptr || family->kind == Symbols::FamilyKind::Described;
        for (int unit : {0, 1}) {
            QString const other = rewritten(setSymbolUIData, unit, name);
            QString const mil = QString::fromStdString(getSymbolNameByUnit(name.toStdString(), unit));
            EXPECT_TRUE(!isKept || (other == name && mil == name));
            void const * const view = viewHandle(unit);
            EXPECT_FALSE(rewritten(setSymbolDataByUnit, view, name).isEmpty());
            EXPECT_FALSE(rewritten(setSymbolDataByMilUnit, view, name).isEmpty());
            EXPECT_TRUE(unit == 1 || rewritten(setSymbolAPIData, view, name) == name);
            rewritten(setSymbolAPIData, view, name);
            EXPECT_FALSE(Ext::describeSymbol(name, unit).isEmpty());
            if (unit == 0) {
                EXPECT_EQ(QString::fromStdString(getSymbolNameByUnit(mil.toStdString(), 0)), mil);
            } else if (wholeSizes.match(name).hasMatch()) {
                // up to three digits of mil need no more than six in micrometres, so nothing is lost
                EXPECT_EQ(rewritten(setSymbolUIData, 0, other), name);
                ++cameBack;
            }
        }
    }
    EXPECT_GT(cameBack, 0);
}

} // namespace
