// What a plug-in does first: register its view, switch its unit, show a value. Exits with 0 if the engine
// behind the library was called.

#include <KVCAM_API/EmbeddedEngine.h>
#include <UIAPICommon.h>
#if __has_include(<ext/Views.h>) || __has_include(<EmbeddedEngine.h>) || !__has_include(<UIAPICommon/ext/Views.h>)
#error "the rooms belong in a folder of their own"
#endif

#include <QCoreApplication>

#include <cstdio>
#include <string>

int pages();      // what does not hold of the code that the pages show
int signatures(); // how many exported functions have the signature that a consumer relies on

int main(int argc, char ** argv)
{
    using namespace KVCAM;
    QCoreApplication application(argc, argv);
    int failures = 0;
    auto check = [&failures](bool holds, char const * what) {
        if (!holds) {
            ++failures;
            std::fprintf(stderr, "consumer: %s\n", what);
        }
    };

    int const view = 0; // any address identifies a view
    UIAPI::Step_Config config;
    config.view = &view;
    check(UIAPI::insertStepConfig(config), "a view is registered");
    check(UIAPI::getUnitJudgeString(&view, 1.0, 2) == "1", "a view starts in inch");
    UIAPI::setUnit(&view, 1);
    check(Embedded::liveState().show.unit == 1, "the engine was told of the unit");
    check(UIAPI::getUnitJudgeString(&view, 1.0, 2) == "25.40", "values follow the unit");
    check(std::string(UIAPICOMMON_VERSION) == PACKAGE_VERSION, "headers and package agree on the version");
    check(UIAPI::Ext::version() == UIAPI::Ext::headerVersion(), "headers and library agree on the version");
    check(signatures() == 161, "every flat function is there");
    check(pages() == 0, "the pages say what the library does");

    int heard = 0;
    QObject::connect(UIAPI::Ext::Notifier::instance(), &UIAPI::Ext::Notifier::viewChanged, &application,
                     [&heard](void const *, UIAPI::Ext::ViewAspects) { ++heard; });
    UIAPI::setUnit(&view, 0);
    check(heard == 1, "signals cross the library's border");
    return failures;
}
