#include "window/Comparison.h"

#include "board/BoardView.h"
#include "layers/ComparePage.h"
#include "window/BoardPage.h"

namespace Workbench {

ComparePage * makeComparison(Session const & session, BoardPage & board)
{
    auto * page = new ComparePage(session);
    page->setStep(board.currentView()->step());
    QObject::connect(&board, &BoardPage::stepChanged, page,
                     [page, &board] { page->setStep(board.currentView()->step()); });
    QObject::connect(&board, &BoardPage::refreshed, page, &ComparePage::setOutOfDate);
    QObject::connect(&board, &BoardPage::compareWanted, page, [page, &board](QString const & layer) {
        page->compareWith(QString::fromStdString(board.currentView()->layer()), layer);
    });
    return page;
}

} // namespace Workbench
