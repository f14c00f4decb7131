#pragma once

#include "job/Session.h"
#include "layers/ReferenceBook.h"

#include <QWidget>

#include <string>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace Workbench {

class ReferenceEditor;

/// The reference layers of the step in front, beside all that the library keeps: each step with references
/// and what they refer to. A job, step or layer in the tree can be renamed and deleted as a host would do;
/// the library is told, the files of the job stay unchanged.
class ReferencesPage : public QWidget
{
    Q_OBJECT

public:
    /// The session is not owned and outlives the page.
    explicit ReferencesPage(Session const & session, QWidget * parent = nullptr);

    void setStep(std::string const & step);

private:
    QWidget * makeTree();
    void setTexts();
    void refresh();
    void showSelected();
    void rename();
    void remove();
    void showCalls(QStringList const & calls);

    ReferenceBook m_book;
    ReferenceEditor * m_editor;
    QGroupBox * m_kept;
    QTreeWidget * m_tree;
    QLabel * m_empty;
    QLabel * m_newNameTitle;
    QLineEdit * m_newName;
    QPushButton * m_rename;
    QPushButton * m_delete;
    QLabel * m_calls;
};

} // namespace Workbench
