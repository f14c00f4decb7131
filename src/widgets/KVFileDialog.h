#pragma once

#include "UIAPICommonExport.h"

#include <QFileDialog>

/// \addtogroup companions

/// A file dialog that selects several entries, including folders, and has a "Select All" button. Always Qt's
/// own dialog, never the native one.
///
/// The buttons bypass the base's accept(), which would enter a selected folder. They therefore emit only
/// accepted(), not fileSelected() and filesSelected(), and in AcceptSave mode an existing file is chosen
/// without a question. Activating a file (double click, Return) and Return in the name field go through the
/// base: both signals are emitted, and Qt asks before replacing an existing file. In every case
/// selectedFiles() is valid after accepted().
class UIAPICOMMON_EXPORT KVFileDialog : public QFileDialog
{
    Q_OBJECT
    Q_PROPERTY(bool asksBeforeReplacing READ asksBeforeReplacing WRITE setAsksBeforeReplacing)

public:
    /// Empty, like the base.
    explicit KVFileDialog(QWidget * parent = nullptr);
    ~KVFileDialog() override;

    ///@{
    /// Whether, in AcceptSave mode, every way of accepting asks once through Ext::showMessage() before
    /// existing files are replaced. No leaves the dialog open. Folders cause no question. Default false.
    bool asksBeforeReplacing() const;
    void setAsksBeforeReplacing(bool asks);
    ///@}

public slots:
    /// Accepts the dialog with the selected entries; a selected folder is chosen, not entered.
    void onChoice();
    /// Selects every entry of the current directory and accepts the dialog.
    void on_m_ChooseAllPB_clicked();

protected:
    /// Same as the base, except for the question.
    void accept() override;

private:
    bool mayReplace();

    bool m_asksBeforeReplacing = false;
};
