#include "config/ConfigFiles.h"

#include "support/Log.h"

#include <algorithm>

namespace KVCAM::UIAPI::ConfigFiles {
namespace {

using WholeFile::ReadStatus;

void log(ReadStatus status, LoadTexts const & texts, QString const & shown, bool allSteps, int line)
{
    auto const logLine = [&](char const * text) {
        if (text != nullptr) {
            Log::error(Log::globalVar, text + shown.toStdString(), line);
        }
    };
    if (status == ReadStatus::Missing) {
        logLine(texts.missing);
    }
    if (status == ReadStatus::OpenFailed || (allSteps && status == ReadStatus::Missing)) {
        logLine(texts.openFailed);
    }
    if (status == ReadStatus::ParseError || (allSteps && status != ReadStatus::Ok)) {
        logLine(parseFailed);
    }
}

Ext::DiagnosticKind kindOf(ReadStatus status)
{
    switch (status) {
    case ReadStatus::OpenFailed:
        return Ext::DiagnosticKind::OpenFailed;
    case ReadStatus::ParseError:
        return Ext::DiagnosticKind::ParseError;
    case ReadStatus::Ok:
    case ReadStatus::Missing:
        break;
    }
    return Ext::DiagnosticKind::MissingFile;
}

} // namespace

char const * const parseFailed = "解析config json文件错误！路径：";

WholeFile::ReadResult load(QString const & path, LoadTexts const & texts, QString const & shown, Steps steps,
                           QIODevice::OpenMode extra, int line)
{
    WholeFile::ReadResult result = WholeFile::readJson(path, extra);
    report(result, path, texts, shown, steps, line);
    return result;
}

void report(WholeFile::ReadResult const & result, QString const & path, LoadTexts const & texts,
            QString const & shown, Steps steps, int line)
{
    log(result.status, texts, shown, steps == Steps::All, line);
    diagnose(path, result);
}

void diagnose(QString const & path, WholeFile::ReadResult const & result)
{
    if (result.status != ReadStatus::Ok) {
        FileDiagnostics(path).report(kindOf(result.status), {}, result.reason);
    }
}

QJsonArray loadArray(QString const & path, LoadTexts const & texts, char const * key,
                     FileDiagnostics const & diagnostics, QIODevice::OpenMode extra, int line)
{
    return arrayOf(WholeFile::readJson(path, extra), path, texts, key, diagnostics, line);
}

QJsonArray arrayOf(WholeFile::ReadResult const & result, QString const & path, LoadTexts const & texts,
                   char const * key, FileDiagnostics const & diagnostics, int line)
{
    report(result, path, texts, path, Steps::FirstFailure, line);
    if (result.status != ReadStatus::Ok || !diagnostics.checkTop(result.document.isObject(), "an object")) {
        return {};
    }
    QJsonObject const top = result.document.object();
    QJsonValue const list = top.value(QLatin1String(key));
    if (list.isUndefined()) {
        diagnostics.missingKey({}, key);
    }
    diagnostics.checkType(list, QJsonValue::Array, {}, key);
    diagnostics.checkKeys(top, list.isUndefined() ? 0 : 1, {key}, {});
    return list.toArray();
}

std::string textOf(QJsonValue const & value)
{
    QString const text = value.toString();
    if (std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() >= 0x80; })) {
        return text.toStdString();
    }
    // Fast path: nearly every text is ASCII. Skipping the intermediate byte array measurably shortens the
    // start.
    std::string out(static_cast<std::size_t>(text.size()), '\0');
    std::transform(text.cbegin(), text.cend(), out.begin(), [](QChar c) { return c.toLatin1(); });
    return out;
}

} // namespace KVCAM::UIAPI::ConfigFiles
