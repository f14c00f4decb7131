// A program that uses the link before it has an application object: both ways work, and Qt has nothing to
// complain about.

#include "uiapi/flat/EdaLink.h"

#include <QHostAddress>
#include <QJsonObject>
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
