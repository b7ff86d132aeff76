#include "ZELSYPTypedEvent.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPMakeWeakHandler.h"
#include "ZELSYPTreeEventPathBuilder.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
class ZELSYPTypedEventTest : public testing::Test
{
protected:
  void OnNumber(NumberArgs* i_pArgs) { runs.Add(std::to_string(i_pArgs->GetNumber())); }

  void OnNumberAt(ZELBaseUnknown* i_pNode, NumberArgs*) const { nodes.push_back(i_pNode); }

  mutable std::vector<const ZELBaseUnknown*> nodes;
  ZELSYPEventFactory factory;
  const ZELSYPTypedEvent<NumberArgs> scored{&factory, "Scored", ZELSYPEvent::NoPropagation, Listener::MetaObject()};
  Runs runs;
  Listener listener;
};
} // namespace

TEST_F(ZELSYPTypedEventTest, DeclaresItsEvent)
{
  EXPECT_STREQ(scored.Get()->GetName(), "Scored");
  EXPECT_EQ(scored.Get()->GetPropagation(), ZELSYPEvent::NoPropagation);
  EXPECT_EQ(scored.Get()->GetArgumentType(), NumberArgs::MetaObject());
  EXPECT_EQ(scored.Get()->GetOwnerClass(), Listener::MetaObject());
}

TEST_F(ZELSYPTypedEventTest, RaisesItselfWithWhatTheArgumentsAreMadeOf)
{
  const ZELSYPSubscription subscription =
      scored.Subscribe(listener, [&](NumberArgs* i_pArgs) { runs.Add(std::to_string(i_pArgs->GetNumber())); });
  EXPECT_EQ(scored.Raise(listener, 12), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("12"));
}

TEST_F(ZELSYPTypedEventTest, RunsMethods)
{
  const ZELSYPSubscription subscription = scored.Subscribe(listener, this, &ZELSYPTypedEventTest_RunsMethods_Test::OnNumber);
  scored.Raise(listener, 8);
  EXPECT_THAT(runs.Take(), ElementsAre("8"));
}

TEST_F(ZELSYPTypedEventTest, RunsConstMethodsThatTakeTheNode)
{
  const ZELSYPSubscription subscription =
      scored.Subscribe(listener, this, &ZELSYPTypedEventTest_RunsConstMethodsThatTakeTheNode_Test::OnNumberAt);
  scored.Raise(listener, 8);
  EXPECT_THAT(nodes, ElementsAre(&listener));
}

TEST_F(ZELSYPTypedEventTest, RunsForAllListenersOfAClass)
{
  const ZELSYPSubscription own = scored.Subscribe(listener, runs.Adding("own"));
  const ZELSYPSubscription ofClass =
      scored.SubscribeClass<Listener>([&](NumberArgs* i_pArgs) { runs.Add(std::to_string(i_pArgs->GetNumber())); });
  scored.Raise(listener, 5);
  EXPECT_THAT(runs.Take(), ElementsAre("5", "own"));
}

TEST_F(ZELSYPTypedEventTest, RunsWhatTakesABaseOfItsArguments)
{
  const ZELSYPSubscription subscription = scored.Subscribe(listener, runs.Adding("base"));
  scored.Raise(listener, 1);
  EXPECT_THAT(runs.Take(), ElementsAre("base"));
}

TEST_F(ZELSYPTypedEventTest, DispatchesArgumentsThatTheRaiserLooksAtAfterwards)
{
  const ZELSYPSubscription subscription = scored.Subscribe(listener, [](NumberArgs* i_pArgs) { i_pArgs->Consume(); });
  const ZELHandle<NumberArgs> spArgs = scored.MakeArguments(3);
  EXPECT_EQ(scored.Dispatch(listener, spArgs), 1);
  EXPECT_NE(spArgs->IsConsumed(), 0);
}

TEST_F(ZELSYPTypedEventTest, DispatchesAlongTheRouteOfABuilder)
{
  ZELSYPEventHandlersSupport support;
  const ZELSYPSubscription subscription = scored.Subscribe(support, runs.Adding("node"));
  ZELSYPTreeEventPathBuilder builder([](ZELBaseUnknown*) -> ZELBaseUnknown* { return nullptr; }, [&](ZELBaseUnknown*) { return &support; },
                                     [](ZELBaseUnknown*) -> ZELSYPClassEventHandlersSupport* { return nullptr; });
  ZELBaseUnknown node;
  EXPECT_EQ(scored.Dispatch(builder, &node, scored.MakeArguments(3)), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("node"));
}

TEST_F(ZELSYPTypedEventTest, StandsWhereAnEventIsTaken)
{
  const ZELSYPWeakTarget target;
  const ZELSYPSubscription subscription = ZELSYPSubscribe(listener, scored, ZELSYPMakeWeakHandler(target, runs.Note("weak")));
  scored.Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("weak"));
}

TEST_F(ZELSYPTypedEventTest, TakesAnEventThatIsDeclaredWithItsArguments)
{
  EXPECT_EQ(ZELSYPTypedEvent<NumberArgs>(Counted()).Get(), Counted());
  EXPECT_EQ(ZELSYPTypedEvent<ZELSYPEventArgs>(Opened()).Get(), Opened());
}

TEST_F(ZELSYPTypedEventTest, RefusesAnEventThatIsDeclaredWithOtherArguments)
{
  RecordingFailureHandler failures;
  EXPECT_EQ(ZELSYPTypedEvent<NumberArgs>(Opened()).Get(), nullptr);
  EXPECT_EQ(ZELSYPTypedEvent<ZELSYPEventArgs>(Counted()).Get(), nullptr);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean i_pEvent->GetArgumentType() == Args::MetaObject() is FALSE",
                                                  "boolean i_pEvent->GetArgumentType() == Args::MetaObject() is FALSE"));
}

TEST_F(ZELSYPTypedEventTest, RefusesNullEventsAndFactories)
{
  RecordingFailureHandler failures;
  EXPECT_EQ(ZELSYPTypedEvent<NumberArgs>(static_cast<ZELSYPEvent*>(nullptr)).Get(), nullptr);
  EXPECT_EQ(ZELSYPTypedEvent<NumberArgs>(nullptr, "Name", ZELSYPEvent::NoPropagation, Listener::MetaObject()).Get(), nullptr);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL", "pointer i_pFactory is NULL"));
}

TEST_F(ZELSYPTypedEventTest, RefusesArgumentsOfAnotherEvent)
{
  RecordingFailureHandler failures;
  NumberArgs args(Counted());
  EXPECT_EQ(scored.Dispatch(listener, &args), 0);
  EXPECT_EQ(scored.Dispatch(listener, nullptr), 0);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean i_pArgs->GetEvent() == Get() is FALSE", "pointer i_pArgs is NULL"));
}

TEST_F(ZELSYPTypedEventTest, HoldsItsEvent)
{
  auto pFactory = std::make_unique<ZELSYPEventFactory>();
  const ZELSYPTypedEvent<NumberArgs> event(pFactory.get(), "Kept", ZELSYPEvent::NoPropagation, Listener::MetaObject());
  pFactory.reset();
  EXPECT_STREQ(event.Get()->GetName(), "Kept");
}
