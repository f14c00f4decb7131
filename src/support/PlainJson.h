#pragma once

#include <QByteArray>

#include <cstddef>
#include <string_view>

namespace KVCAM::UIAPI {

/// Reads a subset of JSON in order: objects and arrays, texts of printable ASCII without escapes, whole
/// numbers of up to nine digits. Nearly every configuration file is of this form, and reading it takes a
/// fraction of the time of making a document of it. Each function returns false at anything else, valid or
/// not; the file then goes through QJsonDocument, which also knows what is wrong with it.
class PlainJson
{
public:
    /// Refers to the bytes.
    explicit PlainJson(QByteArray const & bytes) : m_at(bytes.cbegin()), m_end(bytes.cend()) {}

    /// Skips blanks, then passes over the character if it is next.
    bool take(char wanted)
    {
        skipBlanks();
        return takeHere(wanted);
    }

    bool text(std::string_view & out)
    {
        if (!take('"')) {
            return false;
        }
        char const * const first = m_at;
        while (m_at != m_end && *m_at >= ' ' && *m_at <= '~' && *m_at != '"' && *m_at != '\\') {
            ++m_at;
        }
        out = {first, static_cast<std::size_t>(m_at - first)};
        return takeHere('"');
    }

    bool number(int & out)
    {
        constexpr int mostDigits = 9;
        bool const isNegative = take('-');
        char const * const first = m_at;
        for (out = 0; m_at != m_end && *m_at >= '0' && *m_at <= '9' && m_at - first < mostDigits; ++m_at) {
            out = out * 10 + (*m_at - '0');
        }
        out = isNegative ? -out : out;
        return m_at != first && (*first != '0' || m_at - first == 1); // what follows must be taken
    }

    /// Passes over an object: `member` reads the value of a key and returns false at what it does not accept.
    template <class Member>
    bool object(Member member)
    {
        std::string_view key;
        return list('{', '}', [&] { return text(key) && take(':') && member(key); });
    }

    /// Passes over an array: `element` reads an element, as in object().
    template <class Element>
    bool array(Element element)
    {
        return list('[', ']', element);
    }

    bool isAtEnd()
    {
        skipBlanks();
        return m_at == m_end;
    }

private:
    template <class Element>
    bool list(char open, char close, Element element)
    {
        if (!take(open)) {
            return false;
        }
        for (bool isFirst = true; !take(close); isFirst = false) {
            if ((!isFirst && !take(',')) || !element()) {
                return false;
            }
        }
        return true;
    }

    bool takeHere(char wanted)
    {
        bool const isNext = m_at != m_end && *m_at == wanted;
        m_at += isNext ? 1 : 0;
        return isNext;
    }

    void skipBlanks()
    {
        while (m_at != m_end && (*m_at == ' ' || *m_at == '\n' || *m_at == '\t' || *m_at == '\r')) {
            ++m_at;
        }
    }

    char const * m_at;
    char const * m_end;
};

} // namespace KVCAM::UIAPI
