#pragma once

#include <UIAPICommon.h>

#include <QTime>
#include <QWidget>

#include <deque>
#include <optional>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;
class QStackedWidget;
class QTableWidget;
class QTimer;

namespace Workbench {

/// The link to an EDA tool: an object to send, what became of it, how the link fares, and the latest messages
/// that came. What came is shown as plain text only, since anybody on this computer may have sent it.
class EdaPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int receivePort = 2333; ///< the library's
    static constexpr int kept = 500;         ///< messages; those before are dropped

    explicit EdaPage(QWidget * parent = nullptr);

    /// Puts a message into the editor and a port (1 to 65535) into its field.
    void compose(QJsonObject const & message, int port);
    /// Sends what is in the editor to the port of the field. Nothing happens if it is no object.
    void send();

protected:
    void showEvent(QShowEvent * event) override;

private:
    struct Message
    {
        QTime time;
        QByteArray bytes;
    };
    struct Sending
    {
        QTime time;
        KVCAM::UIAPI::Ext::EdaSendResult result;
        int bytes;
        int port;
        QString error; ///< the socket's words
    };

    QWidget * makeSender();
    QWidget * makeReceiver();
    void setReceiverTexts();
    void judge();
    void showResult();
    void showState();
    void receive(QByteArray const & bytes);
    void listWaiting();
    void showMessage();
    void clear();

    QLabel * m_state;
    QLabel * m_counts;
    QPlainTextEdit * m_editor;
    QLabel * m_verdict;
    QSpinBox * m_port;
    QPushButton * m_send;
    QLabel * m_result;
    std::optional<Sending> m_sending; ///< the latest
    QLabel * m_empty;
    QStackedWidget * m_stack;      ///< what is shown while there are no messages, and the messages
    std::deque<Message> m_waiting; ///< to be listed
    QTimer * m_listing;            ///< lists them
    QTableWidget * m_messages;
    QPlainTextEdit * m_content; ///< of the selected message
    QLabel * m_finding;         ///< on the selected message
    QPushButton * m_clear;
};

} // namespace Workbench
