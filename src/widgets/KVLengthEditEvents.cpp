// KVLengthEdit at the keyboard and the mouse: finishing, steps, the tooltip, the menu, the frame.

#include "units/Evaluate.h"
#include "widgets/KVLengthEdit.h"
#include "widgets/KVLengthEditPrivate.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace KVCAM::UIAPI {
namespace {

constexpr QRgb faultColour = 0xffc02020;
constexpr int tenfold = 10;

// The direction of a key that steps; 0 for any other.
int stepsOf(QKeyEvent const & event)
{
    auto const modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier && modifiers != Qt::ControlModifier) {
        return 0;
    }
    int const size = modifiers == Qt::ControlModifier ? tenfold : 1;
    switch (event.key()) {
    case Qt::Key_Up:
        return size;
    case Qt::Key_Down:
        return -size;
    case Qt::Key_PageUp:
        return tenfold;
    case Qt::Key_PageDown:
        return -tenfold;
    default:
        return 0;
    }
}

} // namespace

Ext::Length KVLengthEdit::step() const
{
    return d->step;
}

void KVLengthEdit::setStep(Ext::Length step)
{
    d->step = step;
}

bool KVLengthEdit::wheelSteps() const
{
    return d->wheelSteps;
}

void KVLengthEdit::setWheelSteps(bool enabled)
{
    d->wheelSteps = enabled;
    d->wheelRest = 0;
}

void KVLengthEdit::stepBy(int steps)
{
    Reading const reading = read();
    if (isReadOnly() || steps == 0 || !reading.length) {
        return;
    }
    Ext::Length const usual =
        d->unit == Ext::Unit::Inch ? Ext::Length::fromMil(1) : Ext::Length::fromMicrometres(10);
    Ext::Length const step = d->step > Ext::Length() ? d->step : usual;
    Ext::Length const next = *reading.length + step * steps;
    take(std::max(d->minimum, std::min(d->maximum, next)), {});
}

void KVLengthEdit::keyPressEvent(QKeyEvent * event)
{
    QPointer<KVLengthEdit> const alive(this);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        bool const isTaken = commit();
        if (!alive) {
            return;
        }
        if (!isTaken) {
            selectFault(); // and the key does not reach the default button of a dialog
            event->accept();
            return;
        }
    } else if (event->key() == Qt::Key_Escape && isTyping()) {
        event->accept();
        restore();
        return;
    } else if (int const steps = stepsOf(*event)) {
        event->accept();
        stepBy(steps);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void KVLengthEdit::focusInEvent(QFocusEvent * event)
{
    QPointer<KVLengthEdit> const alive(this);
    if (!isTyping() && d->value && !d->typed.isEmpty() && event->reason() != Qt::PopupFocusReason) {
        // After a switch "10+2" may mean another length.
        Ext::Evaluation const typed = Ext::evaluate(d->typed, d->options());
        if (typed && typed.length == *d->value) {
            showText(d->typed);
        }
    }
    if (alive) {
        QLineEdit::focusInEvent(event);
    }
}

void KVLengthEdit::focusOutEvent(QFocusEvent * event)
{
    QPointer<KVLengthEdit> const alive(this);
    if (event->reason() != Qt::PopupFocusReason) {
        isTyping() ? static_cast<void>(commit()) : restore();
    }
    if (alive) {
        QLineEdit::focusOutEvent(event);
    }
}

void KVLengthEdit::wheelEvent(QWheelEvent * event)
{
    if (!d->wheelSteps || !hasFocus()) {
        event->ignore();
        return;
    }
    event->accept();
    d->wheelRest += event->angleDelta().y();
    int const steps = d->wheelRest / QWheelEvent::DefaultDeltasPerStep;
    d->wheelRest -= steps * QWheelEvent::DefaultDeltasPerStep;
    stepBy(steps);
}

QStringList KVLengthEdit::everyUnit() const
{
    QStringList texts;
    if (auto const length = read().length) {
        for (Ext::Unit const unit : {Ext::Unit::Inch, Ext::Unit::Millimetre}) {
            for (Ext::LengthScale const scale : {Ext::LengthScale::Small, Ext::LengthScale::Large}) {
                texts.append(length->textWithUnit(unit, scale, d->sign));
            }
        }
    }
    return texts;
}

// The host's words, the fault, the length in every unit: escaped, since a fault quotes what was typed.
QString KVLengthEdit::details() const
{
    QStringList paragraphs;
    if (!toolTip().isEmpty()) {
        paragraphs.append(Qt::mightBeRichText(toolTip()) ? toolTip() : toolTip().toHtmlEscaped());
    }
    if (!d->fault.isEmpty()) {
        paragraphs.append(d->fault.toHtmlEscaped());
    }
    if (QStringList const units = everyUnit(); !units.isEmpty()) {
        paragraphs.append(units.join(QLatin1Char('\n')).toHtmlEscaped().replace('\n', "<br>"));
    }
    return paragraphs.isEmpty()
               ? QString()
               : QLatin1String("<p>") + paragraphs.join(QLatin1String("</p><p>")) + QLatin1String("</p>");
}

bool KVLengthEdit::event(QEvent * event)
{
    if (event->type() == QEvent::ToolTip) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), details(), this);
        return true;
    }
    // Otherwise a shortcut of the window takes the key.
    if (event->type() == QEvent::ShortcutOverride && isTyping() &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

QMenu * KVLengthEdit::createMenu()
{
    QMenu * const menu = createStandardContextMenu();
    menu->addSeparator();
    QMenu * const copies = menu->addMenu(tr("Copy as"));
    QStringList const texts = everyUnit();
    for (QString const & text : texts) {
        copies->addAction(text, this, [text] { QApplication::clipboard()->setText(text); });
    }
    copies->setEnabled(!copies->isEmpty());
    QAction * const fault = menu->addAction(tr("Select what is wrong"), this, &KVLengthEdit::selectFault);
    fault->setEnabled(!d->fault.isEmpty());
    return menu;
}

void KVLengthEdit::contextMenuEvent(QContextMenuEvent * event)
{
    QMenu * const menu = createMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

void KVLengthEdit::changeEvent(QEvent * event)
{
    if (event->type() == QEvent::LanguageChange) {
        if (d->isSeveral) {
            setPlaceholderText(tr("several values"));
        }
        judge(); // the sentence in the present language
    }
    QLineEdit::changeEvent(event);
}

// The frame is seen without a style sheet and in every palette.
void KVLengthEdit::paintEvent(QPaintEvent * event)
{
    QLineEdit::paintEvent(event);
    if (!d->fault.isEmpty()) {
        constexpr int width = 2;
        QPainter painter(this);
        painter.setPen(
            QPen(QColor::fromRgb(faultColour), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

} // namespace KVCAM::UIAPI
