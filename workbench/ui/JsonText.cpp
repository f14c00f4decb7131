#include "ui/JsonText.h"

#include <QJsonDocument>

namespace Workbench {

JsonText::JsonText(QByteArray const & bytes)
{
    QJsonParseError error;
    QJsonDocument const document = QJsonDocument::fromJson(bytes, &error);
    m_error = error.error;
    m_isObject = m_error == QJsonParseError::NoError && document.isObject();
    m_object = document.object();
    m_hasBrace = bytes.trimmed().startsWith('{');
    // The parser may stop beyond the end.
    QString const before = QString::fromUtf8(bytes.constData(), qBound(0, error.offset, bytes.size()));
    m_line = before.count('\n') + 1;
    m_column = before.size() - before.lastIndexOf('\n');
}

QString JsonText::fault() const
{
    if (m_isObject) {
        return {};
    }
    if (!m_hasBrace) {
        return tr("A JSON object is expected; it begins with a brace.");
    }
    return tr("Line %1, near column %2: %3").arg(m_line).arg(m_column).arg(reason());
}

// The parser's own messages exist in English only, and some mislead.
QString JsonText::reason() const
{
    switch (m_error) {
    case QJsonParseError::UnterminatedObject:
        return tr("a name in quotation marks, a comma or a closing brace is expected.");
    case QJsonParseError::UnterminatedArray:
    case QJsonParseError::MissingValueSeparator:
        return tr("a comma or a closing bracket is expected.");
    case QJsonParseError::MissingNameSeparator:
        return tr("a colon is expected after the name.");
    case QJsonParseError::MissingObject:
        return tr("a name or a value is expected.");
    case QJsonParseError::TerminationByNumber:
        return tr("the text ends too early.");
    case QJsonParseError::IllegalNumber:
        return tr("this is not a number.");
    case QJsonParseError::UnterminatedString:
        return tr("the string has no closing quotation mark.");
    case QJsonParseError::IllegalEscapeSequence:
        return tr("the string has a backslash that begins no escape.");
    case QJsonParseError::IllegalUTF8String:
        return tr("the string is not UTF-8.");
    case QJsonParseError::DeepNesting:
        return tr("the values are nested too deeply.");
    case QJsonParseError::DocumentTooLarge:
        return tr("the text is too long.");
    case QJsonParseError::GarbageAtEnd:
        return tr("more text follows after the object.");
    case QJsonParseError::IllegalValue:
    case QJsonParseError::NoError:
        break;
    }
    return tr("a value is expected.");
}

} // namespace Workbench
