#include "harness/UiapiTest.h"

#include "layers/LayerFilter.h"
#include "layers/LayerFilterReport.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/LayerFilters.h"

#include <QStringList>

#include <algorithm>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

using Request = QMap<QString, QString>;
using Words = QVector<QString>;

class LayerFilterTest : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        engine.layers = {{"board", "silk_screen", "sst", "POS"},  {"board", "signal", "top", "POS"},
                         {"board", "power_ground", "gnd", "NEG"}, {"board", "signal", "in1", "POS"},
                         {"board", "dielectric", "core", "POS"},  {"board", "signal", "in2", "NEG"},
                         {"misc", "signal", "spare", "POS"},      {"board", "signal", "bot", "POS"},
                         {"board", "mixed", "mix", "pos"},        {"board", "", "blank", ""},
                         {"misc", "prüfbild", "fab", "POS"}};
    }

    /// `count` board signal layers s0, s1, ...
    void makeSignals(int count)
    {
        engine.layers.clear();
        for (int i = 0; i < count; ++i) {
            engine.layers.push_back({"board", "signal", "s" + std::to_string(i), "POS"});
        }
    }

    static std::string selected(Request const & request)
    {
        std::vector<std::string> names;
        UIAPICommonPara::instance()->selectLayersByType("job", names, request);
        std::vector<std::string> explained;
        for (auto const & [name, refusedBy] : Ext::explainLayerFilter("job", request).layers) {
            if (refusedBy.isEmpty()) {
                explained.push_back(name);
            }
        }
        EXPECT_EQ(explained, names);
        std::vector<std::string> accepted; // by the predicates, key by key
        LayerFilter::Names const board = LayerFilter::boardSignalLayers(RecordingEngine::get().layers);
        for (layer_info const & layer : RecordingEngine::get().layers) {
            auto const refuses = [&](LayerFilter::KeyFact const & fact) {
                Words words;
                if (request.contains(fact.name)) {
                    LayerFilter::appendWords(request[fact.name], words);
                }
                return !LayerFilter::accepts(fact.key, layer, words, board);
            };
            if (std::none_of(LayerFilter::keyFacts.begin(), LayerFilter::keyFacts.end(), refuses)) {
                accepted.push_back(layer.name);
            }
        }
        EXPECT_EQ(accepted, names);
        return joined(names);
    }

    static std::string joined(std::vector<std::string> const & names)
    {
        std::string text;
        for (std::string const & name : names) {
            text += (text.empty() ? "" : " ") + name;
        }
        return text;
    }

    static Request one(char const * key, char const * value) { return {{key, value}}; }
};

TEST_F(LayerFilterTest, WordsOfOneKeyAddUpAndKeysNarrow)
{
    std::string const all = "sst top gnd in1 core in2 spare bot mix blank fab";
    struct Row
    {
        Request request;
        std::string names;
    };
    for (Row const & row : {
             Row{{}, all},
             Row{{{"Type", "signal"}, {"sides", "top"}, {"", "x"}}, all}, // no keys
             Row{one("type", "signal"), "top in1 in2 spare bot"},
             Row{one("type", "mixed|signal"), "top in1 in2 spare bot mix"},
             Row{one("type", "signal|"), "top in1 in2 spare bot blank"},
             Row{one("type", ""), "blank"},
             Row{one("type", "Signal"), ""},
             Row{one("type", " signal"), ""},
             Row{one("type", "prüfbild"), "fab"},
             Row{one("context", "misc"), "spare fab"},
             Row{one("context", ""), ""},
             Row{one("side", "top"), "top"},
             Row{one("side", "Top"), ""},
             Row{one("side", "bottom|top"), "top bot"},
             Row{one("side", "inner"), "in1 in2"},
             Row{one("side", "outer|inner|"), "in1 in2"},
             Row{one("pos", "positive"), "sst top in1 core spare bot fab"},
             Row{one("pos", "positive|negative"), "sst top gnd in1 core in2 spare bot fab"},
             Row{one("pos", "NEG"), ""},
             Row{{{"type", "signal"}, {"context", "board"}, {"side", "inner"}, {"pos", "negative"}}, "in2"},
         }) {
        EXPECT_EQ(selected(row.request), row.names) << Request(row.request).values().join(';').toStdString();
    }
}

TEST_F(LayerFilterTest, SidesArePositionsAmongTheBoardSignalLayers)
{
    struct Row
    {
        int layers;
        char const * top;
        char const * inner;
        char const * bottom;
    };
    // Of three layers none is inner; a single one is both top and bottom.
    for (Row const & row : {Row{0, "", "", ""}, Row{1, "s0", "", "s0"}, Row{2, "s0", "", "s1"},
                            Row{3, "s0", "", "s2"}, Row{4, "s0", "s1 s2", "s3"}}) {
        makeSignals(row.layers);
        EXPECT_EQ(selected(one("side", "top")), row.top) << row.layers;
        EXPECT_EQ(selected(one("side", "inner")), row.inner) << row.layers;
        EXPECT_EQ(selected(one("side", "bottom")), row.bottom) << row.layers;
    }
    engine.layers = {{"misc", "signal", "a", "POS"}, {"board", "drill", "b", "POS"}};
    EXPECT_EQ(selected(one("side", "top|inner|bottom")), "");
    EXPECT_EQ(selected(one("type", "signal")), "a");
    // By name: a layer of another kind with that name is on the side too.
    engine.layers.push_back({"board", "signal", "a", "POS"});
    EXPECT_EQ(selected(one("side", "top")), "a a");
    makeSignals(4);
    engine.layers[2].name = "s0";
    EXPECT_EQ(selected(one("side", "inner")), "s0 s1 s0");
}

TEST_F(LayerFilterTest, NamesAreAppendedAndTheEngineIsAskedOnce)
{
    std::vector<std::string> names{"before"};
    UIAPICommonPara::instance()->selectLayersByType("Größe", names, one("side", "top"));
    EXPECT_EQ(joined(names), "before top");
    EXPECT_EQ(engine.take(), Lines{"API::get_matrix(Größe)"});
    engine.throwFrom("get_matrix");
    UIAPICommonPara::instance()->selectLayersByType("job", names, {});
    EXPECT_EQ(joined(names), "before top");
    Lines const lines = log.take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1], paraError("异常描述：engine failure"));
}

TEST_F(LayerFilterTest, AnEntryGivesItsWordsToItsKeyAlone)
{
    auto & para = *UIAPICommonPara::instance();
    Request request{{"type", "|a||b|"}};
    auto entry = request.begin();
    Words words{"before"};
    para.fillLayerTypeFilters(entry, words, "Type");
    EXPECT_EQ(words, Words{"before"});
    para.fillLayerTypeFilters(entry, words, "type");
    EXPECT_EQ(words, (Words{"before", "", "a", "", "b", ""}));
    request["type"] = "";
    para.fillLayerTypeFilters(entry, words, "type");
    EXPECT_EQ(words.size(), 7);
}

TEST_F(LayerFilterTest, EachPredicateLooksAtItsField)
{
    auto & para = *UIAPICommonPara::instance();
    layer_info layer{"misc", "rout", "n", "NEG"};
    Words words{"rout", "top", "positive"};
    std::vector<std::string> board{"n"};
    EXPECT_TRUE(para.TypeLayersFilter(layer, words));
    EXPECT_FALSE(para.ContextLayersFilter(layer, words));
    EXPECT_TRUE(para.SideLayersFilter(layer, words, board));
    EXPECT_FALSE(para.PosLayersFilter(layer, words));
}

TEST_F(LayerFilterTest, AffectedLayersEndWithTheWorkLayer)
{
    auto & para = *UIAPICommonPara::instance();
    std::vector<std::string> names{"before"};
    para.getAffectLayers(names);
    EXPECT_EQ(names, std::vector<std::string>{""}) << "nothing chosen is a work layer of no name";
    para.setAffectLayers({"a", "b"});
    para.setWorkLayer("B");
    para.getAffectLayers(names);
    EXPECT_EQ(joined(names), "a b B");
    para.setWorkLayer("a");
    para.getAffectLayers(names);
    EXPECT_EQ(joined(names), "a b");
}

TEST_F(LayerFilterTest, AnalysisReadsTheBoardLayersOfItsTypes)
{
    for (char const * type : {"solder_mask", "solder_paste", "drill", "rout", "component", "Drill"}) {
        engine.layers.push_back({"board", type, type, "POS"});
        engine.layers.push_back({"misc", type, "m", "POS"});
    }
    EXPECT_EQ(joined(getAnalyzeAndDFMLayers("job", "any")),
              "sst top gnd in1 in2 bot mix solder_mask solder_paste drill rout");
    EXPECT_EQ(engine.take(), Lines{"API::get_matrix(job)"});
    EXPECT_EQ(joined(getAnalyzeAndDFMLayers("", "any")), "");
    EXPECT_EQ(engine.take(), Lines{});
}

TEST_F(LayerFilterTest, TheExplanationNamesUnmatchedWordsAndTheFirstRefusingKey)
{
    makeSignals(3);
    engine.layers.push_back({"misc", "document", "fab", "POS"});
    engine.matrixError = "half read";
    Ext::LayerFilterReport const report = Ext::explainLayerFilter("job", {{"type", "signal|rout|"},
                                                                          {"side", "top|inner|Bottom|"},
                                                                          {"pos", "positive|negative|x"},
                                                                          {"Side", "top"},
                                                                          {"layer", ""}});
    EXPECT_EQ(report.result.reason, "half read");
    EXPECT_EQ(report.unknownKeys, (QStringList{"Side", "layer"}));
    QStringList words;
    for (auto const & it : report.unmatchedWords) {
        words << it.where + '=' + it.word + (it.kind == Ext::LayerWordFault::UnknownWord ? '?' : '-');
        EXPECT_TRUE(it.text.contains('"' + it.where + '"') && it.text.contains('"' + it.word + '"'));
    }
    EXPECT_EQ(words.join(' ').toStdString(),
              "pos=negative- pos=x? side=inner- side=Bottom? side=? type=rout- type=-");
    QStringList verdicts;
    for (auto const & [name, refusedBy] : report.layers) {
        verdicts << QString::fromStdString(name) + ':' + refusedBy;
    }
    EXPECT_EQ(verdicts.join(' ').toStdString(), "s0: s1:side s2:side fab:type");
    EXPECT_EQ(engine.take(), Lines{"API::get_matrix(job)"});
    EXPECT_EQ(UIAPICommonPara::m_pUIAPICommonParaInstance, nullptr);

    engine.throwFrom("get_matrix");
    EXPECT_EQ(Ext::explainLayerFilter("job", {}).result.reason, "The engine failed.");
    EXPECT_EQ(log.take().size(), 2U);
}

} // namespace
