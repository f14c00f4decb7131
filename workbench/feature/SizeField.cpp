#include "feature/SizeField.h"

#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// The legal sizes of a pad.
constexpr Ext::Length smallest = Ext::Length::fromMil(0.5);
constexpr Ext::Length largest = Ext::Length::fromMil(1000);

} // namespace

SizeField::SizeField(QWidget & view, std::function<void()> judged,
                     std::function<void(QString const &)> finished)
    : m_view(view), m_finished(std::move(finished))
{
    setUnitShown(false); // the title of the row names it
    connect(this, &KVLengthEdit::previewChanged, this, judged);
    connect(this, &KVLengthEdit::validityChanged, this, judged);
    connect(this, &KVLengthEdit::valueEdited, this, [this] { m_isUntaken = true; });
    // Queued: a field that loses the focus because its window goes away passes nothing on.
    connect(
        this, &KVLengthEdit::valueEdited, this, [this] { finish(); }, Qt::QueuedConnection);
}

// The dialog tells of a switch only after it has taken what was being typed, so the field does not follow the
// view by itself.
void SizeField::showSize(QString const & size, bool isEnabled)
{
    if (m_isUntaken) {
        return; // it will be passed on
    }
    Unit const shown = Ext::unitOf(&m_view);
    setUnit(shown);
    setEnabled(isEnabled);
    setRange(isEnabled ? smallest : Ext::Length::lowest(), isEnabled ? largest : Ext::Length::highest());
    auto const length = Ext::Length::from(size.toDouble(), shown, Ext::LengthScale::Small);
    if (size.isEmpty()) {
        clearValue();
    } else if (!hasValue() || value() != length) {
        setValue(length);
    }
}

QString SizeField::sizeText() const
{
    return value().text(unit(), Ext::LengthScale::Small);
}

void SizeField::finish()
{
    if (std::exchange(m_isUntaken, false)) {
        m_finished(sizeText());
    }
}

std::optional<QString> SizeField::typedSize()
{
    commit();
    return std::exchange(m_isUntaken, false) ? std::optional(sizeText()) : std::nullopt;
}

} // namespace Workbench
