#include "layers/LayerNames.h"

#include <QRegularExpression>

#include <algorithm>

namespace Workbench {

namespace {

bool isDigit(QChar c)
{
    return c >= '0' && c <= '9';
}

// The end of the digits that begin at a place.
int digitsEnd(QString const & text, int at)
{
    while (at < text.size() && isDigit(text[at])) {
        ++at;
    }
    return at;
}

// Numbers of any length: without leading zeros, the longer one is larger.
int numberOrder(QStringRef a, QStringRef b)
{
    while (a.size() > 1 && a.startsWith('0')) {
        a = a.mid(1);
    }
    while (b.size() > 1 && b.startsWith('0')) {
        b = b.mid(1);
    }
    return a.size() != b.size() ? a.size() - b.size() : a.compare(b);
}

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

int naturalOrder(QString const & a, QString const & b)
{
    int i = 0;
    int j = 0;
    while (i < a.size() && j < b.size()) {
        int order = 0;
        if (isDigit(a[i]) && isDigit(b[j])) {
            int const endA = digitsEnd(a, i);
            int const endB = digitsEnd(b, j);
            order = numberOrder(a.midRef(i, endA - i), b.midRef(j, endB - j));
            i = endA;
            j = endB;
        } else {
            order = int{a[i++].toCaseFolded().unicode()} - int{b[j++].toCaseFolded().unicode()};
        }
        if (order != 0) {
            return order;
        }
    }
    return (a.size() - i) - (b.size() - j);
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
