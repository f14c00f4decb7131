#pragma once

#include "feature/PadSymbol.h"

#include <QDialog>
#include <QList>
#include <QMap>

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

/// What one pad of a view looks like: its symbol and sizes in the view's unit, which they follow. A size
/// field takes a calculation: while it is typed its words or its value stand below, and once it is finished
/// (Return, or the focus leaves) its value becomes the size if it is legal; else a box says why and the last
/// legal size comes back. Nothing is written to the job; the form itself is kept in a file between runs.
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
    /// Saves the form. Closing does so, too, if there is anything of the user's to keep.
    bool saveForm();

    /// Lists the layer's symbol names below the symbol field until the focus leaves the list.
    void showNames();
    /// Fills the remarks.
    void remark(QString const & author, QString const & note, QString const & document);

    QString symbol() const;
    QString width() const;
    QString description() const;
    /// What stands below the sizes: the words of an illegal one, else the value of a calculation.
    QString verdict() const;
    /// The width in nanometres, as typed or stored.
    qint64 exactWidth() const;

    void done(int result) override;
    bool eventFilter(QObject * watched, QEvent * event) override;

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
    void offsetEdited();
    void finishSize(KVCAM::UIAPI::KVLineEdit & field);
    void settleSizes();
    void takeSize(KVCAM::UIAPI::KVLineEdit const & field);
    void showVerdict();
    void refreshUnit();
    void showTitles();
    void setTexts();
    void attachFiles();
    bool isFollowing() const;
    bool hasSize(KVCAM::UIAPI::KVLineEdit const * field) const;
    QJsonObject extras() const;
    QJsonObject remarks() const;
    QString padKey() const;

    BoardView & m_view;
    int m_feature;
    std::string m_job;
    QString m_formFile;
    PadSymbol m_symbol;
    PadSize m_typedOffset{"0", 0};
    QJsonObject m_opened; ///< what remarks() was before the user did anything
    QMap<KVCAM::UIAPI::KVLineEdit const *, QString> m_words; ///< of illegal sizes
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
