#include "demo.h"

#include "SizeDialog.h"

#include <QFile>

#include <cstdio>

using namespace KVCAM::UIAPI;

namespace {

char const * const formFile = "example-plugin-form.json";
char const * const demoForm = "example-plugin-demo.json";

void type(KVLineEdit * field, char const * text)
{
    field->clear();
    field->insert(QString::fromLatin1(text)); // refuses what the field refuses from the keyboard
}

void show(char const * what, SizeDialog const & dialog)
{
    QString const result = QStringLiteral("width \"%1\", %2 nm; clearance \"%3\", %4 %5; OK %6")
                               .arg(dialog.width->text())
                               .arg(dialog.width->exactLength().nanometres())
                               .arg(dialog.clearance->text())
                               .arg(caculateData(dialog.clearance->text()))
                               .arg(dialog.unit->currentText())
                               .arg(dialog.ok->isEnabled() ? "enabled" : "disabled");
    std::printf("plug-in: %s: %s\n", what, qUtf8Printable(result));
    if (!dialog.ok->isEnabled()) {
        std::printf("plug-in: it says \"%s\"\n", qUtf8Printable(dialog.words->text()));
    }
}

} // namespace

void runDialog(QWidget * view)
{
    SizeDialog dialog(view, QString::fromLatin1(formFile));
    if (dialog.exec() == QDialog::Accepted) {
        show("asked for", dialog);
    }
}

void runDemo(QWidget * view)
{
    QString const form = QString::fromLatin1(demoForm);
    QFile::remove(form); // from an earlier demo
    {
        SizeDialog dialog(view, form);
        type(dialog.width, "10");
        type(dialog.width, "-10"); // not a positive number: the field stays empty
        show("refused a key", dialog);
        type(dialog.width, "10");
        type(dialog.clearance, "10+2.5");
        show("typed in mil", dialog);
        dialog.unit->setCurrentIndex(1);
        show("the view is metric", dialog);
        type(dialog.clearance, "100+2*27");
        show("typed in micrometres", dialog);
        dialog.accept();
    }
    setUnit(view, 0);
    SizeDialog const again(view, form);
    show("remembered", again);
}
