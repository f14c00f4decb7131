#pragma once

#include "config/DiagnosticCollector.h"
#include "support/Compiler.h"
#include "support/WholeFile.h"

#include <QIODevice>
#include <QJsonArray>
#include <QString>

#include <string>

/// Shared by the loaders of the configuration files: file status, log lines, findings.
namespace KVCAM::UIAPI::ConfigFiles {

/// How a loader's ERROR lines begin; null is silent. Parse errors have the same text for all files.
struct LoadTexts
{
    char const * missing;
    char const * openFailed;
};

/// "解析config json文件错误！路径：", shared by all loaders.
extern char const * const parseFailed;

enum class Steps
{
    FirstFailure, ///< the first failing step is reported and ends loading
    All           ///< every step runs: a missing file also fails to open and to parse
};

/// Reads a file and reports failures: ERROR lines under "UIAPIGlobalVar", each with `shown` at its end, and
/// one finding. The logged line number is the caller's.
WholeFile::ReadResult load(QString const & path, LoadTexts const & texts, QString const & shown,
                           Steps steps = Steps::FirstFailure, QIODevice::OpenMode extra = {},
                           int line = UIAPI_CALLER_LINE);

/// Reports the failure of a file that was read already, as load() does.
void report(WholeFile::ReadResult const & result, QString const & path, LoadTexts const & texts,
            QString const & shown, Steps steps, int line);

/// Reports a file that could not be read as one finding, without a log line.
void diagnose(QString const & path, WholeFile::ReadResult const & result);

/// Loads a file whose top-level object has one member, the array `key`. Empty if the file cannot be read,
/// which is reported as in load() with the path shown. Also empty, without a log line, if the file has a
/// different structure.
QJsonArray loadArray(QString const & path, LoadTexts const & texts, char const * key,
                     FileDiagnostics const & diagnostics, QIODevice::OpenMode extra = {},
                     int line = UIAPI_CALLER_LINE);

/// The same of a file that was read already.
QJsonArray arrayOf(WholeFile::ReadResult const & result, QString const & path, LoadTexts const & texts,
                   char const * key, FileDiagnostics const & diagnostics, int line = __builtin_LINE());

/// The text of a value as UTF-8; empty for a value of another type.
std::string textOf(QJsonValue const & value);

} // namespace KVCAM::UIAPI::ConfigFiles
