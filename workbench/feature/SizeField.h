#pragma once

#include "ui/Units.h"

#include <QString>

#include <functional>
#include <optional>

namespace Workbench {

/// A size of a pad: a number or a calculation, in any unit. It is finished by Return or when the focus
/// leaves; an illegal text stays in the field and is never taken.
class SizeField : public KVCAM::UIAPI::KVLengthEdit
{
public:
    /// `judged` is called when the fault or the preview has changed, `finished` with the legal size that was
    /// typed, as plain digits in the unit shown. The view is not owned and outlives the field.
    SizeField(QWidget & view, std::function<void()> judged, std::function<void(QString const &)> finished);

    /// Shows a size, in the small unit of the view. A text that is being typed stays if the size is the same.
    /// A disabled field is not judged.
    void showSize(QString const & size, bool isEnabled);
    /// The size that is being typed, in the unit shown, if it is legal. It then counts as taken.
    std::optional<QString> typedSize();

private:
    void finish();
    QString sizeText() const;

    QWidget const & m_view;
    std::function<void(QString const &)> m_finished;
    bool m_isUntaken = false; ///< the user's latest size was not passed on yet
};

} // namespace Workbench
