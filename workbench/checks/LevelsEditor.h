#pragma once

#include <UIAPICommon.h>

#include <QWidget>

#include <array>
#include <optional>

class QLabel;

namespace Workbench {

/// Edits the three levels of a category in the unit of a view. What is typed in one unit keeps its digits
/// when the view changes to the other and back.
class LevelsEditor : public QWidget
{
    Q_OBJECT

public:
    /// `view` is the widget that serves as the handle of the view.
    explicit LevelsEditor(QWidget & view, QWidget * parent = nullptr);

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
        KVCAM::UIAPI::KVLineEdit * edit = nullptr;
        double shown = 0; ///< mil
    };

    void showLevel(Field & field);
    void takeLevel(std::size_t number);
    void setTexts();

    QWidget & m_view;
    std::array<Field, 3> m_fields;
};

/// Whether the levels can grade: all finite, and rising or falling.
bool isGrading(KVCAM::UIAPI::Analysis_Ranges_Record const & levels);

} // namespace Workbench
