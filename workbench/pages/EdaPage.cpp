#include "pages/EdaPage.h"

#include "ui/Colours.h"
#include "ui/JsonText.h"
#include "ui/LanguageChange.h"
#include "ui/Legible.h"
#include "ui/TableTools.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QJsonDocument>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

enum Column
{
    TimeColumn, // its item holds the bytes as received
    SizeColumn,
    KindColumn, // its item holds whether they are an object
    TextColumn
};

constexpr int previewLength = 200;

QLabel * makeLabel(char const * name)
{
    auto * label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

void setFixedFont(QPlainTextEdit & field, char const * name)
{
    field.setObjectName(name);
    field.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    field.setTabChangesFocus(true);
}

QByteArray compact(QJsonObject const & object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString indented(QJsonObject const & object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Indented)).trimmed();
}

// The beginning as one line.
QString preview(QByteArray const & bytes)
{
    QString const whole = QString::fromUtf8(bytes.constData(), qMin(bytes.size(), 4 * previewLength));
    QString text = whole.left(previewLength).simplified();
    for (QChar & letter : text) {
        letter = letter.isPrint() || letter.isSurrogate() ? letter : QChar(QChar::ReplacementCharacter);
    }
    return whole.size() > previewLength ? text + "..." : text;
}

// An invalid message is red and labelled so.
void setKind(QTableWidgetItem & item)
{
    bool const isObject = item.data(Qt::UserRole).toBool();
    item.setText(isObject ? EdaPage::tr("JSON object") : EdaPage::tr("invalid"));
    item.setToolTip(item.text());
    if (!isObject) {
        for (int column = 0; column < item.tableWidget()->columnCount(); ++column) {
            item.tableWidget()->item(item.row(), column)->setForeground(legibleText(QColor(faultColour)));
        }
    }
}

void addMessage(QTableWidget & table, QTime time, QByteArray const & bytes)
{
    int const row = table.rowCount();
    addRow(table, {time.toString("HH:mm:ss.zzz"), QString::number(bytes.size()), {}, preview(bytes)},
           {SizeColumn});
    table.item(row, TextColumn)->setToolTip({}); // it might be taken for rich text there
    table.item(row, TimeColumn)->setData(Qt::UserRole, bytes);
    table.item(row, KindColumn)->setData(Qt::UserRole, JsonText(bytes).isObject());
    setKind(*table.item(row, KindColumn));
}

} // namespace

EdaPage::EdaPage(QWidget * parent) : QWidget(parent)
{
    m_state = makeLabel("state");
    m_counts = makeLabel("counts");
    auto * sides = new QHBoxLayout;
    sides->addWidget(makeSender(), 2);
    sides->addWidget(makeReceiver(), 3);
    auto * layout = new QVBoxLayout(this);
    layout->addWidget(m_state);
    layout->addWidget(m_counts);
    layout->addLayout(sides, 1);
    if (ConnectEDA const * link = Ext::edaLink()) {
        connect(link, &ConnectEDA::datagramReceived, this, &EdaPage::receive);
    }
    setTextsNowAndLater(*this, [this] { showState(); });
}

QWidget * EdaPage::makeSender()
{
    m_editor = new QPlainTextEdit;
    setFixedFont(*m_editor, "editor");
    m_verdict = makeLabel("verdict");
    m_port = new QSpinBox;
    m_port->setRange(1, 65535);
    m_port->setKeyboardTracking(false); // an incomplete number is not a port
    m_send = new QPushButton;
    m_result = makeLabel("result");

    auto * box = new QGroupBox;
    auto * layout = new QVBoxLayout(box);
    auto * object = new QLabel;
    object->setBuddy(m_editor);
    auto * foot = new QHBoxLayout;
    auto * port = new QLabel;
    port->setBuddy(m_port);
    layout->addWidget(object);
    layout->addWidget(m_editor, 1);
    layout->addWidget(m_verdict);
    foot->addWidget(port);
    foot->addWidget(m_port);
    foot->addWidget(m_send);
    foot->addStretch(1);
    layout->addLayout(foot);
    layout->addWidget(m_result);

    connect(m_editor, &QPlainTextEdit::textChanged, this, &EdaPage::judge);
    connect(m_port, QOverload<int>::of(&QSpinBox::valueChanged), this, &setEdaPort);
    connect(m_send, &QPushButton::clicked, this, &EdaPage::send);
    setTextsNowAndLater(*box, [this, box, object, port] {
        box->setTitle(tr("Message to send"));
        object->setText(tr("JSON &object"));
        port->setText(tr("To &port"));
        m_editor->setPlaceholderText(tr("For example: %1").arg(R"({"command": "show"})"));
        m_port->setToolTip(tr("The port of this computer that the EDA tool listens on"));
        m_send->setText(tr("Sen&d"));
        m_send->setToolTip(tr("Sends the object without blanks and line ends"));
        judge();
        showResult();
    });
    return box;
}

QWidget * EdaPage::makeReceiver()
{
    m_messages = makeTable({{}, {}, {}, {}});
    m_messages->setWordWrap(false);
    m_messages->horizontalHeader()->setResizeContentsPrecision(0); // by the visible rows
    m_content = new QPlainTextEdit;
    setFixedFont(*m_content, "content");
    m_content->setReadOnly(true);
    m_content->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_finding = makeLabel("finding");
    m_clear = new QPushButton;
    m_empty = makeLabel("empty");
    m_empty->setAlignment(Qt::AlignCenter);

    auto * box = new QGroupBox;
    auto * layout = new QVBoxLayout(box);
    auto * head = new QHBoxLayout;
    auto * title = new QLabel;
    title->setBuddy(m_messages);
    head->addWidget(title, 1);
    head->addWidget(m_clear);
    auto * selected = new QWidget;
    auto * selectedLayout = new QVBoxLayout(selected);
    selectedLayout->setContentsMargins(0, 0, 0, 0);
    selectedLayout->addWidget(m_finding);
    selectedLayout->addWidget(m_content, 1);
    auto * parts = new QSplitter(Qt::Vertical);
    parts->setObjectName("messages");
    parts->setChildrenCollapsible(false);
    parts->addWidget(m_messages);
    parts->addWidget(selected);
    parts->setSizes({400, 260});
    m_stack = new QStackedWidget;
    m_stack->addWidget(m_empty);
    m_stack->addWidget(parts);
    layout->addLayout(head);
    layout->addWidget(m_stack, 1);

    m_listing = new QTimer(this);
    m_listing->setSingleShot(true);
    connect(m_listing, &QTimer::timeout, this, &EdaPage::listWaiting);
    connect(m_messages, &QTableWidget::itemSelectionChanged, this, &EdaPage::showMessage);
    connect(m_clear, &QPushButton::clicked, this, &EdaPage::clear);
    setTextsNowAndLater(*box, [this, box, title] {
        box->setTitle(tr("Received messages"));
        title->setText(tr("L&ist of the latest %1").arg(kept));
        setReceiverTexts();
    });
    clear();
    return box;
}

void EdaPage::compose(QJsonObject const & message, int port)
{
    m_editor->setPlainText(indented(message));
    m_port->setValue(port);
}

void EdaPage::send()
{
    JsonText const text(m_editor->toPlainText().toUtf8());
    if (!text.isObject()) {
        return;
    }
    m_port->interpretText(); // a mnemonic does not take the focus from the field
    setEdaPort(m_port->value());
    Ext::EdaSendResult const result = Ext::sendEdaDataChecked(text.object());
    m_sending = Sending{QTime::currentTime(), result, compact(text.object()).size(), m_port->value(),
                        Ext::edaLinkState().lastError};
    showResult();
    showState();
}

void EdaPage::showEvent(QShowEvent * event)
{
    QWidget::showEvent(event);
    // Other modules may have sent, or set the port. An invalid port stays set until something is sent from
    // here.
    QSignalBlocker const blocker(m_port);
    m_port->setValue(Ext::edaLinkState().port);
    showState();
}

void EdaPage::judge()
{
    QString const typed = m_editor->toPlainText();
    JsonText const text(typed.toUtf8());
    bool const isBlank = typed.trimmed().isEmpty();
    m_verdict->setStyleSheet(faultStyle(!text.isObject() && !isBlank));
    m_verdict->setText(isBlank ? tr("Nothing to send yet.")
                       : text.isObject()
                           ? tr("A JSON object; %1 bytes are sent.").arg(compact(text.object()).size())
                           : text.fault());
    m_send->setEnabled(text.isObject());
}

void EdaPage::showResult()
{
    if (!m_sending) {
        m_result->setText(tr("Nothing has been sent from here yet."));
        return;
    }
    QString text;
    switch (m_sending->result) {
    case Ext::EdaSendResult::Sent:
        text = tr("Sent %1 bytes to port %2. It is not known whether anybody listens there.")
                   .arg(m_sending->bytes)
                   .arg(m_sending->port);
        break;
    case Ext::EdaSendResult::NoLink:
        text = tr("Not sent: there is no link.");
        break;
    case Ext::EdaSendResult::NoPort:
        text = tr("Not sent: %1 is not a port.").arg(m_sending->port);
        break;
    case Ext::EdaSendResult::TooLarge:
        text = tr("Not sent: %1 bytes do not fit into one message.").arg(m_sending->bytes);
        break;
    case Ext::EdaSendResult::SocketError:
        text = tr("Not sent: %1").arg(m_sending->error);
        break;
    }
    m_result->setStyleSheet(faultStyle(m_sending->result != Ext::EdaSendResult::Sent));
    m_result->setText(m_sending->time.toString("HH:mm:ss") + "  " + text);
}

void EdaPage::showState()
{
    Ext::EdaLinkState const state = Ext::edaLinkState();
    m_state->setStyleSheet(faultStyle(!state.bound));
    m_state->setText(!state.exists ? tr("There is no link.")
                     : state.bound
                         ? tr("The link is open: messages are received on port %1.").arg(receivePort)
                         : tr("No link to receive on: port %1 could not be opened. Messages can be "
                              "sent all the same.\nReason: %2")
                               .arg(QString::number(receivePort), state.bindError));
    QString counts = tr("Sent: %1     Not sent: %2     Received: %3")
                         .arg(state.sent)
                         .arg(state.unsent)
                         .arg(state.received);
    if (!state.lastError.isEmpty()) {
        counts += "     " + tr("Latest error: %1").arg(state.lastError);
    }
    m_counts->setText(counts);
    m_empty->setText(state.bound
                         ? tr("Nothing has been received yet.\nWhat an EDA tool sends to port %1 of this "
                              "computer is listed here.")
                               .arg(receivePort)
                         : tr("Nothing can be received.\nClose the program that has port %1, then "
                              "start this one again.")
                               .arg(receivePort));
}

void EdaPage::setReceiverTexts()
{
    m_clear->setText(tr("&Clear"));
    m_messages->setHorizontalHeaderLabels({tr("Time"), tr("Bytes"), tr("Kind"), tr("Text")});
    for (int row = 0; row < m_messages->rowCount(); ++row) {
        setKind(*m_messages->item(row, KindColumn));
    }
    showMessage();
}

// Messages may arrive faster than a table can take them, so they are listed once per turn of the event loop.
void EdaPage::receive(QByteArray const & bytes)
{
    m_waiting.push_back({QTime::currentTime(), bytes});
    if (m_waiting.size() > kept) {
        m_waiting.pop_front();
    }
    if (!m_listing->isActive()) {
        m_listing->start();
    }
}

void EdaPage::listWaiting()
{
    // The selection follows the latest message, and stays with any other.
    bool const follows = m_messages->currentRow() == m_messages->rowCount() - 1;
    int const surplus = m_messages->rowCount() + static_cast<int>(m_waiting.size()) - kept;
    if (surplus > 0) {
        m_messages->model()->removeRows(0, surplus);
    }
    for (Message const & message : m_waiting) {
        addMessage(*m_messages, message.time, message.bytes);
    }
    m_waiting.clear();
    m_stack->setCurrentIndex(1);
    m_clear->setEnabled(true);
    if (follows || m_messages->currentRow() < 0) {
        m_messages->selectRow(m_messages->rowCount() - 1);
    }
    showState();
}

void EdaPage::showMessage()
{
    m_finding->clear();
    m_content->clear();
    if (m_messages->currentRow() < 0) {
        return;
    }
    auto const bytes =
        m_messages->item(m_messages->currentRow(), TimeColumn)->data(Qt::UserRole).toByteArray();
    JsonText const text(bytes);
    m_finding->setStyleSheet(faultStyle(!text.isObject()));
    m_finding->setText(text.isObject() ? tr("The selected message, indented") : text.fault());
    m_content->setPlainText(text.isObject() ? indented(text.object())
                                            : QString::fromUtf8(bytes.constData(), bytes.size()));
}

void EdaPage::clear()
{
    m_listing->stop();
    m_waiting.clear();
    m_messages->setRowCount(0);
    m_stack->setCurrentIndex(0);
    m_clear->setEnabled(false);
}

} // namespace Workbench
