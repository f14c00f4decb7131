#pragma once

#include "Job.h"

#include <QString>
#include <QVariantList>

#include <stdexcept>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// What adding a row throws when its sequence number is taken, as by another process on the same file.
class SequenceTaken : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The SQLite file that the database twins write to. Every change of a view's state is a row with its
/// sequence number; the table of operations mirrors what can be undone. Methods throw std::runtime_error with
/// the file and the database's own text; the file must be open for every one but open(), close() and
/// isOpen().
class DatabaseTwins
{
public:
    bool isOpen() const { return m_open; }
    /// Opens or creates the file; closed after a failure.
    void open(std::string const & file);
    void close();

    /// The highest sequence number in the file, 0 when it is new. Fails above 2^62, where counting on would
    /// soon overflow: no such file is the engine's own.
    long long highestSequence();

    void addShowPara(long long sequence, API::show_param const & value);
    void addSelection(long long sequence, API::Selection const & value);
    void addSelectParam(long long sequence, API::select_info value);
    /// A call of the undo family; `size` is the number of operations that it found.
    void addUndoCall(long long sequence, char const * call, std::string const & job, std::string const & step,
                     int size);

    void addOperation(long long sequence, std::string const & job, std::string const & step,
                      Deletion const & deletion);
    void removeLatestOperation(std::string const & job, std::string const & step);
    /// Removes the operations of a job, or of one step of it, or (with an empty job) of all.
    void removeOperations(std::string const & job, std::string const & step);

    /// What `action` writes stands in the file wholly or not at all.
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
    void rollback() noexcept;
    [[noreturn]] void fail(QString const & reason) const;
    std::string message(QString const & reason) const;

    bool m_open = false;
    QString m_file;
};

} // namespace KVCAM::Embedded
