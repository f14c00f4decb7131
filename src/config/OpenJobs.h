#pragma once

#include <string>
#include <vector>

namespace KVCAM::UIAPI {

/// The names of the open jobs in the order of opening, duplicates included. Never persisted.
class OpenJobs
{
public:
    std::vector<std::string> const & getAll() const { return m_names; }
    void setJob(std::string const & name) { m_names.push_back(name); }
    /// Removes the entries that equal the name byte for byte, except one that directly follows a removed one:
    /// a, a, b without a is a, b. By value: the name may be an entry of the list.
    void delJob(std::string name);
    void delAll() { m_names.clear(); }

private:
    std::vector<std::string> m_names;
};

} // namespace KVCAM::UIAPI
