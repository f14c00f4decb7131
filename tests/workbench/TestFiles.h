#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QString>

#include <stdexcept>
#include <utility>
#include <vector>

namespace Workbench {

constexpr char const * sampleJob = UIAPI_SOURCE_DIR "/samples/jobs/demo-board";

/// Writes a file and creates its folders.
inline void writeFile(QString const & path, QByteArray const & content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// Writes a job with a step "pcb" in millimetres and layers without features, each a type and a name.
inline void writeJob(QString const & job, std::vector<std::pair<char const *, char const *>> const & layers)
{
    QByteArray matrix = "STEP {\nCOL=1\nNAME=PCB\n}\n";
    int row = 0;
    for (auto const & [type, name] : layers) {
        matrix += "LAYER {\nROW=" + QByteArray::number(++row) + "\nCONTEXT=BOARD\nTYPE=" + type +
                  "\nNAME=" + name + "\nPOLARITY=POSITIVE\n}\n";
    }
    writeFile(job + "/matrix/matrix", matrix);
    writeFile(job + "/steps/pcb/stephdr", "UNITS=MM\n");
}

/// A file's content, or "no file".
inline QByteArray readFile(QString const & path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
}

inline QJsonObject readObject(QString const & path)
{
    return QJsonDocument::fromJson(readFile(path)).object();
}

/// The widget's button with this text.
inline QPushButton & buttonOf(QWidget const & widget, QString const & text)
{
    for (auto * each : widget.findChildren<QPushButton *>()) {
        if (each->text() == text) {
            return *each;
        }
    }
    throw std::invalid_argument(text.toStdString());
}

} // namespace Workbench
