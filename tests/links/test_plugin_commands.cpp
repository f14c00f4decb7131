#include "harness/UiapiTest.h"

#include "links/HostAddress.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/HostAddress.h"
#include "uiapi/flat/PluginCommands.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <climits>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class PluginCommands : public UiapiTest
{
protected:
    UIAPICommonPara & para = *UIAPICommonPara::instance();
};

TEST_F(PluginCommands, GoToEveryModuleOfTheirRoute)
{
    EXPECT_TRUE(para.addPluginRoute(7, "open", "matrix"));
    EXPECT_TRUE(para.addPluginRoute(7, "open", "editor"));
    EXPECT_FALSE(para.addPluginRoute(7, "open", "matrix"));
    EXPECT_TRUE(para.addPluginRoute(7, "", "menu"));
    EXPECT_TRUE(para.addPluginRoute(INT_MIN, "层", "模块"));
    setPluginCmd(7, "open", nullptr);
    setPluginCmd(7, "", this);
    setPluginCmd(INT_MIN, "层", nullptr);
    EXPECT_EQ(engine.take(),
              (Lines{"Plugin::recMegToPlugin(matrix 7 open)", "Plugin::recMegToPlugin(editor 7 open)",
                     "Plugin::recMegToPlugin(menu 7 )", "Plugin::recMegToPlugin(模块 -2147483648 层)"}));
    EXPECT_EQ(engine.pluginData, (std::vector<void *>{nullptr, nullptr, this, nullptr}));

    EXPECT_TRUE(para.removePluginRoute(7, "open", "matrix"));
    EXPECT_FALSE(para.removePluginRoute(7, "open", "matrix"));
    EXPECT_FALSE(para.removePluginRoute(8, "open", "matrix"));
    setPluginCmd(7, "open", nullptr);
    EXPECT_EQ(engine.take(), Lines{"Plugin::recMegToPlugin(editor 7 open)"});
    EXPECT_TRUE(para.removePluginRoute(7, "open", "editor"));
    EXPECT_EQ(log.take(), Lines{});
    setPluginCmd(7, "open", nullptr);
    EXPECT_EQ(log.take(), Lines{paraError("Route map don't find 7")});
}

TEST_F(PluginCommands, WithoutARouteAreLogged)
{
    para.addPluginRoute(1, "a", "m");
    setPluginCmd(2, "a", nullptr);
    setPluginCmd(1, "A", nullptr); // a key is compared byte for byte
    setPluginCmd(-1, "", nullptr);
    EXPECT_EQ(log.take(), (Lines{paraError("Route map don't find 2"), paraError("Route map don't find 1"),
                                 paraError("Route map don't find -1")}));
    EXPECT_EQ(engine.take(), Lines{});
}

TEST_F(PluginCommands, WithoutAManagerAreLogged)
{
    para.addPluginRoute(1, "", "a");
    para.addPluginRoute(1, "", "b");
    engine.hasPluginManager = false;
    setPluginCmd(1, "", nullptr);
    EXPECT_EQ(log.take(), Lines{paraError("KVCAM UIAPI setPluginCmd error")});
}

TEST_F(PluginCommands, OneFailingModuleDoesNotKeepTheNextFromHearing)
{
    para.addPluginRoute(1, "", "a");
    para.addPluginRoute(1, "", "b");
    // Routes changed by a module take effect with the next command.
    engine.onNextCall("recMegToPlugin", [&] { para.removePluginRoute(1, "", "a"); });
    engine.throwFrom("recMegToPlugin", "module");
    setPluginCmd(1, "", nullptr);
    EXPECT_EQ(engine.take(), (Lines{"Plugin::recMegToPlugin(a 1 )", "Plugin::recMegToPlugin(b 1 )"}));
    Lines const lines = log.take();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[1], paraError("异常描述：module"));
    EXPECT_EQ(lines[3], lines[1]);
    setPluginCmd(1, "", nullptr);
    EXPECT_EQ(engine.take(), Lines{"Plugin::recMegToPlugin(b 1 )"});
    log.take();
}

TEST(HostAddressTest, IsTheFirstIpv4OfAUsableInterface)
{
    using HostAddress::Candidate;
    auto const up = QNetworkInterface::IsUp | QNetworkInterface::IsRunning;
    auto const loopback = up | QNetworkInterface::IsLoopBack;
    auto with = [](QNetworkInterface::InterfaceFlags flags, std::initializer_list<char const *> addresses) {
        Candidate candidate{flags, {}};
        for (char const * address : addresses) {
            candidate.addresses.append(QHostAddress(QString::fromLatin1(address)));
        }
        return candidate;
    };
    struct Row
    {
        char const * expected;
        QList<Candidate> interfaces;
    };
    for (Row const & row :
         {Row{"127.0.0.1", {}}, Row{"127.0.0.1", {with(up, {"fe80::1"})}},
          Row{"127.0.0.1", {with(loopback, {"10.0.0.1"})}},
          Row{"127.0.0.1", {with(QNetworkInterface::IsUp, {"10.0.0.1"})}},
          Row{"127.0.0.1", {with(QNetworkInterface::IsRunning, {"10.0.0.1"})}},
          Row{"10.0.0.2", {with(loopback, {"127.0.0.1"}), with(up, {"::2", "10.0.0.2", "10.0.0.3"})}},
          Row{"10.0.0.3", {with(up, {}), with(up, {"10.0.0.3"}), with(up, {"10.0.0.4"})}}}) {
        EXPECT_EQ(HostAddress::choose(row.interfaces).toString().toStdString(), row.expected);
    }
}

TEST_F(UiapiTest, LocalInfoIsOneLineOfJsonWithThreeTexts)
{
    std::string const text = getLocalInfo();
    EXPECT_EQ(text.find('\n'), std::string::npos);
    QJsonObject const info = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
    EXPECT_EQ(info.keys(), (QStringList{"address", "host", "os"}));
    EXPECT_EQ(info["address"].toString().toStdString(), getHostIP());
    EXPECT_FALSE(info["host"].toString().isEmpty() || info["os"].toString().isEmpty());
    EXPECT_EQ(UIAPICommonPara::m_pUIAPICommonParaInstance, nullptr);
}

} // namespace
