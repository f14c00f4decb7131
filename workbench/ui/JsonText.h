#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QJsonParseError>

namespace Workbench {

/// A text judged as a message of the EDA link, which is one JSON object.
class JsonText
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::JsonText)

public:
    /// In UTF-8. Nothing is assumed about the bytes.
    explicit JsonText(QByteArray const & bytes);

    bool isObject() const { return m_isObject; }
    QJsonObject const & object() const { return m_object; } ///< empty if it is none
    /// What is wrong and about where, as one sentence in the present language; empty for an object. Line and
    /// column count from 1, the column in characters.
    QString fault() const;

private:
    QString reason() const;

    QJsonObject m_object;
    bool m_isObject = false;
    bool m_hasBrace = false; ///< whether it begins as an object does
    QJsonParseError::ParseError m_error = QJsonParseError::NoError;
    int m_line = 1;
    int m_column = 1;
};

} // namespace Workbench
