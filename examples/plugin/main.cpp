// The plug-in without a host: example-plugin-alone [demo]

#include "demo.h"

#include <UIAPICommon.h>

#include <QApplication>
#include <QWidget>

int main(int argc, char ** argv)
{
    QApplication const application(argc, argv);
    QWidget view;
    KVCAM::UIAPI::Step_Config config;
    config.view = &view;
    KVCAM::UIAPI::insertStepConfig(config);
    if (argc > 1) {
        runDemo(&view);
    } else {
        runDialog(&view);
    }
    return 0;
}
