#include "links/JobServer.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkProxy>
#include <QString>
#include <QTcpSocket>

#include <algorithm>
#include <limits>

namespace KVCAM::UIAPI {
namespace {

constexpr std::size_t longestName = 255;
constexpr int longestWait = 5000; // milliseconds: the user interface is blocked meanwhile
constexpr int longestAnswer = 64 * 1024;

QHostAddress addressOf(std::string const & server)
{
    QString const text = QString::fromStdString(server);
    return text == QLatin1String("localhost") ? QHostAddress(QHostAddress::LocalHost) : QHostAddress(text);
}

int remaining(QDeadlineTimer const & deadline)
{
    return static_cast<int>(deadline.remainingTime()); // never more than longestWait
}

bool send(QTcpSocket & socket, QByteArray const & line, QDeadlineTimer const & deadline)
{
    socket.write(line);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(remaining(deadline))) {
            return false;
        }
    }
    return true;
}

/// One line, or what has arrived when the server closes; empty on failure.
QByteArray receiveLine(QTcpSocket & socket, QDeadlineTimer const & deadline)
{
    while (!socket.canReadLine()) {
        if (socket.bytesAvailable() > longestAnswer) {
            return {};
        }
        if (!socket.waitForReadyRead(remaining(deadline))) {
            bool const isClosed = socket.error() == QAbstractSocket::RemoteHostClosedError;
            return isClosed ? socket.readAll() : QByteArray();
        }
    }
    return socket.readLine(longestAnswer + 1);
}

QByteArray exchange(QHostAddress const & address, quint16 port, QByteArray const & line, int timeout)
{
    QDeadlineTimer const deadline(timeout); // for the whole exchange
    QTcpSocket socket;
    socket.setProxy(QNetworkProxy::NoProxy);
    socket.setReadBufferSize(longestAnswer + 1);
    socket.connectToHost(address, port);
    QByteArray answer;
    if (socket.waitForConnected(remaining(deadline)) && send(socket, line, deadline)) {
        answer = receiveLine(socket, deadline);
    }
    socket.abort();
    return answer;
}

} // namespace

bool JobServer::isJobName(std::string const & name)
{
    QString const text = QString::fromStdString(name);
    bool const isUtf8 = text.toStdString() == name;
    bool const isFolder = name != "." && name != ".." && !text.isEmpty() && name.size() <= longestName;
    return isUtf8 && isFolder && std::none_of(text.cbegin(), text.cend(), [](QChar c) {
               return c == QLatin1Char('/') || c == QLatin1Char('\\') || c == QLatin1Char(':') ||
                      c.category() == QChar::Other_Control;
           });
}

bool JobServer::deleteJob(std::string const & server, int port, int timeout, std::string const & job)
{
    QHostAddress const address = addressOf(server);
    if (!isJobName(job) || address.isNull() || port < 1 || port > std::numeric_limits<quint16>::max()) {
        return false;
    }
    QJsonObject const request{{QStringLiteral("cmd"), QStringLiteral("deleteJob")},
                              {QStringLiteral("job"), QString::fromStdString(job)}};
    QByteArray const line = QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n';
    int const wait = timeout > 0 ? std::min(timeout, longestWait) : longestWait;
    QByteArray const answer = exchange(address, static_cast<quint16>(port), line, wait);
    return QJsonDocument::fromJson(answer).object().value(QStringLiteral("ok")).toBool(false);
}

} // namespace KVCAM::UIAPI
