// KVLengthEdit's properties as Qt Designer can edit them.

#include "widgets/KVLengthEdit.h"
#include "widgets/LengthTexts.h"

namespace KVCAM::UIAPI {

KVLengthEdit::UnitSystem KVLengthEdit::unitSystem() const
{
    return static_cast<UnitSystem>(unit());
}

void KVLengthEdit::setUnitSystem(UnitSystem system)
{
    setUnit(Ext::unitOfCode(system));
}

QString KVLengthEdit::valueAsText() const
{
    return hasValue() ? LengthTexts::write(value(), Ext::Length::lowest()) : QString();
}

void KVLengthEdit::setValueAsText(QString const & text)
{
    if (text.trimmed().isEmpty()) {
        clearValue();
    } else if (auto const length = LengthTexts::read(*this, "valueAsText", text, {})) {
        setValue(*length);
    }
}

QString KVLengthEdit::minimumAsText() const
{
    return LengthTexts::write(minimum(), Ext::Length::lowest());
}

void KVLengthEdit::setMinimumAsText(QString const & text)
{
    if (auto const length = LengthTexts::read(*this, "minimumAsText", text, Ext::Length::lowest())) {
        setMinimum(*length);
    }
}

QString KVLengthEdit::maximumAsText() const
{
    return LengthTexts::write(maximum(), Ext::Length::highest());
}

void KVLengthEdit::setMaximumAsText(QString const & text)
{
    if (auto const length = LengthTexts::read(*this, "maximumAsText", text, Ext::Length::highest())) {
        setMaximum(*length);
    }
}

QString KVLengthEdit::stepAsText() const
{
    return LengthTexts::write(step(), {});
}

void KVLengthEdit::setStepAsText(QString const & text)
{
    if (auto const length = LengthTexts::read(*this, "stepAsText", text, {})) {
        setStep(*length);
    }
}

} // namespace KVCAM::UIAPI
