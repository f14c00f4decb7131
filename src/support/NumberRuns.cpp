#include "support/NumberRuns.h"

namespace KVCAM::UIAPI {

std::vector<TextRun> splitNumberRuns(QStringView text)
{
    std::vector<TextRun> runs;
    while (!text.isEmpty()) {
        runs.push_back(takeNumberRun(text));
    }
    return runs;
}

} // namespace KVCAM::UIAPI
