#pragma once

#include <UIAPICommon.h>

#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace Workbench {

/// The auto-matrix templates by index, and the 25 texts of the selected one, which can be made the current
/// template, saved as a user template and deleted. What was typed is not lost without a question. Files are
/// written and deleted only for templates that are alone in a user's file.
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
    bool mayLeave();
    int selectedIndex() const;
    KVCAM::UIAPI::AutoMatrixTmp edited() const;
    void select();
    void save();
    void saveAsNew();
    void remove();
    void describeFile(int index);
    /// The file of a template that is alone in it; nothing for any other template.
    static std::optional<QString> ownFile(int index);
    bool refuseUsedFile(QString const & file);
    void checkStored(int index, QString const & file);
    void inform(QString const & text);

    QTableWidget * m_list;
    QLabel * m_current;
    QLabel * m_hint = nullptr;
    QLineEdit * m_name = nullptr;
    QWidget * m_editor = nullptr;
    std::unique_ptr<KVCAM::UIAPI::Ext::FormState> m_form; ///< of what is shown since it was selected
    int m_row = -1;                                       ///< that is shown
    std::array<QLineEdit *, KVCAM::UIAPI::Ext::autoMatrixRoles.size()> m_prefixes{};
    std::array<QLineEdit *, KVCAM::UIAPI::Ext::autoMatrixRoles.size()> m_suffixes{};
};

} // namespace Workbench
