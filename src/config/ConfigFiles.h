#pragma once

#include "config/DiagnosticCollector.h"
#include "support/JsonFile.h"

#include <QIODevice>
#include <QJsonArray>
#include <QString>

#include <string>

/// What the loaders of the configuration files have in common: status of the file, log lines, findings.
namespace KVCAM::UIAPI::ConfigFiles {

/// The beginnings of a loader's ERROR lines; null is silent. A parse error has one text for all files.
struct LoadTexts
{
    char const * missing;
    char const * openFailed;
};

/// "解析config json文件错误！路径：", shared by all loaders.
extern char const * const parseFailed;

enum class Steps
{
    FirstFailure, ///< the first step that fails is reported and ends the loading
    All           ///< every step runs: a missing file also fails to open and to parse
};

/// Reads a file and reports failures: ERROR lines under "UIAPIGlobalVar", each with `shown` at its end, and
/// one finding. The line shown is the caller's.
JsonFile::ReadResult load(QString const & path, LoadTexts const & texts, QString const & shown,
                          Steps steps = Steps::FirstFailure, QIODevice::OpenMode extra = {},
                          int line = __builtin_LINE());

/// Reports a file that could not be read as one finding, without a log line.
void diagnose(QString const & path, JsonFile::ReadResult const & result);

/// Loads a file whose top-level object has one member, the array `key`. Empty when the file cannot be read,
/// which is reported as by load() with the path shown, and, without a log line, when it is shaped otherwise.
QJsonArray loadArray(QString const & path, LoadTexts const & texts, char const * key,
                     FileDiagnostics const & diagnostics, QIODevice::OpenMode extra = {},
                     int line = __builtin_LINE());

/// The text of a value as UTF-8; empty for a value of another type.
std::string textOf(QJsonValue const & value);

} // namespace KVCAM::UIAPI::ConfigFiles
