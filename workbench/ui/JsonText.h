#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QJsonParseError>

namespace Workbench {

/// Judges a text as a message of the EDA link, which is one JSON object.
class JsonText
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::JsonText)

public:
    /// UTF-8 is expected, but any bytes are accepted.
    explicit JsonText(QByteArray const & bytes);

    bool isObject() const { return m_isObject; }
    QJsonObject const & object() const { return m_object; } ///< empty if the text is none
    /// What is wrong, and roughly where, as one sentence in the current language; empty for an object. Line
    /// and column count from 1, the column in characters.
    QString fault() const;

private:
    QString reason() const;

    QJsonObject m_object;
    bool m_isObject = false;
    bool m_hasBrace = false; ///< begins with a brace
    QJsonParseError::ParseError m_error = QJsonParseError::NoError;
    int m_line = 1;
    int m_column = 1;
};

} // namespace Workbench
