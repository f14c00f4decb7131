#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace KVCAM::UIAPI {

/// Reads all of JSON in order and without a document: a report of a million measurements would become
/// gigabytes of objects, and QJsonDocument stops at 128 MiB. Each function returns false at anything else
/// than it is asked for, and from then on; the first reason is kept, with its place.
class JsonReader
{
public:
    /// Shares the bytes.
    explicit JsonReader(QByteArray const & bytes)
        : m_bytes(bytes), m_begin(m_bytes.cbegin()), m_at(m_begin), m_end(m_bytes.cend())
    {}

    /// Passes over an object: `member` reads the value of a key, or skips it.
    template <class Member>
    bool object(Member member)
    {
        return list('{', '}', [&] { return key() && member(std::string_view(m_key)); });
    }

    /// Passes over an array: `element` reads an element, or skips it.
    template <class Element>
    bool array(Element element)
    {
        return list('[', ']', element);
    }

    /// Valid UTF-8.
    bool text(std::string & out);
    /// Finite.
    bool number(double & out);
    /// A whole number in the range of int.
    bool number(int & out);
    bool boolean(bool & out);
    /// Whether null was next; it is passed over then. Not a failure.
    bool takeNull();
    /// Passes over a value of any kind, however large; nested at most 64 deep.
    bool skip();
    /// Whether nothing but blanks is left.
    bool end();

    /// Gives up with a reason, one translated sentence, at the value read last; false.
    bool fail(QString const & reason);
    /// Where and why the reading failed, one translated line.
    QString const & error() const { return m_error; }

private:
    /// On the way to the current value: a member, as written in the file, or an element.
    struct Step
    {
        std::string_view key;  ///< of a member; null for an element
        std::size_t index = 0; ///< of an element
    };

    template <class Element>
    bool list(char open, char close, Element element)
    {
        if (!enter(open)) {
            return false;
        }
        for (bool isFirst = true; !takeSign(close); isFirst = false) {
            if ((!isFirst && !separator()) || !element()) {
                return false;
            }
            ++m_path.back().index;
        }
        m_path.pop_back();
        return true;
    }

    bool enter(char open);
    bool separator();
    bool key();
    bool takeSign(char wanted);
    bool takeWord(std::string_view word);
    bool readText(std::string & out);
    bool readEscape(std::string & out);
    bool readHex(unsigned & out);
    std::string_view numberText();
    bool isNext(char wanted) const { return m_error.isEmpty() && m_at != m_end && *m_at == wanted; }
    bool isDigitNext() const { return m_at != m_end && *m_at >= '0' && *m_at <= '9'; }
    void skipDigits();
    void skipBlanks();
    QString path() const;

    QByteArray m_bytes;
    char const * m_begin;
    char const * m_at;
    char const * m_end;
    char const * m_value = m_begin; ///< where the value read last begins
    std::string m_key;
    std::vector<Step> m_path;
    QString m_error;
};

} // namespace KVCAM::UIAPI
