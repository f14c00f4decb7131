// The additions of KVLineEdit: exact values, ranges, its view, its kind, explaining rejected keys.

#include "uiapi/flat/ShowParameters.h"
#include "units/Expression.h"
#include "units/ValueCheck.h"
#include "widgets/KVLineEdit.h"
#include "widgets/KVLineEditPrivate.h"
#include "widgets/LengthTexts.h"

#include <QCoreApplication>
#include <QPointer>
#include <QStyle>
#include <QToolTip>
#include <QValidator>

#include <cmath>
#include <limits>
#include <memory>

namespace KVCAM::UIAPI {
namespace {

constexpr char const * validProperty = "uiapiValid";

} // namespace

// The tracked text as typed, not the computed one.
QString KVLineEdit::typedText() const
{
    bool const inch = d->typedUnit == Units::inch;
    if (d->tracking() == UnitTracking::Symbol) {
        return inch ? d->inchSymbol : d->metricSymbol;
    }
    return inch ? d->inchNumber : d->metricNumber;
}

// The effective number and its unit. A tracked number was typed in one unit, whichever is displayed. An
// expression's text does not change on a switch, so it is in the view's unit.
std::optional<KVLineEdit::Quantity> KVLineEdit::quantity() const
{
    if (d->tracking() == UnitTracking::Number) {
        return Quantity{typedText().toDouble(), Ext::unitOfCode(d->typedUnit)};
    }
    if (d->kind == RegExpression) {
        return Quantity{Expression::evaluate(text()), Ext::unitOfCode(d->viewUnit().value_or(Units::inch))};
    }
    return std::nullopt;
}

double KVLineEdit::exactValue(Ext::Unit unit) const
{
    auto const held = quantity();
    if (!held) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (unit == held->unit) {
        return held->value;
    }
    return unit == Ext::Unit::Inch ? held->value / Units::millimetresPerInch
                                   : held->value * Units::millimetresPerInch;
}

Ext::Length KVLineEdit::exactLength() const
{
    auto const held = quantity();
    return held ? Ext::Length::from(held->value, held->unit, Ext::LengthScale(d->scale)) : Ext::Length();
}

KVLineEdit::LengthScale KVLineEdit::lengthScale() const
{
    return d->scale;
}

void KVLineEdit::setLengthScale(LengthScale scale)
{
    d->scale = scale;
    judge();
}

void KVLineEdit::setRange(Ext::Length minimum, Ext::Length maximum)
{
    d->range = Private::Range{minimum, maximum};
    if (!d->judging) {
        judgeEdits();
    }
    judge();
}

void KVLineEdit::judgeEdits()
{
    disconnect(d->judging);
    d->judging = connect(this, &QLineEdit::textChanged, this, [this] { judge(); });
}

void KVLineEdit::clearRange()
{
    d->range.reset();
    disconnect(d->judging);
    judge();
}

QString KVLineEdit::minimumAsText() const
{
    return d->range ? LengthTexts::write(d->range->minimum, Ext::Length::lowest()) : QString();
}

QString KVLineEdit::maximumAsText() const
{
    return d->range ? LengthTexts::write(d->range->maximum, Ext::Length::highest()) : QString();
}

void KVLineEdit::setMinimumAsText(QString const & text)
{
    if (auto const minimum = LengthTexts::read(*this, "minimumAsText", text, Ext::Length::lowest())) {
        setEnds(*minimum, d->range ? d->range->maximum : Ext::Length::highest());
    }
}

void KVLineEdit::setMaximumAsText(QString const & text)
{
    if (auto const maximum = LengthTexts::read(*this, "maximumAsText", text, Ext::Length::highest())) {
        setEnds(d->range ? d->range->minimum : Ext::Length::lowest(), *maximum);
    }
}

void KVLineEdit::setEnds(Ext::Length minimum, Ext::Length maximum)
{
    if (minimum == Ext::Length::lowest() && maximum == Ext::Length::highest()) {
        clearRange();
    } else {
        setRange(minimum, maximum);
    }
}

// Check the input in the unit it was typed in, so that rounding in the other unit never changes a verdict.
// The sentence shows the bounds in the displayed unit.
Ext::ValueVerdict KVLineEdit::verdict() const
{
    if (!d->range) {
        return {};
    }
    bool const isSymbol = d->tracking() == UnitTracking::Symbol;
    auto const held = quantity();
    if (!isSymbol && !held) {
        return {};
    }
    Quantity const typed = held.value_or(Quantity{});
    if (d->kind == RegExpression && Expression::formOf(text()) == Expression::Form::NonDigitPair) {
        Ext::ValueVerdict unreadable;
        unreadable.ok = false;
        unreadable.fault = Ext::ValueFault::NotReadable;
        unreadable.reason = tr("This calculation cannot be read.");
        return unreadable;
    }
    auto const [minimum, maximum] = *d->range;
    auto const scale = static_cast<Ext::LengthScale>(d->scale);
    auto const check = [&, low = minimum, high = maximum](Ext::Unit shown) {
        return isSymbol ? Ext::checkSymbol(typedText(), low, high, Ext::unitOfCode(d->typedUnit), shown)
                        : Ext::checkValue(Ext::Length::from(typed.value, typed.unit, scale), low, high, shown,
                                          scale);
    };
    if (d->kind == RegExpression) {
        return check(typed.unit);
    }
    auto const verdict = check(Ext::unitOfCode(d->shownUnit.value_or(Units::inch)));
    // Only a refusal looks it up.
    return verdict || d->shownUnit ? verdict : check(Ext::unitOfCode(d->viewUnit().value_or(Units::inch)));
}

void KVLineEdit::judge()
{
    if (!d->range && !d->isMarked) {
        return;
    }
    Ext::ValueVerdict const now = verdict();
    bool const isOther = now.ok != d->verdict.ok;
    bool const isNews = isOther || now.reason != d->verdict.reason;
    bool const isMarked = d->range.has_value();
    bool const isPropertyStale = isOther || isMarked != d->isMarked;
    d->verdict = now;
    d->isMarked = isMarked;
    QPointer<KVLineEdit> const alive(this); // event filters and slots may delete the field
    if (isPropertyStale) {
        setProperty(validProperty, isMarked ? QVariant(now.ok) : QVariant());
        if (alive) {
            // Style sheets read a property only when the widget is polished.
            style()->unpolish(this);
            style()->polish(this);
        }
        if (alive) {
            update();
        }
    }
    if (alive && isNews) {
        emit validityChanged(now.ok, now.reason);
    }
}

bool KVLineEdit::followView() const
{
    return d->following != nullptr;
}

void KVLineEdit::setFollowView(bool follow)
{
    if (follow == followView()) {
        return;
    }
    if (!follow) {
        d->following.reset();
        return;
    }
    watchView();
    // The view may have changed since the text was typed. Text without a unit needs no view look-up.
    if (d->tracking() != UnitTracking::None && !text().isEmpty()) {
        if (auto const unit = d->viewUnit()) {
            changeunit(*unit);
        }
    }
}

void KVLineEdit::watchView()
{
    d->following = std::make_unique<Ext::ViewWatch>(d->owner);
    connect(d->following.get(), &Ext::ViewWatch::changed, this, [this](Ext::ViewAspects aspects) {
        if (aspects.testFlag(Ext::ViewAspect::Unit)) {
            changeunit(getUnit(d->owner));
        }
    });
}

void const * KVLineEdit::view() const
{
    return d->owner;
}

void KVLineEdit::setView(void const * view)
{
    if (view == d->owner) {
        return;
    }
    d->owner = view;
    auto const unit = d->viewUnit();
    if (followView()) {
        watchView();
        if (unit) {
            changeunit(*unit); // judges too
            return;
        }
    }
    if (unit) {
        judge(); // an expression is read in the view's unit
    }
}

void KVLineEdit::setTyped(QString const & text, Ext::Unit unit)
{
    if (d->tracking() == UnitTracking::None) {
        setText(text);
        return;
    }
    int const typed = Ext::unitCode(unit);
    int const shown = d->shownUnit ? *d->shownUnit : d->viewUnit().value_or(typed);
    // An empty text would become 0 in the other unit.
    record(text.left(maxLength()), text.isEmpty() ? shown : typed);
    changeunit(shown);
}

QString KVLineEdit::typed() const
{
    return d->tracking() == UnitTracking::None ? text() : typedText();
}

Ext::Unit KVLineEdit::typedUnit() const
{
    return Ext::unitOfCode(d->typedUnit);
}

KVLineEdit::Kind KVLineEdit::kind() const
{
    return static_cast<Kind>(d->kind);
}

void KVLineEdit::setKind(Kind kind)
{
    bool const isUnrestricted = !d->recording; // as is a field without a kind, but none of kind 0
    if (kind == this->kind() && isUnrestricted == (kind == AnyText)) {
        return;
    }
    disconnect(d->recording);
    for (QString * text : {&d->metricNumber, &d->inchNumber, &d->metricSymbol, &d->inchSymbol}) {
        text->clear();
    }
    d->shownUnit.reset();
    d->typedUnit = Units::inch;
    QValidator const * const former = validator();
    if (kind == AnyText) {
        d->kind = KVERegExp(0);
        setValidator(nullptr);
    } else {
        restrictTo(KVERegExp(kind));
        if (d->judging) {
            judgeEdits(); // after the recording, which it goes by
        }
    }
    if (former != nullptr && former->parent() == this) {
        delete former;
    }
    if (d->tracking() != UnitTracking::None && !text().isEmpty()) {
        record(text(), d->viewUnit().value_or(Units::inch));
    }
    judge();
}

KVLineEdit::SymbolConversion KVLineEdit::symbolConversion() const
{
    return d->symbolConversion;
}

void KVLineEdit::setSymbolConversion(SymbolConversion conversion)
{
    if (conversion == d->symbolConversion) {
        return;
    }
    d->symbolConversion = conversion;
    bool const typedInInch = d->typedUnit == Units::inch;
    (typedInInch ? d->metricSymbol : d->inchSymbol).clear(); // converted by the former rule, if at all
    bool const showsOther = d->shownUnit && (*d->shownUnit == Units::inch) != typedInInch;
    if (showsOther && d->tracking() == UnitTracking::Symbol) {
        changeunit(*d->shownUnit);
    }
}

bool KVLineEdit::refusalHints() const
{
    return bool(d->refusals);
}

void KVLineEdit::setRefusalHints(bool enabled)
{
    if (enabled == refusalHints()) {
        return;
    }
    if (enabled) {
        d->refusals = connect(this, &QLineEdit::inputRejected, this, [this] { explainRefusal(); });
    } else {
        disconnect(d->refusals);
    }
}

void KVLineEdit::explainRefusal()
{
    QString words;
    if (text().size() >= maxLength()) {
        words = tr("No more than %1 characters fit here.").arg(maxLength());
    } else if (InputKind const * const row = inputKind(d->kind)) {
        words = QCoreApplication::translate(inputHintContext, row->hint);
    } else {
        words = tr("This cannot be typed here.");
    }
    QPointer<KVLineEdit> const alive(this);
    if (isVisible()) {
        QToolTip::showText(mapToGlobal(QPoint(0, height())), words, this);
    }
    if (alive) {
        emit inputRefused(words);
    }
}

} // namespace KVCAM::UIAPI
