// A program that uses the link before, between and after its application objects. Sending and receiving work,
// each event loop hears it, and Qt has nothing to complain about. With the argument "taken" another socket
// has the port at first: the link never receives. With "late" the first call comes when the process ends.

#include "ext/EdaLink.h"
#include "uiapi/flat/EdaLink.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QJsonObject>
#include <QThread>
#include <QUdpSocket>

#include <cstdio>
#include <cstdlib>
#include <string>

using namespace KVCAM::UIAPI;

namespace {

auto const here = QHostAddress::LocalHost;
constexpr quint16 receivePort = 2333;
int complaints = 0;

void complain(QtMsgType, QMessageLogContext const &, QString const & text)
{
    ++complaints;
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

/// Whether an event loop hears the text.
bool hears(QUdpSocket & peer, char const * text)
{
    peer.writeDatagram(text, QHostAddress(here), receivePort);
    QElapsedTimer timer;
    for (timer.start(); getReceiveStr() != QLatin1String(text) && timer.elapsed() < 5000;) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    return getReceiveStr() == QLatin1String(text);
}

/// Destroyed after Qt's own objects.
struct LastWords
{
    ~LastWords()
    {
        sendEdaData({});
        if (Ext::sendEdaDataChecked({}) != Ext::EdaSendResult::NoLink || Ext::edaLinkState().bound) {
            std::_Exit(2);
        }
    }
} const lastWords;

} // namespace

int main(int argc, char ** argv)
{
    std::string const mode = argc > 1 ? argv[1] : "";
    qInstallMessageHandler(complain);
    QUdpSocket other;
    // Another build's tests may have the port for a moment.
    for (int i = 0; i < 600 && !other.bind(QHostAddress(here), receivePort); ++i) {
        QThread::msleep(100);
    }
    QUdpSocket peer;
    peer.bind(QHostAddress(here));
    if (mode == "late") {
        QCoreApplication const application(argc, argv);
        return 0;
    }
    bool const taken = mode == "taken";
    if (!taken) {
        other.close();
    }
    setEdaPort(peer.localPort());
    sendEdaData({{QStringLiteral("a"), 1}});
    bool good = peer.hasPendingDatagrams() && peer.pendingDatagramSize() == 7;
    other.close();
    peer.writeDatagram("back", QHostAddress(here), receivePort);
    Ext::edaLink()->receive();
    good = good && getReceiveStr() == QLatin1String(taken ? "" : "back");
    for (int i = 0; i < 2; ++i) {
        delete new QCoreApplication(argc, argv); // its event loop never runs
        QCoreApplication const application(argc, argv);
        QCoreApplication::processEvents();
        good = good && (taken || (hears(peer, i == 0 ? "0" : "1") && hears(peer, "again"))) &&
               Ext::edaLinkState().bound == !taken && Ext::edaLinkState().bindError.isEmpty() == !taken;
    }
    return good && complaints == 0 ? 0 : 1;
}
