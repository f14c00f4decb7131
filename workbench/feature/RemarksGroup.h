#pragma once

#include <QCoreApplication>
#include <QGroupBox>
#include <QJsonObject>
#include <QList>

class KVTextEdit;
class QButtonGroup;
class QFormLayout;
class QLineEdit;
class QListWidget;

namespace Workbench {

struct SavedForm;

/// The user's remarks on a pad: the side they apply to, author, note and documents.
class RemarksGroup : public QGroupBox
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::FeatureDialog)

public:
    RemarksGroup();

    KVTextEdit & note() const { return *m_note; }
    void fill(QString const & author, QString const & note, QString const & document);
    /// The fields that the library's form functions read and write.
    QList<QObject *> fields() const;
    /// The rest of the form.
    QJsonObject extras() const;
    void restore(SavedForm const & form);

private:
    QWidget * makeSides();
    void addRow(QFormLayout & form, char const * title, QWidget * field);
    void attachFiles();

    QButtonGroup * m_side;
    QLineEdit * m_author;
    KVTextEdit * m_note;
    QListWidget * m_documents;
};

} // namespace Workbench
