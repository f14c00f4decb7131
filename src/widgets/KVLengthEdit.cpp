#include "widgets/KVLengthEdit.h"

#include "uiapi/RegisteredViews.h"
#include "uiapi/ViewUnit.h"
#include "units/ValueCheck.h"
#include "widgets/KVLengthEditPrivate.h"

#include <QPointer>
#include <QStyle>

#include <utility>

namespace KVCAM::UIAPI {
namespace {

constexpr char const * validProperty = "uiapiValid";

} // namespace

KVLengthEdit::KVLengthEdit(QWidget * parent) : QLineEdit(parent), d(new Private)
{
    setProperty(validProperty, true);
    connect(this, &QLineEdit::textChanged, this, &KVLengthEdit::noteText);
}

// The base destructors may still emit signals.
KVLengthEdit::~KVLengthEdit()
{
    disconnect(this, &QLineEdit::textChanged, this, nullptr);
    delete d;
}

// --- The text -----------------------------------------------------------------------------------------

bool KVLengthEdit::isTyping() const
{
    return text() != d->shown;
}

QString KVLengthEdit::valueText() const
{
    if (!d->value) {
        return {};
    }
    return d->unitShown ? d->text(*d->value, d->unit) : d->value->text(d->unit, d->scale);
}

// An unchanged text keeps its undo history and the cursor.
void KVLengthEdit::showText(QString const & text)
{
    QPointer<KVLengthEdit> const alive(this);
    d->isShowing = true;
    if (text != this->text()) {
        setText(text);
    }
    if (alive && d->isShowing) {
        noteText();
    }
}

// A length limit or a mask may have changed the text that was to be shown, and a new limit cuts the text that
// is shown already. The result counts as shown, not as typed: it must never become the value.
void KVLengthEdit::noteText()
{
    bool const isCut = d->shown.size() > maxLength() && text() == d->shown.left(maxLength());
    if (std::exchange(d->isShowing, false) || isCut) {
        d->shown = text();
    }
    judge();
}

KVLengthEdit::Reading KVLengthEdit::read() const
{
    Reading reading;
    QString const text = this->text();
    reading.size = text.size();
    if (!isTyping()) {
        reading.length = d->value;
    } else if (!text.trimmed().isEmpty()) {
        Ext::Evaluation const typed = Ext::evaluate(text, d->options());
        if (!typed) {
            reading.fault = typed.reason;
            reading.position = typed.position;
            reading.size = typed.size;
            return reading;
        }
        reading.length = typed.length;
    }
    if (reading.length) {
        reading.fault =
            Ext::checkValue(*reading.length, d->minimum, d->maximum, d->unit, d->scale, d->sign).reason;
    }
    return reading;
}

QString KVLengthEdit::previewOf(Reading const & reading) const
{
    if (!reading.length) {
        return {};
    }
    QString const own = d->text(*reading.length, d->unit);
    QString const shown = text();
    if (shown == (d->unitShown ? own : reading.length->text(d->unit, d->scale))) {
        return {};
    }
    return QLatin1String("= ") + own + QLatin1String(" = ") + d->text(*reading.length, otherUnit(d->unit));
}

// What is being typed is marked at every key, so that a fault is seen before the text is finished.
void KVLengthEdit::judge()
{
    Reading const now = read();
    QString const preview = previewOf(now);
    bool const legal = now.fault.isEmpty();
    bool const isMarkStale = legal != d->fault.isEmpty();
    bool const isOtherFault = std::exchange(d->fault, now.fault) != now.fault;
    bool const isOtherPreview = std::exchange(d->preview, preview) != preview;
    QPointer<KVLengthEdit> const alive(this); // event filters and slots may delete the field
    if (isMarkStale) {
        mark(legal);
    }
    if (alive && isOtherPreview) {
        emit previewChanged(preview);
    }
    if (alive && isOtherFault) {
        emit validityChanged(legal, now.fault);
    }
}

void KVLengthEdit::mark(bool legal)
{
    QPointer<KVLengthEdit> const alive(this);
    setProperty(validProperty, legal);
    if (alive) {
        style()->unpolish(this); // style sheets read a property only when the widget is polished
        style()->polish(this);
    }
    if (alive) {
        update();
    }
}

QString KVLengthEdit::preview() const
{
    return d->preview;
}

QString KVLengthEdit::fault() const
{
    return d->fault;
}

void KVLengthEdit::selectFault()
{
    Reading const reading = read();
    if (!reading.fault.isEmpty()) {
        setSelection(reading.position, reading.size);
    }
}

// --- The value ----------------------------------------------------------------------------------------

Ext::Length KVLengthEdit::value() const
{
    return d->value.value_or(Ext::Length());
}

bool KVLengthEdit::hasValue() const
{
    return d->value.has_value();
}

void KVLengthEdit::setValue(Ext::Length value)
{
    bool const isNew = d->value != value;
    d->value = value;
    if (isNew) {
        d->typed.clear();
    }
    if (std::exchange(d->isSeveral, false)) {
        setPlaceholderText(d->placeholder);
    }
    QPointer<KVLengthEdit> const alive(this);
    showText(valueText());
    if (alive && isNew) {
        emit valueChanged();
    }
}

void KVLengthEdit::clearValue()
{
    becomeEmpty(false);
}

void KVLengthEdit::setSeveralValues()
{
    becomeEmpty(true);
}

void KVLengthEdit::becomeEmpty(bool isSeveral)
{
    bool const hadValue = d->value.has_value();
    d->value.reset();
    d->typed.clear();
    if (std::exchange(d->isSeveral, isSeveral) != isSeveral) {
        if (isSeveral) {
            d->placeholder = placeholderText();
        }
        setPlaceholderText(isSeveral ? tr("several values") : d->placeholder);
    }
    QPointer<KVLengthEdit> const alive(this);
    showText({});
    if (alive && hadValue) {
        emit valueChanged();
    }
}

// An empty text is no input.
bool KVLengthEdit::commit()
{
    Reading const reading = read();
    if (!isTyping() || !reading.fault.isEmpty()) {
        return reading.fault.isEmpty();
    }
    if (reading.length) {
        take(*reading.length, text());
        return true;
    }
    QPointer<KVLengthEdit> const alive(this);
    restore();
    return alive && d->fault.isEmpty();
}

void KVLengthEdit::take(Ext::Length value, QString const & typed)
{
    bool const isNew = d->value != value;
    QPointer<KVLengthEdit> const alive(this);
    setValue(value);
    if (!alive) {
        return;
    }
    d->typed = typed;
    if (isNew) {
        emit valueEdited(value);
    }
}

void KVLengthEdit::restore()
{
    showText(valueText());
}

// --- How it is shown ----------------------------------------------------------------------------------

void KVLengthEdit::present(Ext::Unit unit, Ext::LengthScale scale)
{
    if (unit == d->unit && scale == d->scale) {
        return;
    }
    QPointer<KVLengthEdit> const alive(this);
    commit(); // in the unit it was typed in: "10" must not become ten of another unit
    if (alive) {
        d->unit = unit;
        d->scale = scale;
        restore();
    }
}

Ext::Unit KVLengthEdit::unit() const
{
    return d->unit;
}

void KVLengthEdit::setUnit(Ext::Unit unit)
{
    present(unit, d->scale);
}

KVLengthEdit::Scale KVLengthEdit::lengthScale() const
{
    return static_cast<Scale>(d->scale);
}

void KVLengthEdit::setLengthScale(Scale scale)
{
    present(d->unit, static_cast<Ext::LengthScale>(scale));
}

void const * KVLengthEdit::view() const
{
    return d->view;
}

void KVLengthEdit::setView(void const * view)
{
    d->view = view;
    d->watch.reset();
    if (view == nullptr || !d->followsView) {
        return;
    }
    d->watch = std::make_unique<Ext::ViewWatch>(view);
    connect(d->watch.get(), &Ext::ViewWatch::changed, this, [this](Ext::ViewAspects aspects) {
        if (aspects.testFlag(Ext::ViewAspect::Unit)) {
            setUnit(Ext::unitOf(d->view));
        }
    });
    if (Ext::isRegistered(view)) { // an unknown one would be logged
        setUnit(Ext::unitOf(view));
    }
}

bool KVLengthEdit::followView() const
{
    return d->followsView;
}

void KVLengthEdit::setFollowView(bool follow)
{
    d->followsView = follow;
    setView(d->view);
}

bool KVLengthEdit::unitShown() const
{
    return d->unitShown;
}

// A text that is being typed stays.
void KVLengthEdit::setUnitShown(bool shown)
{
    d->unitShown = shown;
    isTyping() ? judge() : restore();
}

bool KVLengthEdit::microSign() const
{
    return d->sign == Ext::MicrometreSign::Mu;
}

void KVLengthEdit::setMicroSign(bool enabled)
{
    d->sign = enabled ? Ext::MicrometreSign::Mu : Ext::MicrometreSign::My;
    isTyping() ? judge() : restore();
}

bool KVLengthEdit::decimalComma() const
{
    return d->decimalComma;
}

void KVLengthEdit::setDecimalComma(bool enabled)
{
    d->decimalComma = enabled;
    judge();
}

Ext::Length KVLengthEdit::minimum() const
{
    return d->minimum;
}

Ext::Length KVLengthEdit::maximum() const
{
    return d->maximum;
}

void KVLengthEdit::setMinimum(Ext::Length minimum)
{
    setRange(minimum, d->maximum);
}

void KVLengthEdit::setMaximum(Ext::Length maximum)
{
    setRange(d->minimum, maximum);
}

void KVLengthEdit::setRange(Ext::Length minimum, Ext::Length maximum)
{
    d->minimum = minimum;
    d->maximum = maximum;
    judge();
}

} // namespace KVCAM::UIAPI
