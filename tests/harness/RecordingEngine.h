#pragma once

#include <kvcam/Records.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::Testing {

/// The engine of the tests: it answers as told by the test and records every engine call in order, as
/// "API::set_show_para(1 0 false true true)". The host's path helpers are counted, not recorded, since
/// loaders may call them any number of times.
class RecordingEngine
{
public:
    static RecordingEngine & get();

    /// The calls since the last take(), in order.
    std::vector<std::string> take();

    /// From now on the call of this name ("set_show_para") is recorded and throws a std::runtime_error.
    void throwFrom(std::string const & name, std::string const & text = "engine failure");
    /// As throwFrom(), but throws something other than a std::exception.
    void throwNonStandardFrom(std::string const & name);
    /// From now on every call throws, the path helpers included: a std::exception or something else.
    void throwFromEveryCall(bool standard);
    /// The next call of this name is recorded and then runs `action`, which may call the library.
    void onNextCall(std::string const & name, std::function<void()> action);
    /// Restores the initial state.
    void reset();

    /// Records a call, then runs the action or throws, as requested.
    void called(std::string const & space, std::string const & name, std::string const & arguments = {});
    /// The same without recording.
    void consult(std::string const & name);

    // The engine's answers.
    bool saveFlag = false;
    bool identifies = true;
    std::set<std::string> openJobs;
    bool opensJobs = true;
    std::map<std::string, std::vector<std::string>> specialSymbols;
    std::vector<std::string> steps;
    std::vector<API::layer_info> layers;
    std::string matrixError;
    int correctUndoFailures = 0; ///< how often CorrectUndo first answers false
    int operations = 0;
    std::string root;
    std::string configFolder = "config";
    std::string rangesFolder = "config/ranges";
    int threadCount = 0;
    API::back_layer_name_info backup;
    bool hasPluginManager = true;
    std::vector<void *> pluginData;       ///< data of each plug-in command
    std::map<std::string, int> consulted; ///< number of calls of each path helper

private:
    std::vector<std::string> m_calls;
    std::map<std::string, std::string> m_throws;
    std::set<std::string> m_nonStandardThrows;
    std::map<std::string, std::function<void()>> m_actions;
    bool m_throwsAlways = false;
    bool m_throwsAlwaysNonStandard = false;
};

} // namespace KVCAM::Testing
