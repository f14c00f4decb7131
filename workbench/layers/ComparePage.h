#pragma once

#include "layers/LayerComparison.h"
#include "ui/BackgroundWork.h"

#include <QWidget>

#include <atomic>
#include <memory>
#include <string>

class QCheckBox;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableWidget;
class QTimer;

namespace Workbench {

class CompareView;
class Session;

/// Compares two layers of a step: what only one of them covers, as a picture and as a list of regions from
/// the largest to the smallest. Says how fine it looks.
class ComparePage : public QWidget
{
    Q_OBJECT

public:
    /// The session is not owned and outlives the page.
    explicit ComparePage(Session const & session, QWidget * parent = nullptr);

    /// Takes the layers of another step; drops what was found.
    void setStep(std::string const & step);
    /// Chooses the layers. If both names are the same, the second choice stays.
    void choose(QString const & first, QString const & second);
    /// The same, and compares them if they are two.
    void compareWith(QString const & first, QString const & second);
    /// Compares the chosen layers, all or the part in view.
    void compare();
    void stop();
    bool isBusy() const { return m_work.isBusy(); }
    /// The layers have changed since they were compared.
    void setOutOfDate();
    LayerDifference const & found() const { return m_found; }

private:
    enum class State
    {
        Nothing, ///< has been compared
        Unreadable,
        Busy,
        Stopped,
        OutOfMemory,
        Done
    };

    void chooseCopper();
    void makeLayout();
    void setTexts();
    std::shared_ptr<ComparedLayers const> read();
    void setState(State state);
    void showFound();
    void fillTable();
    QString stateText() const;
    QString foundText() const;

    Session const & m_session;
    std::string m_step;
    QComboBox * m_first;
    QComboBox * m_second;
    QCheckBox * m_visibleOnly;
    QPushButton * m_run;
    QPushButton * m_stop;
    QProgressBar * m_progress;
    QTimer * m_look; ///< at the progress, while there is some
    QLabel * m_legend;
    QLabel * m_text;
    QTableWidget * m_table;
    CompareView * m_view;
    std::shared_ptr<ComparedLayers const> m_layers; ///< as shown; null for none
    QString m_names[2];                             ///< of these
    LayerDifference m_found;
    State m_state = State::Nothing;
    QString m_problem; ///< why a layer is unreadable
    bool m_isOutOfDate = false;
    std::shared_ptr<std::atomic<int>> m_percent = std::make_shared<std::atomic<int>>(0);
    BackgroundWork m_work;
};

} // namespace Workbench
