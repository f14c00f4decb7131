#pragma once

#include "UIAPICommonExport.h"

#include <QProgressDialog>
#include <QString>

/// A progress dialog that Escape does not cancel and F1 stops: the working loop polls isDialogStop().
class UIAPICOMMON_EXPORT KVProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    /// Empty, as its base.
    explicit KVProgressDialog(QWidget * parent = nullptr);
    /// Uses the parent alone. Texts, range and flags are set afterwards through the setters of
    /// QProgressDialog.
    KVProgressDialog(QString const & labelText, QString const & cancelButtonText, int minimum, int maximum,
                     QWidget * parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~KVProgressDialog() override;

    /// True once F1 was released in the dialog; stays true.
    bool isDialogStop() const;

protected:
    /// As the base, keys aside.
    bool event(QEvent * event) override;
    /// Swallows Escape; other keys do only what they do in a plain widget.
    void keyPressEvent(QKeyEvent * event) override;
    /// F1 stops.
    void keyReleaseEvent(QKeyEvent * event) override;

private:
    bool m_isStopped = false;
};
