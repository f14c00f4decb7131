#pragma once

#include "ui/Units.h"

#include <QString>

#include <functional>
#include <optional>

namespace Workbench {

/// A size of a pad: a number or a calculation. It is finished by Return or when the focus leaves.
class SizeField : public KVCAM::UIAPI::KVLineEdit
{
public:
    /// `judged` is called when the verdict may have changed, `finished` with the legal size that was typed,
    /// as plain digits; with nothing after a box has said what is wrong. The view is not owned and outlives
    /// the field.
    SizeField(QWidget & view, std::function<void()> judged,
              std::function<void(std::optional<QString> const &)> finished);

    /// Shows a size as not edited. A disabled field is not judged.
    void showSize(QString const & size, bool isEnabled);
    /// Judges the text again, in the present language.
    void judgeAgain();
    /// What is wrong with the text; empty for a legal one.
    QString fault() const { return m_fault; }
    /// "= 12.5" for a calculation that is being typed, else empty.
    QString valueText() const;
    /// The size that is being typed if it is legal in a unit; no box comes up.
    std::optional<QString> typedSize(Unit unit) const;

protected:
    void focusOutEvent(QFocusEvent * event) override;

private:
    void finish();

    QWidget const & m_view;
    std::function<void(std::optional<QString> const &)> m_finished;
    QString m_fault;
};

} // namespace Workbench
