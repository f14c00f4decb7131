// The work of a host: it starts the log, registers its views, maps commands to plug-in modules, and sends
// commands. Arguments: the path of a plug-in module and a key.

#include <UIAPICommon.h>

#include <QApplication>
#include <QWidget>

#include <cstdio>

using namespace KVCAM::UIAPI;

int main(int argc, char ** argv)
{
    Ext::startLogging(argv[0], {Ext::LogLevel::Info, {}});
    QApplication const application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "example-host MODULE open|demo\n");
        return 2;
    }

    // A graphic view. Any address can be a handle; a widget's address also gives message boxes their parent.
    QWidget view;
    Step_Config config;
    config.view = &view;
    insertStepConfig(config);
    setSelectionTouching(&view, true);

    constexpr int sizeCommand = 1;
    UIAPICommonPara::instance()->addPluginRoute(sizeCommand, argv[2], argv[1]);
    setPluginCmd(sizeCommand, argv[2], &view);
    setPluginCmd(2, argv[2], &view); // no route: a line in the log

    std::printf("host: the view shows %s now\n", getUnit(&view) == 0 ? "inches" : "millimetres");
    return 0;
}
