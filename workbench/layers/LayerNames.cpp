#include "layers/LayerNames.h"

#include <QRegularExpression>

#include <algorithm>

namespace Workbench {

namespace {

// "?" and "*" only; brackets are letters of names.
QString pattern(QString const & word)
{
    return QRegularExpression::escape(word).replace("\\*", ".*").replace("\\?", ".");
}

} // namespace

bool isAskedFor(QString const & name, QString const & filter)
{
    QStringList patterns;
    for (QString const & word : filter.split('|')) {
        if (!word.trimmed().isEmpty()) {
            patterns.append(pattern(word.trimmed()));
        }
    }
    return patterns.isEmpty() ||
           QRegularExpression(patterns.join('|'), QRegularExpression::CaseInsensitiveOption)
               .match(name)
               .hasMatch();
}

int foundByTyping(QStringList const & names, int current, QString const & typed)
{
    bool const isRepeated = std::all_of(typed.begin(), typed.end(), [&](QChar c) { return c == typed[0]; });
    auto const search = [&](QString const & text, bool movesOn, bool begins) {
        int const first = std::max(current, 0) + (movesOn && current >= 0 ? 1 : 0);
        for (int i = 0; i < names.size(); ++i) {
            int const index = (first + i) % names.size();
            if (begins ? names[index].startsWith(text, Qt::CaseInsensitive)
                       : names[index].contains(text, Qt::CaseInsensitive)) {
                return index;
            }
        }
        return -1;
    };
    if (typed.isEmpty()) {
        return -1;
    }
    int found = search(typed, typed.size() == 1, true);
    if (found < 0 && isRepeated) {
        found = search(typed.left(1), true, true);
    }
    return found < 0 ? search(typed, typed.size() == 1, false) : found;
}

} // namespace Workbench
