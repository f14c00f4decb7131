#pragma once

#include "UIAPICommonExport.h"

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QString>

namespace KVCAM::UIAPI {

namespace Ext {

/// What became of one message to the EDA tool: an enumeration and no Result, since a host acts on it.
enum class EdaSendResult : int
{
    Sent,       ///< handed to the network; whether anybody listens cannot be known
    NoLink,     ///< there is no link, or its sending socket is gone, or the process is ending
    NoPort,     ///< the port set is outside 1 to 65535
    TooLarge,   ///< the message does not fit into one datagram (65507 bytes)
    SocketError ///< anything else; EdaLinkState::lastError has the words
};

/// Status of a link to the EDA tool.
struct EdaLinkState
{
    bool exists = false;  ///< false: there is no link, and nothing below counts
    bool bound = false;   ///< whether it has the port and can receive; a deaf link still sends
    QString bindError;    ///< the socket's words on why its latest bind failed; empty when it did not
    int port = 0;         ///< where messages are sent, as it was set
    quint64 sent = 0;     ///< messages handed to the network
    quint64 unsent = 0;   ///< messages that were not
    quint64 received = 0; ///< datagrams read
    QString lastError;    ///< the words of the latest failure to send or read; empty when there was none
};

} // namespace Ext

/// The link to an EDA tool on the same computer: JSON messages as UDP datagrams over the loopback interface,
/// one whole document in each. The process has one, which UIAPICommonPara creates and nothing deletes.
///
/// It receives on port 2333, in the event loop of the thread that created it, and sends to a port that can be
/// set. Nothing is logged and no operation of the fixed interface reports a failure. One process at a time
/// can have the port; the link of a second one is deaf. Once main() is left or exit() called, as in the
/// destructor of a static object, nothing is sent or received any more.
class UIAPICOMMON_EXPORT ConnectEDA : public QObject
{
    Q_OBJECT

public:
    /// Creates both sockets as children of `parent` (not of the link) and binds the receiving one. A failed
    /// bind shows in state() alone and is not tried again. A link made before a QCoreApplication, be it the
    /// second one of the process, sends, receives by receive(), and binds again when that event loop starts,
    /// which hears it from then on.
    explicit ConnectEDA(QObject * parent = nullptr);
    /// Destroys the sockets that are still there. May be called by a slot of the link's own signals.
    ~ConnectEDA() override;

    /// Sends an object as compact JSON. One that cannot be sent is dropped without a word.
    void sendData(QJsonObject const & data);
    /// The text of the datagram read last, up to its first NUL, with what is not UTF-8 replaced; empty at
    /// start and after an empty datagram. Reading does not clear it. Whoever can send to the port wrote it:
    /// parse it with care.
    QString getReceiveStr() const;
    /// The port that sendData() sends to from now on; 22333 at start. Outside 1 to 65535 nothing is sent.
    void setEdaPort(int port);

    // --- Additions ----------------------------------------------------------------------------------------

    /// sendData(), and says what became of it.
    [[nodiscard]] Ext::EdaSendResult sendDataChecked(QJsonObject const & data);
    /// Status of the link.
    Ext::EdaLinkState state() const;

public slots:
    /// Reads every datagram that is waiting; each replaces the text of the one before. Called by the socket.
    void receive();

signals:
    // Once for each datagram, in the order of their arrival, when its text is stored. What a slot throws is
    // logged and changes nothing.

    /// The bytes as they came.
    void datagramReceived(QByteArray bytes);
    /// After datagramReceived(), when the bytes are one JSON object.
    void jsonReceived(QJsonObject object);
    /// After datagramReceived(), when the bytes are anything else.
    void invalidReceived(QByteArray bytes);

private:
    void tell(QByteArray const & bytes);

    struct Private;
    Private * d; // owned
};

} // namespace KVCAM::UIAPI
