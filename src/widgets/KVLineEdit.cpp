#include "widgets/KVLineEdit.h"

#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/SymbolNames.h"
#include "widgets/KVLineEditPrivate.h"

#include <QPointer>
#include <QRegExp>
#include <QRegExpValidator>
#include <QScopeGuard>
#include <QSignalBlocker>

#include <utility>

namespace KVCAM::UIAPI {
namespace {

// setText() that emits at its end, so that a slot may delete the field. QLineEdit does not survive that
// during its own setText().
void showText(KVLineEdit & field, QString const & text)
{
    QPointer<KVLineEdit> const alive(&field);
    QString const before = field.text();
    int const cursorBefore = field.cursorPosition();
    bool const wasSelected = field.hasSelectedText();
    {
        QSignalBlocker const blocker(field);
        field.setText(text);
    }
    QString const shown = field.text();
    int const cursor = field.cursorPosition();
    if (shown != before) {
        emit field.textChanged(shown);
    }
    if (alive && wasSelected) {
        emit field.selectionChanged();
    }
    // Not if a slot moved the cursor: that was already signalled.
    if (alive && cursor != cursorBefore && field.cursorPosition() == cursor) {
        emit field.cursorPositionChanged(cursorBefore, cursor);
    }
}

} // namespace

KVLineEdit::KVLineEdit(QWidget * parent) : KVLineEdit(QString(), parent) {}

KVLineEdit::KVLineEdit(QString const & text, QWidget * parent) : QLineEdit(text, parent), d(new Private)
{
    d->owner = parent;
}

KVLineEdit::KVLineEdit(KVERegExp kind, QWidget * parent) : KVLineEdit(parent)
{
    restrictTo(kind);
}

// The text is set last so that it is recorded; text that the kind would reject is shown anyway.
KVLineEdit::KVLineEdit(QString const & text, KVERegExp kind, QWidget * parent) : KVLineEdit(kind, parent)
{
    setText(text);
}

// The base destructors still emit signals (focus loss, destroyed()), and a slot may then change the view.
KVLineEdit::~KVLineEdit()
{
    for (QMetaObject::Connection const * own : {&d->recording, &d->judging, &d->refusals}) {
        disconnect(*own);
    }
    delete d;
}

// A kind outside the table gets an empty pattern, which accepts no typed input.
void KVLineEdit::insertLimit()
{
    InputKind const * const row = inputKind(d->kind);
    QString const pattern = row == nullptr ? QString() : QString::fromUtf8(row->pattern);
    setValidator(new QRegExpValidator(QRegExp(pattern), this));
}

void KVLineEdit::restrictTo(KVERegExp kind)
{
    d->recording = connect(this, &QLineEdit::textChanged, this, &KVLineEdit::on_textchanged);
    d->kind = kind;
    insertLimit();
}

void KVLineEdit::on_textchanged(QString const & text)
{
    if (d->isChanging) {
        return;
    }
    if (d->tracking() != UnitTracking::None) {
        record(text, getUnit(d->owner));
    }
}

void KVLineEdit::record(QString const & text, int unit)
{
    d->typedUnit = unit;
    d->shownUnit = unit;
    bool const inch = unit == Units::inch;
    if (d->tracking() == UnitTracking::Number) {
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
    // A slot may delete the field, and `d` with it.
    QPointer<KVLineEdit> const alive(this);
    auto const changed = qScopeGuard([this, &alive, was = std::exchange(d->isChanging, true)] {
        if (alive) {
            d->isChanging = was;
        }
    });
    d->shownUnit = unit;
    bool const inch = unit == Units::inch;
    switch (d->tracking()) {
    case UnitTracking::Number:
        showText(*this, inch ? d->inchNumber : d->metricNumber);
        break;
    case UnitTracking::Symbol: {
        QString & wanted = inch ? d->inchSymbol : d->metricSymbol;
        if (wanted.isEmpty()) {
            QString converted = inch ? d->metricSymbol : d->inchSymbol;
            // By default unit 0 in both directions: the lengths are always divided.
            setSymbolUIData(converted, d->symbolConversion == AsDescribed ? Units::inch : unit);
            wanted = converted;
        }
        showText(*this, wanted);
        break;
    }
    case UnitTracking::None:
        break;
    }
    if (alive) {
        judge(); // the message shows the bounds in the displayed unit, and the text may be unchanged
    }
}

} // namespace KVCAM::UIAPI
