#include "layers/LayerModel.h"

#include <algorithm>
#include <array>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

using Layer = KVCAM::API::layer_info;

/// The text of a column: its member, role and title.
struct TextColumn
{
    LayerModel::Column column;
    LayerModel::Role role;
    std::string Layer::*field;
    char const * title;
};

constexpr std::array<TextColumn, 4> textColumns = {{
    {LayerModel::NameColumn, LayerModel::NameRole, &Layer::name,
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::Ext::LayerModel", "Name")},
    {LayerModel::ContextColumn, LayerModel::ContextRole, &Layer::context,
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::Ext::LayerModel", "Context")},
    {LayerModel::TypeColumn, LayerModel::TypeRole, &Layer::type,
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::Ext::LayerModel", "Type")},
    {LayerModel::PolarityColumn, LayerModel::PolarityRole, &Layer::polarity,
     QT_TRANSLATE_NOOP("KVCAM::UIAPI::Ext::LayerModel", "Polarity")},
}};

TextColumn const * textOf(int column, int role)
{
    for (TextColumn const & each : textColumns) {
        if (each.role == role || (each.column == column && role == Qt::DisplayRole)) {
            return &each;
        }
    }
    return nullptr;
}

bool isDigit(QChar c)
{
    return c >= '0' && c <= '9';
}

// A text whose order by code units is that of people: before its digits a number has their count, behind a
// zero, so that it is compared with other characters as a digit. Leading zeros do not count.
QString sortKey(QString const & text)
{
    QString key;
    for (int at = 0; at < text.size();) {
        if (!isDigit(text[at])) {
            key += text[at++].toCaseFolded();
            continue;
        }
        int end = at;
        while (end < text.size() && isDigit(text[end])) {
            ++end;
        }
        while (at + 1 < end && text[at] == '0') {
            ++at;
        }
        key += '0';
        key += QChar(static_cast<ushort>(std::min(end - at, 0xffff)));
        key += text.midRef(at, end - at);
        at = end;
    }
    return key;
}

} // namespace

LayerModel::LayerModel(QObject * parent) : QAbstractTableModel(parent) {}

LayerModel::~LayerModel() = default;

void LayerModel::setLayers(std::vector<Layer> layers)
{
    beginResetModel();
    m_layers = std::move(layers);
    endResetModel();
}

QModelIndex LayerModel::find(std::string const & name) const
{
    auto const found =
        std::find_if(m_layers.begin(), m_layers.end(), [&](Layer const & each) { return each.name == name; });
    return found == m_layers.end() ? QModelIndex()
                                   : index(static_cast<int>(found - m_layers.begin()), NameColumn);
}

void LayerModel::refreshTexts()
{
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int LayerModel::rowCount(QModelIndex const & parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_layers.size());
}

int LayerModel::columnCount(QModelIndex const & parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LayerModel::data(QModelIndex const & index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    Layer const & layer = m_layers.at(static_cast<std::size_t>(index.row()));
    TextColumn const * const shown = textOf(index.column(), Qt::DisplayRole);
    bool const isRow = index.column() == RowColumn;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return shown != nullptr ? QString::fromStdString(layer.*shown->field)
               : isRow          ? QVariant(QString::number(layer.row))
                                : QVariant();
    case SortRole:
        return shown != nullptr ? sortKey(QString::fromStdString(layer.*shown->field))
               : isRow          ? QVariant(layer.row)
                                : QVariant();
    case RowRole:
        return layer.row;
    default:
        break;
    }
    TextColumn const * const asked = textOf(index.column(), role);
    return asked != nullptr ? QString::fromStdString(layer.*asked->field) : QVariant();
}

QVariant LayerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    TextColumn const * const shown = textOf(section, role);
    return shown != nullptr ? tr(shown->title) : section == RowColumn ? tr("Row") : QVariant();
}

} // namespace KVCAM::UIAPI::Ext
