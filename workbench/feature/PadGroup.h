#pragma once

#include "feature/PadSymbol.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QJsonObject>
#include <QList>
#include <QPointer>

#include <string>

class KVListWidget;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;

namespace KVCAM::UIAPI {
class KVLineEdit;
}

namespace Workbench {

class BoardView;
class SizeField;
struct SavedForm;

/// A pad's symbol, sizes, offset and polarity in the unit of its view, which they follow. A size field takes
/// a calculation: while it is typed, the value or what is wrong stands below. When it is finished (Return, or
/// the focus leaves), a legal value becomes the size; any other text stays and changes nothing.
class PadGroup : public QGroupBox
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::FeatureDialog)

public:
    /// Shows a pad of the layer that `view` shows. The view is not owned and outlives the group.
    PadGroup(BoardView & view, int feature, std::string job);

    Unit shownUnit() const { return m_shownUnit; }
    QString symbol() const;
    QString width() const;
    QString description() const;
    /// What stands below the sizes: what is wrong with them, else the value of a calculation.
    QString verdict() const;
    /// The width in nanometres, as typed or stored.
    KVCAM::UIAPI::Ext::Length exactWidth() const;

    /// Lists the layer's symbol names below the symbol field until the focus leaves the list.
    void showNames();
    /// Takes a legal size that is being typed; an illegal one does not count.
    void settle();

    /// The fields that the library's form functions read and write.
    QList<QObject *> fields() const;
    /// Those whose texts do not depend on a unit; extras() has what was typed into the others.
    QList<QObject *> fieldsWithoutUnit() const;
    /// The rest of the form.
    QJsonObject extras() const;
    /// Gives the view the unit that the form was saved in. False, and no change, for a form without a symbol.
    bool restore(SavedForm const & form);

private:
    void makeFields();
    void makeLayout();
    void addRow(QFormLayout & form, QString title, QString scale, QWidget * field);
    void followView();
    void fillFromPad();
    void showSymbol();
    void showFacts();
    void symbolEdited();
    void offsetEdited();
    void finishSize(QString const & size, bool (PadSymbol::*take)(PadSize const &));
    void settleSizes();
    void showVerdict();
    void refreshUnit();
    void showTitles();
    void setTexts();
    bool isFollowing() const;

    BoardView & m_view;
    int m_feature;
    std::string m_job;
    PadSymbol m_symbol;
    bool m_isTyped = false; ///< the symbol's name, by the user
    PadSize m_typedOffset{"0", Unit::Inch};
    Unit m_shownUnit;
    bool m_isFilling = false; ///< the group changes its fields itself

    KVCAM::UIAPI::KVLineEdit * m_name = nullptr;
    SizeField * m_width = nullptr;
    SizeField * m_height = nullptr;
    KVCAM::UIAPI::KVLineEdit * m_offset = nullptr;
    QLabel * m_description = nullptr;
    QLabel * m_verdict = nullptr;
    QLabel * m_exact = nullptr;
    QComboBox * m_polarity = nullptr;
    QCheckBox * m_plated = nullptr;
    QPointer<KVListWidget> m_names;
};

} // namespace Workbench
