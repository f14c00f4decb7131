#include "formats/MatrixFile.h"

#include "formats/JobPaths.h"
#include "formats/LineReader.h"

#include <algorithm>
#include <map>
#include <set>

namespace KVCAM::Embedded {
namespace {

// One block: its keys in capitals, and its first line, for messages about the whole block.
class Block
{
public:
    Block(LineReader & reader, std::string kind)
        : m_reader(reader), m_kind(std::move(kind)), m_line(reader.lineNumber())
    {
        while (m_reader.next()) {
            if (m_reader.line() == "}") {
                return;
            }
            KeyValue const pair = keyValue(m_reader);
            if (!m_entries.emplace(pair.key, Entry{std::string(pair.value), m_reader.lineNumber()}).second) {
                m_reader.fail(pair.key + " stands twice in one block");
            }
        }
        m_reader.fail("the " + m_kind + " block is not closed", m_line);
    }

    // The value of a key that must exist and not be empty.
    std::string const & text(char const * key) const
    {
        auto const found = m_entries.find(key);
        if (found == m_entries.end() || found->second.value.empty()) {
            m_reader.fail("the " + m_kind + " block has no " + key, m_line);
        }
        return found->second.value;
    }

    // The value of an optional key, in lower case.
    std::string optional(char const * key) const
    {
        auto const found = m_entries.find(key);
        return found == m_entries.end() ? std::string() : lowerCase(found->second.value);
    }

    int position(char const * key) const
    {
        std::string const & value = text(key);
        bool const digits = value.size() <= 6 && value.find_first_not_of("0123456789") == std::string::npos;
        int const number = digits ? std::stoi(value) : 0;
        if (number <= 0) {
            fail(key, "is not a positive number");
        }
        return number;
    }

    std::string name() const
    {
        std::string const & value = text("NAME");
        if (std::string const reason = refusal(value); !reason.empty()) {
            m_reader.fail(reason, m_entries.at("NAME").line);
        }
        return lowerCase(value);
    }

    [[noreturn]] void fail(char const * key, std::string const & reason) const
    {
        Entry const & entry = m_entries.at(key);
        m_reader.fail(std::string(key) + '=' + validText(entry.value) + ' ' + reason, entry.line);
    }

private:
    struct Entry
    {
        std::string value;
        int line = 0;
    };

    LineReader & m_reader;
    std::string m_kind;
    int m_line;
    std::map<std::string, Entry> m_entries;
};

// The blocks of one kind read so far, by position.
template <class Record>
class Positions
{
public:
    explicit Positions(long long most) : m_most(most) {}

    void add(Block const & block, char const * key, std::string const & name, Record record)
    {
        if (!m_names.insert(name).second) {
            block.fail("NAME", "stands twice");
        }
        if (!m_records.emplace(block.position(key), std::move(record)).second) {
            block.fail(key, "stands twice");
        }
        if (static_cast<long long>(m_records.size()) > m_most) {
            block.fail(key, "is one more than the job's limit of " + std::to_string(m_most));
        }
    }

    std::vector<Record> take()
    {
        std::vector<Record> records;
        for (auto & [position, record] : m_records) {
            records.push_back(std::move(record));
        }
        return records;
    }

private:
    long long m_most;
    std::map<int, Record> m_records;
    std::set<std::string> m_names;
};

API::layer_info layer(Block const & block)
{
    API::layer_info info;
    info.context = lowerCase(block.text("CONTEXT"));
    if (info.context != "board" && info.context != "misc") {
        block.fail("CONTEXT", "is neither BOARD nor MISC");
    }
    info.type = lowerCase(block.text("TYPE"));
    info.name = block.name();
    info.row = block.position("ROW");
    std::string const polarity = upperCase(block.text("POLARITY"));
    if (polarity != "POSITIVE" && polarity != "NEGATIVE") {
        block.fail("POLARITY", "is neither POSITIVE nor NEGATIVE");
    }
    info.polarity = polarity.substr(0, 3);
    return info;
}

} // namespace

Matrix readMatrix(QString const & path, Budget & budget)
{
    LineReader reader(path, budget);
    Positions<std::string> steps(budget.limits.steps);
    Positions<API::layer_info> layers(budget.limits.layers);
    std::map<std::string, std::pair<std::string, std::string>> spans;
    bool empty = true;
    while (reader.next()) {
        std::string const line = upperCase(reader.line());
        std::string const kind(trimmed(std::string_view(line).substr(0, line.find('{'))));
        if (line.back() != '{' || (kind != "STEP" && kind != "LAYER")) {
            reader.fail("\"STEP {\" or \"LAYER {\" expected");
        }
        Block const block(reader, kind);
        empty = false;
        if (kind == "STEP") {
            std::string const name = block.name();
            steps.add(block, "COL", name, name);
        } else {
            API::layer_info const info = layer(block);
            layers.add(block, "ROW", info.name, info);
            spans[info.name] = {block.optional("START_NAME"), block.optional("END_NAME")};
        }
    }
    if (empty) {
        reader.failWhole("the matrix holds no steps and no layers");
    }
    return {steps.take(), layers.take(), std::move(spans)};
}

} // namespace KVCAM::Embedded
