// The additions of KVLineEdit: exact values, ranges, following a view, explaining refused keys.

#include "support/Narrowing.h"
#include "uiapi/Notifier.h"
#include "uiapi/flat/ShowParameters.h"
#include "widgets/KVLineEdit.h"
#include "widgets/KVLineEditPrivate.h"

#include <QCoreApplication>
#include <QStyle>
#include <QToolTip>

#include <cmath>
#include <limits>

namespace KVCAM::UIAPI {
namespace {

constexpr char const * validProperty = "uiapiValid";
constexpr double smallPerLarge = 1000.0; // mil in an inch, micrometres in a millimetre

} // namespace

// The number that counts and the unit it is in. A tracked number was typed in one unit, whichever is shown;
// an expression's text stays through a switch, so it means what the view's unit makes of it.
std::optional<KVLineEdit::Quantity> KVLineEdit::quantity() const
{
    if (d->tracking() == UnitTracking::Number) {
        QString const & typed = d->typedUnit == Units::inch ? d->inchNumber : d->metricNumber;
        return Quantity{typed.toDouble(), d->typedUnit};
    }
    return std::nullopt;
}

double KVLineEdit::exactValue(int unit) const
{
    auto const held = quantity();
    if (!held) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    bool const wantsInch = unit == Units::inch;
    if (wantsInch == (held->unit == Units::inch)) {
        return held->value;
    }
    return wantsInch ? held->value / Units::millimetresPerInch : held->value * Units::millimetresPerInch;
}

qint64 KVLineEdit::exactLengthNm() const
{
    auto const held = quantity();
    if (!held) {
        return 0;
    }
    double const large =
        held->unit == Units::inch ? Units::nanometresPerInch : Units::nanometresPerMillimetre;
    return nearestInt64(held->value * (d->scale == Large ? large : large / smallPerLarge));
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

void KVLineEdit::setRange(double minimum, double maximum)
{
    d->range = Private::Range{minimum, maximum};
    if (!d->judging) {
        d->judging = connect(this, &QLineEdit::textChanged, this, [this] { judge(); });
    }
    judge();
}

void KVLineEdit::clearRange()
{
    d->range.reset();
    disconnect(d->judging);
    judge();
}

void KVLineEdit::judge() {}

bool KVLineEdit::followView() const
{
    return bool(d->following);
}

void KVLineEdit::setFollowView(bool follow)
{
    if (follow == followView()) {
        return;
    }
    if (!follow) {
        disconnect(d->following);
        return;
    }
    d->following = connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this,
                           [this](void const * view, Ext::ViewAspects aspects) {
                               if (view == d->owner && aspects.testFlag(Ext::ViewAspect::Unit)) {
                                   changeunit(getUnit(d->owner));
                               }
                           });
    // The view may have changed since the text was typed. A text without a unit needs no view to be asked.
    if (d->tracking() != UnitTracking::None && !text().isEmpty()) {
        changeunit(getUnit(d->owner));
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
    if (isVisible()) {
        QToolTip::showText(mapToGlobal(QPoint(0, height())), words, this);
    }
    emit inputRefused(words);
}

} // namespace KVCAM::UIAPI
