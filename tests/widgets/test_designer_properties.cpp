// The properties that Qt Designer edits. uic and QUiLoader set them one after the other, in the order of the
// file.

#include "harness/UiapiTest.h"
#include "uiapi/RegisteredViews.h"
#include "uiapi/UIAPICommonParaPrivate.h"
#include "uiapi/flat/ShowParameters.h"
#include "widgets/FormView.h"
#include "widgets/KVLengthEdit.h"
#include "widgets/KVLineEdit.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMetaProperty>

#include <algorithm>
#include <random>
#include <utility>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext::LengthLiterals;

namespace {

QString lastWarning; ///< of Qt

class DesignerProperties : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        lastWarning.clear();
        qInstallMessageHandler(
            [](QtMsgType, QMessageLogContext const &, QString const & text) { lastWarning = text; });
    }
    void TearDown() override
    {
        qInstallMessageHandler(nullptr);
        UiapiTest::TearDown();
    }

    /// Sets the properties of a field in a form that knows no view, then gives the form a metric one. All
    /// that can be seen before and after that.
    template <class Field>
    QString seen(QStringList const & settings)
    {
        QWidget form;
        auto * const field = new Field(&form);
        set(*field, settings);
        QStringList state;
        auto const look = [&] {
            for (int i = QLineEdit::staticMetaObject.propertyOffset();
                 i < field->metaObject()->propertyCount(); ++i) {
                QMetaProperty const property = field->metaObject()->property(i);
                state.append(property.name() + QString("=") + property.read(field).toString());
            }
            state.append(field->property("uiapiValid").toString());
        };
        look();
        Ext::setFormView(form, &metric);
        look();
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(field, &out);
        look();
        log.take(); // a text set after the kind is recorded, and the form is no view
        return state.join('\n');
    }
    static void set(QWidget & field, QStringList const & settings)
    {
        for (QString const & setting : settings) {
            QByteArray const name = setting.section('=', 0, 0).toLatin1();
            EXPECT_TRUE(field.setProperty(name.constData(), setting.section('=', 1))) << name.constData();
        }
    }
    template <class Field>
    void expectEveryOrderAlike(QString const & set)
    {
        std::mt19937 random(17);
        QStringList settings = set.split("; ");
        QString const first = seen<Field>(settings);
        for (int run = 0; run < 300; ++run) {
            std::shuffle(settings.begin(), settings.end(), random);
            ASSERT_EQ(seen<Field>(settings), first) << settings.join("; ").toStdString();
        }
    }

    QWidget metric;
};

TEST_F(DesignerProperties, MayBeSetInAnyOrder)
{
    registerView(&metric, 1);
    for (char const * const value :
         {"valueAsText=12.5 mil; ", "valueAsText=50 mil; "}) { // in and out of range
        expectEveryOrderAlike<KVLengthEdit>(value +
                                            QString("minimumAsText=0.1 mm; maximumAsText=40 mil; "
                                                    "stepAsText=5 my; lengthScale=Large; maxLength=4; "
                                                    "unitSystem=Millimetre; unitShown=false; microSign=true; "
                                                    "decimalComma=true; wheelSteps=true"));
        expectEveryOrderAlike<KVLengthEdit>(value + QString("followView=false; maxLength=3"));
    }
    for (QString const text : {"kind=Number; text=0.02; ", "kind=Expression; text=0.01+0.01; ",
                               "kind=SymbolName; text=rect20x10; "}) {
        for (char const * const follow : {"followView=true", "followView=false"}) {
            expectEveryOrderAlike<KVLineEdit>(
                text +
                "minimumAsText=0.1 mm; maximumAsText=40 mil; lengthScale=Large; "
                "symbolConversion=TargetUnit; refusalHints=true; maxLength=8; " +
                follow);
        }
    }
}

TEST_F(DesignerProperties, ALengthIsATextWithItsUnit)
{
    QWidget form;
    auto * const length = new KVLengthEdit(&form);
    auto * const number = new KVLineEdit(RegNumber, &form);
    length->setDecimalComma(true); // what is typed, not what a form says
    length->setLengthScale(KVLengthEdit::Large);
    struct
    {
        char const *text, *held;
        bool refused = false;
    } const rows[] = {{"4 mil", "4 mil"},        {"0.1mm", "0.1 mm"},
                      {"254 my", "10 mil"},      {"1 inch + 1 mil", "1001 mil"},
                      {"-3 my", "-3 my"},        {"5", "-3 my", true},
                      {"1,5 mm", "-3 my", true}, {"4 mli", "-3 my", true},
                      {"2 inch", "2 inch"},      {" ", ""},
                      {"9e9 inch", "", true}};
    for (QWidget * field : std::initializer_list<QWidget *>{length, number}) {
        field->setObjectName("size");
        for (char const * const property : {"minimumAsText", "maximumAsText", "valueAsText", "stepAsText"}) {
            if (field->metaObject()->indexOfProperty(property) < 0) {
                continue;
            }
            for (auto const & row : rows) {
                lastWarning.clear();
                field->setProperty(property, row.text);
                EXPECT_EQ(field->property(property).toString().toStdString(), row.held)
                    << property << row.text;
                EXPECT_EQ(
                    lastWarning.contains(QString("\"size\": %1 stays, since \"%2\"").arg(property, row.text)),
                    row.refused)
                    << row.text;
            }
        }
    }
    number->setMaximumAsText("4 mil");
    number->setText("5");
    EXPECT_EQ(number->property("uiapiValid"), false);
    number->setMinimumAsText("1 mil");
    number->setMaximumAsText("");
    EXPECT_EQ(number->property("uiapiValid"), true);
    number->setMinimumAsText(""); // no range at all
    EXPECT_FALSE(number->property("uiapiValid").isValid());
    log.take();
}

// A bound port and a read configuration belong to the host. In Designer, a KVLineEdit hears of no text.
TEST_F(DesignerProperties, AskNoViewInDesigner)
{
    KVLineEdit field;
    field.blockSignals(true);
    for (char const * const kind : {"Number", "Expression", "SymbolName", "Name", "AnyText"}) {
        set(field, {"text=", "minimumAsText=4 mil", QString("kind=") + kind, "followView=true", "text=1",
                    "symbolConversion=TargetUnit", "followView=false"});
    }
    KVLengthEdit length;
    length.setValueAsText("4 mil");
    EXPECT_FALSE(Ext::isRegistered(&field));
    EXPECT_EQ(CommonParaAccess::existing(), nullptr);
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(getUnit(&field), 0);
    EXPECT_NE(CommonParaAccess::existing(), nullptr);
    EXPECT_NE(log.take(), Lines{});
}

TEST_F(DesignerProperties, AFormGivesAllItsFieldsTheirView)
{
    registerView(&metric, 1);
    QWidget form;
    auto * const group = new QWidget(&form);
    auto * const first = new KVLengthEdit(&form);
    auto * const deep = new KVLengthEdit(group);
    auto * const still = new KVLengthEdit(group);
    auto * const number = new KVLineEdit("10", group);
    still->setFollowView(false);
    number->setKind(RegNumber);
    number->setFollowView(true);
    for (KVLengthEdit * field : {first, deep, still}) {
        field->setValue(10_mil);
    }
    Ext::setFormView(form, &metric);
    EXPECT_EQ((QStringList{first->text(), deep->text(), still->text(), number->text()}),
              (QStringList{"254 my", "254 my", "10 mil", "254"}));
    setUnit(&metric, 0);
    still->setFollowView(true);
    deep->setFollowView(false);
    EXPECT_TRUE(still->view() == &metric && deep->view() == &metric && number->view() == &metric);
    setUnit(&metric, 1);
    EXPECT_EQ((QStringList{first->text(), deep->text(), still->text(), number->text()}),
              (QStringList{"254 my", "10 mil", "254 my", "254"}));

    // A slot may delete other fields of the form.
    QObject::connect(first, &QLineEdit::textChanged, [&] { delete group; });
    registerView(&form, 0);
    Ext::setFormView(form, &form);
    EXPECT_EQ(first->text(), "10 mil");
}

} // namespace
