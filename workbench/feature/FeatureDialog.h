#pragma once

#include <QDialog>
#include <QJsonObject>

#include <string>

class QLabel;

namespace Workbench {

class BoardView;
class PadGroup;
class RemarksGroup;

/// One pad of a view, with the user's remarks on it. Nothing is written to the job; the form is saved in a
/// file.
class FeatureDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows a pad of the layer that `view` shows. `formFile` is where the form is saved. The view is not
    /// owned and outlives the dialog.
    FeatureDialog(BoardView & view, int feature, std::string job, QString formFile,
                  QWidget * parent = nullptr);
    ~FeatureDialog() override;

    /// Whether the form was restored.
    bool isRestored() const { return m_isRestored; }
    /// Restores the form if the file holds this pad's. The view then has the unit that the form was saved in.
    bool restoreForm();
    /// Saves the form. Closing does so, too, if the user has changed anything.
    bool saveForm();

    PadGroup & pad() const { return *m_pad; }
    RemarksGroup & remarks() const { return *m_remarks; }

    void done(int result) override;

private:
    QWidget * makeButtons();
    void setTexts();
    QString padKey() const;
    QList<QObject *> fields() const;
    QJsonObject extras() const;
    QJsonObject content() const;

    BoardView & m_view;
    int m_feature;
    std::string m_job;
    QString m_formFile;
    QLabel * m_heading;
    PadGroup * m_pad;
    RemarksGroup * m_remarks;
    QJsonObject m_opened; ///< content() as it was before the user did anything
    bool m_isRestored = false;
};

} // namespace Workbench
