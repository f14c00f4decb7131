#pragma once

#include "feature/PadSymbol.h"

#include <string>

class KVListWidget;
class QListWidgetItem;

namespace Workbench {

/// Fills a list with the symbols of a layer as they are called in a unit; icons tell standard ones from the
/// job's own.
void listSymbols(KVListWidget & list, std::string const & job, std::string const & step,
                 std::string const & layer, Unit unit);

/// The symbol of an entry of such a list.
PadSymbol listedSymbol(QListWidgetItem const & item);

} // namespace Workbench
