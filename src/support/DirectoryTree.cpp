#include "support/DirectoryTree.h"

#include <utility>

namespace KVCAM::UIAPI {

DirectoryCursor::DirectoryCursor(Directory top) : m_here(std::move(top)) {}

void DirectoryCursor::enter(Directory below)
{
    m_way.push_back(m_here.id());
    m_here = std::move(below);
}

bool DirectoryCursor::leave()
{
    m_here = m_here.parent();
    FileId const expected = m_way.back();
    m_way.pop_back();
    return m_here.isOpen() && m_here.id() == expected;
}

} // namespace KVCAM::UIAPI
