#pragma once

#include <UIAPICommon.h>

#include <QWidget>

#include <array>
#include <optional>

class QLabel;

namespace Workbench {

/// Edits the three levels of a category in the unit of a view, as lengths: numbers or calculations, in any
/// unit. A level changes only if the user edits it.
class LevelsEditor : public QWidget
{
    Q_OBJECT

public:
    /// `view` is the widget that serves as the handle of the view.
    explicit LevelsEditor(QWidget & view, QWidget * parent = nullptr);

    /// Takes the unit from another view.
    void setView(QWidget & view);
    /// Shows the levels in mil. Without levels the fields are empty and disabled.
    void show(std::optional<KVCAM::UIAPI::Analysis_Ranges_Record> const & levels);
    using QWidget::show;

signals:
    /// The user has changed a level, such as "RedLv".
    void levelEdited(char const * level, double mil);

private:
    struct Field
    {
        QLabel * title = nullptr;
        KVCAM::UIAPI::KVLengthEdit * edit = nullptr;
    };

    void setTexts();

    std::array<Field, 3> m_fields;
};

/// Whether the levels can grade: all finite, and rising or falling.
bool isGrading(KVCAM::UIAPI::Analysis_Ranges_Record const & levels);

} // namespace Workbench
