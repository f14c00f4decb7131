#include "harness/UiapiTest.h"

#include "hotkey/HotkeyAttachment.h"
#include "hotkey/HotkeyTools.h"
#include "hotkey/KeyOwner.h"

#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QKeySequence>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <memory>
#include <stdexcept>

using namespace KVCAM;
using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

TEST(KeyOwner, AKeyBelongsToAWidgetThatUsesIt)
{
    QLineEdit field;
    QLineEdit shown;
    shown.setReadOnly(true);
    QSpinBox number;
    QComboBox choice;
    QComboBox words;
    words.setEditable(true);
    QTableWidget row;
    row.setSelectionMode(QAbstractItemView::SingleSelection);
    QTableWidget rows;
    QPushButton button;
    QLabel label;
    QKeySequenceEdit keyField;
    QWidget unknown;
    unknown.setAttribute(Qt::WA_InputMethodEnabled);
    struct
    {
        QWidget * widget;
        char const * kept;
        char const * given;
    } const table[] = {
        {&field, "S 1 Left Shift+U Shift+Left Ctrl+A Ctrl+C Ctrl+V Ctrl+X Ctrl+Z Ctrl+Left",
         "Ctrl+N Ctrl+H Ctrl+T"},
        {&number, "S 1 Up Shift+Up Ctrl+A Ctrl+V", "Ctrl+N Ctrl+R"},
        {&words, "S Shift+U Ctrl+C", "Ctrl+N"},
        {&shown, "Ctrl+A Ctrl+C Shift+Right", "S 1 Shift+U Ctrl+V Ctrl+Z"},
        {&label, "Ctrl+C", "S Shift+U Ctrl+N"},
        {&choice, "S 1 Up Shift+_", "Shift+U Ctrl+C Ctrl+A"},
        {&row, "S 1 Up Shift+_ Shift+Up Ctrl+C Ctrl+Up Ctrl+Home Ctrl+Space", "Shift+U Ctrl+A Ctrl+N Ctrl+V"},
        {&rows, "S 1 Up Ctrl+A Ctrl+C", "Shift+U Ctrl+N"},
        {&keyField, "S Shift+U Ctrl+N", ""},
        {&unknown, "S Shift+U Ctrl+V", "Ctrl+N"},
        {&button, "", "S Up Shift+U Ctrl+A Ctrl+C"},
    };
    for (auto const & each : table) {
        for (bool const isKept : {true, false}) {
            for (QString const & keys :
                 QString(isKept ? each.kept : each.given).split(' ', Qt::SkipEmptyParts)) {
                int const pressed = QKeySequence(keys)[0];
                int const mask = static_cast<int>(Qt::KeyboardModifierMask);
                EXPECT_EQ(keepsKey(keyTakerOf(*each.widget), pressed & ~mask,
                                   Qt::KeyboardModifiers(pressed & mask)),
                          isKept)
                    << each.widget->metaObject()->className() << ' ' << keys.toStdString();
            }
        }
    }
}

/// Counts the keys that reach it.
class Picture : public QWidget
{
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent * event) override
    {
        ++keys;
        event->ignore();
    }
};

class HotkeysOfADialog : public UiapiTest
{
protected:
    void SetUp() override
    {
        auto * layout = new QVBoxLayout(dialog.get());
        layout->addWidget(picture);
        layout->addWidget(field);
        picture->setFocusPolicy(Qt::StrongFocus);
        keys = attach();
        dialog->show();
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        picture->setFocus();
    }
    Ext::HotkeyAttachment * attach()
    {
        return Ext::attachHotkeys(*dialog, [this](FuncCode code) { found.append(QString::number(code)); });
    }
    /// Presses keys as from a keyboard, "S G Shift+U"; "field" and "picture" get the focus. Returns the
    /// functions requested.
    std::string press(char const * what, bool isHeld = false)
    {
        found.clear();
        for (QString const & word : QString(what).split(' ')) {
            if (word == "field" || word == "picture") {
                (word == "field" ? static_cast<QWidget *>(field) : picture)->setFocus();
                continue;
            }
            int const pressed = QKeySequence(word)[0];
            int const mask = static_cast<int>(Qt::KeyboardModifierMask);
            if (isHeld) {
                QKeyEvent event(QEvent::KeyPress, pressed & ~mask, Qt::KeyboardModifiers(pressed & mask), {},
                                true);
                QCoreApplication::sendEvent(dialog->focusWidget(), &event);
            } else {
                QTest::keyClick(dialog->windowHandle(), static_cast<Qt::Key>(pressed & ~mask),
                                Qt::KeyboardModifiers(pressed & mask));
            }
        }
        return found.join(' ').toStdString();
    }

    std::unique_ptr<QDialog> dialog = std::make_unique<QDialog>();
    Picture * picture = new Picture;
    QLineEdit * field = new QLineEdit;
    QPointer<Ext::HotkeyAttachment> keys;
    QStringList found;
};

TEST_F(HotkeysOfADialog, AreFoundInItAndLeaveAFieldItsOwn)
{
    struct
    {
        char const * keys;
        char const * functions;
        int reached; // keys that came to the picture
        char const * typed;
        bool isHeld;
    } const rows[] = {
        {"Shift+U S G", "29 33", 1, "", false}, // the Shift key
        {"Q F5", "", 2, "", false},
        {"S Q G", "", 2, "", false}, // S may begin a sequence
        {"S S O", "31 32", 0, "", false},
        {"field S G Shift+U", "", 0, "sgu", false},
        {"field Ctrl+N", "4", 0, "", false},
        {"S field X picture G", "", 1, "x", false},
        {"Shift+U Shift+Up S G", "20", 2, "", true}, // only what repeats; plain keys are the widget's
    };
    keys->setRepeating({KP_ToolMovePanUp});
    for (auto const & row : rows) {
        picture->setFocus();
        press("Shift+Q"); // ends a sequence
        field->clear();
        picture->keys = 0;
        EXPECT_EQ(press(row.keys, row.isHeld), row.functions) << row.keys;
        EXPECT_EQ(picture->keys, row.reached) << row.keys;
        EXPECT_EQ(field->text().toLower(), row.typed) << row.keys;
    }
    QStringList seen;
    QObject::connect(keys, &Ext::HotkeyAttachment::keySeen, [&] { seen.append(Ext::pendingHotkey()); });
    press("Ctrl+N S G field S");
    EXPECT_EQ(seen.mid(1), (QStringList{"", "S", "G"})) << "and the Ctrl key before";
    press("Escape");
    EXPECT_FALSE(dialog->isVisible()) << "a dialog's own keys";
}

TEST_F(HotkeysOfADialog, BelongToTheNearestAttachmentOfTheWindowInFront)
{
    auto * pane = new QWidget;
    dialog->layout()->addWidget(pane);
    int ofPane = 0;
    Ext::HotkeyAttachment * own = Ext::attachHotkeys(*pane, [&](FuncCode) { ++ofPane; });
    field->setParent(pane);
    field->show();
    EXPECT_EQ(press("field Ctrl+N picture Shift+U"), "29");
    EXPECT_EQ(ofPane, 1);
    own->setCondition([] { return false; });
    EXPECT_EQ(press("field Ctrl+N"), "") << "nor do they go to the dialog's";
    EXPECT_EQ(ofPane, 1);
    delete own;
    EXPECT_EQ(press("field Ctrl+N"), "4");

    QDialog above(dialog.get());
    above.show();
    QTest::keyClick(&above, Qt::Key_U, Qt::ShiftModifier);
    EXPECT_EQ(found.join(' '), "4") << "another window's key";
    above.hide();

    keys->setCondition([this] { return dialog->windowTitle().isEmpty(); });
    EXPECT_EQ(press("picture Shift+U"), "29");
    dialog->setWindowTitle("busy");
    EXPECT_EQ(press("Shift+U"), "");
}

TEST_F(HotkeysOfADialog, EndWithTheDialogTheHandleOrTheNextAttachment)
{
    QPointer<Ext::HotkeyAttachment> const former = keys;
    keys = attach();
    EXPECT_TRUE(former.isNull());
    EXPECT_EQ(press("Shift+U S G"), "29 33") << "once each";
    delete keys;
    EXPECT_EQ(press("Shift+U"), "");

    keys = Ext::attachHotkeys(*dialog, [](FuncCode) { throw std::runtime_error("of the dialog"); });
    press("Shift+U");
    Lines const lines = log.take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1], "E KVHotKey: 异常描述：of the dialog");
    keys = Ext::attachHotkeys(*dialog, [this](FuncCode) { dialog.reset(); });
    QKeyEvent last(QEvent::KeyPress, Qt::Key_U, Qt::ShiftModifier);
    QCoreApplication::sendEvent(dialog->focusWidget(), &last);
    EXPECT_EQ(dialog, nullptr);
    EXPECT_TRUE(keys.isNull());
}

} // namespace
