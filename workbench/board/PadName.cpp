#include "board/PadName.h"

#include <QRegularExpression>

namespace Workbench {

using namespace KVCAM::UIAPI;

std::optional<PadName> parsePadName(QString const & name)
{
    static QRegularExpression const pattern(
        R"(^([a-z_]+)([0-9]+\.?[0-9]*)(?:x([0-9]+\.?[0-9]*)(?=x|$)|(?!x[0-9]))(x.*)?$)");
    auto const parts = pattern.match(name);
    if (!parts.hasMatch()) {
        return std::nullopt;
    }
    QString const prefix = parts.captured(1);
    Ext::SymbolGrammar const * grammar = Ext::findSymbolGrammar(prefix.toStdString());
    if (grammar == nullptr || !(hasSecondSize(*grammar) || parts.captured(3).isEmpty())) {
        return std::nullopt;
    }
    return PadName{grammar, prefix, parts.captured(2), parts.captured(3), parts.captured(4)};
}

bool hasSecondSize(Ext::SymbolGrammar const & grammar)
{
    return grammar.layout.count > 1 && Ext::isSymbolLength(grammar.layout.fields[1]);
}

bool isSizeText(QString const & text)
{
    static QRegularExpression const pattern(R"(^[0-9]+\.?[0-9]*$)");
    return pattern.match(text).hasMatch();
}

} // namespace Workbench
