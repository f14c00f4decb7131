#include "feature/SymbolNames.h"

#include <EmbeddedEngine.h>
#include <KVCAM_API.h>
#include <UIAPICommon.h>

#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <vector>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

QIcon dot(QColor const & colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colour);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(3, 3, 10, 10);
    return pixmap;
}

// The engine knows the standard symbols and those of its open jobs; `own` are those of the job shown.
bool isStandardSymbol(std::string const & name, std::vector<std::string> const & own)
{
    KVCAM::API::symboltype type{};
    int first = 0;
    int second = 0;
    return KVCAM::API::identify_symbol(name, type, first, second, false) &&
           std::none_of(own.begin(), own.end(), [wanted = QString::fromStdString(name)](auto const & item) {
               return wanted.compare(QString::fromStdString(item), Qt::CaseInsensitive) == 0;
           });
}

} // namespace

void listSymbols(KVListWidget & list, std::string const & job, std::string const & step,
                 std::string const & layer, Unit unit)
{
    std::vector<std::string> ownSymbols;
    KVCAM::API::get_special_symbol_names(job, ownSymbols);
    QIcon const standard = dot("#b5582a");
    QIcon const own = dot("#3f51b5");
    for (auto const & use : KVCAM::Embedded::layerSymbols(job, step, layer)) {
        PadSymbol const symbol(QString::fromStdString(use.name), Ext::unitOfCode(use.unit));
        auto * item = new KVListWidgetItem(&list);
        item->setText(symbol.in(unit));
        item->setItemUserData(symbol.name());
        item->setData(Qt::UserRole, unitCode(symbol.unit()));
        item->setItemIcon(isStandardSymbol(use.name, ownSymbols) ? standard : own, standard, own);
        item->setToolTip(symbolText(symbol.name(), symbol.unit()));
    }
}

PadSymbol listedSymbol(QListWidgetItem const & item)
{
    auto const & chosen = static_cast<KVListWidgetItem const &>(item);
    return {chosen.getItemUserData(), Ext::unitOfCode(chosen.data(Qt::UserRole).toInt())};
}

} // namespace Workbench
