// The dialog's test, without a host: the recording engine stands in for the host's, and no box opens.

#include "SizeDialog.h"

#include <UIAPICommonTest/QtTest.h>

#include <QFile>
#include <QWidget>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

class SizeDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        test.begin();
        QVERIFY(registerView(&view, 0));
        QFile::remove(form);
        test.engine().take(); // what registering the view told the engine is not the dialog's doing
    }
    void cleanup() { test.end(); }

    void okNeedsTwoSizesInRange_data()
    {
        QTest::addColumn<QString>("width");
        QTest::addColumn<QString>("clearance");
        QTest::addColumn<bool>("ok");
        QTest::newRow("none") << ""
                              << "" << false;
        QTest::newRow("one") << "10"
                             << "" << false;
        QTest::newRow("both") << "10"
                              << "5+7.5" << true;
        QTest::newRow("both metric") << "0.2mm"
                                     << "0.15mm" << true;
        QTest::newRow("too small") << "3"
                                   << "10" << false;
        QTest::newRow("too large") << "10"
                                   << "1.1mm" << false;
        QTest::newRow("unfinished") << "10"
                                    << "90+" << false;
    }
    void okNeedsTwoSizesInRange()
    {
        QFETCH(QString const, width);
        QFETCH(QString const, clearance);
        QFETCH(bool const, ok);
        SizeDialog dialog(&view, form);
        dialog.width->setText(width);
        dialog.clearance->setText(clearance);
        QCOMPARE(dialog.ok->isEnabled(), ok);
        QCOMPARE(test.engine().take(), Lines{}); // typing is nothing to the engine
    }

    void theEngineHearsOfTheUnit()
    {
        SizeDialog dialog(&view, form);
        dialog.width->setText("10");
        int seen = -1; // the engine may ask the library while it is told
        test.engine().onNextCall("set_show_para", [&] { seen = getUnit(&view); });
        dialog.unit->setCurrentIndex(1);
        QCOMPARE(test.engine().take(),
                 (Lines{"DB::get_SaveFlag()", "API::set_show_para(1 0 false true true)"}));
        QCOMPARE(seen, 1);
        QCOMPARE(dialog.width->text(), QString("254 my"));
    }

    void anEngineThatFailsDoesNotStopTheDialog()
    {
        SizeDialog dialog(&view, form);
        dialog.width->setText("10");
        test.engine().throwFrom("set_show_para", "no engine");
        dialog.unit->setCurrentIndex(1);
        QCOMPARE(dialog.width->text(), QString("254 my"));
        // The library logs what the engine threw. Left untaken, the ERROR line would fail the test.
        QCOMPARE(test.log().take(), Lines{"E UIAPICommonPara: KVCAM UIAPI sendShowParaToAPI errorno engine"});
    }

    void theSizesAreRememberedToTheNanometre()
    {
        {
            SizeDialog dialog(&view, form);
            dialog.width->setText("10");
            dialog.clearance->setText("1mm/3");
            dialog.accept();
        }
        SizeDialog const again(&view, form);
        QCOMPARE(again.width->value().nanometres(), 254000);
        QCOMPARE(again.clearance->value().nanometres(), 333333);
    }

private:
    QString const form = QStringLiteral("form.json"); // in the temporary directory of the test
    QWidget view;
    QtTestCase test;
};

int main(int argc, char ** argv)
{
    return runQtTests<SizeDialogTest>(argc, argv);
}

#include "size_dialog_test.moc"
