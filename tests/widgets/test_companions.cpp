#include "harness/UiapiTest.h"

#include "support/Boxes.h"
#include "widgets/KVFileDialog.h"
#include "widgets/KVLabel.h"
#include "widgets/KVListWidget.h"
#include "widgets/KVListWidgetItem.h"
#include "widgets/KVProgressDialog.h"
#include "widgets/KVTextEdit.h"
#include "widgets/Translation.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;

namespace {

// A shown, active window with the widget, which has the focus, and another one.
template <class Widget>
struct Form
{
    QWidget window;
    Widget * widget = new Widget(&window);
    QLineEdit * other = new QLineEdit(&window);

    Form()
    {
        auto * layout = new QVBoxLayout(&window);
        layout->addWidget(widget);
        layout->addWidget(other);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        widget->setFocus();
    }
};

TEST(Companions, LabelKeepsItsThreeAttributesApart)
{
    KVLabel label(QStringLiteral("text"));
    QStringList texts{"a", "b", "c"};
    label.setAttribute1(texts[0]);
    label.setAttribute2(texts[1]);
    label.setAttribute3(texts[2]);
    EXPECT_EQ(label.getAttribute1() + label.getAttribute2() + label.getAttribute3(), "abc");
    EXPECT_EQ(label.property("Attribute2").toString(), "b");
    EXPECT_TRUE(label.setProperty("Attribute3", "d"));
    EXPECT_EQ(label.getAttribute3(), "d");
    EXPECT_EQ(label.text(), "text");
}

TEST(Companions, ListItemShowsItsFirstIconAndIsCopiedWhole)
{
    auto const icon = [](Qt::GlobalColor colour) {
        QPixmap pixmap(4, 4);
        pixmap.fill(colour);
        return QIcon(pixmap);
    };
    QIcon const first = icon(Qt::red);
    QListWidget list;
    auto * item = new KVListWidgetItem(&list);
    EXPECT_EQ(item->type(), 0);
    item->setItemIcon(first, icon(Qt::green), icon(Qt::blue));
    item->setItemUserData("data");
    EXPECT_EQ(item->icon().cacheKey(), first.cacheKey());

    KVListWidgetItem const copy(*item);
    KVListWidgetItem assigned;
    assigned = copy;
    for (KVListWidgetItem const * other : {&copy, static_cast<KVListWidgetItem const *>(&assigned)}) {
        EXPECT_EQ(other->getItemUserData(), "data");
        EXPECT_EQ(other->icon().cacheKey(), first.cacheKey());
        EXPECT_EQ(other->listWidget(), nullptr);
    }
    EXPECT_EQ(list.count(), 1);
}

TEST(Companions, ListHidesWhenTheFocusLeaves)
{
    Form<KVListWidget> form;
    EXPECT_TRUE(form.widget->isVisible());
    form.other->setFocus();
    EXPECT_FALSE(form.widget->isVisible());
}

TEST(Companions, TextEditReportsItsPlainTextAtEachLossOfFocus)
{
    Form<KVTextEdit> form;
    form.widget->setHtml(QStringLiteral("<b>bold</b>"));
    QSignalSpy const lost(form.widget, &KVTextEdit::LostFocus);
    for (int i = 1; i <= 2; ++i) { // the second time the text did not change
        form.widget->setFocus();
        form.other->setFocus();
        ASSERT_EQ(lost.count(), i);
        EXPECT_EQ(lost.last().first().toString(), "bold");
    }
}

TEST(Companions, ProgressDialogUsesItsParentAloneAndIgnoresEscapeAndStopsByF1)
{
    KVProgressDialog dialog(QStringLiteral("label"), QStringLiteral("stop"), 5, 50, nullptr,
                            Qt::FramelessWindowHint);
    EXPECT_EQ(dialog.labelText(), "");
    EXPECT_EQ(dialog.maximum(), 100);
    EXPECT_FALSE(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    dialog.setValue(1);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    for (QWidget * receiver : {static_cast<QWidget *>(&dialog), dialog.findChild<QWidget *>()}) {
        receiver->setFocus();
        QTest::keyClick(receiver, Qt::Key_Escape);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_FALSE(dialog.wasCanceled());
    }
    QTest::keyPress(&dialog, Qt::Key_F1);
    EXPECT_FALSE(dialog.isDialogStop());
    QTest::keyRelease(&dialog, Qt::Key_F1);
    EXPECT_TRUE(dialog.isDialogStop());
}

// A dialog on a directory with three folders.
class FileDialog : public ::testing::Test
{
protected:
    static QDir folders()
    {
        for (char const * name : {"files/a", "files/b", "files/c"}) {
            QDir().mkpath(QString::fromLatin1(name));
        }
        return QDir(QStringLiteral("files"));
    }
    void SetUp() override
    {
        dialog.setDirectory(directory);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitFor([&] { return tree->model()->rowCount(tree->rootIndex()) == 3; }));
    }
    void click(QString const & text)
    {
        for (QAbstractButton * each : dialog.findChild<QDialogButtonBox *>("buttonBox")->buttons()) {
            if (each->text() == text) {
                each->click();
            }
        }
    }

    QDir directory = folders(); // made first: the dialog would notice them late
    KVFileDialog dialog;
    QTreeView * tree = dialog.findChild<QTreeView *>();
    QSignalSpy accepted{&dialog, &QDialog::accepted};
};

TEST_F(FileDialog, SelectAllAcceptsOnceWithEveryEntry)
{
    click("Select All");
    EXPECT_EQ(accepted.count(), 1);
    EXPECT_EQ(dialog.selectedFiles().size(), 3);
}

TEST_F(FileDialog, SelectedFoldersAreAcceptedAndNotEntered)
{
    for (int row : {0, 2}) {
        tree->selectionModel()->select(tree->model()->index(row, 0, tree->rootIndex()),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    click("&Open");
    EXPECT_EQ(accepted.count(), 1);
    EXPECT_EQ(dialog.selectedFiles().size(), 2);
}

class Translations : public UiapiTest
{};

TEST_F(Translations, ChineseTextsComeAndGoWithTheLanguage)
{
    for (LANGUAGE_MODE mode : {LANGUAGE_ENGLISH, LANGUAGE_CHINESE, LANGUAGE_CHINESE, LANGUAGE_ENGLISH}) {
        ASSERT_TRUE(Ext::installTranslation(mode));
        bool const chinese = mode == LANGUAGE_CHINESE;
        EXPECT_EQ(KVFileDialog::tr("Select All"), chinese ? "全选" : "Select All");
        showInformation(nullptr, QStringLiteral("text"));
        EXPECT_EQ(boxes.take(), Lines{chinese ? "information|提示|text" : "information|Information|text"});
    }
}

} // namespace
