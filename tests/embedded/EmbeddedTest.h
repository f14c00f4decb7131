#pragma once

#include "harness/SharedFolder.h"

#include <EmbeddedEngine.h>
#include <KVCAM_API.h>

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <string>
#include <vector>

namespace KVCAM::Testing {

using Texts = std::vector<std::string>;

/// Builds small jobs below "jobs" in the working directory.
class EmbeddedTest : public ::testing::Test
{
protected:
    static void write(QString const & path, QByteArray const & bytes)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(bytes);
    }

    static QByteArray step(int column, QByteArray const & name)
    {
        return "STEP {\n    COL=" + QByteArray::number(column) + "\n    NAME=" + name + "\n}\n";
    }

    static QByteArray layer(int row, QByteArray const & name, QByteArray const & type = "SIGNAL")
    {
        return "LAYER {\n    ROW=" + QByteArray::number(row) + "\n    CONTEXT=BOARD\n    TYPE=" + type +
               "\n    NAME=" + name + "\n    POLARITY=POSITIVE\n    OLD_NAME=\n}\n";
    }

    /// The job "board": step "pcb", layers "top" and "bottom".
    static void makeBoard()
    {
        write("jobs/board/matrix/matrix", step(1, "PCB") + "\n" + layer(1, "TOP") + layer(2, "BOTTOM"));
        ASSERT_TRUE(QDir().mkpath("jobs/board/steps/pcb/layers"));
    }

    static void writeFeatures(QByteArray const & bytes)
    {
        write("jobs/board/steps/pcb/layers/top/features", bytes);
    }

    static bool open(std::string const & job = "board") { return API::open_job("jobs", job); }

    static std::vector<int> indices()
    {
        std::vector<int> list;
        for (API::feature_info const & feature : Embedded::features("board", "pcb", "top")) {
            list.push_back(feature.index);
        }
        return list;
    }
};

} // namespace KVCAM::Testing
