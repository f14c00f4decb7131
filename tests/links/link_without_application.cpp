// A program that uses the link before it has an application object: both ways work, the event loop hears it
// as soon as there is one, and Qt has nothing to complain about.

#include "uiapi/flat/EdaLink.h"

#include <QCoreApplication>
#include <QElapsedTimer>
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

int main(int argc, char ** argv)
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

    peer.writeDatagram("before the loop", QHostAddress(QHostAddress::LocalHost), 2333);
    QCoreApplication const application(argc, argv);
    auto heard = [](QString const & text) {
        QElapsedTimer timer;
        for (timer.start(); getReceiveStr() != text && timer.elapsed() < 5000;) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        }
        return getReceiveStr() == text;
    };
    bool const early = heard(QStringLiteral("before the loop"));
    peer.writeDatagram("in the loop", QHostAddress(QHostAddress::LocalHost), 2333);
    bool const late = heard(QStringLiteral("in the loop"));
    std::fprintf(stderr, "sent %d, received %d %d %d, %d complaints\n", sent, received, early, late,
                 complaints);
    return sent && received && early && late && complaints == 0 ? 0 : 1;
}
