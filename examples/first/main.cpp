#include <UIAPICommon.h>
#include <UIAPICommonExt.h>

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext::LengthLiterals; // 8_mil

int main(int argc, char ** argv)
{
    QApplication application(argc, argv);
    QWidget window; // its address is the view's handle
    Step_Config config;
    config.view = &window;
    insertStepConfig(config);

    auto * width = new KVLengthEdit;
    width->setView(&window); // shows the view's unit, now and later
    width->setRange(3_mil, 1_in);
    width->setValue(8_mil);
    auto * unit = new QPushButton("Other unit");
    QObject::connect(unit, &QPushButton::clicked, &window, [&] { setUnit(&window, 1 - getUnit(&window)); });
    auto * words = new QLabel;
    auto const tell = [=] {
        words->setText(width->fault().isEmpty() ? width->everyUnit().join(" = ") : width->fault());
    };
    QObject::connect(width, &KVLengthEdit::valueChanged, words, tell);
    QObject::connect(width, &KVLengthEdit::previewChanged, words, tell); // while it is being typed
    QObject::connect(width, &KVLengthEdit::validityChanged, words, tell);
    tell();

    auto * layout = new QFormLayout(&window);
    layout->addRow("Width", width);
    layout->addRow(unit, words);
    window.show();
    return QApplication::exec();
}
