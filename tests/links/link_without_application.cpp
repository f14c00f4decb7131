// A program that uses the link before it has an application object: both ways work, and Qt has nothing to
// complain about.

#include "uiapi/flat/EdaLink.h"

#include <QHostAddress>
#include <QJsonObject>
#include <QThread>
#include <QUdpSocket>

#include <cstdio>

namespace {

int complaints = 0;

void complain(QtMsgType, QMessageLogContext const &, QString const & text)
{
    ++complaints;
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

int main()
{
    qInstallMessageHandler(complain);
    using namespace KVCAM::UIAPI;
    // Another build's tests may have the port for a moment.
    for (int i = 0; i < 600 && !QUdpSocket().bind(QHostAddress(QHostAddress::LocalHost), 2333); ++i) {
        QThread::msleep(100);
    }
    QUdpSocket peer;
    peer.bind(QHostAddress(QHostAddress::LocalHost));
    setEdaPort(peer.localPort());
    sendEdaData({{QStringLiteral("a"), 1}});
    bool const sent = peer.hasPendingDatagrams() && peer.pendingDatagramSize() == 7;
    peer.writeDatagram("back", QHostAddress(QHostAddress::LocalHost), 2333);
    Ext::edaLink()->receive();
    bool const received = getReceiveStr() == QLatin1String("back");
    std::fprintf(stderr, "sent %d, received %d, %d complaints\n", sent, received, complaints);
    return sent && received && complaints == 0 ? 0 : 1;
}
