#pragma once

#include <QString>

#include <string>

namespace Workbench {

/// A category's name in the language of the screen. The names of the library are English; one that is not in
/// its dictionary, such as the user's own in a range file, stays as it is.
QString shownName(std::string const & name);
/// The same for a list of names, separated by ", ".
QString shownNames(QString const & names);

} // namespace Workbench
