#pragma once

#include "UIAPICommonExport.h"

#include <QIcon>
#include <QListWidgetItem>
#include <QString>

/// A list item that carries three icons, of which it shows the first, and one text of the dialog's own.
class UIAPICOMMON_EXPORT KVListWidgetItem : public QListWidgetItem
{
public:
    /// Appends itself to `parent`, which then owns it; type 0. With null it stands alone.
    explicit KVListWidgetItem(QListWidget * parent = nullptr);
    /// Copies icons and user data with what the base copies; the copy is in no list.
    KVListWidgetItem(KVListWidgetItem const & other);
    /// The same; the item stays in its list.
    KVListWidgetItem & operator=(KVListWidgetItem const & other);
    ~KVListWidgetItem() override;

    /// A copy made with new, as by the copy constructor; the caller's.
    KVListWidgetItem * clone() const override;

    /// Keeps all three and shows the first.
    void setItemIcon(QIcon const & first, QIcon const & second, QIcon const & third);
    ///@{
    /// A text of the dialog's own; empty until set.
    QString getItemUserData() const;
    void setItemUserData(QString const & data);
    ///@}

private:
    QIcon m_shownIcon;
    QIcon m_secondIcon;
    QIcon m_thirdIcon;
    QString m_userData;
};
