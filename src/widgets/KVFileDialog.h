#pragma once

#include "UIAPICommonExport.h"

#include <QFileDialog>

/// A file dialog that selects several entries, folders among them, and has a "Select All" button. It is
/// Qt's own dialog, never the desktop's.
///
/// The buttons pass the base's accept() over, which would enter a selected folder. So they emit accepted()
/// alone, not fileSelected() and filesSelected(), and in AcceptSave mode an existing file is chosen without a
/// question. Activating a file (a double click, Return) and Return in the name's field go through the base:
/// both signals are emitted, and Qt asks before an existing file is replaced. What holds in every case is
/// selectedFiles() after accepted().
class UIAPICOMMON_EXPORT KVFileDialog : public QFileDialog
{
    Q_OBJECT
    Q_PROPERTY(bool asksBeforeReplacing READ asksBeforeReplacing WRITE setAsksBeforeReplacing)

public:
    /// Empty, as its base.
    explicit KVFileDialog(QWidget * parent = nullptr);
    ~KVFileDialog() override;

    ///@{
    /// Whether, in AcceptSave mode, each way to accept asks once through Ext::showMessage() before existing
    /// files are replaced; No leaves the dialog open. Folders are not asked about. Default false.
    bool asksBeforeReplacing() const;
    void setAsksBeforeReplacing(bool asks);
    ///@}

public slots:
    /// Accepts the dialog with what is selected; a selected folder is a choice, it is not entered.
    void onChoice();
    /// Selects every entry of the current directory and accepts the dialog.
    void on_m_ChooseAllPB_clicked();

protected:
    /// As the base, the question aside.
    void accept() override;

private:
    bool mayReplace();

    bool m_asksBeforeReplacing = false;
};
