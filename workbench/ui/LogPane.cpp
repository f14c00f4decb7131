#include "ui/LogPane.h"

#include "ui/Colours.h"

#include <QFontDatabase>
#include <QMetaObject>

namespace Workbench {

namespace {

constexpr QRgb warningColour = 0xff8a5a00;

} // namespace

LogLines::LogLines()
{
    google::AddLogSink(this);
}

LogLines::~LogLines()
{
    google::RemoveLogSink(this);
}

void LogLines::send(google::LogSeverity severity, char const * /*fullFilename*/, char const * baseFilename,
                    int /*line*/, google::LogMessageTime const & /*time*/, char const * message,
                    std::size_t length)
{
    QString const text = QString("%1 %2: ").arg(google::GetLogSeverityName(severity), baseFilename) +
                         QString::fromUtf8(message, static_cast<int>(length));
    QMetaObject::invokeMethod(this, [this, text] {
        m_lines.append(text);
        emit added(text);
    });
}

LogPane::LogPane(LogLines const & log, QWidget * parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setMaximumBlockCount(10000);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    for (QString const & line : log.lines()) {
        append(line);
    }
    connect(&log, &LogLines::added, this, &LogPane::append);
}

void LogPane::append(QString const & line)
{
    QRgb const colour = line.startsWith("ERROR")     ? faultColour
                        : line.startsWith("WARNING") ? warningColour
                                                     : palette().color(QPalette::Text).rgb();
    appendHtml(QString("<span style=\"white-space:pre-wrap; %1\">").arg(textStyle(colour)) +
               line.toHtmlEscaped() + "</span>");
}

} // namespace Workbench
