#include "harness/UiapiTest.h"

#include "support/MessagePresenter.h"
#include "widgets/KVFileDialog.h"
#include "widgets/KVLabel.h"
#include "widgets/KVListWidget.h"
#include "widgets/KVListWidgetItem.h"
#include "widgets/KVProgressDialog.h"
#include "widgets/KVTextEdit.h"
#include "widgets/Translation.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QLineEdit>
#include <QListView>
#include <QPixmap>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;

namespace {

QIcon icon(QColor colour)
{
    QPixmap pixmap(4, 4);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

// A shown, active window with two widgets among which the focus moves.
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

TEST(Companions, LabelAttributesAreThreeTextsOfTheirOwnAlsoAsProperties)
{
    KVLabel label(QStringLiteral("shown"));
    QString first = QStringLiteral("a");
    QString second = QStringLiteral("b");
    label.setAttribute1(first);
    label.setAttribute2(second);
    EXPECT_TRUE(label.setProperty("Attribute3", QStringLiteral("c")));
    EXPECT_EQ(label.property("Attribute1").toString(), "a");
    EXPECT_EQ(label.property("Attribute2").toString(), "b");
    EXPECT_EQ(label.getAttribute3(), "c");
    EXPECT_EQ(label.text(), "shown");
}

TEST(Companions, ListHidesWhenTheFocusLeaves)
{
    Form<KVListWidget> form;
    EXPECT_TRUE(form.widget->isVisible());
    form.other->setFocus();
    EXPECT_FALSE(form.widget->isVisible());
}

TEST(Companions, ListItemCopiesIconsAndUserData)
{
    QListWidget list;
    auto * item = new KVListWidgetItem(&list);
    EXPECT_EQ(item->type(), 0);
    EXPECT_EQ(list.item(0), item);
    QIcon const shown = icon(Qt::red);
    item->setItemIcon(shown, icon(Qt::green), icon(Qt::blue));
    item->setItemUserData(QStringLiteral("data"));
    EXPECT_EQ(item->icon().cacheKey(), shown.cacheKey());

    KVListWidgetItem const copy(*item);
    KVListWidgetItem assigned(nullptr);
    assigned = copy;
    for (KVListWidgetItem const * each : {&copy, static_cast<KVListWidgetItem const *>(&assigned)}) {
        EXPECT_EQ(each->icon().cacheKey(), shown.cacheKey());
        EXPECT_EQ(each->getItemUserData(), "data");
        EXPECT_EQ(each->listWidget(), nullptr);
    }
}

TEST(Companions, ProgressDialogConstructorUsesTheParentAlone)
{
    QWidget parent;
    KVProgressDialog const dialog(QStringLiteral("label"), QStringLiteral("stop"), 5, 50, &parent,
                                  Qt::FramelessWindowHint);
    KVProgressDialog const plain(&parent);
    EXPECT_EQ(dialog.parent(), &parent);
    EXPECT_EQ(dialog.labelText(), plain.labelText());
    EXPECT_EQ(dialog.minimum(), 0);
    EXPECT_EQ(dialog.maximum(), 100);
    EXPECT_EQ(dialog.windowFlags(), plain.windowFlags());
    EXPECT_FALSE(dialog.isDialogStop());
}

TEST(Companions, EscapeNeitherCancelsNorStopsAProgressDialogAndF1Stops)
{
    KVProgressDialog dialog;
    QSignalSpy const canceled(&dialog, &QProgressDialog::canceled);
    dialog.setMinimumDuration(0);
    dialog.setValue(1);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto * const cancel = dialog.findChild<QPushButton *>();
    ASSERT_NE(cancel, nullptr);
    for (QWidget * receiver : {static_cast<QWidget *>(&dialog), static_cast<QWidget *>(cancel)}) {
        receiver->setFocus();
        QTest::keyClick(receiver, Qt::Key_Escape);
        QTest::keyClick(receiver, Qt::Key_F2);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_FALSE(dialog.wasCanceled());
        EXPECT_FALSE(dialog.isDialogStop());
    }
    QTest::keyPress(&dialog, Qt::Key_F1);
    EXPECT_FALSE(dialog.isDialogStop());
    QTest::keyRelease(&dialog, Qt::Key_F1);
    EXPECT_TRUE(dialog.isDialogStop());
    dialog.reset();
    EXPECT_TRUE(dialog.isDialogStop());
    EXPECT_EQ(canceled.count(), 0);
}

// Proves that the case above can fail: the base does cancel on the same key.
TEST(Companions, EscapeCancelsThePlainProgressDialog)
{
    QProgressDialog dialog;
    dialog.setValue(1);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog.wasCanceled());
}

TEST(Companions, TextEditReportsItsPlainTextAtEachLossOfFocus)
{
    Form<KVTextEdit> form;
    EXPECT_EQ(form.widget->focusPolicy(), Qt::StrongFocus);
    form.widget->setHtml(QStringLiteral("<b>bold</b>"));
    QSignalSpy const lost(form.widget, &KVTextEdit::LostFocus);
    for (int i = 1; i <= 2; ++i) { // the second time the text did not change
        form.widget->setFocus();
        form.other->setFocus();
        ASSERT_EQ(lost.count(), i);
        EXPECT_EQ(lost.last().first().toString(), "bold");
    }
}

class FileDialog : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir().mkpath(QStringLiteral("files/folder")));
        for (char const * name : {"files/a.txt", "files/b.txt"}) {
            QFile file(QString::fromLatin1(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    QPushButton * button(KVFileDialog & dialog, QString const & text)
    {
        for (QPushButton * each : dialog.findChildren<QPushButton *>()) {
            if (each->text() == text) {
                return each;
            }
        }
        return nullptr;
    }
    // Waits until the model has read the directory.
    void showFiles(KVFileDialog & dialog)
    {
        dialog.setDirectory(QDir(QStringLiteral("files")));
        dialog.show();
        auto * const tree = dialog.findChild<QTreeView *>();
        ASSERT_TRUE(QTest::qWaitFor([&] { return tree->model()->rowCount(tree->rootIndex()) == 3; }));
    }
    QStringList selectedNames(KVFileDialog & dialog)
    {
        QStringList names;
        for (QString const & path : dialog.selectedFiles()) {
            names << QFileInfo(path).fileName();
        }
        names.sort();
        return names;
    }
};

TEST_F(FileDialog, SelectsSeveralInBothViewsAndHasItsButtonRowBelow)
{
    KVFileDialog dialog;
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog));
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseCustomDirectoryIcons));
    EXPECT_EQ(dialog.findChild<QListView *>("listView")->selectionMode(),
              QAbstractItemView::ExtendedSelection);
    EXPECT_EQ(dialog.findChild<QTreeView *>()->selectionMode(), QAbstractItemView::ExtendedSelection);
    auto * const box = dialog.findChild<QDialogButtonBox *>("buttonBox");
    ASSERT_NE(button(dialog, "Select All"), nullptr);
    EXPECT_EQ(box->buttonRole(button(dialog, "Select All")), QDialogButtonBox::ActionRole);
    EXPECT_EQ(box->orientation(), Qt::Horizontal);
    auto * const grid = dialog.findChild<QGridLayout *>();
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(grid->indexOf(box), &row, &column, &rows, &columns);
    EXPECT_EQ(row, 4);
    EXPECT_EQ(column, 1);
}

TEST_F(FileDialog, SelectAllAcceptsOnceWithEveryEntry)
{
    KVFileDialog dialog;
    QSignalSpy const accepted(&dialog, &QDialog::accepted);
    showFiles(dialog);
    button(dialog, "Select All")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(accepted.count(), 1);
    EXPECT_EQ(selectedNames(dialog), (QStringList{"a.txt", "b.txt", "folder"}));
}

TEST_F(FileDialog, ChoosingASelectedFolderAcceptsItInsteadOfEnteringIt)
{
    KVFileDialog dialog;
    showFiles(dialog);
    auto * const tree = dialog.findChild<QTreeView *>();
    QModelIndexList const folder =
        tree->model()->match(tree->model()->index(0, 0, tree->rootIndex()), Qt::DisplayRole, "folder");
    ASSERT_EQ(folder.size(), 1);
    tree->selectionModel()->select(folder.first(),
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    auto * const box = dialog.findChild<QDialogButtonBox *>("buttonBox");
    auto * const open = box->button(QDialogButtonBox::Open);
    ASSERT_NE(open, nullptr);
    ASSERT_TRUE(open->isEnabled());
    open->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(selectedNames(dialog), QStringList{"folder"});
}

class Translations : public UiapiTest
{};

TEST_F(Translations, ChineseTextsFollowTheLanguageAndEnglishComesBack)
{
    struct Row
    {
        char const *context, *source, *chinese;
    };
    Row const rows[] = {
        {"QObject", "Information", "提示"},
        {"QObject", "CaculateData ERROR", "算式有误"},
        {"QObject", "File open failed", "文件打开失败"},
        {"QObject", "There are no revocable actions!", "没有可撤销的操作！"},
        {"QObject", "Are you sure to cancel?", "确定要撤销吗？"},
        {"KVFileDialog", "Select All", "全选"},
        {"KVCAM::UIAPI::KVLineEdit", "Nothing can be typed here.", "此处不能输入。"},
    };
    for (LANGUAGE_MODE mode : {LANGUAGE_ENGLISH, LANGUAGE_CHINESE, LANGUAGE_CHINESE, LANGUAGE_ENGLISH}) {
        ASSERT_TRUE(Ext::installTranslation(mode));
        bool const chinese = mode == LANGUAGE_CHINESE;
        for (Row const & row : rows) {
            EXPECT_EQ(QCoreApplication::translate(row.context, row.source).toStdString(),
                      chinese ? row.chinese : row.source);
        }
        showInformation(nullptr, QStringLiteral("text"));
        EXPECT_EQ(boxes.take(), Lines{chinese ? "information|提示|text" : "information|Information|text"});
    }
}

} // namespace
