#include "TestFiles.h"
#include "job/CommandLine.h"
#include "job/JobLoading.h"
#include "job/Session.h"
#include "layers/LayerTable.h"
#include "pages/SettingsPage.h"
#include "pages/TemplatesPage.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

#include <iterator>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

// A template file; the drill prefix distinguishes the templates.
QByteArray templates(QStringList const & names)
{
    QJsonArray list;
    for (QString const & name : names) {
        list.append(QJsonObject{
            {"name", name}, {"prefix", QJsonObject{{"drill", "d " + name}}}, {"suffix", QJsonObject()}});
    }
    return QJsonDocument(QJsonObject{{"template", list}}).toJson();
}

// "file: name, name" for each of the user's files.
QStringList userFiles()
{
    QStringList result;
    QDir const folder("autoMatrix");
    for (QString const & name : folder.entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
        QStringList names;
        for (auto const & each : readObject(folder.filePath(name))["template"].toArray()) {
            names.append(each.toObject()["name"].toString());
        }
        result.append(name + ": " + names.join(", "));
    }
    return result;
}

QStringList loaded()
{
    QStringList result;
    for (auto const & [index, tmpl] : getAutoMatrixTmpMap()) {
        result.append(QString("%1 %2").arg(index).arg(QString::fromStdString(tmpl.name)));
    }
    return result;
}

// Acts on the page like a user; returns the boxes shown.
QStringList use(TemplatesPage & page, int row, QString const & name, QString const & button)
{
    QStringList boxes;
    Ext::setMessagePresenter([&boxes](Ext::Message const & message) {
        bool const isQuestion = message.kind == Ext::MessageKind::Question; // on what was typed before
        boxes.append(isQuestion ? QStringList() : QStringList{message.text});
        return isQuestion ? Ext::MessageAnswer::Yes : Ext::MessageAnswer::Ok;
    });
    page.findChild<QTableWidget *>()->selectRow(row);
    if (!name.isEmpty()) {
        page.findChild<QLineEdit *>("name")->setText(name);
    }
    buttonOf(page, button).click();
    Ext::setMessagePresenter({});
    return boxes;
}

TEST(TemplateFiles, OnlyTheFileOfATemplateIsEverWrittenOrDeleted)
{
    // Three shipped ones take index 2 from "a.json"; its first template is left out.
    writeFile("config/automatrix.json", templates({"one", "two", "three"}));
    writeFile("autoMatrix/a.json", templates({"left out", "second"}));
    writeFile("autoMatrix/b.json", R"({"template": [7, {"name": "no texts"}]})");
    writeFile("autoMatrix/old name.json", templates({"Alone"}));
    writeFile("autoMatrix/one.json", templates({"mine"}));
    writeFile("autoMatrix/z.JSON", templates({"not read"}));
    TemplatesPage page;
    ASSERT_EQ(loaded(), (QStringList{"0 one", "1 two", "2 three", "3 second", "4 Alone", "5 mine"}));
    QStringList const others{"a.json: left out, second", "b.json: , no texts"};
    QStringList const before =
        others + QStringList{"old name.json: Alone", "one.json: mine", "z.JSON: not read"};
    auto const taken = [](char const * file) {
        return QStringList{
            QString("The file \"autoMatrix/%1.json\" already exists. Choose another name.").arg(file)};
    };
    struct
    {
        int row;
        char const * name;
        char const * button;
        QStringList boxes;
        QStringList loaded;
        QStringList added; ///< to the three files that must not change
    } const steps[] = {
        {4, "mine too", "Save", {}, {"4 mine too", "5 mine"}, {"mine too.json: mine too", "one.json: mine"}},
        {4, "a", "Save", taken("a"), {"4 mine too", "5 mine"}, {"mine too.json: mine too", "one.json: mine"}},
        {4,
         "b",
         "Save as new",
         taken("b"),
         {"4 mine too", "5 mine"},
         {"mine too.json: mine too", "one.json: mine"}},
        {5,
         "MINE TOO",
         "Save",
         taken("MINE TOO"),
         {"4 mine too", "5 mine"},
         {"mine too.json: mine too", "one.json: mine"}},
        {5, "ONE", "Save", {}, {"4 mine too", "5 ONE"}, {"mine too.json: mine too", "one.json: ONE"}},
        {3,
         "",
         "Save",
         {},
         {"4 mine too", "5 ONE", "6 second 6"},
         {"mine too.json: mine too", "one.json: ONE", "second 6.json: second 6"}},
        {6, "", "Delete", {}, {"4 mine too", "5 ONE"}, {"mine too.json: mine too", "one.json: ONE"}},
        {5, "", "Delete", {}, {"4 mine too"}, {"mine too.json: mine too"}},
    };
    EXPECT_EQ(userFiles(), before);
    for (auto const & step : steps) {
        EXPECT_EQ(use(page, step.row, step.name, step.button), step.boxes) << step.button << step.name;
        EXPECT_EQ(loaded().mid(4), step.loaded) << step.button << step.name;
        EXPECT_EQ(userFiles(), others + step.added + QStringList{"z.JSON: not read"})
            << step.button << step.name;
    }
    // A shipped template and one of several in a file are removed from memory only, whatever files exist.
    writeFile("autoMatrix/one.json", templates({"new here"}));
    use(page, 3, "", "Delete");
    use(page, 0, "", "Delete");
    EXPECT_EQ(loaded(), (QStringList{"1 two", "2 three", "4 mine too"}));
    EXPECT_EQ(userFiles(),
              (others + QStringList{"mine too.json: mine too", "one.json: new here", "z.JSON: not read"}));
}

TEST(TemplateFiles, AFailedRenameKeepsTheOldFile)
{
    writeFile("config/automatrix.json", templates({"one"}));
    writeFile("autoMatrix/mine.json", templates({"mine"}));
    QString const longName(300, 'x'); // too long for any file system
    TemplatesPage page;
    use(page, 1, longName, "Save");
    EXPECT_TRUE(page.findChild<QLabel *>("hint")->text().contains("was not saved"));
    EXPECT_EQ(userFiles(), QStringList{"mine.json: mine"});
    EXPECT_EQ(use(page, 1, "short", "Save"), QStringList());
    EXPECT_EQ(userFiles(), QStringList{"short.json: short"});
}

TEST(TemplateFiles, WhatWasTypedIsNotLostWithoutAQuestion)
{
    writeFile("config/automatrix.json", templates({"one", "two"}));
    TemplatesPage page;
    auto & list = *page.findChild<QTableWidget *>();
    auto & name = *page.findChild<QLineEdit *>("name");
    auto & drill = *page.findChild<QLineEdit *>("drill");
    QStringList boxes;
    auto answer = Ext::MessageAnswer::No;
    Ext::setMessagePresenter([&](Ext::Message const & message) {
        boxes.append(message.text);
        return answer;
    });
    drill.setText("dr");
    EXPECT_TRUE(page.findChild<QLabel *>("hint")->text().startsWith("Not saved yet. "));
    buttonOf(page, "Use as current").click();
    EXPECT_EQ(drill.text(), "dr") << "used, and still not saved";
    list.selectRow(1);
    EXPECT_EQ(boxes, QStringList{"The template \"one\" was changed and is not saved. Discard the changes?"});
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_EQ(drill.text(), "dr");
    answer = Ext::MessageAnswer::Yes;
    list.selectRow(1);
    EXPECT_EQ(name.text(), "two");
    list.selectRow(0);
    EXPECT_EQ(drill.text(), "d one");
    EXPECT_EQ(boxes.size(), 2) << "nothing was typed into the second";
    Ext::setMessagePresenter({});
}

TEST(TemplateFiles, TheHintTellsWhatSaveAndDeleteDo)
{
    writeFile("config/automatrix.json", templates({"one", "two", "three"}));
    writeFile("autoMatrix/a.json", templates({"three"})); // skipped: a shipped one has its index
    writeFile("autoMatrix/mine.json", templates({"mine"}));
    writeFile("autoMatrix/two.json", templates({"a", "b"}));
    TemplatesPage page;
    char const * const copies =
        "Save makes a copy of it under a new index; Delete lasts until the next start.";
    QString const hints[] = {
        QString("This template is a shipped one. ") + copies,
        "Save and Delete change the file \"autoMatrix/mine.json\".",
        QString("This template shares the file \"autoMatrix/two.json\" with others. ") + copies,
    };
    for (int row = 0; row < static_cast<int>(std::size(hints)); ++row) {
        page.findChild<QTableWidget *>()->selectRow(row + 2);
        EXPECT_EQ(page.findChild<QLabel *>("hint")->text(), hints[row]);
    }
}

TEST(Settings, WhatTheFileDoesNotHoldIsNotCalledSaved)
{
    QDir().mkpath("config/server.json"); // instead of the file
    SettingsPage page;
    auto const enter = [&page](char const * title, int value) {
        auto * box = page.findChild<QSpinBox *>(title);
        box->setValue(value);
        emit box->editingFinished();
        return page.findChild<QLabel *>(QString(title) + " state")->text();
    };
    EXPECT_EQ(enter("Timeout", 7), "not saved");
    QDir().rmdir("config/server.json");
    EXPECT_EQ(enter("Server port", 8), "saved at once");
    EXPECT_EQ(page.findChild<QLabel *>("Timeout state")->text(), "saved at once"); // each save writes all
    QFile::remove("config/server.json");
    QDir().mkpath("config/server.json");
    EXPECT_EQ(enter("Server port", 9), "not saved");
    QDir().rmdir("config/server.json");
    EXPECT_EQ(enter("Server port", 9), "saved at once"); // entered again
}

TEST(DamagedLayers, AreToldAndNotCountedAsEmpty)
{
    QByteArray const pad = "UNITS=MM\n$0 r100\nP 0 0 0 P 0 0\n";
    writeJob("tiny", {{"SIGNAL", "good"},
                      {"SIGNAL", "empty"},
                      {"SIGNAL", "broken"},
                      {"SIGNAL", "packed"},
                      {"SIGNAL", "tools"}});
    writeFile("tiny/steps/pcb/layers/good/features", pad);
    writeFile("tiny/steps/pcb/layers/broken/features", pad + "P 0 zero 0 P 0 0\n");
    writeFile("tiny/steps/pcb/layers/packed/features.Z", "\x1f\x9d");
    writeFile("tiny/steps/pcb/layers/tools/features", pad);
    writeFile("tiny/steps/pcb/layers/tools/tools", "UNITS=MM\nTOOLS {\nNUM=1\n");
    Session session;
    ASSERT_EQ(session.open(QDir().absoluteFilePath("tiny")), "");
    LayerTable table;
    table.show(session, 0);
    EXPECT_EQ(table.item(0, 5)->text(), "?"); // as if reading had been stopped
    ASSERT_TRUE(readLayers(session));
    table.show(session, 0);
    struct
    {
        char const * count;
        char const * tooltip; ///< a part of it
    } const cells[] = {
        {"1", "1"}, {"0", "0"}, {"?", "broken/features:4: "}, {"?", "features.Z"}, {"1", "tools/tools:2: "}};
    for (int row = 0; row < static_cast<int>(std::size(cells)); ++row) {
        EXPECT_EQ(table.item(row, 5)->text(), cells[row].count) << row;
        EXPECT_TRUE(table.item(row, 5)->toolTip().contains(cells[row].tooltip))
            << table.item(row, 5)->toolTip().toStdString();
    }
    EXPECT_EQ(session.firstCopperLayer("pcb"), 0);
}

TEST(TheJob, IsTheVariablesWhenTheArgumentsNameNone)
{
    struct
    {
        char const * variable;
        QStringList arguments;
        char const * job; ///< null: rejected
    } const rows[] = {
        {"", {"--headless"}, nullptr},
        {"sample", {"--headless"}, "sample"},
        {"sample", {"--headless", "other"}, "other"},
        {"sample", {"a", "--headless", "b"}, "a"},
        {"sample", {"a", "b"}, nullptr}, // one window for one board
    };
    for (auto const & row : rows) {
        qputenv("UIAPI_WORKBENCH_JOB", row.variable);
        auto const parsed = parseArguments(QStringList{"workbench"} + row.arguments);
        EXPECT_EQ(parsed.outcome == ParsedArguments::Outcome::Run, row.job != nullptr);
        EXPECT_EQ(parsed.commandLine.job, row.job != nullptr ? QDir().absoluteFilePath(row.job) : QString());
    }
}

} // namespace
