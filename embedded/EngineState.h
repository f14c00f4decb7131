#pragma once

#include "DatabaseTwins.h"
#include "EmbeddedEngine.h"
#include "Job.h"

#include <algorithm>
#include <deque>
#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// Everything that the engine keeps: what it was told, the open jobs, the database.
class EngineState
{
public:
    /// The process's one state. It is never destroyed, so calls at exit find it whole.
    static EngineState & get();

    LiveState live;
    std::string lastError;
    std::string databaseFile = "uiapi-engine.sqlite";
    std::string configRoot; ///< empty: the current directory
    std::string configFolder = "config";
    DatabaseTwins database;
    std::vector<std::unique_ptr<Job>> jobs; ///< in order of opening
    std::deque<PluginCommand> pluginCommands;

    /// Counts the changes of the live state and the rows of the database, so that their order can be told.
    long long nextSequence() { return ++m_sequence; }
    /// Goes on above the rows that the database file already holds.
    void raiseSequence() { m_sequence = std::max(m_sequence, database.highestSequence()); }
    /// Has `insert` add a row with the next number. Another process may have written to the file meanwhile:
    /// when the number is taken, counting goes on above its rows.
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

    /// By name in any case; null when it is not open.
    Job * findJob(std::string const & name);
    /// As findJob(), but throws JobError.
    Job & job(std::string const & name);

    /// How many operations on a step can be undone; 0 when it is not open.
    int operations(std::string const & job, std::string const & step);

    /// Opens the database; its table of operations then mirrors the history of the open jobs.
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
