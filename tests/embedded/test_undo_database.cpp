#include "embedded/EmbeddedTest.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

#include <stdexcept>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

// Seven pads, and a database file used only by this connection and the engine.
class UndoTest : public EmbeddedTest
{
protected:
    void SetUp() override
    {
        makeBoard();
        QByteArray text = "$0 r10\n";
        for (int i = 0; i < 7; ++i) {
            text += "P 0 0 0 P 0 0\n";
        }
        writeFeatures(text);
        ASSERT_TRUE(open());
    }
    void TearDown() override
    {
        Embedded::setSaveFlag(false);
        QSqlDatabase::removeDatabase("reader");
    }

    static bool remove(std::vector<int> const & list)
    {
        return Embedded::deleteFeatures("board", "pcb", "top", list);
    }

    static Texts rows(char const * sql, QString const & file = "uiapi-engine.sqlite")
    {
        QSqlDatabase database = QSqlDatabase::contains("reader")
                                    ? QSqlDatabase::database("reader", false)
                                    : QSqlDatabase::addDatabase("QSQLITE", "reader");
        database.setDatabaseName(file);
        EXPECT_TRUE(database.open());
        Texts lines;
        {
            QSqlQuery query(database);
            EXPECT_TRUE(query.exec(sql)) << sql;
            while (query.next()) {
                QStringList line;
                for (int column = 0; !query.isNull(column) && query.value(column).isValid(); ++column) {
                    line << query.value(column).toString();
                }
                lines.push_back(line.join(' ').toStdString());
            }
        }
        database.close();
        return lines;
    }
    static Texts operations(QString const & file = "uiapi-engine.sqlite")
    {
        return rows("SELECT job, step, layer, features FROM operation ORDER BY sequence", file);
    }
};

TEST_F(UndoTest, TakesDeletionsBackInReverseOrder)
{
    EXPECT_EQ(API::op_size("board", "pcb"), 0);
    EXPECT_FALSE(API::Undo("board", "pcb"));
    ASSERT_TRUE(remove({5, 1, 5}));
    ASSERT_TRUE(Embedded::deleteFeatures("BOARD", "PCB", "TOP", {0}));
    EXPECT_EQ(indices(), (std::vector<int>{2, 3, 4, 6}));
    EXPECT_EQ(API::op_size("Board", "Pcb"), 2);
    EXPECT_TRUE(API::CorrectUndo("board", "pcb"));
    EXPECT_TRUE(API::Undo("board", "pcb"));
    EXPECT_EQ(indices(), (std::vector<int>{0, 2, 3, 4, 6}));
    EXPECT_TRUE(API::Undo("board", "pcb"));
    EXPECT_EQ(indices(), (std::vector<int>{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(API::op_size("board", "pcb"), 0);
}

TEST_F(UndoTest, ARefusedDeletionChangesNothing)
{
    ASSERT_TRUE(remove({3}));
    for (std::vector<int> const & list :
         {std::vector<int>{}, std::vector<int>{0, 7}, std::vector<int>{-1}, std::vector<int>{0, 3}}) {
        EXPECT_FALSE(remove(list));
        EXPECT_NE(Embedded::lastError(), "");
    }
    EXPECT_FALSE(Embedded::deleteFeatures("board", "pcb", "bottom", {0})) << "an empty layer";
    EXPECT_FALSE(Embedded::deleteFeatures("board", "pcb", "inner", {0}));
    EXPECT_EQ(indices(), (std::vector<int>{0, 1, 2, 4, 5, 6}));
    EXPECT_EQ(API::op_size("board", "pcb"), 1);
}

TEST_F(UndoTest, UnknownJobsAndStepsHaveNothingToUndoButAreCorrect)
{
    for (auto const & [job, step] : {std::pair("other", "pcb"), std::pair("board", "panel")}) {
        EXPECT_TRUE(API::CorrectUndo(job, step));
        EXPECT_EQ(API::op_size(job, step), 0);
        EXPECT_FALSE(API::Undo(job, step));
    }
}

TEST_F(UndoTest, TheDatabaseMirrorsTheHistory)
{
    ASSERT_TRUE(remove({6})); // before the flag is on
    ASSERT_TRUE(Embedded::setSaveFlag(true)) << Embedded::lastError();
    EXPECT_EQ(operations(), Texts{"board pcb top 6"});
    ASSERT_TRUE(remove({2, 1}));
    EXPECT_EQ(operations(), (Texts{"board pcb top 6", "board pcb top 1,2"}));

    // The order of the library's undo command.
    DB::CorrectUndo_db_save("board", "pcb");
    ASSERT_TRUE(API::CorrectUndo("board", "pcb"));
    DB::op_size_db_save("board", "pcb");
    DB::Undo_db_save("board", "pcb");
    EXPECT_EQ(operations(), Texts{"board pcb top 6"}) << "the database goes first";
    EXPECT_EQ(API::op_size("board", "pcb"), 2);
    ASSERT_TRUE(API::Undo("board", "pcb"));
    EXPECT_EQ(rows("SELECT call, job, step, size FROM undo_call ORDER BY sequence"),
              (Texts{"CorrectUndo board pcb 2", "op_size board pcb 2", "Undo board pcb 2"}));

    ASSERT_TRUE(Embedded::setSaveFlag(false));
    ASSERT_TRUE(API::Undo("board", "pcb"));
    EXPECT_EQ(operations(), Texts{"board pcb top 6"});
    ASSERT_TRUE(Embedded::setSaveFlag(true));
    EXPECT_EQ(operations(), Texts()) << "turning the flag on brings the file up to date";

    ASSERT_TRUE(remove({4}));
    ASSERT_TRUE(open()); // read again: nothing deleted, nothing to undo
    EXPECT_EQ(operations(), Texts());
    EXPECT_EQ(API::op_size("board", "pcb"), 0);
    EXPECT_EQ(indices().size(), 7U);
}

TEST_F(UndoTest, ChangesOfSymbolsAreRowsLikeDeletions)
{
    // A file of a version that had deletions only.
    rows("CREATE TABLE operation (sequence INTEGER PRIMARY KEY, job TEXT, step TEXT, layer TEXT, features "
         "TEXT)");
    ASSERT_TRUE(Embedded::setSaveFlag(true)) << Embedded::lastError();
    ASSERT_TRUE(Embedded::changeSymbol("BOARD", "PCB", "TOP", {3, 1}, "r254", 1)) << Embedded::lastError();
    ASSERT_TRUE(remove({3}));
    ASSERT_TRUE(Embedded::changeSymbol("board", "pcb", "top", {2}, "s2", 0));
    char const * const all = "SELECT job, step, layer, features, symbol FROM operation ORDER BY sequence";
    Texts const expected{"board pcb top 1,3 r254 M", "board pcb top 3 ", "board pcb top 2 s2 I"};
    EXPECT_EQ(rows(all), expected);
    ASSERT_TRUE(Embedded::setSaveFlag(false));
    ASSERT_TRUE(Embedded::setSaveFlag(true));
    EXPECT_EQ(rows(all), expected) << "written anew from the history";
    DB::Undo_db_save("board", "pcb");
    ASSERT_TRUE(API::Undo("board", "pcb"));
    EXPECT_EQ(rows(all), (Texts{expected[0], expected[1]}));
    rows("DROP TABLE operation");
    EXPECT_FALSE(Embedded::changeSymbol("board", "pcb", "top", {2}, "s2", 0));
    EXPECT_EQ(API::op_size("board", "pcb"), 2) << "what cannot be recorded is not done";
}

TEST_F(UndoTest, CorrectingTheUndoMendsTheDatabase)
{
    ASSERT_TRUE(Embedded::setSaveFlag(true));
    ASSERT_TRUE(remove({1}));
    rows("DELETE FROM operation");
    rows("INSERT INTO operation (sequence, job, step, layer, features) VALUES (9000, 'board', 'pcb', 'top', "
         "'5')");
    DB::CorrectUndo_db_save("BOARD", "PCB");
    EXPECT_EQ(operations(), Texts{"board pcb top 1"});
}

TEST_F(UndoTest, TwinsWriteOnlyWhileTheFlagIsOnAndBeforeTheLiveCall)
{
    API::show_param show{1, 3, true, false, true};
    DB::set_show_para_db_save(show);
    EXPECT_FALSE(DB::get_SaveFlag());
    EXPECT_FALSE(QFile::exists("uiapi-engine.sqlite"));

    Embedded::setDatabaseFile("state.sqlite");
    ASSERT_TRUE(Embedded::setSaveFlag(true));
    EXPECT_TRUE(DB::get_SaveFlag());
    DB::set_show_para_db_save(show);
    API::set_show_para(show);
    long long const live = Embedded::liveState().sequence;
    DB::set_selection_db_save({true, false, true, false, false, true});
    DB::set_select_param_db_save({12});
    EXPECT_EQ(rows("SELECT * FROM show_para", "state.sqlite"),
              Texts{std::to_string(live - 1) + " 1 3 1 0 1"});
    EXPECT_EQ(rows("SELECT * FROM selection", "state.sqlite"),
              Texts{std::to_string(live + 1) + " 1 0 1 0 0 1"});
    EXPECT_EQ(rows("SELECT * FROM select_param", "state.sqlite"), Texts{std::to_string(live + 2) + " 12"});
    EXPECT_EQ(Embedded::liveState().show.width, 3);

    // Another process may have written in between: the numbers continue above those in the file.
    ASSERT_TRUE(Embedded::setSaveFlag(false));
    rows("INSERT INTO select_param VALUES (5000, 1)", "state.sqlite");
    ASSERT_TRUE(Embedded::setSaveFlag(true));
    DB::set_select_param_db_save({13});
    EXPECT_EQ(rows("SELECT * FROM select_param WHERE sequence > 5000", "state.sqlite"), Texts{"5001 13"});
    // The same while the flag is on.
    rows("INSERT INTO select_param VALUES (5002, 1), (5003, 1)", "state.sqlite");
    DB::set_select_param_db_save({14});
    EXPECT_EQ(rows("SELECT * FROM select_param WHERE sequence > 5003", "state.sqlite"), Texts{"5004 14"});
    rows("INSERT INTO operation (sequence, job, step, layer, features) VALUES (5005, 'a', 'b', 'c', '0')",
         "state.sqlite");
    ASSERT_TRUE(remove({1}));
    EXPECT_EQ(operations("state.sqlite"), (Texts{"a b c 0", "board pcb top 1"}));
    rows("INSERT INTO undo_call VALUES (5007, 'x', 'a', 'b', 0)", "state.sqlite");
    DB::Undo_db_save("board", "pcb");
    EXPECT_EQ(rows("SELECT max(sequence) FROM undo_call", "state.sqlite"), Texts{"5008"});
    EXPECT_EQ(operations("state.sqlite"), Texts{"a b c 0"});
}

TEST_F(UndoTest, TheLiveStateIsWhatTheEngineWasToldLast)
{
    API::set_selection({false, true, false, false, false, false});
    API::set_select_param({4});
    API::set_net_cal_thread(6);
    API::set_backup_layername_info({true, "-old"});
    Embedded::LiveState const state = Embedded::liveState();
    EXPECT_TRUE(state.selection.clear);
    EXPECT_EQ(state.select.selected_para, 4);
    EXPECT_EQ(state.threadCount, 6);
    EXPECT_TRUE(state.backup.use_suffix);
    EXPECT_EQ(state.backup.suffix, "-old");
    EXPECT_EQ(state.sequence, 4);
}

TEST_F(UndoTest, AFileThatCannotServeLeavesTheFlagOff)
{
    Embedded::setDatabaseFile("");
    EXPECT_FALSE(Embedded::setSaveFlag(true));
    EXPECT_EQ(Embedded::lastError(), "the database file has no name");

    rows("CREATE TABLE select_param (sequence INTEGER PRIMARY KEY, selected_para INTEGER)", "full.sqlite");
    rows("INSERT INTO select_param VALUES (9223372036854775807, 1)", "full.sqlite");
    rows("CREATE TABLE select_param (sequence REAL, selected_para INTEGER)", "real.sqlite");
    rows("INSERT INTO select_param VALUES (1e300, 1)", "real.sqlite");
    write("text.sqlite", QByteArray(4096, 'x'));
    for (char const * const file :
         {"text.sqlite", "full.sqlite", "real.sqlite", "no/such/folder/file.sqlite"}) {
        Embedded::setDatabaseFile(file);
        EXPECT_FALSE(Embedded::setSaveFlag(true));
        EXPECT_NE(Embedded::lastError().find(std::string(file) + ": "), std::string::npos);
        EXPECT_FALSE(DB::get_SaveFlag());
    }
    Embedded::setDatabaseFile("good.sqlite");
    EXPECT_TRUE(Embedded::setSaveFlag(true)) << Embedded::lastError();
}

TEST_F(UndoTest, AFailedWriteThrowsAndADeletionThatCannotBeRecordedIsNotDone)
{
    ASSERT_TRUE(Embedded::setSaveFlag(true));
    for (char const * const table : {"show_para", "operation", "undo_call"}) {
        rows(qPrintable(QString("DROP TABLE ") + table));
    }
    try {
        DB::set_show_para_db_save({});
        ADD_FAILURE() << "no exception";
    } catch (std::runtime_error const & error) {
        EXPECT_NE(std::string(error.what()).find("uiapi-engine.sqlite: "), std::string::npos) << error.what();
        EXPECT_NE(std::string(error.what()).find("show_para"), std::string::npos) << error.what();
    }
    EXPECT_THROW(DB::Undo_db_save("board", "pcb"), std::runtime_error);
    EXPECT_FALSE(remove({0}));
    EXPECT_NE(Embedded::lastError(), "");
    EXPECT_EQ(indices().size(), 7U);
    DB::set_select_param_db_save({1}); // the failed transaction has ended
    EXPECT_EQ(rows("SELECT selected_para FROM select_param"), Texts{"1"});
}

TEST_F(UndoTest, WithoutTheDriverTheFlagStaysOff)
{
    QStringList const paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    EXPECT_FALSE(Embedded::setSaveFlag(true));
    EXPECT_NE(Embedded::lastError().find("SQLite driver is not installed"), std::string::npos)
        << Embedded::lastError();
    EXPECT_FALSE(DB::get_SaveFlag());
    DB::CorrectUndo_db_save("board", "pcb");
    ASSERT_TRUE(remove({1}));
    EXPECT_TRUE(API::Undo("board", "pcb"));
    QCoreApplication::setLibraryPaths(paths);
}

} // namespace
