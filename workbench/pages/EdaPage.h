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

/// The link to an EDA tool: an object to send and its outcome, the status of the link, and the latest
/// messages received. They are shown as plain text only, since anybody on this computer may have sent them.
class EdaPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int receivePort = 2333; ///< the library's
    static constexpr int kept = 500;         ///< messages; older ones are dropped

    explicit EdaPage(QWidget * parent = nullptr);

    /// Puts a message into the editor and a port (1 to 65535) into its field.
    void compose(QJsonObject const & message, int port);
    /// Sends the editor's content to the port in the field. Nothing happens if it is not an object.
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
        QString error; ///< as reported by the socket
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
    QStackedWidget * m_stack;      ///< the text without messages, and the messages
    std::deque<Message> m_waiting; ///< to be listed
    QTimer * m_listing;            ///< lists them
    QTableWidget * m_messages;
    QPlainTextEdit * m_content; ///< of the selected message
    QLabel * m_finding;         ///< on the selected message
    QPushButton * m_clear;
};

} // namespace Workbench
