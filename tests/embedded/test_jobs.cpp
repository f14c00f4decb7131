#include "embedded/EmbeddedTest.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

// What a whole job holds when every layer of every step is read.
struct Facts
{
    std::map<std::string, int> features; // by "step/layer", those that have any
    std::map<std::string, int> types;    // of board layers
    std::set<std::string> negative;
    Texts errors;
};

Facts factsOf(std::string const & job)
{
    Facts facts;
    Texts steps;
    std::vector<API::layer_info> layers;
    EXPECT_EQ(API::get_matrix(job, steps, layers), "");
    for (API::layer_info const & layer : layers) {
        facts.types[layer.type] += layer.context == "board" ? 1 : 0;
        if (layer.polarity == "NEG") {
            facts.negative.insert(layer.name);
        }
        for (std::string const & step : steps) {
            auto const count = static_cast<int>(Embedded::features(job, step, layer.name).size());
            facts.errors.push_back(Embedded::lastError());
            Embedded::tools(job, step, layer.name);
            facts.errors.push_back(Embedded::lastError());
            if (count != 0) {
                facts.features[step + '/' + layer.name] = count;
            }
        }
    }
    facts.errors.erase(std::remove(facts.errors.begin(), facts.errors.end(), ""), facts.errors.end());
    return facts;
}

void expectBox(std::string const & job, std::string const & step, Embedded::Box const & expected)
{
    Embedded::Box box;
    ASSERT_TRUE(Embedded::profileBox(job, step, box)) << Embedded::lastError();
    EXPECT_NEAR(box.left, expected.left, 1e-6);
    EXPECT_NEAR(box.bottom, expected.bottom, 1e-6);
    EXPECT_NEAR(box.right, expected.right, 1e-6);
    EXPECT_NEAR(box.top, expected.top, 1e-6);
}

TEST(SampleJobTest, IsReadWhole)
{
    ASSERT_TRUE(API::open_job(UIAPI_SOURCE_DIR "/samples/jobs", "demo-board")) << Embedded::lastError();
    Facts const facts = factsOf("demo-board");
    EXPECT_EQ(facts.errors, Texts());
    EXPECT_EQ(facts.types.at("signal"), 5);
    EXPECT_EQ(facts.types.at("power_ground"), 1);
    EXPECT_EQ(facts.negative, std::set<std::string>{"l2_gnd"});
    EXPECT_EQ(facts.features.at("pcb/top"), 180);
    EXPECT_EQ(facts.features.at("pcb/bottom"), 84) << "the file with CRLF";
    EXPECT_EQ(facts.features.at("pcb/assembly top"), 36) << "the folder in mixed case with a blank";
    EXPECT_EQ(facts.features.at("pcb/slots"), 4);
    EXPECT_EQ(facts.features.at("panel/outline"), 16);
    expectBox("demo-board", "pcb", {0, 0, 56000, 42000});
    expectBox("demo-board", "panel", {0, 0, 127000, 101600});

    std::set<std::string> tools;
    for (char const * const layer : {"drill_plated", "drill_non-plated", "slots"}) {
        for (Embedded::Tool const & tool : Embedded::tools("demo-board", "pcb", layer)) {
            tools.insert(tool.type + ' ' + std::to_string(std::lround(tool.finishSize)));
        }
    }
    EXPECT_EQ(tools, (std::set<std::string>{"non_plated 1000", "non_plated 3200", "plated 1000", "plated 800",
                                            "plated 900", "via 300"}));
}

TEST(SampleJobTest, EverySymbolIsIdentified)
{
    ASSERT_TRUE(API::open_job(UIAPI_SOURCE_DIR "/samples/jobs", "demo-board"));
    Texts own;
    API::get_special_symbol_names("demo-board", own);
    EXPECT_EQ(own, Texts{"logo_mark"});
    Texts families;
    for (Embedded::SymbolUse const & use : Embedded::jobSymbols("demo-board")) {
        auto type = static_cast<API::symboltype>(0);
        int first = 0;
        int second = 0;
        EXPECT_TRUE(API::identify_symbol(use.name, type, first, second, false)) << use.name;
        families.push_back(use.name.substr(0, use.name.find_first_of("0123456789")));
    }
    families.erase(std::unique(families.begin(), families.end()), families.end());
    EXPECT_EQ(families, (Texts{"di", "donut_r", "hex_l", "logo_mark", "moire", "oval", "r", "rc_ths", "rect",
                               "s", "s_ths", "thr", "ths", "tri"}));
}

// Two boards out of real CAD systems, when the folder with them is at hand.
TEST(RealJobsTest, AreReadWhole)
{
    QString const folder = sharedPath("jobs");
    if (folder.isEmpty()) {
        GTEST_SKIP() << "the real jobs are not here";
    }
    struct Row
    {
        std::string job;
        std::string step;
        int signalLayers;
        std::size_t symbols;
        Embedded::Box box; // micrometres
        std::map<std::string, int> features;
    };
    for (Row const & row : {
             Row{"oc-breakout",
                 "stp",
                 3,
                 81,
                 {0, 0, 76200, 76200},
                 {{"stp/asb", 4899},
                  {"stp/ast", 8976},
                  {"stp/bottom", 2102},
                  {"stp/drill", 288},
                  {"stp/l2_gnd", 1372},
                  {"stp/l3_plane", 1406},
                  {"stp/outline", 4},
                  {"stp/smb", 1403},
                  {"stp/smt", 1441},
                  {"stp/spb", 1250},
                  {"stp/spt", 1161},
                  {"stp/sst", 7113},
                  {"stp/top", 2114}}},
             Row{"kicad-flat-hierarchy",
                 "pcb",
                 2,
                 56,
                 {73660, -139700, 233680, -40640},
                 {{"pcb/b.mask", 247},
                  {"pcb/bottom_copper", 946},
                  {"pcb/drill_non-plated_top_copper-bottom_copper", 6},
                  {"pcb/drill_plated_top_copper-bottom_copper", 248},
                  {"pcb/edge.cuts", 5},
                  {"pcb/f.courtyard", 237},
                  {"pcb/f.fab", 4665},
                  {"pcb/f.mask", 247},
                  {"pcb/f.silkscreen", 2138},
                  {"pcb/top_copper", 1310},
                  {"pcb/user.comments", 6}}},
         }) {
        ASSERT_TRUE(API::open_job(folder.toStdString(), row.job)) << Embedded::lastError();
        Facts const facts = factsOf(row.job);
        EXPECT_EQ(facts.errors, Texts());
        EXPECT_EQ(facts.types.at("signal"), row.signalLayers);
        EXPECT_EQ(facts.features, row.features);
        EXPECT_EQ(Embedded::jobSymbols(row.job).size(), row.symbols);
        expectBox(row.job, row.step, row.box);
    }
}

} // namespace
