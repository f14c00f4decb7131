#include "config/ConfigTest.h"

#include "analysis/RangeStore.h"
#include "ext/Analysis.h"
#include "uiapi/flat/Ranges.h"

#include <QJsonArray>

#include <limits>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class SaveRangesTest : public UiapiTest
{
protected:
    QByteArray const content = R"({"rangesList": [
        {"name": "a", "RedLv": "3.50", "YellowLv": 4, "note": "kept"}, 7,
        {"name": "b", "RedLv": "1", "YellowLv": "2", "GreenLv": "3"}], "version": 2})";

    void SetUp() override
    {
        UiapiTest::SetUp();
        writeFile("one.json", content);
        store.scanMetaData("one", "one.json");
    }

    static QJsonObject element(int index)
    {
        return readObject("one.json")["rangesList"].toArray()[index].toObject();
    }

    /// Why nothing was saved, without the path; "" if saved.
    std::string refusal(std::string const & rangeName = "one")
    {
        Ext::Result const result = store.saveRanges(rangeName);
        EXPECT_EQ(result.ok, result.reason.isEmpty());
        return QString(result.reason).remove(QDir::currentPath() + "/").toStdString();
    }

    RangeStore store;
};

TEST_F(SaveRangesTest, ChangedLevelsAloneAreWritten)
{
    EXPECT_EQ(refusal(), "");
    EXPECT_EQ(readFile("one.json"), content) << "nothing was changed";
    store.changeRangesValue("one", "a", "GreenLv", 0.1 + 0.2);
    store.changeRangesValue("one", "a", "YellowLv", 4.5);
    store.changeRangesValue("one", "b", "RedLv", std::numeric_limits<double>::infinity());
    store.changeRangesValue("one", "b", "YellowLv", 9);
    store.changeRangesValue("one", "b", "YellowLv", 2);
    EXPECT_EQ(refusal(), "");
    QByteArray const expected = R"({"rangesList": [
        {"name": "a", "RedLv": "3.50", "YellowLv": "4.5", "GreenLv": "0.30000000000000004", "note": "kept"}, 7,
        {"name": "b", "RedLv": "inf", "YellowLv": "2", "GreenLv": "3"}], "version": 2})";
    EXPECT_EQ(QJsonDocument::fromJson(readFile("one.json")), QJsonDocument::fromJson(expected));
    RangeStore again;
    again.scanMetaData("one", "one.json");
    std::vector<Analysis_Ranges_Record> before;
    std::vector<Analysis_Ranges_Record> after;
    store.getRanges("one", before);
    again.getRanges("one", after);
    ASSERT_EQ(after.size(), 3U);
    EXPECT_EQ(after[0].greenLv, before[0].greenLv) << "reads back equal";
    EXPECT_EQ(QDir().entryList(QDir::Files | QDir::Hidden), QStringList{"one.json"});
}

TEST_F(SaveRangesTest, WhatSomebodyElseWroteMeanwhileStays)
{
    store.changeRangesValue("one", "b", "GreenLv", 8);
    writeFile("one.json",
              R"({"rangesList": [{"name": "a", "RedLv": "99"}, 7, {"name": "b", "RedLv": "5"}]})");
    EXPECT_EQ(refusal(), "");
    EXPECT_EQ(element(0)["RedLv"], "99");
    EXPECT_EQ(element(2), (QJsonObject{{"name", "b"}, {"RedLv", "5"}, {"GreenLv", "8"}}));
}

TEST_F(SaveRangesTest, RefusalsSayWhyAndChangeNothing)
{
    EXPECT_EQ(refusal("two"), "There is no range file \"two\".");
    store.changeRangesValue("one", "a", "RedLv", 5);
    for (QByteArray const & other : {QByteArray(R"({"rangesList": [{"name": "a"}]})"), QByteArray("{}")}) {
        writeFile("one.json", other);
        EXPECT_EQ(refusal(), "The range file \"one.json\" holds other categories than when it was read.");
        EXPECT_EQ(readFile("one.json"), other);
    }
    writeFile("one.json", "{");
    EXPECT_EQ(refusal(), "The range file \"one.json\" cannot be read.");
    ASSERT_TRUE(QFile::remove("one.json"));
    EXPECT_EQ(refusal(), "The range file \"one.json\" cannot be read.");
    writeFile("one.json", content);
    EXPECT_EQ(refusal(), "") << "the change is still there";
    EXPECT_EQ(element(0)["RedLv"], "5");
    store.changeRangesValue("one", "", "RedLv", 5);
    EXPECT_EQ(refusal(), "An element of the range file \"one.json\" cannot hold levels.");
    EXPECT_EQ(element(0)["RedLv"], "5");
    EXPECT_EQ(log.take(), Lines{});
}

// Through the exported function: of two files of one name, the file that was read is written.
TEST_F(SaveRangesTest, ARangeGoesBackToTheFileItCameFrom)
{
    writeFile("config/ranges/x/Lines.json", content);
    writeFile("config/ranges/y/Lines.json", content);
    std::vector<Analysis_Ranges_Record> records;
    getRanges("Lines", records);
    log.take();
    changeRangesValue("Lines", "a", "RedLv", 6);
    QDir const start = QDir::current();
    ASSERT_TRUE(QDir::setCurrent("config"));
    EXPECT_TRUE(Ext::saveRanges("Lines").ok) << "wherever the process stands by then";
    ASSERT_TRUE(QDir::setCurrent(start.path()));
    auto const files = Ext::loadedRangeFiles();
    ASSERT_EQ(files.size(), 1U) << "of one name the first";
    QString const first = files[0].path;
    QString const other = first.contains("/x/") ? "y" : "x";
    EXPECT_EQ(readFile("config/ranges/" + other + "/Lines.json"), content);
    EXPECT_EQ(readObject(first)["rangesList"].toArray()[0].toObject()["RedLv"], "6");
}

} // namespace
