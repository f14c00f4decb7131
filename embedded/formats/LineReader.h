#pragma once

#include "formats/Budget.h"
#include "formats/JobError.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

namespace KVCAM::Embedded {

/// The lines of one text file of a job, LF or CRLF; the file may be compressed. Files are untrusted: a file
/// beyond the limits of the job or a line over 1 MiB is refused.
class LineReader
{
public:
    /// Reads the whole file within the default limits; throws JobError on failure.
    explicit LineReader(QString const & path);
    /// Reads the whole file and adds its size to the budget, which must outlive the reader.
    LineReader(QString const & path, Budget & budget);
    LineReader(LineReader const &) = delete;
    LineReader & operator=(LineReader const &) = delete;
    /// Adds the time since construction to the budget.
    ~LineReader();

    /// How many lines begin with one of these letters and a blank, but no more than the file can hold records
    /// of features: what to reserve.
    std::size_t countRecords(std::string_view letters) const;
    /// Counts a feature, a contour or a side; fails beyond the limit of the job.
    void spendPoint();
    /// Counts an entry of a symbol table; fails beyond the limit of the job.
    void spendSymbol();

    /// Advances to the next line that is neither blank nor a comment ('#'); false at the end of the file.
    /// Now and then fails if the job has taken too long. Throws ReadingStopped when that is asked for.
    bool next();
    /// The current line, trimmed; valid as long as the reader.
    std::string_view line() const { return m_line; }
    int lineNumber() const { return m_number; }

    /// Throws a JobError for the current line.
    [[noreturn]] void fail(std::string const & reason) const;
    [[noreturn]] void fail(std::string const & reason, int lineNumber) const;
    /// Throws a JobError for the file, if no line is to blame.
    [[noreturn]] void failWhole(std::string const & reason) const;

    /// Parses a whole text as a number, independent of the locale; fails with `what` otherwise. A decimal is
    /// finite and within +-1e9.
    double decimal(std::string_view text, char const * what) const;
    int integer(std::string_view text, char const * what) const;

private:
    std::chrono::steady_clock::duration time() const;

    std::chrono::steady_clock::time_point const m_begin = std::chrono::steady_clock::now();
    Budget m_ownBudget; // of a reader without a given one
    Budget & m_budget;
    QString m_path;
    QByteArray m_text;
    std::string_view m_rest;
    std::string_view m_line;
    int m_number = 0;
};

/// A line "KEY = value" split at the first '='; the key in capitals, both trimmed.
struct KeyValue
{
    std::string key;
    std::string_view value;
};
/// Fails when the line holds no '='.
KeyValue keyValue(LineReader const & reader);

/// The blank-separated words of a record.
class Words
{
public:
    Words(LineReader const & reader, std::string_view text) : m_reader(reader), m_rest(text) {}

    /// The next word; fails with `what` if there is none.
    std::string_view next(char const * what);
    double decimal(char const * what) { return m_reader.decimal(next(what), what); }
    int integer(char const * what) { return m_reader.integer(next(what), what); }
    /// The next word, which must be `yes` or `no`.
    bool choice(char yes, char no, char const * what);
    /// Fails if words are left.
    void end() const;

private:
    LineReader const & m_reader;
    std::string_view m_rest;
};

std::string_view trimmed(std::string_view text);
/// ASCII only, like the keys and fixed values of the files.
std::string upperCase(std::string_view text);
/// Text of a file as UTF-8; invalid bytes become replacement characters.
std::string validText(std::string_view text);
/// Text of a file for a message: quoted, shortened, without unprintable characters.
std::string quoted(std::string_view text);

} // namespace KVCAM::Embedded
