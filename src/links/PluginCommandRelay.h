#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

/// Which plug-in modules a command goes to, and the way to them through the host's plug-in manager. Modules
/// are told in the order in which their routes were added.
class PluginCommandRelay
{
public:
    /// False when the route is there already.
    bool addRoute(int command, std::string const & key, std::string const & module);
    /// False when there is no such route.
    bool removeRoute(int command, std::string const & key, std::string const & module);

    /// Hands a command to each of its modules. No route for command and key: an ERROR line. A plug-in manager
    /// that throws is logged, and the next module still told; a missing one is logged once.
    void setPluginCmd(int command, std::string const & key, void * data) const;

private:
    std::map<std::pair<int, std::string>, std::vector<std::string>> m_routes; // no entry is empty
};

} // namespace KVCAM::UIAPI
