#pragma once

#include <map>
#include <string>
#include <vector>

namespace KVCAM::UIAPI {

/// The values that the known system attributes offer.
class BuiltInAttributes
{
public:
    struct Entry
    {
        bool takesListedValue = false; ///< the attribute's value is one of `offered`
        std::vector<std::string> offered;
    };

    /// Fills the list.
    void initTotalAttributes();
    /// Assigns the offered values of an attribute; none for one that the list does not hold.
    void getChildAttribute(std::string const & name, std::vector<std::string> & out) const;
    std::map<std::string, Entry> const & entries() const { return m_entries; }

private:
    std::map<std::string, Entry> m_entries;
};

} // namespace KVCAM::UIAPI
