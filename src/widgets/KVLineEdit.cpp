#include "widgets/KVLineEdit.h"

#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/SymbolNames.h"
#include "widgets/KVLineEditPrivate.h"

#include <QRegExp>
#include <QRegExpValidator>
#include <QScopedValueRollback>

namespace KVCAM::UIAPI {

KVLineEdit::KVLineEdit(QWidget * parent) : KVLineEdit(QString(), parent) {}

KVLineEdit::KVLineEdit(QString const & text, QWidget * parent) : QLineEdit(text, parent), d(new Private)
{
    d->owner = parent;
    insertLimit();
}

KVLineEdit::KVLineEdit(KVERegExp kind, QWidget * parent) : KVLineEdit(parent)
{
    restrictTo(kind);
}

// The text comes last, so that it is recorded; a text that the kind would refuse is shown all the same.
KVLineEdit::KVLineEdit(QString const & text, KVERegExp kind, QWidget * parent) : KVLineEdit(kind, parent)
{
    setText(text);
}

KVLineEdit::~KVLineEdit()
{
    delete d;
}

void KVLineEdit::insertLimit()
{
    for (InputKind const & row : inputKinds) {
        d->patterns[row.kind] = QString::fromUtf8(row.pattern);
    }
}

void KVLineEdit::restrictTo(KVERegExp kind)
{
    connect(this, &QLineEdit::textChanged, this, &KVLineEdit::on_textchanged);
    d->kind = kind;
    // An inserting look-up: a kind outside the table gets an empty pattern.
    setValidator(new QRegExpValidator(QRegExp(d->patterns[kind]), this));
}

void KVLineEdit::on_textchanged(QString const & text)
{
    if (d->isChanging) {
        return;
    }
    UnitTracking const tracking = d->tracking();
    if (tracking == UnitTracking::None) {
        return;
    }
    d->typedUnit = getUnit(d->owner);
    d->shownUnit = d->typedUnit;
    bool const inch = d->typedUnit == Units::inch;
    if (tracking == UnitTracking::Number) {
        double const value = text.toDouble();
        if (inch) {
            d->inchNumber = text;
            d->metricNumber = QString::number(value * Units::millimetresPerInch, 'g', 6);
        } else {
            d->metricNumber = text;
            d->inchNumber = QString::number(value / Units::millimetresPerInch, 'g', 6);
        }
        return;
    }
    (inch ? d->inchSymbol : d->metricSymbol) = text;
    (inch ? d->metricSymbol : d->inchSymbol).clear();
}

void KVLineEdit::changeunit(int const & unit)
{
    QScopedValueRollback<bool> const changing(d->isChanging, true);
    d->shownUnit = unit;
    bool const inch = unit == Units::inch;
    switch (d->tracking()) {
    case UnitTracking::Number:
        setText(inch ? d->inchNumber : d->metricNumber);
        break;
    case UnitTracking::Symbol: {
        QString & wanted = inch ? d->inchSymbol : d->metricSymbol;
        if (wanted.isEmpty()) {
            QString converted = inch ? d->metricSymbol : d->inchSymbol;
            // Unit 0 in both directions, so the lengths are always divided.
            setSymbolUIData(converted, Units::inch);
            wanted = converted;
        }
        setText(wanted);
        break;
    }
    case UnitTracking::None:
        break;
    }
    judge(); // the words have the bounds in the unit shown, and the text need not have changed
}

} // namespace KVCAM::UIAPI
