#pragma once

#include "EmbeddedEngine.h"
#include "state/DatabaseTwins.h"
#include "state/Job.h"

#include <algorithm>
#include <deque>
#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// All state of the engine: the values it was given, the open jobs, the database.
class EngineState
{
public:
    /// The only state of the process. Never destroyed, so it is still valid for calls at exit.
    static EngineState & get();

    LiveState live;
    JobLimits limits; ///< of jobs that are opened from now on
    std::string lastError;
    std::string databaseFile = "uiapi-engine.sqlite";
    std::string configRoot; ///< empty: the current directory
    std::string configFolder = "config";
    DatabaseTwins database;
    std::vector<std::unique_ptr<Job>> jobs; ///< in order of opening
    std::deque<PluginCommand> pluginCommands;

    /// Counts the changes of the live state and the rows of the database together, which gives their order.
    long long nextSequence() { return ++m_sequence; }
    /// Continues above the rows already in the database file.
    void raiseSequence() { m_sequence = std::max(m_sequence, database.highestSequence()); }
    /// Calls `insert` to add a row with the next number. Another process may have written to the file: if the
    /// number is taken, counting continues above that process's rows.
    template <class Insert>
    void addRow(Insert insert)
    {
        try {
            return insert(nextSequence());
        } catch (SequenceTaken const &) {
            raiseSequence();
        }
        insert(nextSequence());
    }

    /// By name, case-insensitive. Null when it is not open.
    Job * findJob(std::string const & name);
    /// As findJob(), but throws JobError.
    Job & job(std::string const & name);

    /// Makes a job one of the open ones, in place of an open one of its name.
    void take(std::unique_ptr<Job> opened);

    /// The number of undoable operations on a step; 0 when it is not open.
    int operations(std::string const & job, std::string const & step);

    /// Opens the database. Its table of operations then mirrors the history of the open jobs.
    void openDatabase();
    /// Rewrites the history of a step in the database.
    void mirrorHistory(std::string const & job, std::string const & step);

private:
    void addHistory(std::string const & jobName, Step const & step);

    long long m_sequence = 0;
};

/// Runs an action of the engine's own interface. If it throws, stores the exception's text as the last error
/// and returns `neutral`.
template <class Result, class Action>
Result withLastError(Result neutral, Action action)
{
    EngineState & state = EngineState::get();
    try {
        state.lastError.clear();
        return action(state);
    } catch (std::exception const & error) {
        state.lastError = error.what();
    }
    return neutral;
}

} // namespace KVCAM::Embedded
