// The EDA tool's end of the link: sends every datagram back to the library's port, and counts. Its first line
// of output is its port. An empty datagram ends it; the last line is the number of datagrams
// received, and the number of those that are not the successor {"n":<number>} of the previous one.

#include <QCoreApplication>
#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUdpSocket>

#include <cstdio>

int main(int argc, char ** argv)
{
    QCoreApplication const application(argc, argv);
    QUdpSocket socket;
    if (!socket.bind(QHostAddress(QHostAddress::LocalHost))) {
        return 1;
    }
    std::printf("%d\n", int(socket.localPort()));
    std::fflush(stdout);

    int count = 0;
    int outOfOrder = 0;
    for (;;) {
        if (!socket.hasPendingDatagrams() && !socket.waitForReadyRead(20000)) {
            return 2;
        }
        while (socket.hasPendingDatagrams()) {
            QByteArray bytes(int(socket.pendingDatagramSize()), 0);
            socket.readDatagram(bytes.data(), bytes.size());
            if (bytes.isEmpty()) {
                std::printf("%d %d\n", count, outOfOrder);
                return 0;
            }
            int const number = QJsonDocument::fromJson(bytes).object()[QStringLiteral("n")].toInt(-1);
            outOfOrder += number == count ? 0 : 1;
            ++count;
            socket.writeDatagram(bytes, QHostAddress(QHostAddress::LocalHost), 2333);
        }
    }
}
