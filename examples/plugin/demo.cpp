#include "demo.h"

#include "SizeDialog.h"

#include <QFile>

#include <cstdio>

using namespace KVCAM::UIAPI;

namespace {

char const * const formFile = "example-plugin-form.json";
char const * const demoForm = "example-plugin-demo.json";

// As a user would: the text is read at every key and taken when it is finished.
void type(KVLengthEdit * field, char const * text)
{
    field->setText(QString::fromLatin1(text));
    field->commit();
}

void show(char const * what, SizeDialog const & dialog)
{
    QString const result = QStringLiteral("width \"%1\", %2 nm; clearance \"%3\", %4 nm; OK %5")
                               .arg(dialog.width->text())
                               .arg(dialog.width->value().nanometres())
                               .arg(dialog.clearance->text())
                               .arg(dialog.clearance->value().nanometres())
                               .arg(dialog.ok->isEnabled() ? "enabled" : "disabled");
    std::printf("plug-in: %s: %s\n", what, qUtf8Printable(result));
    if (!dialog.words->text().isEmpty()) {
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
        type(dialog.width, "90+"); // stays as it is, and is never 90
        show("not finished", dialog);
        type(dialog.width, "10");
        dialog.clearance->setText(QStringLiteral("10+2.5"));
        show("being typed", dialog);
        type(dialog.clearance, "10+2.5");
        show("typed in mil", dialog);
        dialog.unit->setCurrentIndex(1);
        show("the view is metric", dialog);
        type(dialog.clearance, "100+2*27");
        show("typed in micrometres", dialog);
        type(dialog.clearance, "0.1mm+1mil");
        show("typed in both", dialog);
        dialog.accept();
    }
    setUnit(view, 0);
    SizeDialog const again(view, form);
    show("remembered", again);
}
