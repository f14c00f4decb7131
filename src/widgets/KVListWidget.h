#pragma once

#include "UIAPICommonExport.h"

#include <QListWidget>

/// A pop-up list: it hides itself as soon as the focus leaves it.
class UIAPICOMMON_EXPORT KVListWidget : public QListWidget
{
    Q_OBJECT

public:
    /// Empty, as its base.
    explicit KVListWidget(QWidget * parent = nullptr);
    ~KVListWidget() override;

protected:
    /// Hides the list.
    void focusOutEvent(QFocusEvent * event) override;
};
