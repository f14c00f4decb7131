#include "config/ConfigTest.h"

#include "uiapi/flat/Files.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <chrono>
#include <future>
#include <thread>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

/// A server in its own thread for one client: reads a line, unless told not to, and lets `answer`
/// do the rest.
class Server
{
public:
    using Answer = std::function<void(QTcpSocket &)>;

    explicit Server(Answer answer, bool reads = true)
    {
        std::promise<int> listening;
        std::future<int> found = listening.get_future();
        m_thread = std::thread([this, answer, reads, &listening] {
            QTcpServer server;
            server.listen(QHostAddress::LocalHost);
            listening.set_value(server.serverPort());
            if (!server.waitForNewConnection(10000)) {
                return;
            }
            std::unique_ptr<QTcpSocket> const client(server.nextPendingConnection());
            while (reads && !client->canReadLine() && client->waitForReadyRead(10000)) {
            }
            m_received = client->readLine();
            answer(*client);
            client->disconnectFromHost();
        });
        port = found.get();
    }
    ~Server()
    {
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }
    Server(Server const &) = delete;
    Server & operator=(Server const &) = delete;

    /// The received line, once the server has finished.
    std::string received()
    {
        m_thread.join();
        return m_received.toStdString();
    }

    int port = 0;

private:
    QByteArray m_received;
    std::thread m_thread;
};

Server::Answer say(QByteArray const & bytes)
{
    return [bytes](QTcpSocket & client) {
        client.write(bytes);
        client.waitForBytesWritten(10000);
    };
}

void waitForTheClientToGo(QTcpSocket & client)
{
    client.waitForDisconnected(20000);
}

class JobServerTest : public ConfigTest
{
protected:
    void configure(int port, int timeout = 100000, char const * server = "127.0.0.1")
    {
        QJsonObject const settings{{"ServerIp", server}, {"Port", port}, {"TimeOut", timeout}};
        writeFile(config + "server.json", QJsonDocument(settings).toJson());
        restartQuietly();
    }

    bool deletes(std::string const & job)
    {
        bool const done = deletGeneJob(job);
        EXPECT_EQ(log.take(), done ? Lines{} : Lines{operationError("deletGeneJob")}) << job;
        return done;
    }
};

TEST_F(JobServerTest, ARequestIsOneLineAndTrueIsAnAnswerOfOk)
{
    struct Row
    {
        QByteArray answer;
        bool deleted;
    };
    for (Row const & row :
         {Row{"{\"ok\":true}\n", true}, Row{"{\"ok\": true, \"more\": [1]}\r\n", true},
          Row{"{\"ok\":true}", true}, Row{"{\"ok\":true}\nand more\n", true}, Row{"{\"ok\":false}\n", false},
          Row{"{\"ok\":1}\n", false}, Row{"{\"ok\":\"true\"}\n", false}, Row{"{\"OK\":true}\n", false},
          Row{"{\"ok\":true", false}, Row{"\n{\"ok\":true}\n", false}, Row{"[true]\n", false},
          Row{"true\n", false}, Row{"", false}, Row{QByteArray(70000, ' ') + "{\"ok\":true}\n", false},
          Row{QByteArray(3000000, 'x'), false}}) {
        SCOPED_TRACE(row.answer.left(40).toStdString());
        Server server(say(row.answer));
        configure(server.port);
        EXPECT_EQ(deletes("Größe \"1\""), row.deleted);
        EXPECT_EQ(server.received(), "{\"cmd\":\"deleteJob\",\"job\":\"Größe \\\"1\\\"\"}\n");
    }
    Server server([](QTcpSocket & client) {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        say("{\"ok\":true}\n")(client);
    });
    configure(server.port, 0, "localhost"); // no timeout does not mean zero
    EXPECT_TRUE(deletes("a"));
}

TEST_F(JobServerTest, ItTakesNoLongerThanConfiguredAndNeverMoreThanFiveSeconds)
{
    auto const drips = [](QTcpSocket & client) {
        while (client.state() == QAbstractSocket::ConnectedState) {
            client.write("{");
            client.waitForBytesWritten(100);
            client.waitForDisconnected(50);
        }
    };
    struct Row
    {
        Server::Answer answer;
        bool reads;
        int timeout;
        int atLeast;
        int atMost;
    };
    for (Row const & row : {Row{waitForTheClientToGo, true, 300, 290, 2500}, Row{drips, true, 300, 290, 2500},
                            Row{waitForTheClientToGo, false, 300, 290, 2500},
                            Row{waitForTheClientToGo, true, 100000, 4900, 7500}}) {
        Server server(row.answer, row.reads);
        configure(server.port, row.timeout);
        QElapsedTimer clock;
        clock.start();
        EXPECT_FALSE(deletes("a"));
        EXPECT_GE(clock.elapsed(), row.atLeast);
        EXPECT_LE(clock.elapsed(), row.atMost);
    }
}

TEST_F(JobServerTest, WhatCannotBeAskedIsAnError)
{
    int closed = 0;
    {
        QTcpServer server;
        ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
        closed = server.serverPort();
    }
    QElapsedTimer clock;
    clock.start();
    configure(closed);
    EXPECT_FALSE(deletes("a"));
    for (int port : {0, -1, 65536}) {
        configure(port);
        EXPECT_FALSE(deletes("a")) << port;
    }
    for (char const * address : {"", " ", "no address", "999.1.1.1"}) {
        configure(closed, 1000, address);
        EXPECT_FALSE(deletes("a")) << address;
    }
    EXPECT_LT(clock.elapsed(), 4000);

    // Rejected before anything is sent: there is no server to wait for.
    QTcpServer listening;
    ASSERT_TRUE(listening.listen(QHostAddress::LocalHost));
    configure(listening.serverPort());
    for (std::string const & name :
         {std::string(), std::string("."), std::string(".."), std::string("a/b"), std::string("..\\b"),
          std::string("c:"), std::string("a\nb"), std::string("a\0b", 3), std::string("a\x7f"),
          std::string("\xc2\x85"), std::string("\xff"), std::string(256, 'a')}) {
        EXPECT_FALSE(deletes(name));
    }
    configure(65536 + listening.serverPort());
    EXPECT_FALSE(deletes("a"));
    EXPECT_FALSE(listening.waitForNewConnection(50));
}

} // namespace
