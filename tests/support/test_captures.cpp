#include "harness/UiapiTest.h"

#include <KVCAM_API.h>
#include <UIAPICommonTest/QtTest.h>

#include <QPointer>
#include <QWidget>

#include <gtest/gtest-spi.h>

#include <functional>
#include <stdexcept>
#include <vector>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

Ext::MessageAnswer ask(QWidget * parent = nullptr)
{
    return Ext::showMessage({Ext::MessageKind::Question, parent, "Title", "why?"});
}

// What a case does, and what it then leaves.
struct Row
{
    std::function<void(CaseCapture &)> act;
    Lines left;
};

std::vector<Row> rows()
{
    return {
        {[](CaseCapture & c) {
             ASSERT_TRUE(registerView(viewHandle(0), 1)); // again in each of the three
             EXPECT_EQ(getUnit(viewHandle(0)), 1);
             EXPECT_EQ(c.engine.take().size(), 6);
             setUnit(viewHandle(0), 0);
         },
         {}},
        {[](CaseCapture &) { getSnapSize(viewHandle(9)); },
         {paraError("KVCAM UIAPI getSnapControl error, use default snap size!")}},
        {[](CaseCapture &) { ask(); }, {"question|Title|why?"}},
        {[](CaseCapture & c) {
             ask();
             EXPECT_EQ(c.boxes.take().size(), 1);
         },
         {}},
        {[](CaseCapture & c) {
             c.engine.throwFrom("op_sise");
             c.engine.throwNonStandardFrom("undo");
             c.engine.onNextCall("open_job", [] {});
             KVCAM::API::set_net_cal_thread(1);
         },
         {"no engine call of this name: op_sise", "no engine call of this name: open_job",
          "no engine call of this name: undo"}},
        {[](CaseCapture & c) {
             c.engine.throwFrom("op_size", "full");
             EXPECT_THROW(KVCAM::API::op_size("job", "step"), std::runtime_error);
         },
         {}},
        {[](CaseCapture & c) { c.boxes.answerNext(Ext::MessageAnswer::Yes); },
         {"an answer or action waits for a box"}},
        {[](CaseCapture & c) { c.boxes.whileNextOpen([] {}); }, {"an answer or action waits for a box"}},
    };
}

class QtClass : public QObject
{
    Q_OBJECT

public:
    std::function<void(CaseCapture &)> act;

private slots:
    void init() { test.begin(); }
    void cleanup() { test.end(); }
    void function() { act(test.capture()); }

private:
    QtTestCase test;
};

class GoogleClass : public UiapiTest
{
public:
    void TestBody() override {}
    CaseCapture & capture() { return *this; }
    using UiapiTest::TearDown;
};

TEST(Captures, ACaseThatLeavesSomethingFailsInEitherFramework)
{
    for (Row const & row : rows()) {
        {
            CaseCapture direct;
            row.act(direct);
            EXPECT_EQ(direct.leftovers(), row.left);
            if (!direct.boxes.isWaiting() && direct.engine.unmet().empty()) {
                EXPECT_EQ(direct.leftovers(), Lines{}); // taken
            }
        }
        ::testing::TestPartResultArray failures;
        {
            ::testing::ScopedFakeTestPartResultReporter const reporter(&failures);
            GoogleClass google;
            row.act(google.capture());
            google.TearDown();
        }
        EXPECT_EQ(failures.size(), row.left.empty() ? 0 : 1);
        QtClass qt;
        qt.act = row.act;
        EXPECT_EQ(QTest::qExec(&qt, QStringList{"test", "-silent"}), row.left.empty() ? 0 : 1);
    }
}

TEST(Captures, BoxesAreAnsweredAsAsked)
{
    using Ext::MessageAnswer;
    CaseCapture test;
    EXPECT_EQ(ask(), MessageAnswer::No);
    test.boxes.answer(MessageAnswer::Yes);
    test.boxes.answerNext(MessageAnswer::No);
    test.boxes.answerNext(MessageAnswer::Yes);
    test.boxes.answerNext(MessageAnswer::No);
    EXPECT_EQ(Ext::showMessage({}), MessageAnswer::Ok); // takes no answer away
    for (auto const expected :
         {MessageAnswer::No, MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Yes}) {
        EXPECT_EQ(ask(), expected);
    }
    QPointer<QWidget> const parent = new QWidget;
    int runs = 0;
    test.boxes.whileNextOpen([&] {
        ++runs;
        delete parent.data();
    });
    EXPECT_EQ(ask(parent), MessageAnswer::Yes);
    EXPECT_EQ(parent, nullptr);
    EXPECT_EQ(ask(), MessageAnswer::Yes);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(test.boxes.take().size(), 8);
    {
        CaseCapture const inner;
        EXPECT_EQ(ask(), MessageAnswer::No); // its own answers
    }
    EXPECT_EQ(ask(), MessageAnswer::Yes); // the outer capture again
}

} // namespace

#include "test_captures.moc"
