#include "feature/SizeField.h"

#include "feature/PadSymbol.h"

#include <QPointer>

#include <cmath>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// The legal sizes of a pad.
constexpr Ext::Length smallest = Ext::Length::fromMil(0.5);
constexpr Ext::Length largest = Ext::Length::fromMil(1000);

// 0/0 would lie in every range; like any text that is not a number it counts as 0.
double sizeValue(QString const & calculation)
{
    double const value = caculateData(calculation);
    return std::isnan(value) ? 0 : value;
}

// Plain digits as in a symbol name, far finer than a nanometre.
QString plainText(double value)
{
    QString text = QString::number(value, 'f', 6);
    while (text.endsWith('0')) {
        text.chop(1);
    }
    return text.endsWith('.') ? text.chopped(1) : text;
}

} // namespace

SizeField::SizeField(QWidget & view, std::function<void()> judged,
                     std::function<void(std::optional<QString> const &)> finished)
    : KVLineEdit(RegExpression, &view), m_view(view), m_finished(std::move(finished))
{
    setRefusalHints(true);
    connect(this, &QLineEdit::textChanged, this, judged);
    // Queued: the box opens when the field is done with its event, so that both may be deleted meanwhile.
    connect(
        this, &QLineEdit::editingFinished, this, [this] { finish(); }, Qt::QueuedConnection);
    connect(this, &KVLineEdit::validityChanged, this, [this, judged](bool /*legal*/, QString words) {
        m_fault = words;
        judged();
    });
}

void SizeField::showSize(QString const & size, bool isEnabled)
{
    setEnabled(isEnabled);
    if (text() != size) { // a text that is set again would lose its undo history
        setText(size);
    }
    setModified(false);
    if (isEnabled) {
        setRange(smallest, largest);
    } else {
        clearRange();
    }
}

void SizeField::judgeAgain()
{
    if (isEnabled()) {
        setRange(smallest, largest);
    }
}

void SizeField::finish()
{
    if (!isModified()) {
        return;
    }
    setModified(false); // the box takes the focus, which must not finish the field again
    QString const typed = text();
    QPointer<SizeField> const alive(this);
    bool const isLegal = judgeCaculateIsStandard(typed) &&
                         isValueLegal(sizeValue(typed), smallest.toMil(), largest.toMil(), &m_view);
    if (alive) {
        m_finished(isLegal ? std::optional(plainText(sizeValue(typed))) : std::nullopt);
    }
}

std::optional<QString> SizeField::typedSize(Unit unit) const
{
    double const value = sizeValue(text());
    bool const isLegal =
        m_fault.isEmpty() &&
        Ext::checkValue(Ext::Length::from(value, unit, Ext::LengthScale::Small), smallest, largest, unit).ok;
    return isModified() && isLegal ? std::optional(plainText(value)) : std::nullopt;
}

QString SizeField::valueText() const
{
    double const value = sizeValue(text());
    bool const isCalculation = isModified() && !isSizeText(text()) && value > 0;
    return isCalculation ? "= " + plainText(value) : QString();
}

// The base class never finishes an empty field, so leaving it has to restore the size.
void SizeField::focusOutEvent(QFocusEvent * event)
{
    if (text().isEmpty()) {
        finish();
    }
    KVLineEdit::focusOutEvent(event);
}

} // namespace Workbench
