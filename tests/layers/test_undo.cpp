#include "harness/UiapiTest.h"

#include "layers/UndoCount.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/Undo.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

std::string const question = "question|Information|Are you sure to cancel?";
std::string const nothingToUndo = informationBox("There are no revocable actions!");

class UndoTest : public UiapiTest
{
protected:
    /// The calls of undo("JOB-ä", "Step") in short: what was called, without its arguments.
    Lines calls()
    {
        Lines short_;
        for (std::string const & call : engine.take()) {
            auto const open = call.find('(');
            std::string const arguments = call.substr(open);
            EXPECT_EQ(arguments, call.find("get_SaveFlag") != std::string::npos ? "()" : "(job-ä step)");
            short_.push_back(call.substr(0, open));
        }
        return short_;
    }

    Lines const plainCalls{"DB::get_SaveFlag", "API::CorrectUndo", "DB::get_SaveFlag", "API::op_size"};
    Lines const savedCalls{"DB::get_SaveFlag", "DB::CorrectUndo_db_save", "API::CorrectUndo",
                           "DB::get_SaveFlag", "DB::op_size_db_save",     "API::op_size"};

    static Lines joined(Lines lines, Lines const & more)
    {
        lines.insert(lines.end(), more.begin(), more.end());
        return lines;
    }
};

TEST_F(UndoTest, OnlyYesUndoesAndTheDatabaseGoesFirst)
{
    using Answer = Ext::MessageAnswer;
    struct Row
    {
        bool saves;
        int operations;
        Answer answer;
        Lines undoCalls;
    };
    for (Row const & row :
         {Row{false, 0, Answer::Yes, {}}, Row{false, -3, Answer::Yes, {}}, Row{true, 0, Answer::Yes, {}},
          Row{false, 1, Answer::No, {}}, Row{true, 1, Answer::No, {}}, Row{true, 1, Answer::Ok, {}},
          Row{false, 2, Answer::Yes, {"DB::get_SaveFlag", "API::Undo"}},
          Row{true, 2, Answer::Yes, {"DB::get_SaveFlag", "DB::Undo_db_save", "API::Undo"}}}) {
        engine.saveFlag = row.saves;
        engine.operations = row.operations;
        boxes.answer(row.answer);
        QWidget parent;
        undo("JOB-Ä", "Step", &parent);
        EXPECT_EQ(calls(), joined(row.saves ? savedCalls : plainCalls, row.undoCalls));
        EXPECT_EQ(boxes.take(), Lines{row.operations < 1 ? nothingToUndo : question});
        EXPECT_EQ(boxes.lastParent(), &parent);
    }
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(UIAPICommonPara::m_pUIAPICommonParaInstance, nullptr);
}

TEST_F(UndoTest, TheFlagIsAskedEachTime)
{
    engine.correctUndoFailures = 1;
    engine.operations = 1;
    engine.onNextCall("CorrectUndo", [this] { engine.saveFlag = true; });
    engine.onNextCall("op_size", [this] { engine.saveFlag = false; });
    boxes.answer(Ext::MessageAnswer::Yes);
    undo("JOB-Ä", "Step", nullptr);
    EXPECT_EQ(boxes.take(), Lines{question});
    EXPECT_EQ(calls(), (Lines{"DB::get_SaveFlag", "API::CorrectUndo", "DB::get_SaveFlag",
                              "DB::CorrectUndo_db_save", "API::CorrectUndo", "DB::get_SaveFlag",
                              "DB::op_size_db_save", "API::op_size", "DB::get_SaveFlag", "API::Undo"}));
}

TEST_F(UndoTest, AParentThatGoesMeanwhileIsNone)
{
    for (char const * call : {"CorrectUndo", "op_size"}) {
        auto * const parent = new QWidget;
        engine.operations = call[0] == 'o' ? 1 : 0;
        engine.onNextCall(call, [parent] { delete parent; });
        undo("JOB-Ä", "Step", parent);
        EXPECT_EQ(boxes.take(), Lines{call[0] == 'o' ? question : nothingToUndo});
        EXPECT_EQ(boxes.lastParent(), nullptr) << call;
        EXPECT_EQ(calls(), plainCalls);
    }
}

TEST_F(UndoTest, AnEndlessCorrectionIsSeenInTheLog)
{
    for (int failures : {999, 1000, 100999, 201000}) {
        engine.correctUndoFailures = failures;
        undo("j", "s", nullptr);
        EXPECT_EQ(engine.take().size(), 2U * unsigned(failures + 2));
        Lines expected;
        for (int rounds = 1000; rounds <= failures; rounds += 100000) {
            expected.push_back("W UIAPICommonPara: KVCAM UIAPI undo, CorrectUndo failed " +
                               std::to_string(rounds) + " times!");
        }
        EXPECT_EQ(log.take(), expected);
        EXPECT_EQ(boxes.take(), Lines{nothingToUndo});
    }
}

TEST_F(UndoTest, WhatTheEngineThrowsEndsTheCommand)
{
    engine.saveFlag = true;
    engine.operations = 1;
    boxes.answer(Ext::MessageAnswer::Yes);
    Lines all = joined(savedCalls, {"DB::get_SaveFlag", "DB::Undo_db_save", "API::Undo"});
    for (char const * call : {"get_SaveFlag", "CorrectUndo_db_save", "CorrectUndo", "op_size_db_save",
                              "op_size", "Undo_db_save", "Undo"}) {
        engine.throwFrom(call);
        undo("JOB-Ä", "Step", nullptr);
        Lines const made = calls();
        ASSERT_FALSE(made.empty());
        EXPECT_EQ(made.back().substr(made.back().find("::") + 2), call);
        EXPECT_EQ(made, Lines(all.begin(), all.begin() + long(made.size())));
        EXPECT_EQ(boxes.take().size(), made.size() > savedCalls.size() ? 1U : 0U);
        Lines const lines = log.take();
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_EQ(lines[1], paraError("异常描述：engine failure"));
        engine.reset();
        engine.saveFlag = true;
        engine.operations = 1;
    }
}

TEST_F(UndoTest, EscapeMeansNo)
{
    engine.operations = 1;
    auto const captured = Ext::setMessagePresenter({}); // the real box
    QWidget parent;
    for (bool const undoes : {false, true}) {
        QTimer timer;
        int boxesSeen = 0;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            if (auto * const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                timer.stop();
                ++boxesSeen;
                EXPECT_EQ(box->parentWidget(), &parent);
                EXPECT_EQ(box->windowModality(), Qt::ApplicationModal);
                EXPECT_EQ(box->icon(), QMessageBox::Question);
                // Not by a shortcut: that would need an active window, which takes time.
                undoes ? box->button(QMessageBox::Yes)->click() : QTest::keyClick(box, Qt::Key_Escape);
            }
        });
        timer.start(10);
        undo("j", "s", &parent);
        EXPECT_EQ(boxesSeen, 1);
        EXPECT_EQ(engine.take().back(), undoes ? "API::Undo(j s)" : "API::op_size(j s)");
    }
    Ext::setMessagePresenter(captured);
}

TEST_F(UndoTest, TheCountOnlyAsks)
{
    engine.saveFlag = true;
    engine.correctUndoFailures = 3;
    for (auto const & [operations, count] : {std::pair(2, 2), std::pair(0, 0), std::pair(-1, 0)}) {
        engine.operations = operations;
        EXPECT_EQ(Ext::undoCount("JOB", "Step"), count);
        EXPECT_EQ(engine.take(), Lines{"API::op_size(job step)"});
    }
    engine.throwFrom("op_size");
    EXPECT_EQ(Ext::undoCount("j", "s"), 0);
    EXPECT_EQ(log.take().size(), 2U);
}

} // namespace
