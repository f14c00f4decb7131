#pragma once

#include <glog/logging.h>

#include <QObject>
#include <QPlainTextEdit>
#include <QStringList>

namespace Workbench {

/// Collects the log lines of the process, including the library's, from its construction on. Lines may come
/// from any thread; they are kept and signalled on the thread of this object.
class LogLines : public QObject, public google::LogSink
{
    Q_OBJECT

public:
    LogLines();
    ~LogLines() override;
    LogLines(LogLines const &) = delete;
    LogLines & operator=(LogLines const &) = delete;

    /// "ERROR UIAPICommonPara: text", oldest first.
    QStringList const & lines() const { return m_lines; }

    using google::LogSink::send;
    void send(google::LogSeverity severity, char const * fullFilename, char const * baseFilename, int line,
              google::LogMessageTime const & time, char const * message, std::size_t length) override;

signals:
    void added(QString const & line);

private:
    QStringList m_lines;
};

/// Shows the collected lines, with errors and warnings in colour.
class LogPane : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// `log` is not owned and outlives the pane.
    explicit LogPane(LogLines const & log, QWidget * parent = nullptr);

private:
    void append(QString const & line);
};

} // namespace Workbench
