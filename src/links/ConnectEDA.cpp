#include "links/ConnectEDA.h"

#include "links/QtLife.h"
#include "support/Guard.h"
#include "support/Log.h"

#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QMetaMethod>
#include <QPointer>
#include <QUdpSocket>

#include <atomic>

namespace KVCAM::UIAPI {
namespace {

constexpr quint16 receivePort = 2333;
constexpr int firstSendPort = 22333;

/// Destroys a socket. A socket that is still emitting a signal is needed afterwards: it is closed, detached
/// from its parent and deleted by the event loop.
void discard(QUdpSocket * socket, bool inUse)
{
    if (socket == nullptr || !inUse) {
        delete socket;
        return;
    }
    socket->close();
    socket->setParent(nullptr);
    socket->deleteLater();
}

std::atomic<bool> linksReceive = true;

} // namespace

void Ext::setEdaLinkReceives(bool receives)
{
    linksReceive = receives;
}

struct ConnectEDA::Private
{
    QString received;
    QPointer<QUdpSocket> sender;
    QPointer<QUdpSocket> receiver;
    int edaPort = firstSendPort;

    QString bindError;
    QString lastError;
    quint64 sent = 0;
    quint64 unsent = 0;
    quint64 count = 0;
    int receiving = 0; // number of active calls of receive()

    bool isBound() const
    {
        return !receiver.isNull() && receiver->state() == QAbstractSocket::BoundState && !QtLife::isOver();
    }

    /// Binds the receiver; rebinds if already bound.
    void bind()
    {
        if (receiver.isNull()) {
            return;
        }
        receiver->close();
        bindError.clear();
        if (!linksReceive) {
            bindError = QLatin1String("the link must not receive");
            return;
        }
        if (!receiver->bind(QHostAddress(QHostAddress::LocalHost), receivePort)) {
            bindError = receiver->errorString();
        }
    }

    /// Takes one datagram from the receiver; false if there is none.
    bool take(QByteArray & bytes)
    {
        if (!isBound() || !receiver->hasPendingDatagrams()) {
            return false;
        }
        // -1 if the datagram is gone by now.
        bytes.resize(static_cast<int>(qMax(receiver->pendingDatagramSize(), qint64(0))));
        qint64 const length = receiver->readDatagram(bytes.data(), bytes.size());
        if (length < 0) {
            lastError = receiver->errorString();
            return false;
        }
        bytes.truncate(static_cast<int>(length));
        return true;
    }

    Ext::EdaSendResult send(QByteArray const & bytes)
    {
        if (QtLife::isOver()) {
            lastError = QLatin1String("the process is ending");
            return Ext::EdaSendResult::NoLink;
        }
        if (sender.isNull()) {
            lastError = QLatin1String("the sending socket is gone");
            return Ext::EdaSendResult::NoLink;
        }
        // A cast to a port would change such a number.
        if (edaPort < 1 || edaPort > 65535) {
            lastError = QString::number(edaPort) + QLatin1String(" is no port");
            return Ext::EdaSendResult::NoPort;
        }
        auto const port = static_cast<quint16>(edaPort);
        if (sender->writeDatagram(bytes, QHostAddress(QHostAddress::LocalHost), port) == bytes.size()) {
            return Ext::EdaSendResult::Sent;
        }
        lastError = sender->errorString();
        return sender->error() == QAbstractSocket::DatagramTooLargeError ? Ext::EdaSendResult::TooLarge
                                                                         : Ext::EdaSendResult::SocketError;
    }
};

ConnectEDA::ConnectEDA(QObject * parent) : QObject(parent), d(new Private)
{
    if (QtLife::isOver()) {
        return; // without sockets
    }
    d->sender = new QUdpSocket(parent);
    d->receiver = new QUdpSocket(parent);
    d->bind();
    connect(d->receiver, SIGNAL(readyRead()), this, SLOT(receive()));
    // Only a link that owns the port: one that could not bind stays unbound.
    auto const bindAgain = [alive = QPointer<ConnectEDA>(this)] {
        alive->receive(); // what has arrived so far
        if (alive && alive->d->isBound()) {
            alive->d->bind();
        }
    };
    connect(&QtLife::get(), &QtLife::applicationStarted, this,
            [this, bindAgain] { QMetaObject::invokeMethod(this, bindAgain, Qt::QueuedConnection); });
    QtLife::watchEnd();
}

ConnectEDA::~ConnectEDA()
{
    if (!QtLife::isOver()) {
        discard(d->sender, false);
        discard(d->receiver, d->receiving > 0);
    }
    delete d;
}

void ConnectEDA::sendData(QJsonObject const & data)
{
    static_cast<void>(sendDataChecked(data)); // result ignored
}

Ext::EdaSendResult ConnectEDA::sendDataChecked(QJsonObject const & data)
{
    Ext::EdaSendResult result = Ext::EdaSendResult::SocketError; // if anything throws
    guarded(Log::commonPara, [&] { result = d->send(QJsonDocument(data).toJson(QJsonDocument::Compact)); });
    if (d->sent + d->unsent == 0) {
        QtLife::watchEnd(); // anything created by the first send is destroyed after that
    }
    ++(result == Ext::EdaSendResult::Sent ? d->sent : d->unsent);
    return result;
}

QString ConnectEDA::getReceiveStr() const
{
    return d->received;
}

void ConnectEDA::setEdaPort(int port)
{
    d->edaPort = port;
}

Ext::EdaLinkState ConnectEDA::state() const
{
    Ext::EdaLinkState state;
    state.exists = true;
    state.bound = d->isBound();
    state.bindError = d->bindError;
    state.port = d->edaPort;
    state.sent = d->sent;
    state.unsent = d->unsent;
    state.received = d->count;
    state.lastError = d->lastError;
    return state;
}

// A slot may delete the link: check it after each signal before using any member.
void ConnectEDA::receive()
{
    QPointer<ConnectEDA> const alive(this);
    ++d->receiving;
    QByteArray bytes;
    guarded(Log::commonPara, [&] {
        while (alive && d->take(bytes)) {
            // Ends at a NUL, like Qt's conversion of bytes to text.
            d->received = QString::fromUtf8(bytes);
            ++d->count;
            tell(bytes);
        }
    });
    if (alive) {
        --d->receiving;
    }
}

void ConnectEDA::tell(QByteArray const & bytes)
{
    QPointer<ConnectEDA> const alive(this);
    guarded(Log::commonPara, [&] { emit datagramReceived(bytes); });
    // Untrusted bytes are parsed only if something is connected.
    if (!alive || !(isSignalConnected(QMetaMethod::fromSignal(&ConnectEDA::jsonReceived)) ||
                    isSignalConnected(QMetaMethod::fromSignal(&ConnectEDA::invalidReceived)))) {
        return;
    }
    QJsonParseError error;
    QJsonDocument const document = QJsonDocument::fromJson(bytes, &error);
    guarded(Log::commonPara, [&] {
        if (error.error == QJsonParseError::NoError && document.isObject()) {
            emit jsonReceived(document.object());
        } else {
            emit invalidReceived(bytes);
        }
    });
}

} // namespace KVCAM::UIAPI
