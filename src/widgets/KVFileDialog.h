#pragma once

#include "UIAPICommonExport.h"

#include <QFileDialog>

/// A file dialog that selects several entries, folders among them, and has a "Select All" button. It is
/// Qt's own dialog, never the desktop's. Read selectedFiles() after accepted(): fileSelected() and
/// filesSelected() are not emitted, since the choice passes the base's accept() over, which would enter a
/// selected folder.
class UIAPICOMMON_EXPORT KVFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /// Empty, as its base.
    explicit KVFileDialog(QWidget * parent = nullptr);
    ~KVFileDialog() override;

public slots:
    /// Accepts the dialog with what is selected; a selected folder is a choice, it is not entered.
    void onChoice();
    /// Selects every entry of the current directory and accepts the dialog.
    void on_m_ChooseAllPB_clicked();
};
