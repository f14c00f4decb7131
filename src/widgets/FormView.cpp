#include "widgets/FormView.h"

#include "widgets/KVLengthEdit.h"
#include "widgets/KVLineEdit.h"

#include <QList>
#include <QPointer>
#include <QWidget>

namespace KVCAM::UIAPI {
namespace {

// The slots of one field may delete others.
template <class Field>
void setViewOfAll(QList<Field *> const & found, void const * view)
{
    QList<QPointer<Field>> fields;
    for (Field * const field : found) {
        fields.append(field);
    }
    for (QPointer<Field> const & field : qAsConst(fields)) {
        if (field) {
            field->setView(view);
        }
    }
}

} // namespace

void Ext::setFormView(QWidget & form, void const * view)
{
    QPointer<QWidget> const alive(&form);
    setViewOfAll(form.findChildren<KVLengthEdit *>(), view);
    if (alive) {
        setViewOfAll(form.findChildren<KVLineEdit *>(), view);
    }
}

} // namespace KVCAM::UIAPI
