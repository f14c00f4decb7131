#include "SampleWindow.h"
#include "pages/EdaPage.h"
#include "ui/JsonText.h"
#include "ui/LanguageChange.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QUdpSocket>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

QHostAddress const here(QHostAddress::LocalHost);

/// A page as seen and used by a user.
class Page
{
public:
    Page()
    {
        page.resize(1200, 700);
        page.show();
    }

    QString label(char const * name) const { return page.findChild<QLabel *>(name)->text(); }
    QString content() const { return page.findChild<QPlainTextEdit *>("content")->toPlainText(); }
    QTableWidget & messages() const { return *page.findChild<QTableWidget *>(); }
    QSpinBox & port() const { return *page.findChild<QSpinBox *>(); }
    QPushButton & button(char const * text) const { return buttonOf(page, text); }
    void type(QString const & text) const { page.findChild<QPlainTextEdit *>("editor")->setPlainText(text); }
    /// Size, kind and text of a row, with a mark if it is red.
    QString row(int index) const
    {
        QStringList texts;
        for (int column = 1; column < messages().columnCount(); ++column) {
            texts.append(messages().item(index, column)->text());
        }
        bool const isRed = messages().item(index, 1)->foreground().style() != Qt::NoBrush;
        return texts.join(" | ") + (isRed ? " !" : "");
    }
    QString rows() const
    {
        QStringList all;
        for (int i = 0; i < messages().rowCount(); ++i) {
            all.append(row(i));
        }
        return all.join('\n');
    }

    EdaPage page;
};

void arrive(QByteArrayList const & datagrams)
{
    for (QByteArray const & bytes : datagrams) {
        emit Ext::edaLink()->datagramReceived(bytes);
    }
    QApplication::processEvents(); // lists them
}

TEST(JsonTexts, AnObjectIsOneAndTheRestIsToldWithItsPlace)
{
    struct
    {
        QByteArray text;
        char const * fault;
    } const rows[] = {
        {"{}", ""},
        {" {\"a\": [1, {\"b\": null}]}\n", ""},
        {"", "A JSON object is expected; it begins with a brace."},
        {"[1]", "A JSON object is expected; it begins with a brace."},
        {"7", "A JSON object is expected; it begins with a brace."},
        {"{", "Line 1, near column 2: a name in quotation marks, a comma or a closing brace is expected."},
        {"{\n \"层\" 1}", "Line 2, near column 7: a colon is expected after the name."},
        {"{\"a\": 1,\n}", "Line 2, near column 2: a name or a value is expected."},
        {"{\"a\": [1 2]}", "Line 1, near column 11: a comma or a closing bracket is expected."},
        {"{\"a\": 1", "Line 1, near column 8: the text ends too early."},
        {"{\"a\": -}", "Line 1, near column 8: this is not a number."},
        {"{\"a\": \"x}", "Line 1, near column 10: the string has no closing quotation mark."},
        {"{\"a\": \"\\u12\"}", "Line 1, near column 12: the string has a backslash that begins no escape."},
        {"{\"a\": \"\xff\"}", "Line 1, near column 8: the string is not UTF-8."},
        {"{\"a\": tru}", "Line 1, near column 8: a value is expected."},
        {"{} {}", "Line 1, near column 4: more text follows after the object."},
        {"{\"a\":" + QByteArray(2000, '['), "Line 1, near column 1030: the values are nested too deeply."},
    };
    for (auto const & row : rows) {
        JsonText const text(row.text);
        EXPECT_EQ(text.fault().toStdString(), row.fault) << row.text.left(40).toStdString();
        EXPECT_EQ(text.isObject(), *row.fault == '\0') << row.text.left(40).toStdString();
    }
}

TEST(EdaPages, TypingIsJudgedAndOnlyAnObjectIsSent)
{
    QUdpSocket tool;
    ASSERT_TRUE(tool.bind(here));
    Page page;
    QPushButton & send = page.button("Sen&d");
    EXPECT_EQ(page.port().value(), 22333);
    EXPECT_EQ(page.label("verdict"), "Nothing to send yet.");
    EXPECT_FALSE(send.isEnabled());
    page.type("{\"a\": ");
    EXPECT_TRUE(page.label("verdict").startsWith("Line 1, near column 7: "))
        << page.label("verdict").toStdString();
    EXPECT_FALSE(send.isEnabled());
    page.type("{\"b\" : 1,\n \"a\" : \"层\"}");
    EXPECT_EQ(page.label("verdict"), "A JSON object; 17 bytes are sent.");

    // A half-typed port number counts at the latest on sending.
    page.port().setFocus();
    page.port().selectAll();
    QTest::keyClicks(&page.port(), QString::number(tool.localPort()));
    EXPECT_EQ(Ext::edaLinkState().port, 22333);
    send.click();
    EXPECT_EQ(Ext::edaLinkState().port, int(tool.localPort()));
    ASSERT_TRUE(tool.waitForReadyRead(5000));
    QByteArray bytes(100, 0);
    bytes.truncate(int(tool.readDatagram(bytes.data(), bytes.size())));
    EXPECT_EQ(bytes, "{\"a\":\"层\",\"b\":1}");
    QString const sent = QString("Sent 17 bytes to port %1. ").arg(tool.localPort());
    EXPECT_TRUE(page.label("result").contains(sent)) << page.label("result").toStdString();

    page.type("{\"a\": \"" + QString(70000, 'x') + "\"}");
    send.click();
    EXPECT_TRUE(page.label("result").endsWith("Not sent: 70008 bytes do not fit into one message."))
        << page.label("result").toStdString();
    EXPECT_TRUE(
        page.label("counts").startsWith("Sent: 1     Not sent: 1     Received: 0     Latest error: "));
    EXPECT_FALSE(tool.hasPendingDatagrams());

    // A port set by another module is shown when the page is opened; an invalid one is left alone.
    page.page.hide();
    setEdaPort(5000);
    page.page.show();
    EXPECT_EQ(page.port().value(), 5000);
    page.page.hide();
    setEdaPort(70000);
    page.page.show();
    EXPECT_EQ(Ext::edaLinkState().port, 70000);
}

TEST(EdaPages, MessagesAreListedAsPlainTextAndInvalidOnesAreMarked)
{
    Page const page;
    EXPECT_FALSE(page.messages().isVisible());
    EXPECT_FALSE(page.button("&Clear").isEnabled());
    arrive({"{\"a\":[1]}"});
    EXPECT_EQ(page.content(), "{\n    \"a\": [\n        1\n    ]\n}");
    arrive({"<b>no</b>\n\xe5\xb1\x82\x01 JSON"});
    EXPECT_EQ(page.content(), "<b>no</b>\n层\x01 JSON");
    EXPECT_TRUE(page.label("finding").startsWith("A JSON object is expected"));
    arrive({QByteArray("a\0b", 3)});
    EXPECT_EQ(page.content(), QString::fromUtf8("a\0b", 3));
    arrive({""});
    arrive({"{\"b\":\"" + QByteArray(60000, 'x') + "\"}"});
    QString const rows = "9 | JSON object | {\"a\":[1]}\n"
                         "19 | invalid | <b>no</b> 层\uFFFD JSON !\n"
                         "3 | invalid | a\uFFFDb !\n"
                         "0 | invalid |  !\n"
                         "60008 | JSON object | {\"b\":\"" +
                         QString(194, 'x') + "...";
    EXPECT_EQ(page.rows(), rows);
    for (int column : {0, 3}) {
        EXPECT_FALSE(page.messages().item(1, column)->toolTip().contains('<')) << column;
    }

    page.messages().selectRow(1);
    showChinese(true);
    QApplication::processEvents();
    EXPECT_EQ(page.row(1), "19 | 无效 | <b>no</b> 层\uFFFD JSON !");
    EXPECT_EQ(page.label("finding"), "应为以花括号开头的 JSON 对象。");
    showChinese(false);
    QApplication::processEvents();
    EXPECT_EQ(page.rows(), rows);

    page.button("&Clear").click();
    EXPECT_EQ(page.content() + page.label("finding"), "");
    EXPECT_FALSE(page.messages().isVisible());
    arrive({"{}"});
    EXPECT_EQ(page.rows(), "2 | JSON object | {}");
}

TEST(EdaPages, TheLatestAreKeptAndASelectedOneStaysInView)
{
    Page const page;
    auto const arriveAll = [](int from, int to) {
        QByteArrayList datagrams;
        for (int i = from; i < to; ++i) {
            datagrams.append("{\"n\":" + QByteArray::number(i) + '}');
        }
        arrive(datagrams);
    };
    auto const at = [&page](int row) { return page.messages().item(row, 3)->text(); };
    arriveAll(0, EdaPage::kept);
    EXPECT_EQ(page.messages().currentRow(), EdaPage::kept - 1) << "the latest is followed";
    page.messages().selectRow(2);
    arriveAll(EdaPage::kept, EdaPage::kept + 2);
    EXPECT_EQ(page.messages().rowCount(), EdaPage::kept);
    EXPECT_EQ(at(0), "{\"n\":2}");
    EXPECT_EQ(at(EdaPage::kept - 1), "{\"n\":501}");
    EXPECT_EQ(page.messages().currentRow(), 0);
    EXPECT_EQ(page.content(), "{\n    \"n\": 2\n}");
    arriveAll(EdaPage::kept + 2, EdaPage::kept + 3); // drops the selected one
    EXPECT_EQ(page.content(), "{\n    \"n\": 3\n}");
    EXPECT_EQ(page.messages().selectedItems().size(), 4);
    arriveAll(1000, 1000 + 3 * EdaPage::kept); // at once
    EXPECT_EQ(page.messages().rowCount(), EdaPage::kept);
    EXPECT_EQ(at(0), "{\"n\":2000}");
    EXPECT_EQ(page.content(), "{\n    \"n\": 2499\n}") << "nothing that was selected is left";

    emit Ext::edaLink()->datagramReceived("{}");
    page.button("&Clear").click();
    QApplication::processEvents();
    EXPECT_EQ(page.rows(), "");
}

// Another process's answers arrive through the sockets.
TEST(EdaPages, SendsToASecondProcessAndShowsItsAnswer)
{
    QProcess tool; // echoes everything and counts {"n":0}, {"n":1} and so on
    tool.start(EDA_PEER, {}, QIODevice::ReadOnly);
    ASSERT_TRUE(tool.waitForReadyRead(20000));
    int const port = tool.readLine().trimmed().toInt();

    // Another build's tests may have the port for a moment.
    bool const isFree = QTest::qWaitFor([] { return QUdpSocket().bind(here, EdaPage::receivePort); }, 60000);
    ASSERT_TRUE(isFree) << "another process has port 2333";
    ASSERT_TRUE(Ext::edaLinkState().bound) << "another process was faster";
    Page const page;
    EXPECT_EQ(page.label("state"), "The link is open: messages are received on port 2333.");
    page.port().setValue(port);
    for (int n = 0; n < 3; ++n) {
        page.type(QString("{ \"n\" : %1 }").arg(n));
        page.button("Sen&d").click();
        ASSERT_TRUE(QTest::qWaitFor([&] { return page.messages().rowCount() == n + 1; }, 20000));
        EXPECT_EQ(page.content(), QString("{\n    \"n\": %1\n}").arg(n));
    }
    EXPECT_EQ(page.rows(),
              "7 | JSON object | {\"n\":0}\n7 | JSON object | {\"n\":1}\n7 | JSON object | {\"n\":2}");
    EXPECT_EQ(page.label("counts"), "Sent: 3     Not sent: 0     Received: 3");
    QUdpSocket().writeDatagram("", here, quint16(port)); // ends it
    ASSERT_TRUE(tool.waitForFinished(20000));
    EXPECT_EQ(tool.readAll().trimmed(), "3 0");
}

TEST(EdaPages, TellsThatThereIsNoLinkWhereThePortIsTaken)
{
    QUdpSocket other;
    other.bind(here, EdaPage::receivePort); // unless another process has it
    QUdpSocket tool;
    ASSERT_TRUE(tool.bind(here));
    Page const page;
    EXPECT_EQ(page.label("state"),
              "No link to receive on: port 2333 could not be opened. Messages can be sent all "
              "the same.\nReason: " +
                  Ext::edaLinkState().bindError);
    EXPECT_TRUE(page.label("empty").startsWith("Nothing can be received."));
    page.port().setValue(tool.localPort());
    page.type("{}");
    page.button("Sen&d").click();
    EXPECT_TRUE(tool.waitForReadyRead(5000));
}

using EdaPagesOfAWindow = SampleWindow;

TEST_F(EdaPagesOfAWindow, MnemonicsAreUniqueBesideThoseOfTheWindow)
{
    open();
    ASSERT_TRUE(window->showPage("eda"));
    for (LANGUAGE_MODE const language : {LANGUAGE_ENGLISH, LANGUAGE_CHINESE}) {
        window->setLanguage(language);
        QApplication::processEvents();
        QSet<QString> others;
        auto const & pages = *qobject_cast<QTabWidget *>(window->centralWidget());
        for (int i = 0; i < pages.count(); ++i) {
            others.insert(QKeySequence::mnemonic(pages.tabText(i)).toString());
        }
        for (QAction const * action : window->menuBar()->actions()) {
            others.insert(QKeySequence::mnemonic(action->text()).toString());
        }
        for (auto const * button : window->findChildren<QToolButton *>()) {
            others.insert(QKeySequence::mnemonic(button->text()).toString());
        }
        others.remove(QString());
        QStringList own;
        for (auto const * widget : find<EdaPage>().findChildren<QWidget *>()) {
            bool const hasText = widget->inherits("QLabel") || widget->inherits("QPushButton");
            own.append(hasText ? QKeySequence::mnemonic(widget->property("text").toString()).toString()
                               : QString());
        }
        own.removeAll(QString());
        EXPECT_EQ(own.size(), 5);
        EXPECT_EQ(own.removeDuplicates(), 0);
        EXPECT_FALSE(QSet<QString>(own.begin(), own.end()).intersects(others)) << own.join(' ').toStdString();
    }
    window->setLanguage(LANGUAGE_ENGLISH);
}

} // namespace
