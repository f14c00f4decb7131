#pragma once

#include "embedded/EmbeddedTest.h"

#include <EmbeddedChecks.h>

#include <array>

namespace KVCAM::Testing {

/// The signal items that are measured between nets or to rout.
inline constexpr std::array<int, 7> spacingItems{3, 4, 14, 15, 26, 29, 43};

/// A job "board" with a step "pcb" and copper and drill layers, filled by each test.
class CheckTest : public EmbeddedTest
{
protected:
    static QByteArray row(int number, QByteArray const & name, QByteArray const & type,
                          QByteArray const & more = {})
    {
        return layer(number, name, type).replace("OLD_NAME=", more.isEmpty() ? "OLD_NAME=" : more);
    }

    static void makeJob(QByteArray const & layers)
    {
        write("jobs/board/matrix/matrix", step(1, "PCB") + layers);
        ASSERT_TRUE(QDir().mkpath("jobs/board/steps/pcb/layers"));
    }

    static void fill(QString const & layer, QByteArray const & bytes, char const * file = "features")
    {
        write("jobs/board/steps/pcb/layers/" + layer + '/' + file, bytes);
    }

    static Embedded::CheckResults check(std::string const & step = "pcb", std::string const & job = "board")
    {
        Embedded::CheckResults results;
        EXPECT_TRUE(Embedded::runChecks(job, step, results)) << Embedded::lastError();
        EXPECT_EQ(Embedded::lastError(), "");
        return results;
    }

    /// A list of a signal item, by default the first.
    static std::vector<API::check_info> signal(Embedded::CheckResults const & results,
                                               std::string const & layer, int item, std::size_t list = 0)
    {
        return results.signal.at(layer).at(static_cast<API::signal_layers_checks_items>(item)).lists.at(list);
    }

    static std::vector<API::check_info> drill(Embedded::CheckResults const & results,
                                              std::string const & layer, int item)
    {
        return results.drill.at(layer).list(static_cast<API::drill_check_item>(item), 0);
    }

    /// Each record as "type value: points".
    static Texts texts(std::vector<API::check_info> const & records)
    {
        Texts lines;
        for (API::check_info const & record : records) {
            lines.push_back(std::to_string(record.type) + ' ' + std::to_string(record.value) + ':');
            for (int const point : record.points) {
                lines.back() += ' ' + std::to_string(point);
            }
        }
        return lines;
    }
};

} // namespace KVCAM::Testing
