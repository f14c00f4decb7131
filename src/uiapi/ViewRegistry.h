#pragma once

#include "uiapi/ViewRecords.h"

#include <deque>
#include <vector>

namespace KVCAM::UIAPI {

/// The per-view records in order of registration. Look-up is linear, over the handles only: the records are
/// large, and scanning them would pull each through the cache. Records never move and are never removed, so a
/// pointer is valid as long as the registry. Copies are independent.
class ViewRegistry
{
public:
    ViewRegistry() = default;
    ViewRegistry(ViewRegistry const &) = default;
    /// All or nothing: the two members always stay in step.
    ViewRegistry & operator=(ViewRegistry const & other);

    /// The first record of a view; null if there is none, and for a null handle, which is never stored.
    Step_Config * find(void const * view) noexcept;
    Step_Config const * find(void const * view) const noexcept;

    /// In the order of registration.
    std::vector<void const *> const & handles() const noexcept { return m_handles; }

    /// Appends a copy; false and no change if the view is already registered. The handle must not be null.
    bool append(Step_Config const & config);

private:
    std::vector<void const *> m_handles; // m_handles[i] is m_records[i].view
    std::deque<Step_Config> m_records;
};

} // namespace KVCAM::UIAPI
