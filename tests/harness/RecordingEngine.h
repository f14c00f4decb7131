#pragma once

#include <kvcam/Records.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::Testing {

/// The engine of the tests: it answers what a test tells it to and records every engine call in order, as
/// "API::set_show_para(1 0 false true true)". The host's path helpers are counted, not recorded, since
/// loaders ask them at will.
class RecordingEngine
{
public:
    static RecordingEngine & get();

    /// What was called since the last take(), in order.
    std::vector<std::string> take();

    /// From now on the call of this name ("set_show_para") throws std::runtime_error(text) after it was
    /// recorded.
    void throwFrom(std::string const & name, std::string const & text = "engine failure");
    /// As throwFrom(), but what is thrown is no std::exception.
    void throwNonStandardFrom(std::string const & name);
    /// From now on every call throws, the path helpers included: a std::exception or something else.
    void throwFromEveryCall(bool standard);
    /// From now on the call of this name runs `action` after it was recorded, once; the action may call the
    /// library.
    void onNextCall(std::string const & name, std::function<void()> action);
    /// Back to the state at start.
    void reset();

    /// The recording side: notes a call, then runs or throws what was asked for.
    void called(std::string const & space, std::string const & name, std::string const & arguments = {});
    /// The same for calls that are not recorded.
    void consult(std::string const & name);

    // What the engine answers.
    bool saveFlag = false;
    bool identifies = true;
    std::set<std::string> openJobs;
    bool opensJobs = true;
    std::map<std::string, std::vector<std::string>> specialSymbols;
    std::vector<std::string> steps;
    std::vector<API::layer_info> layers;
    std::string matrixError;
    int correctUndoFailures = 0; ///< so many times CorrectUndo answers false first
    int operations = 0;
    std::string root;
    std::string configFolder = "config";
    std::string rangesFolder = "config/ranges";
    int threadCount = 0;
    API::back_layer_name_info backup;
    bool hasPluginManager = true;
    std::vector<void *> pluginData;       ///< what each command to a plug-in module came with
    std::map<std::string, int> consulted; ///< how often each path helper was asked

private:
    std::vector<std::string> m_calls;
    std::map<std::string, std::string> m_throws;
    std::set<std::string> m_nonStandardThrows;
    std::map<std::string, std::function<void()>> m_actions;
    bool m_throwsAlways = false;
    bool m_throwsAlwaysNonStandard = false;
};

} // namespace KVCAM::Testing
