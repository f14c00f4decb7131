#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

/// Routes commands to plug-in modules through the host's plug-in manager. Modules are called in the order in
/// which their routes were added.
class PluginCommandRelay
{
public:
    /// False if the route already exists.
    bool addRoute(int command, std::string const & key, std::string const & module);
    /// False if there is no such route.
    bool removeRoute(int command, std::string const & key, std::string const & module);

    /// Passes a command to each of its modules. Without a route for command and key, logs an ERROR line. If
    /// the plug-in manager throws, that is logged and the next module is still called. A missing manager is
    /// logged once.
    void setPluginCmd(int command, std::string const & key, void * data) const;

private:
    std::map<std::pair<int, std::string>, std::vector<std::string>> m_routes; // no entry is empty
};

} // namespace KVCAM::UIAPI
