#pragma once

#include <string>

namespace Workbench {

/// Whether measurements still describe the step that they were taken on. Each operation on the step counts,
/// also one that takes another back: the number of operations alone would not tell them apart.
class Freshness
{
public:
    /// The step was measured when it had this many operations to undo.
    void measured(std::string const & step, int operations)
    {
        *this = {};
        m_step = step;
        m_operations = operations;
    }
    /// A step has this many operations to undo now.
    void seen(std::string const & step, int operations)
    {
        if (step == m_step && operations != m_operations) {
            m_operations = operations;
            m_isChanged = true;
        }
    }
    /// Whether the step has changed since it was measured; false before that.
    bool isChanged() const { return m_isChanged; }

private:
    std::string m_step;
    int m_operations = 0;
    bool m_isChanged = false;
};

} // namespace Workbench
