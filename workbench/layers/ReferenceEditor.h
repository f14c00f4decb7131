#pragma once

#include "job/Session.h"
#include "layers/ReferenceBook.h"

#include <QGroupBox>

#include <optional>
#include <string>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QTableWidget;

namespace Workbench {

/// Edits the reference layers of one step. Offers the layers of the open job and those of the selected
/// record, since a job that is not open may have others.
class ReferenceEditor : public QGroupBox
{
    Q_OBJECT

public:
    /// Nothing is owned; session and book outlive the widget.
    ReferenceEditor(Session const & session, ReferenceBook & book, QWidget * parent = nullptr);

    /// Shows the references of a step of the open job.
    void setStep(std::string const & step);
    /// Shows the current state of the book.
    void refresh();

signals:
    /// The references of the step were changed.
    void changed();

private:
    void makeLayout();
    void setTexts();
    void showRecord();
    void offerLayers(std::vector<std::string> const & ticked);
    std::optional<KVCAM::UIAPI::ReferenceLayerInfo> entered();
    void store(ReferenceBook::Records const & records, int select);
    void add();
    void change();
    void remove();

    Session const & m_session;
    ReferenceBook & m_book;
    std::string m_step;
    QTableWidget * m_records;
    QComboBox * m_job;
    QComboBox * m_refStep;
    QListWidget * m_layers;
    QPushButton * m_add;
    QPushButton * m_change;
    QPushButton * m_remove;
    QLabel * m_hint;
    QLabel * m_jobTitle;
    QLabel * m_stepTitle;
    QLabel * m_layersTitle;
};

} // namespace Workbench
