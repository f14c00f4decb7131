#include "support/JsonReader.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace KVCAM::UIAPI {
namespace {

constexpr std::size_t deepest = 64;
constexpr int longestKeyShown = 40;

bool isUtf8(std::string const & text)
{
    if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
        return true;
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QTextCodec::codecForName("UTF-8")->toUnicode(text.data(), static_cast<int>(text.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

void appendUtf8(std::string & out, unsigned code)
{
    uint const character = code;
    out += QString::fromUcs4(&character, 1).toStdString();
}

} // namespace

bool JsonReader::text(std::string & out)
{
    skipBlanks();
    if (!isNext('"')) {
        return fail(QCoreApplication::translate("Json", "A text is expected."));
    }
    return readText(out);
}

bool JsonReader::number(double & out)
{
    std::string_view const digits = numberText();
    if (digits.empty()) {
        return fail(QCoreApplication::translate("Json", "A number is expected."));
    }
    auto const [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), out);
    if (error != std::errc() || end != digits.data() + digits.size()) {
        return fail(QCoreApplication::translate("Json", "The number is out of range."));
    }
    return true;
}

bool JsonReader::number(int & out)
{
    double value = 0;
    if (!number(value)) {
        return false;
    }
    if (std::trunc(value) != value || value > std::numeric_limits<int>::max() ||
        value < std::numeric_limits<int>::min()) {
        return fail(QCoreApplication::translate("Json", "A whole number is expected."));
    }
    out = static_cast<int>(value);
    return true;
}

bool JsonReader::boolean(bool & out)
{
    skipBlanks();
    out = takeWord("true");
    return out || takeWord("false") ||
           fail(QCoreApplication::translate("Json", "true or false is expected."));
}

bool JsonReader::takeNull()
{
    skipBlanks();
    return takeWord("null");
}

bool JsonReader::skip()
{
    skipBlanks();
    std::string passed;
    if (isNext('{')) {
        return object([this](std::string_view) { return skip(); });
    }
    if (isNext('[')) {
        return array([this] { return skip(); });
    }
    if (isNext('"')) {
        return readText(passed);
    }
    return takeWord("true") || takeWord("false") || takeWord("null") || !numberText().empty() ||
           fail(QCoreApplication::translate("Json", "A value is expected."));
}

bool JsonReader::end()
{
    skipBlanks();
    return (m_error.isEmpty() && m_at == m_end) ||
           fail(QCoreApplication::translate("Json", "Something follows the end."));
}

bool JsonReader::fail(QString const & reason)
{
    if (!m_error.isEmpty()) {
        return false;
    }
    auto const line = std::count(m_begin, m_value, '\n') + 1;
    QString const place =
        QCoreApplication::translate("Json", "line %1, byte %2").arg(line).arg(m_value - m_begin);
    QString const where = path();
    m_error =
        (where.isEmpty() ? place : place + QStringLiteral(", ") + where) + QStringLiteral(": ") + reason;
    return false;
}

bool JsonReader::enter(char open)
{
    if (!takeSign(open)) {
        return fail(open == '{' ? QCoreApplication::translate("Json", "An object is expected.")
                                : QCoreApplication::translate("Json", "An array is expected."));
    }
    if (m_path.size() == deepest) {
        return fail(QCoreApplication::translate("Json", "The file is nested too deeply."));
    }
    m_path.push_back({open == '{' ? std::string_view("") : std::string_view(), 0});
    return true;
}

bool JsonReader::separator()
{
    return takeSign(',') ||
           fail(QCoreApplication::translate("Json", "A comma or the end of the list is expected."));
}

bool JsonReader::key()
{
    skipBlanks();
    if (!isNext('"')) {
        return fail(QCoreApplication::translate("Json", "The name of a member is expected."));
    }
    char const * const first = m_at + 1;
    m_key.clear();
    if (!readText(m_key)) {
        return false;
    }
    m_path.back().key = {first, static_cast<std::size_t>(m_at - 1 - first)};
    return takeSign(':') || fail(QCoreApplication::translate("Json", "A colon is expected."));
}

bool JsonReader::takeSign(char wanted)
{
    skipBlanks();
    bool const isTaken = isNext(wanted);
    m_at += isTaken ? 1 : 0;
    return isTaken;
}

bool JsonReader::takeWord(std::string_view word)
{
    bool const isTaken = m_error.isEmpty() && static_cast<std::size_t>(m_end - m_at) >= word.size() &&
                         std::string_view(m_at, word.size()) == word;
    m_at += isTaken ? word.size() : 0;
    return isTaken;
}

// From the quotation mark on.
bool JsonReader::readText(std::string & out)
{
    out.clear();
    for (++m_at; m_at != m_end && static_cast<unsigned char>(*m_at) >= 0x20;) {
        if (*m_at == '"') {
            ++m_at;
            return isUtf8(out) || fail(QCoreApplication::translate("Json", "The text is not UTF-8."));
        }
        if (*m_at == '\\') {
            if (!readEscape(out)) {
                return false;
            }
        } else {
            out += *m_at++;
        }
    }
    return fail(QCoreApplication::translate("Json", "The text does not end."));
}

bool JsonReader::readEscape(std::string & out)
{
    constexpr std::string_view names = "\"\\/bfnrt";
    constexpr std::string_view characters = "\"\\/\b\f\n\r\t";
    ++m_at;
    if (m_at != m_end && *m_at == 'u') {
        ++m_at;
        unsigned code = 0;
        unsigned low = 0;
        bool isRead = readHex(code);
        if (isRead && QChar::isHighSurrogate(code)) {
            isRead = takeWord("\\u") && readHex(low) && QChar::isLowSurrogate(low);
            code = QChar::surrogateToUcs4(static_cast<ushort>(code), static_cast<ushort>(low));
        }
        if (isRead && !QChar::isSurrogate(code)) {
            appendUtf8(out, code);
            return true;
        }
    } else if (std::size_t const which = m_at == m_end ? std::string_view::npos : names.find(*m_at);
               which != std::string_view::npos) {
        out += characters[which];
        ++m_at;
        return true;
    }
    return fail(QCoreApplication::translate("Json", "The text has an unknown escape."));
}

bool JsonReader::readHex(unsigned & out)
{
    constexpr std::ptrdiff_t length = 4;
    if (m_end - m_at < length) {
        return false;
    }
    auto const [end, error] = std::from_chars(m_at, m_at + length, out, 16);
    bool const isRead = error == std::errc() && end == m_at + length;
    m_at += isRead ? length : 0;
    return isRead;
}

// Empty, with nothing passed over, if there is no number.
std::string_view JsonReader::numberText()
{
    skipBlanks();
    char const * const first = m_at;
    auto const digits = [this] {
        bool const isFound = isDigitNext();
        skipDigits();
        return isFound;
    };
    m_at += isNext('-') ? 1 : 0;
    bool isSound = m_error.isEmpty() && isDigitNext();
    if (isNext('0')) {
        ++m_at;
    } else {
        skipDigits();
    }
    if (isSound && isNext('.')) {
        ++m_at;
        isSound = digits();
    }
    if (isSound && (isNext('e') || isNext('E'))) {
        ++m_at;
        m_at += isNext('-') || isNext('+') ? 1 : 0;
        isSound = digits();
    }
    if (!isSound) {
        m_at = first;
    }
    return {first, static_cast<std::size_t>(m_at - first)};
}

void JsonReader::skipDigits()
{
    while (isDigitNext()) {
        ++m_at;
    }
}

void JsonReader::skipBlanks()
{
    while (m_at != m_end && (*m_at == ' ' || *m_at == '\n' || *m_at == '\t' || *m_at == '\r')) {
        ++m_at;
    }
    m_value = m_at;
}

// "categories[2].entries[0].um"
QString JsonReader::path() const
{
    QString text;
    for (Step const & step : m_path) {
        if (step.key.data() == nullptr) {
            text += QStringLiteral("[%1]").arg(step.index);
        } else if (!step.key.empty()) {
            auto const length = static_cast<int>(std::min<std::size_t>(step.key.size(), longestKeyShown));
            text += (text.isEmpty() ? QString() : QStringLiteral(".")) +
                    QString::fromUtf8(step.key.data(), length).simplified();
        }
    }
    return text;
}

} // namespace KVCAM::UIAPI
