#pragma once

#include <KVCAM_API.h>

#include <QWidget>

#include <UIAPICommon.h>

#include <array>

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace Workbench {

/// The auto-matrix templates: all of them by index, and the 25 texts of the one at hand, which can be
/// selected as the current template, saved as one of the user's and deleted.
class TemplatesPage : public QWidget
{
    Q_OBJECT

public:
    explicit TemplatesPage(QWidget * parent = nullptr);

private:
    QWidget * makeEditor();
    void refreshList(int selectIndex);
    void showSelected();
    int selectedIndex() const;
    KVCAM::UIAPI::AutoMatrixTmp edited() const;
    void select();
    void save();
    void saveAsNew();
    void remove();

    QTableWidget * m_list;
    QLabel * m_current;
    QLineEdit * m_name = nullptr;
    std::array<QLineEdit *, KVCAM::UIAPI::Ext::autoMatrixRoles.size()> m_prefixes{};
    std::array<QLineEdit *, KVCAM::UIAPI::Ext::autoMatrixRoles.size()> m_suffixes{};
};

} // namespace Workbench
