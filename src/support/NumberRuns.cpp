#include "support/NumberRuns.h"

namespace KVCAM::UIAPI {

std::vector<TextRun> splitNumberRuns(QStringView text)
{
    std::vector<TextRun> runs;
    for (qsizetype begin = 0; begin < text.size();) {
        bool const isNumber = isNumberCharacter(text[begin]);
        qsizetype end = begin + 1;
        while (end < text.size() && isNumberCharacter(text[end]) == isNumber) {
            ++end;
        }
        runs.push_back({text.mid(begin, end - begin), isNumber});
        begin = end;
    }
    return runs;
}

} // namespace KVCAM::UIAPI
