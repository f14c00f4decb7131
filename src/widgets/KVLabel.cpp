#include "widgets/KVLabel.h"

namespace KVCAM::UIAPI {

KVLabel::KVLabel(QWidget * parent, Qt::WindowFlags flags) : QLabel(parent, flags) {}

KVLabel::KVLabel(QString const & text, QWidget * parent, Qt::WindowFlags flags) : QLabel(text, parent, flags)
{}

KVLabel::~KVLabel() = default;

QString KVLabel::getAttribute1() const
{
    return m_attribute1;
}

QString KVLabel::getAttribute2() const
{
    return m_attribute2;
}

QString KVLabel::getAttribute3() const
{
    return m_attribute3;
}

void KVLabel::setAttribute1(QString & attribute)
{
    m_attribute1 = attribute;
}

void KVLabel::setAttribute2(QString & attribute)
{
    m_attribute2 = attribute;
}

void KVLabel::setAttribute3(QString & attribute)
{
    m_attribute3 = attribute;
}

void KVLabel::setAttribute1(QString const & attribute)
{
    m_attribute1 = attribute;
}

void KVLabel::setAttribute2(QString const & attribute)
{
    m_attribute2 = attribute;
}

void KVLabel::setAttribute3(QString const & attribute)
{
    m_attribute3 = attribute;
}

} // namespace KVCAM::UIAPI
