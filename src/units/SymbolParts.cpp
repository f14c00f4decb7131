#include "units/SymbolParts.h"

#include "support/NumberRuns.h"

#include <QLatin1String>

#include <algorithm>

namespace KVCAM::UIAPI::Symbols {

using Ext::SymbolGrammar;

QStringView symbolPrefix(QStringView name)
{
    return name.left(std::find_if(name.begin(), name.end(), isAsciiDigit) - name.begin());
}

SymbolParts splitParts(QStringView name)
{
    SymbolParts parts;
    for (;;) {
        auto const separator = std::find(name.begin(), name.end(), QLatin1Char('x'));
        parts.append(name.left(separator - name.begin()));
        if (separator == name.end()) {
            return parts;
        }
        name = name.mid(separator - name.begin() + 1);
    }
}

SymbolGrammar const * findGrammar(QStringView prefix)
{
    for (SymbolGrammar const & candidate : Ext::symbolGrammars) {
        if (prefix == QLatin1String(candidate.prefix.data(), static_cast<int>(candidate.prefix.size()))) {
            return &candidate;
        }
    }
    return nullptr;
}

SymbolGrammar const * findRewriteGrammar(QStringView prefix)
{
    SymbolGrammar const * found = findGrammar(prefix);
    if (found == nullptr && prefix.endsWith(QLatin1Char('x'))) {
        found = findGrammar(prefix.chopped(1));
        return found != nullptr && found->rewrite == Ext::SymbolRewrite::Rectangle ? found : nullptr;
    }
    return found;
}

} // namespace KVCAM::UIAPI::Symbols
