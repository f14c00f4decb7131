#include "formats/LineReader.h"

#include "formats/InputFile.h"

#include <QDir>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace KVCAM::Embedded {
namespace {

constexpr int linesBetweenClocks = 4096;
constexpr std::size_t longestLine = 1024UL * 1024;
constexpr double largestNumber = 1e9;
constexpr std::string_view blanks = " \t\r\v\f";

} // namespace

std::string_view trimmed(std::string_view text)
{
    std::size_t const first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string validText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size())).toStdString();
}

std::string quoted(std::string_view text)
{
    constexpr std::size_t shown = 60;
    std::string_view const begin = text.substr(0, shown);
    QString printable = QString::fromUtf8(begin.data(), static_cast<int>(begin.size()));
    for (QChar & c : printable) {
        c = c.isPrint() ? c : QChar('?');
    }
    return '"' + printable.toStdString() + (text.size() > shown ? "...\"" : "\"");
}

std::string upperCase(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return upper;
}

LineReader::LineReader(QString const & path) : LineReader(path, m_ownBudget) {}

LineReader::LineReader(QString const & path, Budget & budget)
    : m_budget(budget), m_path(QDir::cleanPath(path))
{
    m_text = readInput(m_path, m_budget.limits.fileBytes, m_budget.stop);
    m_budget.bytes += m_text.size();
    if (m_budget.bytes > m_budget.limits.bytes) {
        failWhole(exceededLimit(m_budget));
    }
    m_rest = std::string_view(m_text.constData(), static_cast<std::size_t>(m_text.size()));
}

LineReader::~LineReader()
{
    m_budget.time = time();
}

// All that the job has taken.
std::chrono::steady_clock::duration LineReader::time() const
{
    return m_budget.time + (std::chrono::steady_clock::now() - m_begin);
}

std::size_t LineReader::countRecords(std::string_view letters) const
{
    std::size_t count = 0;
    for (std::string_view rest = m_rest; rest.size() > 1;) {
        m_budget.stop.check();
        count +=
            letters.find(rest[0]) != std::string_view::npos && (rest[1] == ' ' || rest[1] == '\t') ? 1 : 0;
        std::size_t const end = rest.find('\n');
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    constexpr std::size_t shortestRecord = 6; // "S P 0" and the line's end
    return std::min(count, m_rest.size() / shortestRecord);
}

void LineReader::spendPoint()
{
    if (++m_budget.points > m_budget.limits.points) {
        fail(exceededLimit(m_budget));
    }
}

void LineReader::spendSymbol()
{
    if (++m_budget.symbols > m_budget.limits.symbols) {
        fail(exceededLimit(m_budget));
    }
}

bool LineReader::next()
{
    while (!m_rest.empty()) {
        m_budget.stop.check();
        std::size_t const end = std::min(m_rest.find('\n'), m_rest.size());
        if (m_number++ % linesBetweenClocks == 0 &&
            std::chrono::duration<double>(time()).count() > static_cast<double>(m_budget.limits.seconds)) {
            fail("reading the job takes more than " + std::to_string(m_budget.limits.seconds) +
                 " seconds, its limit");
        }
        if (end > longestLine) {
            fail("the line is longer than 1 MiB");
        }
        m_line = trimmed(m_rest.substr(0, end));
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        if (!m_line.empty() && m_line.front() != '#') {
            return true;
        }
    }
    m_line = {};
    return false;
}

void LineReader::fail(std::string const & reason) const
{
    fail(reason, m_number);
}

void LineReader::failWhole(std::string const & reason) const
{
    throw JobError(m_path.toStdString() + ": " + reason);
}

void LineReader::fail(std::string const & reason, int lineNumber) const
{
    throw JobError(m_path.toStdString() + ':' + std::to_string(lineNumber) + ": " + reason);
}

double LineReader::decimal(std::string_view text, char const * what) const
{
    double value = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !(std::abs(value) <= largestNumber)) {
        fail(std::string("bad ") + what + ' ' + quoted(text));
    }
    return value;
}

int LineReader::integer(std::string_view text, char const * what) const
{
    int value = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        fail(std::string("bad ") + what + ' ' + quoted(text));
    }
    return value;
}

KeyValue keyValue(LineReader const & reader)
{
    std::string_view const line = reader.line();
    std::size_t const equals = line.find('=');
    if (equals == std::string_view::npos) {
        reader.fail("KEY=VALUE expected, not " + quoted(line));
    }
    return {upperCase(trimmed(line.substr(0, equals))), trimmed(line.substr(equals + 1))};
}

std::string_view Words::next(char const * what)
{
    m_rest = trimmed(m_rest);
    if (m_rest.empty()) {
        m_reader.fail(std::string("the record is cut short: no ") + what);
    }
    std::size_t const end = std::min(m_rest.find_first_of(blanks), m_rest.size());
    std::string_view const word = m_rest.substr(0, end);
    m_rest.remove_prefix(end);
    return word;
}

bool Words::choice(char yes, char no, char const * what)
{
    std::string_view const word = next(what);
    if (word.size() != 1 || (word[0] != yes && word[0] != no)) {
        m_reader.fail(std::string("bad ") + what + ' ' + quoted(word));
    }
    return word[0] == yes;
}

void Words::end() const
{
    if (std::string_view const rest = trimmed(m_rest); !rest.empty()) {
        m_reader.fail("unexpected " + quoted(rest));
    }
}

} // namespace KVCAM::Embedded
