#include "config/OpenJobs.h"

#include <cstddef>

namespace KVCAM::UIAPI {

void OpenJobs::delJob(std::string name)
{
    // The index advances after a removal too: the entry that moves into the freed slot is passed over.
    // Callers that open a job twice rely on it, so this is not std::remove().
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        if (m_names[i] == name) {
            m_names.erase(m_names.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }
}

} // namespace KVCAM::UIAPI
