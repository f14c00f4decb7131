#include "widgets/KVListWidgetItem.h"

KVListWidgetItem::KVListWidgetItem(QListWidget * parent) : QListWidgetItem(parent) {}

KVListWidgetItem::KVListWidgetItem(KVListWidgetItem const & other) = default;

KVListWidgetItem & KVListWidgetItem::operator=(KVListWidgetItem const & other) = default;

KVListWidgetItem::~KVListWidgetItem() = default;

KVListWidgetItem * KVListWidgetItem::clone() const
{
    return new KVListWidgetItem(*this);
}

void KVListWidgetItem::setItemIcon(QIcon const & first, QIcon const & second, QIcon const & third)
{
    m_shownIcon = first;
    m_secondIcon = second;
    m_thirdIcon = third;
    setIcon(first);
}

QString KVListWidgetItem::getItemUserData() const
{
    return m_userData;
}

void KVListWidgetItem::setItemUserData(QString const & data)
{
    m_userData = data;
}
