// Every symbol name of real boards and of public parsers' tests, where such a collection is at hand: the
// folder UIAPI_SHARED_DIR, with symbol_names.txt and jobs/. Skipped without it.
#include "harness/UiapiTest.h"

#include "uiapi/flat/SymbolNames.h"
#include "uiapi/flat/ViewAccess.h"
#include "units/SymbolDescription.h"
#include "units/SymbolFamilies.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <cmath>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class SharedNames : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        QString const folder = qEnvironmentVariable("UIAPI_SHARED_DIR", UIAPI_SOURCE_DIR "/../shared");
        readLines(folder + "/symbol_names.txt",
                  [this](QString const & line) { m_names.insert(line.section('\t', 0, 0)); });
        QDirIterator files(folder + "/jobs", {"features", "features.tables"}, QDir::Files,
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

QString toOther(QString name, int unit)
{
    setSymbolUIData(name, unit);
    return name;
}

TEST_F(SharedNames, EveryNameGoesThroughEveryRewriteInBothUnits)
{
    int converted = 0;
    for (QString const & name : m_names) {
        SCOPED_TRACE(name.toStdString());
        Symbols::Family const * const family = Symbols::findFamily(Symbols::symbolPrefix(name));
        bool const rewritten = family != nullptr && family->kind != Symbols::FamilyKind::Described;
        for (int unit : {0, 1}) {
            QString const ui = toOther(name, unit);
            QString byUnit = name;
            setSymbolDataByUnit(viewHandle(unit), byUnit);
            QString byMil = name;
            setSymbolDataByMilUnit(viewHandle(unit), byMil);
            QString api = name;
            setSymbolAPIData(viewHandle(unit), api);
            QString const mil = QString::fromStdString(getSymbolNameByUnit(name.toStdString(), unit));
            if (!rewritten) {
                EXPECT_EQ(ui, name);
                EXPECT_EQ(mil, name);
            }
            // shape and separators are never touched
            static QRegularExpression const numbers("[0-9.e+-]");
            auto const shape = [](QString text) { return text.remove(numbers); };
            if (!name.contains('e')) {
                EXPECT_EQ(shape(byUnit), shape(name));
                EXPECT_EQ(shape(byMil), shape(name));
            }
            // what was shown once is shown the same after any number of switches
            if (unit == 0) {
                EXPECT_EQ(api, name);
                EXPECT_EQ(QString::fromStdString(getSymbolNameByUnit(mil.toStdString(), 0)), mil);
            }
            EXPECT_FALSE(Ext::describeSymbol(name, unit).isEmpty());
            converted += ui == name ? 0 : 1;
        }
    }
    EXPECT_GT(converted, 0);
    log.take();
    engine.take();
}

// Whole sizes of up to four digits in mil are exact in micrometres at six digits, so nothing is lost.
TEST_F(SharedNames, WholeMilSizesComeBack)
{
    int checked = 0;
    static QRegularExpression const whole("^[a-z_]+[0-9]{1,3}(x[0-9]{1,3})*$");
    for (QString const & name : m_names) {
        if (whole.match(name).hasMatch()) {
            QString const metric = toOther(name, 1);
            EXPECT_EQ(toOther(metric, 0), name) << metric.toStdString();
            EXPECT_EQ(QString::fromStdString(getSymbolNameByUnit(name.toStdString(), 1)), metric);
            ++checked;
        }
    }
    EXPECT_GT(checked, 0);
}

} // namespace
