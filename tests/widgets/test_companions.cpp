#include "harness/UiapiTest.h"

#include "support/Boxes.h"
#include "widgets/KVFileDialog.h"
#include "widgets/KVLabel.h"
#include "widgets/KVListWidget.h"
#include "widgets/KVListWidgetItem.h"
#include "widgets/KVProgressDialog.h"
#include "widgets/KVTextEdit.h"
#include "widgets/Translation.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <vector>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;

namespace {

// A shown, active window with the widget, which has the focus, and another widget.
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
    QStringList texts{"a", "b"};
    label.setAttribute1(texts[0]);
    label.setAttribute2(texts[1]);
    EXPECT_TRUE(label.setProperty("Attribute3", "c"));
    EXPECT_EQ(label.getAttribute1() + label.getAttribute2() + label.getAttribute3(), "abc");
}

TEST(Companions, ListItemShowsItsFirstIconAndIsCopiedWhole)
{
    QIcon const first(QPixmap(4, 4));
    QListWidget list;
    auto * item = new KVListWidgetItem(&list);
    EXPECT_EQ(item->type(), 0);
    item->setItemIcon(first, QIcon(), QIcon());
    item->setItemUserData("data");
    EXPECT_EQ(item->icon().cacheKey(), first.cacheKey());

    KVListWidgetItem const copy(*item);
    KVListWidgetItem assigned;
    assigned = copy;
    std::unique_ptr<QListWidgetItem> const clone(static_cast<QListWidgetItem *>(item)->clone());
    auto const * const cloned = dynamic_cast<KVListWidgetItem *>(clone.get());
    ASSERT_NE(cloned, nullptr);
    for (KVListWidgetItem const * other : {&copy, static_cast<KVListWidgetItem const *>(&assigned), cloned}) {
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
    EXPECT_EQ(form.widget->focusPolicy(), Qt::StrongFocus);
    form.widget->setHtml(QStringLiteral("<b>bold</b>"));
    QSignalSpy const lost(form.widget, &KVTextEdit::LostFocus);
    for (int i = 1; i <= 2; ++i) { // the second time with unchanged text
        form.widget->setFocus();
        form.other->setFocus();
        ASSERT_EQ(lost.count(), i);
        EXPECT_EQ(lost.last().first().toString(), "bold");
    }
    // By the time the signal is emitted the base has repainted its cursor.
    form.widget->setFocus();
    auto const children = form.widget->findChildren<QObject *>();
    auto const control = std::find_if(children.begin(), children.end(),
                                      [](QObject * child) { return child->inherits("QWidgetTextControl"); });
    ASSERT_NE(control, children.end());
    QSignalSpy const repainted(*control, SIGNAL(updateRequest(QRectF)));
    QObject::connect(form.widget, &KVTextEdit::LostFocus, [&] {
        EXPECT_GT(repainted.count(), 0);
        delete form.widget;
    });
    form.other->setFocus();
    EXPECT_EQ(lost.count(), 3);
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
        for (auto key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2}) {
            QTest::keyClick(receiver, key);
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_FALSE(dialog.wasCanceled() || dialog.isDialogStop());
        }
    }
    for (auto key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_F1}) {
        for (auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            EXPECT_FALSE(dialog.isDialogStop());
            QKeyEvent event(type, key, Qt::NoModifier);
            QApplication::sendEvent(&dialog, &event);
            // nothing else gets Escape; like a plain widget, it passes other keys to its parent
            EXPECT_EQ(event.isAccepted(), key == Qt::Key_Escape && type == QEvent::KeyPress);
        }
    }
    EXPECT_TRUE(dialog.isDialogStop());
}

// A dialog on a directory with three folders.
class FileDialog : public UiapiTest
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
    QDir directory = folders(); // created first: the dialog would notice them late
    QWidget owner;
    KVFileDialog & dialog = *new KVFileDialog(&owner);
    QTreeView * tree = dialog.findChild<QTreeView *>();
    QSignalSpy accepted{&dialog, &QDialog::accepted};
};

TEST_F(FileDialog, TheButtonsLieInARowBelow)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    auto * const grid = dialog.findChild<QGridLayout *>();
    auto * const box = dialog.findChild<QDialogButtonBox *>("buttonBox");
    int place[4];
    grid->getItemPosition(grid->indexOf(box), &place[0], &place[1], &place[2], &place[3]);
    EXPECT_EQ(std::vector<int>(place, place + 4), (std::vector<int>{4, 1, 1, 1}));
    EXPECT_EQ(box->orientation(), Qt::Horizontal);
    EXPECT_EQ(box->layoutDirection(), Qt::LeftToRight);
    auto * const all = dialog.findChild<QPushButton *>("m_ChooseAllPB");
    EXPECT_EQ(all->text(), "Select All");
    EXPECT_EQ(box->buttonRole(all), QDialogButtonBox::ActionRole);
    EXPECT_EQ(dialog.options(), QFileDialog::DontUseNativeDialog | QFileDialog::DontUseCustomDirectoryIcons);
    EXPECT_EQ(tree->selectionMode(), QAbstractItemView::ExtendedSelection);
    EXPECT_EQ(dialog.findChild<QListView *>("listView")->selectionMode(),
              QAbstractItemView::ExtendedSelection);
}

TEST_F(FileDialog, ExistingFilesAreReplacedUnaskedUnlessAskedFor)
{
    QFile(directory.filePath("old")).open(QIODevice::WriteOnly);
    auto * const name = dialog.findChild<QLineEdit *>("fileNameEdit");
    QSignalSpy chosen(&dialog, &QFileDialog::filesSelected);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    struct Row
    {
        bool asks, byReturn;
        char const * name;
        bool yes;
        char const * happens; // asked, accepted, emitted
    };
    // without the question, Qt shows its own box for "old" and Return
    for (Row const & row :
         {Row{false, false, "old", false, ".a."}, Row{false, true, "new", false, ".ae"},
          Row{true, false, "new", false, ".a."}, Row{true, false, "a", false, ".a."}, // a folder
          Row{true, false, "old", false, "q.."}, Row{true, false, "old", true, "qa."},
          Row{true, true, "old", false, "q.."}, Row{true, true, "old", true, "qae"}}) {
        dialog.show();
        tree->selectionModel()->clear();
        name->setText(row.name);
        dialog.setAsksBeforeReplacing(row.asks);
        boxes.answer(row.yes ? Ext::MessageAnswer::Yes : Ext::MessageAnswer::No);
        row.byReturn ? QTest::keyClick(name, Qt::Key_Return) : dialog.onChoice();
        Lines const asked = boxes.take();
        EXPECT_TRUE(asked.empty() ||
                    asked == Lines{"question|Information|Replace what is there already?\nold"});
        EXPECT_EQ(std::string(asked.empty() ? "." : "q") + (dialog.isVisible() ? "." : "a") +
                      (chosen.isEmpty() ? "." : "e"),
                  row.happens);
        chosen.clear();
    }
}

TEST_F(FileDialog, MayBeDeletedWhileItAsksOrSelects)
{
    QFile(directory.filePath("old")).open(QIODevice::WriteOnly);
    auto * const asking = new KVFileDialog(&owner);
    asking->setAcceptMode(QFileDialog::AcceptSave);
    asking->setAsksBeforeReplacing(true);
    asking->selectFile(directory.filePath("old"));
    auto const capture = Ext::setMessagePresenter([asking](auto const &) {
        delete asking;
        return Ext::MessageAnswer::Yes;
    });
    asking->onChoice();
    Ext::setMessagePresenter(capture);
    QObject::connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged,
                     [this] { delete &dialog; });
    dialog.on_m_ChooseAllPB_clicked();
    EXPECT_TRUE(accepted.isEmpty());
    EXPECT_TRUE(owner.children().isEmpty());
}

TEST_F(FileDialog, SelectAllAcceptsOnceWithEveryEntry)
{
    dialog.findChild<QPushButton *>("m_ChooseAllPB")->click();
    EXPECT_EQ(accepted.count(), 1);
    EXPECT_EQ(dialog.selectedFiles().size(), 3);
}

TEST_F(FileDialog, SelectedFoldersAreAcceptedAndNotEntered)
{
    for (int row : {0, 2}) {
        tree->selectionModel()->select(tree->model()->index(row, 0, tree->rootIndex()),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    dialog.findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Open)->click();
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
