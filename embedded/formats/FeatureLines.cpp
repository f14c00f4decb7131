#include "formats/FeatureLines.h"

#include "formats/InputFile.h"
#include "formats/JobError.h"
#include "formats/LineReader.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string>

namespace KVCAM::Embedded {
namespace {

constexpr std::string_view blanks = " \t\r\v\f\n";

void append(QByteArray & bytes, std::string_view text)
{
    bytes.append(text.data(), static_cast<int>(text.size()));
}

} // namespace

std::optional<int> wholeNumber(std::string_view text)
{
    int value = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

void appendReplaced(QByteArray & bytes, std::string_view line, std::string_view word, int value)
{
    append(bytes, line.substr(0, static_cast<std::size_t>(word.data() - line.data())));
    bytes.append(QByteArray::number(value));
    append(bytes, line.substr(static_cast<std::size_t>(word.data() + word.size() - line.data())));
}

namespace {

// Which word of a record is its symbol.
int symbolWord(std::string_view line)
{
    char const letter = wordOf(line, 0).front();
    return letter == 'P' ? 3 : letter == 'L' ? 5 : 7;
}

QByteArray tableLines(FeatureEdits const & edits, bool crlf)
{
    QByteArray lines;
    for (auto const & [index, symbol] : edits.newSymbols) {
        lines += '$' + QByteArray::number(index) + ' ' + QByteArray::fromStdString(symbol.name) +
                 (symbol.unit == edits.unit ? ""
                  : symbol.unit == 1        ? " M"
                                            : " I") +
                 (crlf ? "\r\n" : "\n");
    }
    return lines;
}

// The texts of a table by their index.
using Table = std::map<int, std::string>;

void addEntry(Table & table, std::string_view line)
{
    std::string_view const entry = trimmed(line.substr(0, line.find('\n'))).substr(1);
    std::string_view const index = entry.substr(0, entry.find_first_of(blanks));
    if (auto const known = wholeNumber(index)) {
        table[*known] = validText(trimmed(entry.substr(index.size())));
    }
}

// Values are numbers. Those of these attributes count in the table of texts.
bool hasText(std::string const & name)
{
    static constexpr std::string_view names[] = {".string",          ".geometry", ".net_name", ".comment",
                                                 ".test_point_name", ".pattern",  ".color"};
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

// ";<index>[=<value>],...": the part before a further ';', which is an ID, as is a part that begins so.
std::vector<FeatureAttribute> attributesOf(std::string_view line, Table const & names, Table const & texts)
{
    std::vector<FeatureAttribute> attributes;
    std::string_view list = line.substr(std::min(line.find(';'), line.size() - 1) + 1);
    list = trimmed(list.substr(0, std::min(list.find(';'), list.find('\n'))));
    while (!list.empty() && list.substr(0, 3) != "ID=") {
        std::string_view const item = trimmed(list.substr(0, list.find(',')));
        list.remove_prefix(std::min(list.find(','), list.size() - 1) + 1);
        std::size_t const equals = std::min(item.find('='), item.size());
        auto const name = names.find(wholeNumber(item.substr(0, equals)).value_or(-1));
        if (name == names.end()) {
            continue;
        }
        std::string_view const value = trimmed(item.substr(std::min(equals + 1, item.size())));
        auto const text = texts.find(wholeNumber(value).value_or(-1));
        bool const isText = hasText(name->second) && text != texts.end();
        attributes.push_back({name->second, isText ? text->second : validText(value)});
    }
    return attributes;
}

} // namespace

std::string_view wordOf(std::string_view line, int number)
{
    std::string_view rest = line;
    for (int i = 0;; ++i) {
        rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
        std::string_view const word = rest.substr(0, rest.find_first_of(blanks));
        if (i == number || word.empty()) {
            return word;
        }
        rest.remove_prefix(word.size());
    }
}

bool FeatureLines::next()
{
    if (m_rest.empty()) {
        return false;
    }
    std::size_t const end = std::min(m_rest.find('\n'), m_rest.size() - 1) + 1;
    m_line = m_rest.substr(0, end);
    m_rest.remove_prefix(end);
    m_kind = classify(wordOf(m_line, 0));
    return true;
}

FeatureLines::Kind FeatureLines::classify(std::string_view word)
{
    switch (word.empty() ? '#' : word.front()) {
    case '$':
        return Kind::Symbol;
    case '@':
        return Kind::AttributeName;
    case '&':
        return Kind::AttributeText;
    case '#':
        return m_inSurface ? Kind::Surface : Kind::Other;
    default:
        break;
    }
    std::string_view const letter = word.substr(0, word.find(';'));
    if (m_inSurface) {
        m_inSurface = letter != "SE";
        return Kind::Surface;
    }
    if (letter.find('=') != std::string_view::npos || letter == "U") {
        return Kind::Other;
    }
    if (letter == "F") {
        return Kind::Announced;
    }
    ++m_feature;
    m_inSurface = letter == "S";
    return Kind::Feature;
}

QByteArray editedFeatures(std::string_view text, FeatureEdits const & edits)
{
    QByteArray edited;
    edited.reserve(static_cast<int>(text.size()) + 64 * static_cast<int>(edits.newSymbols.size()));
    int const left = static_cast<int>(std::count(edits.deleted.begin(), edits.deleted.end(), false));
    int tableEnd = -1; // in the text written: after the last symbol above the features
    FeatureLines lines(text);
    while (lines.next()) {
        std::string_view const line = lines.line();
        auto const feature = static_cast<std::size_t>(lines.feature());
        bool const isPart =
            lines.kind() == FeatureLines::Kind::Feature || lines.kind() == FeatureLines::Kind::Surface;
        if (isPart && feature >= edits.deleted.size()) {
            break;
        }
        if (lines.kind() == FeatureLines::Kind::Feature && feature == 0) {
            bool const crlf = line.size() > 1 && line[line.size() - 2] == '\r';
            edited.insert(tableEnd < 0 ? edited.size() : tableEnd, tableLines(edits, crlf));
        }
        if (isPart && edits.deleted[feature]) {
            continue;
        }
        if (lines.kind() == FeatureLines::Kind::Announced && left != static_cast<int>(edits.deleted.size())) {
            appendReplaced(edited, line, wordOf(line, 1), left);
            continue;
        }
        auto const symbol = lines.kind() == FeatureLines::Kind::Feature ? edits.symbols.find(lines.feature())
                                                                        : edits.symbols.end();
        if (symbol == edits.symbols.end()) {
            append(edited, line);
        } else {
            appendReplaced(edited, line, wordOf(line, symbolWord(line)), symbol->second);
        }
        if (lines.kind() == FeatureLines::Kind::Symbol && lines.feature() < 0) {
            tableEnd = edited.size();
        }
    }
    if (static_cast<std::size_t>(lines.feature()) + 1 != edits.deleted.size()) {
        throw JobError("the file has changed since it was read");
    }
    return edited;
}

std::vector<FeatureAttribute> readAttributes(QString const & path, int feature, long long largest)
{
    QByteArray const bytes = readInput(path, largest);
    Table names;
    Table texts;
    FeatureLines lines({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    while (lines.next()) {
        if (lines.kind() == FeatureLines::Kind::AttributeName) {
            addEntry(names, lines.line());
        } else if (lines.kind() == FeatureLines::Kind::AttributeText) {
            addEntry(texts, lines.line());
        } else if (lines.kind() == FeatureLines::Kind::Feature && lines.feature() == feature) {
            return attributesOf(lines.line(), names, texts);
        }
    }
    throw JobError((path + ": the file has changed since it was read").toStdString());
}

} // namespace KVCAM::Embedded
