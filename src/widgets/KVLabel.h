#pragma once

#include "UIAPICommonExport.h"

#include <QLabel>
#include <QString>

/// \addtogroup companions
namespace KVCAM::UIAPI {

/// A label with three free texts for use by the dialog. They have no behaviour: dialogs tag a label with them
/// and read them back, also as Qt properties.
class UIAPICOMMON_EXPORT KVLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString Attribute1 READ getAttribute1 WRITE setAttribute1)
    Q_PROPERTY(QString Attribute2 READ getAttribute2 WRITE setAttribute2)
    Q_PROPERTY(QString Attribute3 READ getAttribute3 WRITE setAttribute3)

public:
    ///@{
    /// Same as the base.
    explicit KVLabel(QWidget * parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    explicit KVLabel(QString const & text, QWidget * parent = nullptr,
                     Qt::WindowFlags flags = Qt::WindowFlags());
    ///@}
    ~KVLabel() override;

    ///@{
    /// Empty until set. A setter does not change its argument.
    QString getAttribute1() const;
    QString getAttribute2() const;
    QString getAttribute3() const;
    void setAttribute1(QString & attribute);
    void setAttribute2(QString & attribute);
    void setAttribute3(QString & attribute);
    ///@}
    ///@{
    /// The same for a text that is no variable, as uic writes it for a form.
    /// \since 0.2
    void setAttribute1(QString const & attribute);
    void setAttribute2(QString const & attribute);
    void setAttribute3(QString const & attribute);
    ///@}

private:
    QString m_attribute1;
    QString m_attribute2;
    QString m_attribute3;
};

} // namespace KVCAM::UIAPI
