#pragma once

#include <UIAPICommon.h>

#include <QWidget>

#include <array>
#include <optional>

class QLabel;

namespace Workbench {

/// The three levels of a category, to be edited in the unit of a view. What is typed in one unit keeps its
/// digits when the view changes to the other and back.
class LevelsEditor : public QWidget
{
    Q_OBJECT

public:
    /// `view` is the handle whose unit counts; a view's handle is its widget.
    explicit LevelsEditor(QWidget & view, QWidget * parent = nullptr);

    /// Shows the levels, in mil; without any the fields are empty and take nothing.
    void show(std::optional<KVCAM::UIAPI::Analysis_Ranges_Record> const & levels);
    using QWidget::show;

signals:
    /// The user has entered another level. `level` is its name: "RedLv".
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

/// Whether the levels grade anything: finite and in one order or the other.
bool isGrading(KVCAM::UIAPI::Analysis_Ranges_Record const & levels);

} // namespace Workbench
