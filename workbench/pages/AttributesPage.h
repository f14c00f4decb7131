#pragma once

#include <QWidget>

class QLineEdit;
class QListWidget;
class QTableWidget;

namespace Workbench {

/// The attribute catalogue of "attributes.json" with the values that the library itself offers for the system
/// attributes, and the CAM-mate nodes. A wildcard pattern filters the list.
class AttributesPage : public QWidget
{
    Q_OBJECT

public:
    explicit AttributesPage(QWidget * parent = nullptr);

private:
    void refresh();

    QLineEdit * m_pattern;
    QTableWidget * m_attributes;
};

} // namespace Workbench
