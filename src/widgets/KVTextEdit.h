#pragma once

#include "UIAPICommonExport.h"

#include <QString>
#include <QTextEdit>

/// \addtogroup companions

/// A text edit that reports its text whenever it loses focus. Accepts focus by click and Tab.
class UIAPICOMMON_EXPORT KVTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    /// Empty, like the base.
    explicit KVTextEdit(QWidget * parent = nullptr);
    ~KVTextEdit() override;

signals:
    /// The plain text, without markup; emitted even if unchanged. A slot may delete the text edit.
    void LostFocus(QString text);

protected:
    /// Emits LostFocus().
    void focusOutEvent(QFocusEvent * event) override;
};
