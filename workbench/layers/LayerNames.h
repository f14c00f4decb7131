#pragma once

#include <QString>
#include <QStringList>

namespace Workbench {

/// Whether a name is one of those that a filter asks for: words separated by "|", each a part of the name, in
/// any case, with "*" for any text and "?" for any letter. An empty filter asks for every name.
bool isAskedFor(QString const & name, QString const & filter);

/// The index of the name that typing leads to: the next one that begins with what was typed, otherwise the
/// next one that contains it; in any case, and after the last one comes the first. The first letter moves
/// on from `current` (-1: none), as does the same letter typed again; further ones may stay there. -1 if
/// there is none.
int foundByTyping(QStringList const & names, int current, QString const & typed);

} // namespace Workbench
