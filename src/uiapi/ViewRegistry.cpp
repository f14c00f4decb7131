#include "uiapi/ViewRegistry.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace KVCAM::UIAPI {

ViewRegistry & ViewRegistry::operator=(ViewRegistry const & other)
{
    ViewRegistry copy(other);
    m_handles.swap(copy.m_handles);
    m_records.swap(copy.m_records);
    return *this;
}

Step_Config const * ViewRegistry::find(void const * view) const noexcept
{
    auto const found = std::find(m_handles.cbegin(), m_handles.cend(), view);
    return found == m_handles.cend() ? nullptr
                                     : &m_records[static_cast<std::size_t>(found - m_handles.cbegin())];
}

Step_Config * ViewRegistry::find(void const * view) noexcept
{
    return const_cast<Step_Config *>(std::as_const(*this).find(view));
}

bool ViewRegistry::append(Step_Config const & config)
{
    if (find(config.view) != nullptr) {
        return false;
    }
    m_handles.reserve(m_handles.size() + 1); // so that both grow or neither
    m_records.push_back(config);
    m_handles.push_back(config.view);
    return true;
}

} // namespace KVCAM::UIAPI
