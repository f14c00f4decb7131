#include "harness/UiapiTest.h"

#include "uiapi/Notifier.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/Selections.h"
#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/Snap.h"
#include "uiapi/flat/ViewAccess.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class NotifierTest : public UiapiTest
{
protected:
    void const * const view = viewHandle(0);

    bool registerView()
    {
        Step_Config config;
        config.view = view;
        return insertStepConfig(config);
    }
};

TEST_F(NotifierTest, TellsOfEachStoreAfterThePush)
{
    QObject context;
    std::vector<std::pair<void const *, int>> heard;
    std::vector<std::size_t> callsBefore;
    QObject::connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, &context,
                     [&](void const * changed, Ext::ViewAspects aspects) {
                         heard.emplace_back(changed, int(aspects));
                         callsBefore.push_back(engine.take().size());
                     });
    registerView();
    setUnit(view, 1);
    setUnit(view, 1);
    UIAPICommonPara::instance()->setUnit(view, 0);
    setSelectionClear(view, true);
    setSelectedPara(view, 1); // has no aspect
    setSnapSize(view, 1);
    using Heard = std::vector<std::pair<void const *, int>>;
    EXPECT_EQ(heard, (Heard{{view, 7}, {view, 3}, {view, 2}, {view, 3}, {view, 4}}));
    EXPECT_EQ(callsBefore, (std::vector<std::size_t>{6, 2, 2, 2, 2}));
}

TEST_F(NotifierTest, ASlotThatThrowsChangesNoResult)
{
    QObject context;
    QObject::connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, &context,
                     [] { throw std::runtime_error("slot"); });
    EXPECT_TRUE(registerView());
    Lines const lines = log.take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1], paraError("异常描述：slot"));
}

// Watches hear of their own view, before the listeners of all, whatever a slot of another one does.
TEST_F(NotifierTest, AWatchHearsOfItsViewAlone)
{
    QObject context;
    std::string heard;
    auto const watch = [&](void const * of, char name, std::function<void()> const & slot) {
        auto * const made = new Ext::ViewWatch(of, &context);
        QObject::connect(made, &Ext::ViewWatch::changed, [&heard, name, slot](auto aspects) {
            heard += name + std::to_string(int(aspects)) + ' ';
            slot();
        });
        return made;
    };
    auto const nothing = [] {};
    Ext::ViewWatch * late = nullptr;
    watch(viewHandle(1), 'o', nothing);
    watch(nullptr, 'n', nothing);
    delete watch(view, 'd', nothing);
    watch(view, 'a', [&] { delete std::exchange(late, nullptr), throw std::runtime_error("slot"); });
    late = watch(view, 'l', nothing);
    watch(view, 'z', [&] { watch(view, 'w', nothing); }); // too late for this change
    QObject::connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, &context,
                     [&] { heard += "all "; });
    EXPECT_EQ(UIAPICommonPara::m_pUIAPICommonParaInstance, nullptr);
    registerView();
    setSelectionClear(view, true);
    EXPECT_EQ(heard, "a7 z7 all a4 z4 w4 all ");
    EXPECT_EQ(log.take().size(), 4U);
}

TEST_F(NotifierTest, CanBeSpiedOnAndQueued)
{
    QObject context;
    int heard = 0;
    QObject::connect(
        Ext::Notifier::instance(), &Ext::Notifier::viewChanged, &context, [&heard] { ++heard; },
        Qt::QueuedConnection);
    QSignalSpy const spy(Ext::Notifier::instance(), &Ext::Notifier::viewChanged);
    registerView();
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(*static_cast<void const * const *>(spy.first().first().constData()), view);
    EXPECT_EQ(spy.first().last().value<Ext::ViewAspects>(), Ext::ViewAspects(7));
    QCoreApplication::processEvents();
    EXPECT_EQ(heard, 1);
}

} // namespace
