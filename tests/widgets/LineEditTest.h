#pragma once

#include "harness/UiapiTest.h"
#include "uiapi/flat/ShowParameters.h"
#include "widgets/KVLineEdit.h"

#include <QTest>

namespace KVCAM::Testing {

/// Line edits on a registered view. The widget is the view handle.
class LineEditTest : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        registerView(&view, 0);
    }
    UIAPI::KVLineEdit & field(int kind) { return *new UIAPI::KVLineEdit(UIAPI::KVERegExp(kind), &view); }
    /// One key per character, including those without a QTest key.
    void type(UIAPI::KVLineEdit & edit, char const * text)
    {
        for (QChar const c : QString::fromUtf8(text)) {
            QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, QString(c), Qt::NoModifier);
        }
    }
    void retype(UIAPI::KVLineEdit & edit, char const * text)
    {
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
        type(edit, text);
    }
    /// Switches the view, then the field, as a dialog does.
    void show(UIAPI::KVLineEdit & edit, int unit)
    {
        UIAPI::setUnit(&view, unit);
        edit.changeunit(unit);
    }

    QWidget view;
};

} // namespace KVCAM::Testing
