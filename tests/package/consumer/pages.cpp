// What the pages show and no example has. Returns how much of it does not hold.

#include <UIAPICommon.h>

using namespace KVCAM::UIAPI;

static int readMe(void const * myView)
{
    Step_Config config;
    config.view = myView;     // any address can be a handle; it is only compared, never dereferenced
    insertStepConfig(config); // registers it and pushes it to the engine
    setUnit(myView, 1);       // millimetre; pushed to the engine again

    QString text = getUnitJudgeString(myView, 10.0, 2); // 10 mil as "254.00"
    std::string unit = getUnitStringType(myView, 1);    // "my", the dialogs' word for micrometre
    return int(text != "254.00") + int(unit != "my");
}

static int values()
{
    using namespace KVCAM::UIAPI::Ext;

    Length const width = 10_mil;                // whole nanometres
    double const shown = width.toMillimetres(); // 0.254
    return int(shown != 0.254);
}

int pages()
{
    int const view = 0;
    return readMe(&view) + values();
}
