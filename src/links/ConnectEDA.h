#pragma once

#include "UIAPICommonExport.h"

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QString>

namespace KVCAM::UIAPI {

namespace Ext {

/// The result of sending one message to the EDA tool: an enumeration, not a Result, because a host acts on
/// it.
enum class EdaSendResult : int
{
    Sent,       ///< passed to the network; whether anyone listens is unknown
    NoLink,     ///< there is no link, its sending socket was destroyed, or the process is ending
    NoPort,     ///< the port set is outside 1 to 65535
    TooLarge,   ///< the message does not fit into one datagram (65507 bytes)
    SocketError ///< anything else; see EdaLinkState::lastError
};

/// Status of a link to the EDA tool.
struct EdaLinkState
{
    bool exists = false;  ///< false: there is no link, and nothing below counts
    bool bound = false;   ///< whether it owns the port and can receive; sending works anyway
    QString bindError;    ///< the socket's error text of the latest bind; empty if it succeeded
    int port = 0;         ///< where messages are sent, as set
    quint64 sent = 0;     ///< messages passed to the network
    quint64 unsent = 0;   ///< messages not passed to the network
    quint64 received = 0; ///< datagrams read
    QString lastError;    ///< text of the latest failure to send or read; empty if none
};

/// Whether links receive, which they do until this is called. One that must not leaves port 2333 to other
/// processes, as a run without a window should; it can send. Call it before the library's first call, which
/// makes the link: one that has the port keeps it.
/// \since 0.2
UIAPICOMMON_EXPORT void setEdaLinkReceives(bool receives);

} // namespace Ext

/// The link to an EDA tool on the same computer: JSON messages as UDP datagrams over the loopback interface,
/// one complete document per datagram. One per process, created by UIAPICommonPara and never deleted.
///
/// It receives on port 2333, in the event loop of the creating thread, and sends to a configurable port.
/// Nothing is logged, and no operation of the fixed interface reports a failure. Only one process at a time
/// can own the port; the link of a second one cannot receive. After main() returns or exit() is called, for
/// example in the destructor of a static object, nothing is sent or received.
class UIAPICOMMON_EXPORT ConnectEDA : public QObject
{
    Q_OBJECT

public:
    /// Creates both sockets as children of `parent` (not of the link) and binds the receiving one. A failed
    /// bind is only reported by state() and is not retried. A link created while there is no
    /// QCoreApplication, also between two of them, can send, and receive() reads what has arrived. It rebinds
    /// when the next application's event loop starts and is served by it from then on.
    explicit ConnectEDA(QObject * parent = nullptr);
    /// Destroys the remaining sockets. May be called from a slot of the link's own signals.
    ~ConnectEDA() override;

    /// Sends an object as compact JSON. If it cannot be sent, it is silently dropped.
    void sendData(QJsonObject const & data);
    /// The text of the last datagram read, up to its first NUL, with invalid UTF-8 replaced; empty initially
    /// and after an empty datagram. Reading does not clear it. Untrusted input: any sender that can reach the
    /// port may have written it.
    QString getReceiveStr() const;
    /// Sets the port that sendData() sends to; initially 22333. Outside 1 to 65535 nothing is sent.
    void setEdaPort(int port);

    // --- Additions ----------------------------------------------------------------------------------------

    /// sendData() with a result.
    [[nodiscard]] Ext::EdaSendResult sendDataChecked(QJsonObject const & data);
    /// Status of the link.
    Ext::EdaLinkState state() const;

public slots:
    /// Reads all pending datagrams; each replaces the text of the previous one. Called by the socket.
    void receive();

signals:
    // Emitted once per datagram, in order of arrival, after its text is stored. An exception from a slot is
    // logged and changes nothing.

    /// The bytes as received.
    void datagramReceived(QByteArray bytes);
    /// After datagramReceived(), if the bytes are one JSON object.
    void jsonReceived(QJsonObject object);
    /// After datagramReceived(), if the bytes are anything else.
    void invalidReceived(QByteArray bytes);

private:
    void tell(QByteArray const & bytes);

    struct Private;
    Private * d; // owned
};

} // namespace KVCAM::UIAPI
