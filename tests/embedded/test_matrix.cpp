#include "embedded/EmbeddedTest.h"

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

class MatrixTest : public EmbeddedTest
{
protected:
    static Texts layerTexts(std::string const & job)
    {
        Texts steps;
        std::vector<API::layer_info> layers{{}};
        EXPECT_EQ(API::get_matrix(job, steps, layers), "");
        for (API::layer_info const & layer : layers) {
            steps.push_back(std::to_string(layer.row) + ' ' + layer.context + ' ' + layer.type + ' ' +
                            layer.name + ' ' + layer.polarity);
        }
        return steps;
    }
};

TEST_F(MatrixTest, IsTranslatedAndOrderedByColumnAndRow)
{
    write("jobs/board/matrix/matrix",
          "\r\n" + step(2, "Panel").replace('\n', "\r\n") + step(1, "PCB") + layer(2, "BOTTOM=1") +
              "layer  {\n name = comp_+_top\n old_name=\n polarity=Negative\n TYPE=Power_Ground\n"
              " Context=Misc\n UNHEARD OF=a=b\n row= 1 \n}\n");
    ASSERT_TRUE(QDir().mkpath("jobs/board/Steps/Pcb/Layers"));
    ASSERT_TRUE(QDir().mkpath("jobs/board/Steps/PANEL/layers"));
    ASSERT_TRUE(open("BOARD")) << Embedded::lastError();
    EXPECT_EQ(layerTexts("Board"),
              (Texts{"pcb", "panel", "1 misc power_ground comp_+_top NEG", "2 board signal bottom=1 POS"}));
    EXPECT_TRUE(API::is_job_opened("bOARD"));
}

TEST_F(MatrixTest, DamageNamesFileAndLineAndLoadsNothing)
{
    struct Row
    {
        QByteArray text;
        char const * error;
    };
    QByteArray const good = step(1, "PCB"); // four lines
    for (Row const & row : {
             Row{"\n", " the matrix holds no steps and no layers"},
             Row{good + "LAYER {\n ROW=1\n", "5: the LAYER block is not closed"},
             Row{good + "LAYER {\n ROW=1\n" + layer(2, "TOP"), "7: KEY=VALUE expected, not \"LAYER {\""},
             Row{good + "LAYER\n{\n}\n", "5: \"STEP {\" or \"LAYER {\" expected"},
             Row{good + layer(1, "TOP").replace("    NAME=TOP\n", ""), "5: the LAYER block has no NAME"},
             Row{good + layer(1, ""), "5: the LAYER block has no NAME"},
             Row{good + layer(1, "TOP").replace("ROW=1", "ROW=1x"), "6: ROW=1x is not a positive number"},
             Row{good + layer(0, "TOP"), "6: ROW=0 is not a positive number"},
             Row{good + layer(1, "TOP").replace("BOARD", "BORD"),
                 "7: CONTEXT=BORD is neither BOARD nor MISC"},
             Row{good + layer(1, "TOP").replace("ROW=1", "ROW=99999999999"),
                 "6: ROW=99999999999 is not a positive number"},
             Row{good + layer(1, "TOP").replace("POSITIVE", "POS"),
                 "10: POLARITY=POS is neither POSITIVE nor NEGATIVE"},
             Row{good + layer(1, "TOP").replace("OLD_NAME=", "NAME=TOP"),
                 "11: NAME stands twice in one block"},
             Row{good + layer(1, "TOP") + layer(2, "top"), "17: NAME=top stands twice"},
             Row{good + layer(1, "TOP") + layer(1, "BOTTOM"), "14: ROW=1 stands twice"},
             Row{good + step(2, "pcb"), "7: NAME=pcb stands twice"},
             Row{good + layer(1, "../TOP"), "9: the name \"../TOP\" cannot be used as a folder"},
             Row{good + layer(1, "C:TOP"), "9: the name \"C:TOP\" cannot be used as a folder"},
             Row{good + layer(1, "a\\b"), "9: the name \"a\\b\" cannot be used as a folder"},
             Row{step(1, ".."), "3: the name \"..\" cannot be used as a folder"},
             Row{QByteArray(1100000, 'x'), "1: the line is longer than 1 MiB"},
         }) {
        makeBoard();
        write("jobs/board/matrix/matrix", row.text);
        EXPECT_FALSE(open());
        EXPECT_EQ(Embedded::lastError(), std::string("jobs/board/matrix/matrix:") + row.error);
        EXPECT_FALSE(API::is_job_opened("board"));
        Texts steps{"old"};
        std::vector<API::layer_info> layers{{}};
        EXPECT_EQ(API::get_matrix("board", steps, layers), "board: the job is not open");
        EXPECT_TRUE(steps.empty() && layers.empty());
    }
}

TEST_F(MatrixTest, MissingFilesAndFoldersRefuseTheJob)
{
    EXPECT_FALSE(open());
    EXPECT_EQ(Embedded::lastError(), "jobs/board: no such folder");
    EXPECT_FALSE(open("../board"));
    EXPECT_EQ(Embedded::lastError(), "jobs: the name \"../board\" cannot be used as a folder");
    EXPECT_FALSE(open(""));

    ASSERT_TRUE(QDir().mkpath("jobs/board/matrix"));
    EXPECT_FALSE(open());
    EXPECT_EQ(Embedded::lastError(), "jobs/board/matrix/matrix: no such file");

    write("jobs/board/matrix/matrix", step(1, "PCB") + layer(1, "TOP"));
    EXPECT_FALSE(open());
    EXPECT_EQ(Embedded::lastError(), "jobs/board/steps/pcb: no such folder, but the matrix names the step");
    ASSERT_TRUE(QDir().mkpath("jobs/board/steps/pcb"));
    EXPECT_FALSE(open());
    EXPECT_EQ(Embedded::lastError(),
              "jobs/board/steps/pcb/layers: no such folder, but the matrix names layers");
    ASSERT_TRUE(QDir().mkpath("jobs/board/steps/pcb/layers"));
    ASSERT_TRUE(QDir().mkpath("jobs/board/steps/pcb/profile"));
    EXPECT_FALSE(open());
    EXPECT_EQ(Embedded::lastError(), "jobs/board/steps/pcb/profile: a folder, where a file belongs");
    EXPECT_TRUE(Embedded::openJobs().empty());
}

TEST_F(MatrixTest, WhatMayNotBeReadIsNotTakenForAbsent)
{
#if defined(Q_OS_WIN)
    GTEST_SKIP() << "access lists decide, which Qt does not set";
#endif
    makeBoard();
    ASSERT_TRUE(QDir().mkpath("jobs/board/steps/pcb/layers/top"));
    for (auto const & [path, error] :
         {std::pair("jobs/board/matrix/matrix", ": Permission denied"),
          std::pair("jobs/board/matrix", ": no permission to read the folder"),
          std::pair("jobs/board/steps/pcb/layers/top", ": no permission to read the folder")}) {
        QFile::Permissions const before = QFile::permissions(path);
        ASSERT_TRUE(QFile::setPermissions(path, {}));
        if (QFileInfo(path).isReadable()) {
            GTEST_SKIP() << "permissions do not bind this user";
        }
        EXPECT_TRUE(!open() || Embedded::features("board", "pcb", "top").empty());
        EXPECT_EQ(Embedded::lastError(), std::string(path) + error);
        ASSERT_TRUE(QFile::setPermissions(path, before));
    }
}

TEST_F(MatrixTest, ADamagedStepRefusesTheJob)
{
    struct Row
    {
        QString file;
        QByteArray text;
        char const * error;
    };
    for (Row const & row :
         {Row{"stephdr", "UNITS=MM\nX_DATUM=one\n", "2: bad datum \"one\""},
          Row{"stephdr", "UNITS=MM\nSTEP-REPEAT {\n NAME=A\n", "2: the block is not closed"},
          Row{"stephdr", "UNITS\n", "1: KEY=VALUE expected, not \"UNITS\""},
          Row{"profile", "S P 0\nOB 0 0 I\nOS 1 zero\n", "3: bad y \"zero\""}}) {
        makeBoard();
        QString const path = "jobs/board/steps/pcb/" + row.file;
        write(path, row.text);
        EXPECT_FALSE(open());
        EXPECT_EQ(Embedded::lastError(), path.toStdString() + ':' + row.error);
        ASSERT_TRUE(QFile::remove(path));
    }
}

TEST_F(MatrixTest, AFailedReopeningLeavesTheOpenJobAsItWas)
{
    makeBoard();
    ASSERT_TRUE(open());
    write("jobs/board/matrix/matrix", "LAYER {");
    EXPECT_FALSE(open());
    EXPECT_EQ(layerTexts("board"), (Texts{"pcb", "1 board signal top POS", "2 board signal bottom POS"}));

    write("jobs/board/matrix/matrix", step(1, "PCB"));
    EXPECT_TRUE(open());
    EXPECT_EQ(Embedded::lastError(), "");
    EXPECT_EQ(layerTexts("board"), Texts{"pcb"});
    EXPECT_EQ(Embedded::openJobs(), Texts{"board"});
    EXPECT_TRUE(Embedded::closeJob("BOARD"));
    EXPECT_FALSE(Embedded::closeJob("board"));
    EXPECT_FALSE(API::is_job_opened("board"));
}

} // namespace
