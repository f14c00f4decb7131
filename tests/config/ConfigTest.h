#pragma once

#include "harness/UiapiTest.h"

#include "config/UIAPIGlobalVar.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace KVCAM::Testing {

inline std::string globalError(std::string const & text)
{
    return "E UIAPIGlobalVar: " + text;
}

inline void writeFile(QString const & path, QByteArray const & bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

inline QByteArray readFile(QString const & path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QJsonObject readObject(QString const & path)
{
    return QJsonDocument::fromJson(readFile(path)).object();
}

/// A configuration directory "config/" in the case's working directory, and processes started with it.
class ConfigTest : public UiapiTest
{
protected:
    QString const config = QStringLiteral("config/");
    std::string const directory = QDir::currentPath().toStdString() + "/config/";

    /// The lines that a start logs for missing files; optional files give none.
    Lines const noTemplates = {
        globalError("auto matrix json文件不存在！路径：" + directory + "automatrix.json")};
    Lines const noAttributes = {
        globalError("total attributes json文件不存在！路径：" + directory + "attributes.json")};

    /// The object as in the next process. The old one is kept: it is never destroyed.
    UIAPI::UIAPIGlobalVar & restart()
    {
        static auto * former = new std::vector<UIAPI::UIAPIGlobalVar *>;
        former->push_back(UIAPI::UIAPIGlobalVar::m_pUIAPIGlobalVarInstance);
        UIAPI::UIAPIGlobalVar::m_pUIAPIGlobalVarInstance = nullptr;
        return *UIAPI::UIAPIGlobalVar::instance();
    }

    /// restart() without the log lines of files that the case has not written.
    UIAPI::UIAPIGlobalVar & restartQuietly()
    {
        UIAPI::UIAPIGlobalVar & global = restart();
        log.take();
        engine.take();
        return global;
    }
};

} // namespace KVCAM::Testing
