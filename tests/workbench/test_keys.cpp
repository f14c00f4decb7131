#include "TestFiles.h"
#include "layers/LayerNames.h"
#include "window/KeyPlan.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

using namespace KVCAM;
using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

TEST(UserKeys, AreNeverSavedOverWhatTheLibraryDidNotRead)
{
    struct
    {
        char const * old; ///< null for none
        char const * backup;
    } const rows[] = {
        {nullptr, ""},
        {"[]", ""},
        {R"([{"func_name":"KP_Measure","Modifier":"","key":"A"}])", ""}, // never answers, but is kept
        {"[{", ".bak"},
        {"[{ other", ".bak2"}, // the older copy stays
        {"{}", ".bak3"},
        {R"([{"func_name":"KP_Mesure","Modifier":"Ctrl","key":"A"}])", ".bak4"},
        {R"([{"func_name":"KP_Measure","Modifier":"Alt","key":"A"}])", ".bak5"},
    };
    std::vector<KeyPlan::Binding> const bindings = {{KP_Measure, {}, "Ctrl+M", false}};
    for (auto const & row : rows) {
        if (row.old != nullptr) {
            writeFile(Ext::hotkeyFile, row.old);
        }
        KeysSaved const saved = saveKeys(bindings, false);
        EXPECT_EQ(saved.problem, "");
        EXPECT_EQ(saved.backup, *row.backup == '\0' ? QString() : QString(Ext::hotkeyFile) + row.backup);
        if (!saved.backup.isEmpty()) {
            EXPECT_EQ(readFile(saved.backup), row.old);
        }
        ASSERT_EQ(Ext::hotkeyBindings().size(), 1U);
        EXPECT_EQ(Ext::hotkeyBindings()[0].keys, "Ctrl+M");
    }
    EXPECT_EQ(readFile(QString(Ext::hotkeyFile) + ".bak"), "[{");
    QFile::remove(Ext::hotkeyFile);
    QDir().mkpath(Ext::hotkeyFile); // something else is in the place of the file
    EXPECT_NE(saveKeys(bindings, true).problem, "");
}

TEST(LayerNames, AreFoundAsPeopleExpect)
{
    QStringList const names = {"top", "silk_top", "l2", "l3", "Silk_bot", "bottom"};
    struct
    {
        int current;
        char const * typed;
        int found;
    } const rows[] = {
        {-1, "s", 1}, {1, "s", 4},  {4, "s", 1},     {1, "si", 1}, {1, "silk_b", 4}, {4, "ss", 1},
        {0, "l", 2},  {2, "l3", 3}, {5, "k_t", 1},   {0, "b", 5},  {0, "z", -1},     {0, "", -1},
        {0, "2", 2},  {-1, "t", 0}, {0, "t", 1 - 1}, {3, "ll", 2},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(foundByTyping(names, row.current, row.typed), row.found) << row.current << row.typed;
    }
    EXPECT_EQ(foundByTyping({}, -1, "a"), -1);
}

} // namespace
