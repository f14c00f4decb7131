#pragma once

#include "PadSymbol.h"

#include <QDialog>
#include <QList>

class KVListWidget;
class KVTextEdit;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QListWidget;

namespace KVCAM::UIAPI {
class KVLineEdit;
}

namespace Workbench {

class BoardView;

/// What one pad of a view looks like: its symbol and sizes in the view's unit, which they follow, with an
/// entry that calculates. Nothing is written to the job; the form itself is kept in a file between runs.
class FeatureDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows a pad of the layer that `view` shows. `formFile` is where the form is kept. Neither is owned;
    /// the view outlives the dialog.
    FeatureDialog(BoardView & view, int feature, std::string job, QString formFile,
                  QWidget * parent = nullptr);

    /// Whether the form was restored.
    bool isRestored() const { return m_isRestored; }
    /// Restores the form if the file holds this pad's. The view then has the unit that the form was saved in.
    bool restoreForm();
    bool saveForm() const;

    /// Types an expression and takes its value as the width. False when it was refused, which the library
    /// has told the user.
    bool calculate(QString const & expression);

    /// Lists the layer's symbol names below the symbol field until the focus leaves the list.
    void showNames();
    /// Fills the remarks.
    void remark(QString const & author, QString const & note, QString const & document);

    QString symbol() const;
    QString width() const;
    QString description() const;
    QString verdict() const;
    /// The width in nanometres, as typed or stored.
    qint64 exactWidth() const;

protected:
    void changeEvent(QEvent * event) override;

private:
    QWidget * makePadGroup();
    QWidget * makeRemarksGroup();
    QWidget * makeButtons();
    void addRow(QFormLayout & form, QString title, QString scale, QWidget * field);
    void followView();
    void fillFromPad();
    void showSymbol();
    void showFacts();
    void symbolEdited();
    void sizeEdited();
    void judgeExpression();
    void refreshUnit();
    void attachFiles();
    bool isFollowing() const;
    QString padKey() const;

    BoardView & m_view;
    int m_feature;
    std::string m_job;
    QString m_formFile;
    PadSymbol m_symbol;
    int m_shownUnit;
    bool m_isRestored = false;
    bool m_isFilling = false; ///< the dialog changes its fields itself

    QLabel * m_heading = nullptr;
    QLabel * m_description = nullptr;
    QLabel * m_verdict = nullptr;
    QLabel * m_exact = nullptr;
    KVCAM::UIAPI::KVLineEdit * m_name = nullptr;
    KVCAM::UIAPI::KVLineEdit * m_width = nullptr;
    KVCAM::UIAPI::KVLineEdit * m_height = nullptr;
    KVCAM::UIAPI::KVLineEdit * m_offset = nullptr;
    KVCAM::UIAPI::KVLineEdit * m_expression = nullptr;
    QComboBox * m_polarity = nullptr;
    QCheckBox * m_plated = nullptr;
    QButtonGroup * m_side = nullptr;
    QLineEdit * m_author = nullptr;
    KVTextEdit * m_note = nullptr;
    QListWidget * m_documents = nullptr;
    KVListWidget * m_names = nullptr;
    QList<QObject *> m_fields; ///< what the form is made of
};

} // namespace Workbench
