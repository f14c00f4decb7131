#pragma once

#include "feature/PadSymbol.h"

#include <KVCAM_API.h>

#include <QPointer>
#include <QRectF>
#include <QWidget>

#include <array>
#include <string>
#include <vector>

class KVListWidget;
class KVTextEdit;
class QLabel;
class QToolButton;

namespace KVCAM::UIAPI {
class KVLineEdit;
class KVLengthEdit;
} // namespace KVCAM::UIAPI

namespace Workbench {

class BoardView;

/// What the user has given to features of a layer.
struct SymbolChange
{
    std::string step;
    std::string layer;
    std::vector<int> features;
    PadSymbol symbol;
};

/// What the selected features of a view are: kind, symbol in words, size in both units, net, layer, position
/// and attributes. Several of one symbol show what they have in common. The symbol and its sizes can be
/// changed; a size field takes a calculation. A text that is no symbol or no legal size changes nothing.
class FeaturePane : public QWidget
{
    Q_OBJECT

public:
    /// The view is not owned and outlives the pane, as all that are shown do.
    explicit FeaturePane(BoardView & view);

    /// Shows the selection of a view.
    void showSelection(BoardView & view);
    /// Says in one line what the selected feature is; empty unless it is one.
    QString summary() const;
    /// Lets the user type: into the width, or the symbol if it has none. False, and nothing done, if nothing
    /// that has a symbol is selected.
    bool beginEditing();
    /// Lists the layer's symbols below the symbol field until the focus leaves the list.
    void showNames();

signals:
    /// The user has finished a field. Emitted when the field is done with its key.
    void changeWanted(Workbench::SymbolChange const & change);

private:
    struct Fact
    {
        char const * title; ///< untranslated
        QLabel * text;
    };

    void makeFields();
    void setTexts();
    void fill();
    void fillSelected();
    void showSymbol();
    void showOne(KVCAM::API::feature_info const & feature, QRectF const & box);
    void clearFacts();
    QString placeText(KVCAM::API::feature_info const & feature, QRectF const & box) const;
    QString sizeText(QRectF const & box) const;
    void symbolTyped();
    void sizeTyped(std::size_t field);
    void want(PadSymbol const & symbol);

    BoardView * m_view;
    PadSymbol m_symbol;       ///< that of all shown features, if they have the same
    bool m_hasSymbol = false; ///< whether they have
    bool m_isFilling = false; ///< the pane changes its fields itself

    QLabel * m_heading;
    KVCAM::UIAPI::KVLineEdit * m_name;
    QToolButton * m_names;
    QLabel * m_description;
    std::array<KVCAM::UIAPI::KVLengthEdit *, 2> m_sizes{}; ///< width and height
    QLabel * m_verdict;
    std::vector<Fact> m_facts;
    KVTextEdit * m_attributes;
    QPointer<KVListWidget> m_list;
};

} // namespace Workbench
