#include "ConfigTest.h"

#include "config/AttributeCatalogue.h"
#include "config/BuiltInAttributes.h"
#include "config/CamMateNodes.h"
#include "uiapi/flat/Attributes.h"

#include <set>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

using Texts = std::vector<std::string>;

class AttributesTest : public ConfigTest
{};

TEST_F(AttributesTest, ElementsAreAssignedByNameAndTheLastWins)
{
    struct Row
    {
        char const * elements;
        AttributeMap expected;
    };
    for (Row const & row : {
             Row{R"({"Attribute":".a","hasParam":1,"unit":2,"ProAttribute":["x","y"]})",
                 {{".a", {1, 2, {"x", "y"}}}}},
             Row{R"({"Attribute":".b"},{"Attribute":".a","unit":2.0})",
                 {{".a", {0, 2, {}}}, {".b", {0, 0, {}}}}},
             Row{R"({"Attribute":".a","hasParam":1,"ProAttribute":["x"]},{"Attribute":".a","unit":3})",
                 {{".a", {0, 3, {}}}}},
             Row{R"(".a",7,null,[],{"Attribute":".b"})", {{".b", {0, 0, {}}}}},
             Row{R"({"Attribute":".a","ProAttribute":["x"],"unit":1,"unit":-10,"ProAttribute":[]})",
                 {{".a", {0, -10, {}}}}},
             Row{R"({})", {{"", {0, 0, {}}}}},
             Row{R"({"Attribute":5,"hasParam":"1","unit":1.5,"ProAttribute":["x",5,null]})",
                 {{"", {0, 0, {"x", "", ""}}}}},
             Row{R"({"Attribute":".a","ProAttribute":"x"})", {{".a", {0, 0, {}}}}},
         }) {
        writeFile("attributes.json", QByteArray("{\"TotalAttributes\":[") + row.elements + "]}");
        AttributeCatalogue catalogue;
        catalogue.readTotalAttributesFromJson("attributes.json");
        EXPECT_EQ(catalogue.getTotalAttributes(), row.expected) << row.elements;
    }
    for (char const * content : {"[]", "{}", R"({"TotalAttributes":{"Attribute":".a"}})"}) {
        writeFile("attributes.json", content);
        AttributeCatalogue catalogue;
        catalogue.readTotalAttributesFromJson("attributes.json");
        EXPECT_TRUE(catalogue.getTotalAttributes().empty()) << content;
    }
    EXPECT_EQ(log.take(), Lines{});
}

TEST_F(AttributesTest, FailuresToLoadAreLoggedWithTheFilesPath)
{
    std::string const path = directory + "attributes.json";
    AttributeCatalogue catalogue;
    catalogue.getTotalAttributesFromJson();
    EXPECT_EQ(log.take(), noAttributes);
    writeFile(config + "attributes.json", "{\"TotalAttributes\":[");
    catalogue.getTotalAttributesFromJson();
    EXPECT_EQ(log.take(), Lines{globalError("解析config json文件错误！路径：" + path)});
}

TEST_F(AttributesTest, ParentNamesAreAppendedAndTheTotalIsAssigned)
{
    writeFile(config + "attributes.json",
              R"({"TotalAttributes":[{"Attribute":".b"},{"Attribute":".a","unit":1}]})");
    restartQuietly();
    Texts names{"before"};
    getParentAttribute(names);
    getParentAttribute(names);
    EXPECT_EQ(names, (Texts{"before", ".a", ".b", ".a", ".b"}));
    AttributeMap total{{"before", {}}};
    getTotalAttribute(total);
    EXPECT_EQ(total, (AttributeMap{{".a", {0, 1, {}}}, {".b", {0, 0, {}}}}));
    EXPECT_EQ(UIAPIGlobalVar::instance()->getTotalAttributes(), total);
}

TEST_F(AttributesTest, ABuiltInAttributeOffersItsValues)
{
    BuiltInAttributes list;
    list.initTotalAttributes();
    std::string names;
    std::set<std::string> values;
    for (BuiltInAttributes::Row const & row : list) {
        Texts offered;
        list.getChildAttribute(row.name, offered);
        names += row.name;
        values.insert(offered.begin(), offered.end());
    }
    EXPECT_EQ(names,
              ".area.avoid_shave.ball_pad.bga.dfm_added_shave.drill.drill_noopt.detch_comp.fiducial_mark"
              ".fiducial_name.gold_finger.ignore_action.imp_line.imp_info.imp_line_bot.imp_line_top"
              ".is_cappad.laser_via_pad.nomenclature.npth_pad.patch.pattern_fill.pth_pad.shave"
              ".sliver_fill.smd.tear_drop.via_pad.via_type.plating_line.plating_bar");
    std::string offered;
    for (std::string const & value : values) {
        offered += value + ' ';
    }
    EXPECT_EQ(offered, "bga_area broken dif1 dif2 dif3 dif4 dif5 different_close drilled half laser mark "
                       "non_plated plated repair repair_line same_close sig1 sig2 sig3 sig4 sig5 trace "
                       "unknown v-cut ");
}

TEST_F(AttributesTest, ChildValuesAreAssignedAndNeedNoConfiguration)
{
    Texts out{"before"};
    getChildAttribute(".drill", out);
    EXPECT_EQ(out, (Texts{"non_plated", "plated"}));
    getChildAttribute("drill", out);
    EXPECT_EQ(out, Texts{}) << "an unknown name";
    EXPECT_EQ(UIAPIGlobalVar::m_pUIAPIGlobalVarInstance, nullptr);
}

TEST_F(AttributesTest, CamMateNodesComeInTwoShapes)
{
    std::string const broken = globalError("解析config json文件错误！路径：cammatenodes.json");
    struct Row
    {
        char const * content; // null: no file
        Texts names;
        Lines expected;
    };
    for (Row const & row : {
             Row{R"([{"FlowName":"b"},{"FlowName":"a"},{"FlowName":"b"}])", {"b", "a", "b"}, {}},
             Row{R"({"FlowName":["b","a"]})", {"b", "a"}, {}},
             Row{R"([{"FlowName":5},{},"x",{"FlowName":["y"]},{"FlowName":"z"}])", {"z"}, {}},
             Row{R"({"FlowName":["b",5,null,""]})", {"b", ""}, {}},
             Row{R"({"FlowName":"b"})", {}, {}},
             Row{"", {}, {broken}},
             Row{"[{", {}, {broken}},
             Row{nullptr, {}, {}},
         }) {
        QFile::remove("cammatenodes.json");
        if (row.content != nullptr) {
            writeFile("cammatenodes.json", row.content);
        }
        CamMateNodes nodes;
        nodes.readCamMateNodesFromJson("cammatenodes.json");
        EXPECT_EQ(nodes.getCamMateNodes(), row.names) << (row.content != nullptr ? row.content : "absent");
        EXPECT_EQ(log.take(), row.expected);
    }
}

} // namespace
