#pragma once

#include "state/Job.h"

#include <QString>
#include <QVariantList>

#include <stdexcept>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// Thrown when a row's sequence number is taken, for example by another process on the same file.
class SequenceTaken : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The SQLite file of the database twins. Every change of a view's state is a row with its sequence number;
/// the table of operations mirrors what can be undone. Methods throw std::runtime_error with the file and the
/// database's own text. All except open(), close() and isOpen() need an open file.
class DatabaseTwins
{
public:
    bool isOpen() const { return m_open; }
    /// Opens or creates the file. Closed after a failure.
    void open(std::string const & file);
    void close();

    /// The highest sequence number in the file, 0 for a new file. Fails above 2^62, where counting would soon
    /// overflow; the engine never writes such a file.
    long long highestSequence();

    void addShowPara(long long sequence, API::show_param const & value);
    void addSelection(long long sequence, API::Selection const & value);
    void addSelectParam(long long sequence, API::select_info value);
    /// Records a call of the undo family; `size` is the number of operations it found.
    void addUndoCall(long long sequence, char const * call, std::string const & job, std::string const & step,
                     int size);

    void addOperation(long long sequence, std::string const & job, std::string const & step,
                      Operation const & operation);
    void removeLatestOperation(std::string const & job, std::string const & step);
    /// Removes the operations of a job, of one of its steps, or (with an empty job) of all jobs.
    void removeOperations(std::string const & job, std::string const & step);

    /// Writes everything that `action` writes, or nothing.
    template <class Action>
    void inTransaction(Action action)
    {
        run("BEGIN");
        try {
            action();
            run("COMMIT");
        } catch (...) {
            rollback();
            throw;
        }
    }

private:
    void run(char const * sql, QVariantList const & values = {});
    void addSymbolColumn();
    void rollback() noexcept;
    [[noreturn]] void fail(QString const & reason) const;
    std::string message(QString const & reason) const;

    bool m_open = false;
    QString m_file;
};

} // namespace KVCAM::Embedded
