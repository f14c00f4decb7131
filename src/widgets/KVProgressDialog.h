#pragma once

#include "UIAPICommonExport.h"

#include <QProgressDialog>
#include <QString>

/// \addtogroup companions

/// A progress dialog that is stopped by F1, not cancelled by Escape. The working loop polls isDialogStop().
class UIAPICOMMON_EXPORT KVProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    /// Empty, like the base.
    explicit KVProgressDialog(QWidget * parent = nullptr);
    /// Uses only the parent. Set texts, range and flags afterwards through the setters of QProgressDialog.
    KVProgressDialog(QString const & labelText, QString const & cancelButtonText, int minimum, int maximum,
                     QWidget * parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~KVProgressDialog() override;

    /// True once F1 was released in the dialog; stays true.
    bool isDialogStop() const;

protected:
    /// Same as the base, except for keys.
    bool event(QEvent * event) override;
    /// Swallows Escape; other keys act as in a plain widget.
    void keyPressEvent(QKeyEvent * event) override;
    /// Stops on F1.
    void keyReleaseEvent(QKeyEvent * event) override;

private:
    bool m_isStopped = false;
};
