#pragma once

#include <string>
#include <vector>

namespace KVCAM::UIAPI {

/// The values offered by the known system attributes. Empty before initTotalAttributes().
class BuiltInAttributes
{
public:
    struct Row
    {
        char const * name;            ///< ".drill"
        char const * const * offered; ///< null-terminated
    };

    /// Registers the list.
    void initTotalAttributes();
    /// Assigns the offered values of an attribute; none for one not in the list.
    void getChildAttribute(std::string const & name, std::vector<std::string> & out) const;

    ///@{
    /// The list, in its original order.
    Row const * begin() const { return m_begin; }
    Row const * end() const { return m_end; }
    ///@}

private:
    Row const * m_begin = nullptr;
    Row const * m_end = nullptr;
};

} // namespace KVCAM::UIAPI
