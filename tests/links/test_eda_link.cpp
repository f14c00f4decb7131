#include "harness/UiapiTest.h"

#include "ext/EdaLink.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/EdaLink.h"
#include "uiapi/flat/UiState.h"

#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTest>
#include <QUdpSocket>

#include <climits>
#include <functional>
#include <memory>
#include <stdexcept>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;
using Ext::EdaSendResult;

namespace {

QHostAddress const here(QHostAddress::LocalHost);
constexpr quint16 receivePort = 2333;

class EdaLinkTest : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        // Another build's tests may have the port for a moment.
        bool const isFree = QTest::qWaitFor([] { return QUdpSocket().bind(here, receivePort); }, 60000);
        ASSERT_TRUE(isFree) << "another process has port 2333";
        ASSERT_TRUE(tool.bind(here));
    }

    void toLibrary(QByteArray const & bytes) { tool.writeDatagram(bytes, here, receivePort); }

    QByteArray atTool()
    {
        QByteArray bytes(int(qMax(tool.pendingDatagramSize(), qint64(0))), 0);
        tool.readDatagram(bytes.data(), bytes.size());
        return bytes;
    }

    /// One of the two sockets, children of the link's parent.
    static QUdpSocket * socketOf(QObject const & parent, bool receiving)
    {
        for (auto * socket : parent.findChildren<QUdpSocket *>()) {
            if ((socket->localPort() == receivePort) == receiving) {
                return socket;
            }
        }
        return nullptr;
    }

    QUdpSocket tool; // the EDA tool
};

TEST_F(EdaLinkTest, ExistsFromTheFirstCallOn)
{
    bool freeWhileLoading = false; // the link is created last
    engine.onNextCall("getPath_rangesconfig",
                      [&] { freeWhileLoading = QUdpSocket().bind(here, receivePort); });
    getCurrentLanguageMode();
    EXPECT_TRUE(freeWhileLoading);
    EXPECT_FALSE(QUdpSocket().bind(here, receivePort));
    EXPECT_EQ(getReceiveStr(), "");
    Ext::EdaLinkState const state = Ext::edaLinkState();
    EXPECT_TRUE(state.exists && state.bound);
    EXPECT_EQ(state.bindError + state.lastError, "");
    EXPECT_EQ(state.port, 22333);
    EXPECT_EQ(state.sent + state.unsent + state.received, 0U);
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(engine.take(), Lines{});
}

TEST_F(EdaLinkTest, LeavesThePortToOthersAndSends)
{
    Ext::setEdaLinkReceives(false);
    EXPECT_EQ(Ext::edaLinkState().bindError, "the link must not receive");
    EXPECT_FALSE(Ext::edaLinkState().bound);
    EXPECT_TRUE(QUdpSocket().bind(here, receivePort));
    setEdaPort(tool.localPort());
    sendEdaData({});
    EXPECT_EQ(atTool(), "{}");
}

TEST_F(EdaLinkTest, KeepsTheTextOfTheLatestDatagram)
{
    struct Row
    {
        QByteArrayList datagrams;
        QString text;
    };
    ConnectEDA * const link = Ext::edaLink();
    QByteArray const large(60000, 'x');
    quint64 count = 0;
    for (Row const & row :
         {Row{{"one", "two"}, "two"}, Row{{}, "two"}, // reading does not clear
          Row{{"{\"a\":1}"}, "{\"a\":1}"}, Row{{"a", ""}, ""}, Row{{"no JSON \xe5\xb1\x82"}, "no JSON 层"},
          Row{{"a\xff"}, "a\xef\xbf\xbd"}, Row{{QByteArray("ab\0c", 4)}, "ab"},
          Row{{large, "z", large}, QString::fromLatin1(large)}}) {
        for (QByteArray const & datagram : row.datagrams) {
            toLibrary(datagram);
        }
        link->receive(); // no event loop in between
        EXPECT_EQ(getReceiveStr(), row.text);
        EXPECT_EQ(getReceiveStr(), row.text);
        count += quint64(row.datagrams.size());
    }
    EXPECT_EQ(Ext::edaLinkState().received, count);
}

TEST_F(EdaLinkTest, SendsOneCompactDocumentToThePortSet)
{
    setEdaPort(tool.localPort());
    sendEdaData({{"b", QJsonArray({1, 2})}, {"a", "层"}});
    EXPECT_EQ(atTool(), "{\"a\":\"层\",\"b\":[1,2]}");
    sendEdaData({});
    EXPECT_EQ(atTool(), "{}");
    EXPECT_FALSE(tool.hasPendingDatagrams());
    EXPECT_EQ(Ext::edaLinkState().sent, 2U);
}

TEST_F(EdaLinkTest, APortThatIsNoneIsStoredAndNothingIsSent)
{
    QUdpSocket other;
    for (int const port :
         {0, -1, 65536 + int(tool.localPort()), int(tool.localPort()) - 65536, INT_MAX, INT_MIN}) {
        setEdaPort(port);
        sendEdaData({});
        EXPECT_EQ(Ext::sendEdaDataChecked({}), EdaSendResult::NoPort);
        EXPECT_EQ(Ext::edaLinkState().port, port);
        EXPECT_EQ(Ext::edaLinkState().lastError, QString::number(port) + " is no port");
    }
    EXPECT_FALSE(tool.hasPendingDatagrams());
    EXPECT_EQ(Ext::edaLinkState().unsent, 12U);
    for (int const port : {1, 65535}) {
        setEdaPort(port);
        EXPECT_EQ(Ext::sendEdaDataChecked({}), EdaSendResult::Sent) << "lost, but nobody can know";
    }
}

TEST_F(EdaLinkTest, TellsOfAMessageThatIsTooLarge)
{
    setEdaPort(tool.localPort());
    QJsonObject const fits{{"a", QString(65507 - 8, 'x')}};
    QJsonObject const tooLarge{{"a", QString(65507 - 7, 'x')}};
    EXPECT_EQ(Ext::sendEdaDataChecked(fits), EdaSendResult::Sent);
    EXPECT_EQ(atTool().size(), 65507);
    sendEdaData(tooLarge);
    EXPECT_EQ(Ext::sendEdaDataChecked(tooLarge), EdaSendResult::TooLarge);
    EXPECT_FALSE(tool.hasPendingDatagrams());
    Ext::EdaLinkState const state = Ext::edaLinkState();
    EXPECT_EQ(state.sent, 1U);
    EXPECT_EQ(state.unsent, 2U);
    EXPECT_NE(state.lastError, "");
    EXPECT_EQ(log.take(), Lines{});
}

TEST_F(EdaLinkTest, CopiesShareTheLinkAndDoWithoutIt)
{
    UIAPICommonPara * const para = UIAPICommonPara::instance();
    static auto * const copy = new UIAPICommonPara(*para); // cannot be destroyed
    EXPECT_EQ(copy->edaLink(), para->edaLink());
    copy->setEdaPort(tool.localPort());
    para->sendEdaData({});
    EXPECT_EQ(atTool(), "{}");

    toLibrary("x");
    para->edaLink()->receive();
    EXPECT_EQ(copy->getReceiveStr(), "x");
    delete para->edaLink(); // forbidden, but then calls just do nothing
    for (UIAPICommonPara * each : {para, copy}) {
        each->setEdaPort(1);
        each->sendEdaData({});
        EXPECT_EQ(each->getReceiveStr(), "");
        EXPECT_EQ(each->sendEdaDataChecked({}), EdaSendResult::NoLink);
        EXPECT_FALSE(each->edaLinkState().exists);
    }
    EXPECT_EQ(Ext::edaLink(), nullptr);
    EXPECT_FALSE(tool.hasPendingDatagrams());
}

TEST_F(EdaLinkTest, SignalsTellOfEachDatagram)
{
    ConnectEDA * const link = Ext::edaLink();
    Lines heard;
    auto note = [&](char const * what, QByteArray const & bytes) {
        heard.push_back(what + bytes.toStdString() + "/" + getReceiveStr().toStdString());
    };
    QObject::connect(link, &ConnectEDA::datagramReceived, [&](QByteArray bytes) { note("bytes ", bytes); });
    QObject::connect(link, &ConnectEDA::jsonReceived, [&](QJsonObject json) {
        note("json ", QJsonDocument(json).toJson(QJsonDocument::Compact));
    });
    QObject::connect(link, &ConnectEDA::invalidReceived, [&](QByteArray bytes) { note("invalid ", bytes); });
    for (char const * datagram : {"{ \"a\": 1 }", "", "[1]", "{\"a\":", "{}"}) {
        toLibrary(datagram);
    }
    link->receive();
    EXPECT_EQ(heard, (Lines{"bytes { \"a\": 1 }/{ \"a\": 1 }", "json {\"a\":1}/{ \"a\": 1 }", "bytes /",
                            "invalid /", "bytes [1]/[1]", "invalid [1]/[1]", "bytes {\"a\":/{\"a\":",
                            "invalid {\"a\":/{\"a\":", "bytes {}/{}", "json {}/{}"}));
}

TEST_F(EdaLinkTest, SlotsMayThrowReadAndDelete)
{
    struct Row
    {
        char const * what;
        std::function<void()> slot;
        bool alive;
        QString text; // afterwards
        std::size_t lines;
    };
    ConnectEDA * link = nullptr;
    std::vector<Row> const rows{{"throws", [] { throw std::runtime_error("slot"); }, true, "{}", 8},
                                {"throws anything", [] { throw 42; }, true, "{}", 8},
                                {"reads", [&] { link->receive(); }, true, "{}", 0},
                                {"runs an event loop", [] { QTest::qWait(1); }, true, "{}", 0},
                                {"deletes", [&] { delete link; }, false, "", 0}};
    for (bool const inEventLoop : {false, true}) {
        for (bool const json : {false, true}) {
            for (Row const & row : rows) {
                SCOPED_TRACE(row.what + std::string(inEventLoop ? " in the event loop" : ""));
                QObject parent;
                link = new ConnectEDA(&parent);
                QPointer<ConnectEDA> const alive(link);
                ASSERT_TRUE(link->state().bound);
                if (json) {
                    QObject::connect(link, &ConnectEDA::jsonReceived, link, [&] { row.slot(); });
                    QObject::connect(link, &ConnectEDA::invalidReceived, link, [&] { row.slot(); });
                } else {
                    QObject::connect(link, &ConnectEDA::datagramReceived, link, [&] { row.slot(); });
                }
                for (char const * datagram : {"{}", "x", "[]", "{}"}) {
                    toLibrary(datagram);
                }
                if (inEventLoop) {
                    QTest::qWait(20);
                } else {
                    link->receive();
                }
                EXPECT_EQ(!alive.isNull(), row.alive);
                EXPECT_EQ(alive ? alive->getReceiveStr() : QString(), row.text);
                EXPECT_EQ(alive ? alive->state().received : 4U, 4U);
                EXPECT_EQ(log.take().size(), row.lines);
                delete alive.data();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
        }
    }
}

TEST_F(EdaLinkTest, TellsOfASocketThatCannotSend)
{
#if defined(Q_OS_WIN)
    GTEST_SKIP() << "there a sender never learns that nobody listens";
#endif
    QObject parent;
    auto * const link = new ConnectEDA(&parent);
    quint16 const port = tool.localPort();
    tool.close();
    // A connected socket learns with the next datagram that nobody listens.
    socketOf(parent, false)->connectToHost(here, port);
    link->setEdaPort(port);
    EXPECT_EQ(link->sendDataChecked({}), EdaSendResult::Sent);
    EXPECT_EQ(link->sendDataChecked({}), EdaSendResult::SocketError);
    EXPECT_EQ(link->state().sent, 1U);
    EXPECT_EQ(link->state().unsent, 1U);
    EXPECT_EQ(link->state().lastError, socketOf(parent, false)->errorString());
}

// A slot deletes the link while the socket is still on the stack.
TEST_F(EdaLinkTest, AReceiverInTheMiddleOfItsSignalDiesAfterIt)
{
    QObject parent;
    auto * const link = new ConnectEDA(&parent);
    QPointer<QUdpSocket> const receiver = socketOf(parent, true);
    ASSERT_FALSE(receiver.isNull());
    EXPECT_EQ(receiver->localAddress(), here) << "nobody else's network can reach it";
    bool survived = false;
    QObject::connect(link, &ConnectEDA::datagramReceived, link, [&] {
        delete link;
        survived = !receiver.isNull() && receiver->state() == QAbstractSocket::UnconnectedState;
    });
    toLibrary("x");
    EXPECT_TRUE(QTest::qWaitFor([&] { return receiver.isNull(); }));
    EXPECT_TRUE(survived);
    EXPECT_TRUE(parent.children().isEmpty());
}

// The sockets belong to the constructor's parent, which may be destroyed before, with or after the link.
TEST_F(EdaLinkTest, OutlivesItsSocketsAndIsOutlivedByTheirParent)
{
    {
        QObject elsewhere;
        auto parent = std::make_unique<QObject>();
        auto * const link = new ConnectEDA(parent.get());
        EXPECT_EQ(parent->findChildren<QUdpSocket *>(QString(), Qt::FindDirectChildrenOnly).size(), 2);
        link->setParent(&elsewhere);
        parent.reset();
        link->sendData({});
        link->receive();
        EXPECT_EQ(link->sendDataChecked({}), EdaSendResult::NoLink);
        EXPECT_FALSE(link->state().bound);
    }
    {
        QObject parent;
        delete new ConnectEDA(&parent);
        EXPECT_TRUE(parent.children().isEmpty());
        EXPECT_TRUE((new ConnectEDA(&parent))->state().bound);
    }
    ConnectEDA const onItsOwn;
    EXPECT_TRUE(onItsOwn.state().bound);
}

TEST_F(EdaLinkTest, TenThousandDatagramsOutAndInBetweenTwoProcesses)
{
    constexpr int total = 10000;
    constexpr int batch = 50; // few enough pending not to overflow the kernel's buffer
    ASSERT_TRUE(Ext::edaLinkState().bound);
    QProcess peer;
    peer.start(EDA_PEER, {}, QIODevice::ReadOnly);
    ASSERT_TRUE(peer.waitForReadyRead(20000));
    setEdaPort(peer.readLine().trimmed().toInt());

    int next = 0;
    int outOfOrder = 0;
    QObject::connect(Ext::edaLink(), &ConnectEDA::jsonReceived, [&](QJsonObject const & json) {
        outOfOrder += json["n"].toInt(-1) == next ? 0 : 1;
        ++next;
    });
    for (int n = 0; n < total;) {
        for (int const end = n + batch; n < end; ++n) {
            sendEdaData({{"n", n}});
        }
        ASSERT_TRUE(QTest::qWaitFor([&] { return next >= n; }, 20000)) << next << " of " << n << " came back";
    }
    tool.writeDatagram("", here, quint16(Ext::edaLinkState().port)); // ends the peer
    ASSERT_TRUE(peer.waitForFinished(20000));
    EXPECT_EQ(peer.readAll().trimmed(), "10000 0");
    EXPECT_EQ(next, total);
    EXPECT_EQ(outOfOrder, 0);
    Ext::EdaLinkState const state = Ext::edaLinkState();
    EXPECT_EQ(state.sent, quint64(total));
    EXPECT_EQ(state.received, quint64(total));
    EXPECT_EQ(getReceiveStr(), "{\"n\":9999}");
}

} // namespace
