#pragma once

#include <QChar>
#include <QString>
#include <QStringView>

#include <vector>

namespace KVCAM::UIAPI {

/// One maximal run of number characters ('0' to '9' and '.') or of anything else. The view points into the
/// split text and is valid as long as that text.
struct TextRun
{
    QStringView text;
    bool isNumber = false;
};

/// '0' to '9' only: QChar::isDigit() would accept the digits of every script.
inline bool isAsciiDigit(QChar c) noexcept
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/// The characters of a number run. A sign is text.
inline bool isNumberCharacter(QChar c) noexcept
{
    return isAsciiDigit(c) || c == QLatin1Char('.');
}

/// Removes the first run of a non-empty text and returns it.
inline TextRun takeNumberRun(QStringView & rest) noexcept
{
    bool const isNumber = isNumberCharacter(rest.front());
    qsizetype end = 1;
    while (end < rest.size() && isNumberCharacter(rest[end]) == isNumber) {
        ++end;
    }
    TextRun const run{rest.left(end), isNumber};
    rest = rest.mid(end);
    return run;
}

/// Splits a text into its runs, in order; number and text runs alternate. Empty for an empty text.
std::vector<TextRun> splitNumberRuns(QStringView text);

} // namespace KVCAM::UIAPI
