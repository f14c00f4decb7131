#pragma once

#include "UIAPICommonExport.h"

#include <QListWidget>

/// \addtogroup companions

/// A pop-up list that hides itself when it loses focus.
class UIAPICOMMON_EXPORT KVListWidget : public QListWidget
{
    Q_OBJECT

public:
    /// Empty, like the base.
    explicit KVListWidget(QWidget * parent = nullptr);
    ~KVListWidget() override;

protected:
    /// Hides the list.
    void focusOutEvent(QFocusEvent * event) override;
};
