// The three dialogs of the guide "From a classic field to KVLengthEdit": example-fields [demo]. With "demo"
// it types by itself and prints what became of it.

#include "ClassicDialog.h"
#include "HalfWayDialog.h"
#include "LengthDialog.h"

#include <QApplication>
#include <QWidget>

#include <cstdio>
#include <type_traits>

namespace {

QWidget * view = nullptr;

/// Types a width, switches the unit there and back, accepts in a metric view, and opens the dialog again in
/// inches.
template <class Dialog>
void demo(char const * name, QString const & typed)
{
    QString const file = QStringLiteral("example-fields-%1.json").arg(QLatin1String(name));
    QFile::remove(file); // from an earlier demo
    auto const say = [name](char const * what, QString const & text) {
        std::printf("%s: %s \"%s\"\n", name, what, qUtf8Printable(text));
    };
    auto const show = [](Dialog & dialog, int unit) {
        KVCAM::UIAPI::setUnit(view, unit);
        if constexpr (std::is_same_v<Dialog, ClassicDialog>) {
            dialog.width->changeunit(unit);
        }
    };
    {
        Dialog dialog(view, file);
        say("at first", dialog.width->text());
        dialog.width->setText(typed);
        show(dialog, 1);
        say("metric", dialog.width->text());
        show(dialog, 0);
        say("inch again", dialog.width->text());
        show(dialog, 1);
        dialog.accept();
        std::printf("%s: accepted %.9g mil\n", name, dialog.mil);
    }
    KVCAM::UIAPI::setUnit(view, 0);
    Dialog again(view, file);
    say("opened in inches", again.width->text());
    QFile::remove(file);
}

} // namespace

int main(int argc, char ** argv)
{
    QApplication const application(argc, argv);
    QWidget window;
    view = &window;
    KVCAM::UIAPI::Step_Config config;
    config.view = view;
    KVCAM::UIAPI::insertStepConfig(config);
    if (argc > 1) {
        demo<ClassicDialog>("classic", "987.6543");
        demo<HalfWayDialog>("half way", "987.6543");
        demo<LengthDialog>("length", "980+7.6543");
        return 0;
    }
    ClassicDialog(view, "classic-form.json").exec();
    HalfWayDialog(view, "half-way-form.json").exec();
    LengthDialog(view, "length-form.json").exec();
    return 0;
}
