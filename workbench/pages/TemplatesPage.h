#pragma once

#include <UIAPICommon.h>

#include <QWidget>

#include <array>
#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace Workbench {

/// The auto-matrix templates: all of them by index, and the 25 texts of the one at hand, which can be
/// selected as the current template, saved as one of the user's and deleted. Files are written and deleted
/// only for templates that stand alone in a file of the user's.
class TemplatesPage : public QWidget
{
    Q_OBJECT

public:
    explicit TemplatesPage(QWidget * parent = nullptr);

private:
    QWidget * makeEditor();
    void refreshList(int selectIndex);
    void showCurrent();
    void showSelected();
    int selectedIndex() const;
    KVCAM::UIAPI::AutoMatrixTmp edited() const;
    void select();
    void save();
    void saveAsNew();
    void remove();
    void describeFile(int index);
    /// The file of a template that stands alone in one; nothing for every other.
    static std::optional<QString> ownFile(int index);
    bool refuseUsedFile(QString const & file);
    void checkStored(int index, QString const & file);
    void tell(QString const & text);

    QTableWidget * m_list;
    QLabel * m_current;
    QLabel * m_hint = nullptr;
    QLineEdit * m_name = nullptr;
    std::array<QLineEdit *, KVCAM::UIAPI::Ext::autoMatrixRoles.size()> m_prefixes{};
    std::array<QLineEdit *, KVCAM::UIAPI::Ext::autoMatrixRoles.size()> m_suffixes{};
};

} // namespace Workbench
