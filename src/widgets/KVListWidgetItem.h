#pragma once

#include "UIAPICommonExport.h"

#include <QIcon>
#include <QListWidgetItem>
#include <QString>

/// \addtogroup companions

/// A list item with three icons, of which it shows the first, and one text for use by the dialog.
class UIAPICOMMON_EXPORT KVListWidgetItem : public QListWidgetItem
{
public:
    /// Appends itself to `parent`, which then owns it; type 0. With null it belongs to no list.
    explicit KVListWidgetItem(QListWidget * parent = nullptr);
    /// Copies the icons, the user data and what the base copies; the copy belongs to no list.
    KVListWidgetItem(KVListWidgetItem const & other);
    /// Same; the item stays in its list.
    KVListWidgetItem & operator=(KVListWidgetItem const & other);
    ~KVListWidgetItem() override;

    /// A heap-allocated copy, made by the copy constructor and owned by the caller.
    KVListWidgetItem * clone() const override;

    /// Keeps all three and shows the first.
    void setItemIcon(QIcon const & first, QIcon const & second, QIcon const & third);
    ///@{
    /// A text for use by the dialog; empty until set.
    QString getItemUserData() const;
    void setItemUserData(QString const & data);
    ///@}

private:
    QIcon m_shownIcon;
    QIcon m_secondIcon;
    QIcon m_thirdIcon;
    QString m_userData;
};
