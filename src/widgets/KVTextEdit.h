#pragma once

#include "UIAPICommonExport.h"

#include <QString>
#include <QTextEdit>

/// A text edit that reports its text whenever it loses the focus. Takes the focus by click and by Tab.
class UIAPICOMMON_EXPORT KVTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    /// Empty, as its base.
    explicit KVTextEdit(QWidget * parent = nullptr);
    ~KVTextEdit() override;

signals:
    /// The plain text, without markup; also when it did not change. A slot may delete the text edit.
    void LostFocus(QString text);

protected:
    /// Emits LostFocus().
    void focusOutEvent(QFocusEvent * event) override;
};
