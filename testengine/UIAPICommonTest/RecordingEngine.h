#pragma once

#include "LogCapture.h"
#include <UIAPICommonTest/Export.h>

#include <kvcam/Records.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

/// \addtogroup testing
namespace KVCAM::Testing {

/// The engine of tests: it answers as told by the test and records every engine call in order, as
/// "API::set_show_para(1 0 false true true)". The host's path helpers are counted, not recorded, since
/// loaders may call them any number of times. Names of calls are given without their namespace:
/// "set_show_para". One thread only.
class RecordingEngine
{
public:
    /// The engine of this process.
    UIAPITESTENGINE_EXPORT static RecordingEngine & get();

    /// The calls since the last take(), in order.
    UIAPITESTENGINE_EXPORT Lines take();

    /// From now on the call of this name is recorded and throws a std::runtime_error.
    UIAPITESTENGINE_EXPORT void throwFrom(std::string const & name,
                                          std::string const & text = "engine failure");
    /// As throwFrom(), but throws something other than a std::exception.
    UIAPITESTENGINE_EXPORT void throwNonStandardFrom(std::string const & name);
    /// From now on every call throws, the path helpers included: a std::exception or something else.
    UIAPITESTENGINE_EXPORT void throwFromEveryCall(bool standard);
    /// The next call of this name is recorded and then runs `action`, which may call the library.
    UIAPITESTENGINE_EXPORT void onNextCall(std::string const & name, std::function<void()> action);
    /// The names given to the functions above that no call has met yet: misspelled, or never reached.
    UIAPITESTENGINE_EXPORT Lines unmet() const;
    /// Restores the initial state.
    UIAPITESTENGINE_EXPORT void reset();

    /// Records a call, then runs the action or throws, as requested. The engine's functions call it, and so
    /// may stand-ins for functions of your host beyond them.
    UIAPITESTENGINE_EXPORT void called(std::string const & space, std::string const & name,
                                       std::string const & arguments = {});
    /// The same without recording.
    UIAPITESTENGINE_EXPORT void consult(std::string const & name);

    // The engine's answers.
    bool saveFlag = false;                                          ///< DB::get_SaveFlag()
    bool identifies = true;                                         ///< API::identify_symbol()
    std::set<std::string> openJobs;                                 ///< jobs for API::is_job_opened()
    bool opensJobs = true;                                          ///< whether API::open_job() succeeds
    std::map<std::string, std::vector<std::string>> specialSymbols; ///< of each job
    std::vector<std::string> steps;                                 ///< of every job's matrix
    std::vector<API::layer_info> layers;                            ///< of every job's matrix
    std::string matrixError;                                        ///< the result of API::get_matrix()
    int correctUndoFailures = 0;                ///< how often API::CorrectUndo() first answers false
    int operations = 0;                         ///< API::op_size()
    std::string root;                           ///< Common::getPath(); empty: the current directory
    std::string configFolder = "config";        ///< Common::getPath_config()
    std::string rangesFolder = "config/ranges"; ///< Common::getPath_rangesconfig()
    bool hasPluginManager = true;               ///< whether there is a plug-in manager

    // What the engine was told last, and how often it was asked.
    int threadCount = 0;                  ///< by API::set_net_cal_thread()
    API::back_layer_name_info backup;     ///< by API::set_backup_layername_info()
    std::vector<void *> pluginData;       ///< data of each plug-in command
    std::map<std::string, int> consulted; ///< number of calls of each name, the path helpers included

private:
    Lines m_calls;
    std::map<std::string, std::string> m_throws;
    std::set<std::string> m_nonStandardThrows;
    std::set<std::string> m_unmet;
    std::map<std::string, std::function<void()>> m_actions;
    bool m_throwsAlways = false;
    bool m_throwsAlwaysNonStandard = false;
};

} // namespace KVCAM::Testing
