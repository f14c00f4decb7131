#pragma once

#include <UIAPICommon.h>

#include <QCoreApplication>
#include <QGroupBox>

#include <functional>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace Workbench {

class AnalysisRun;
class BoardView;
class LevelsEditor;

/// The levels of the selected check, which can be edited and saved, with a hint on their state.
class LevelsBox : public QGroupBox
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::ResultsPage)

public:
    /// `regrade` is called when the user has changed a level. The run and the view outlive the box.
    LevelsBox(AnalysisRun & run, BoardView & view, std::function<void()> regrade);

    /// Takes the unit from another view.
    void setView(BoardView & view);
    /// Shows the levels of a category of the run's report, null for none. It stays valid until the next run.
    void showCategory(KVCAM::UIAPI::Ext::ReportCategory const * category);

private:
    void setTexts();
    QString hint() const;
    void changeLevel(char const * level, double mil);
    void saveLevels();

    AnalysisRun & m_run;
    BoardView * m_view;
    std::function<void()> m_regrade;
    KVCAM::UIAPI::Ext::ReportCategory const * m_category = nullptr;
    QVBoxLayout * m_layout;
    LevelsEditor * m_editor = nullptr;
    QLabel * m_hint;
    QPushButton * m_save;
};

} // namespace Workbench
