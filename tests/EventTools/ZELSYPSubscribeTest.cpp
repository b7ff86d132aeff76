#include "ZELSYPSubscribe.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPCommandSimpleEventListener.h"
#include "ZELSYPEventHandlerInfo.h"
#include "ZELSYPEventSubscriberEventListener.h"
#include "ZELSYPMakeMemberHandler.h"
#include "ZELSYPMakeOnceHandler.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Le;

// Another listener class, which shares the class handlers' store with the first one.
class Other : public ZELSYPSimpleEventListener
{
  ZELDeclareClass;
};
ZELImplementClass(Other, ZELSYPSimpleEventListener, EventTools_tests);

namespace
{
class ZELSYPSubscribeTest : public testing::Test
{
protected:
  Runs runs;
  ZELHandle<Listener> listener = ZELHandle<Listener>::Adopt(new Listener);
};
} // namespace

TEST_F(ZELSYPSubscribeTest, RunsUntilTheSubscriptionGoes)
{
  {
    const ZELSYPSubscription subscription = ZELSYPSubscribe(*listener, Opened(), runs.Adding("subscribed"));
    Raise(*listener);
  }
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("subscribed"));
}

TEST_F(ZELSYPSubscribeTest, RunsNothingInTheDispatchInWhichItEnds)
{
  ZELSYPSubscription second;
  const ZELSYPSubscription first = ZELSYPSubscribe(*listener, Opened(), [&](ZELSYPEventArgs*) { second.End(); });
  second = ZELSYPSubscribe(*listener, Opened(), runs.Adding("second"));
  Raise(*listener);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPSubscribeTest, MayEndWhileItsOwnCallableRuns)
{
  ZELSYPSubscription subscription;
  const auto pOwned = std::make_shared<int>(5);
  subscription = ZELSYPSubscribe(*listener, Opened(),
                                 [&, pOwned](ZELSYPEventArgs*)
                                 {
                                   subscription.End();
                                   runs.Add(std::to_string(*pOwned));
                                 });
  Raise(*listener);
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("5"));
  EXPECT_EQ(pOwned.use_count(), 1);
}

TEST_F(ZELSYPSubscribeTest, GivesUpItsCallableWhenItEnds)
{
  const auto pOwned = std::make_shared<int>(5);
  ZELSYPSubscription subscription = ZELSYPSubscribe(*listener, Opened(), [pOwned](ZELSYPEventArgs*) {});
  subscription.End();
  EXPECT_EQ(pOwned.use_count(), 1);
}

TEST_F(ZELSYPSubscribeTest, MayOutliveItsListener)
{
  const auto pOwned = std::make_shared<int>(5);
  ZELSYPSubscription subscription = ZELSYPSubscribe(*listener, Opened(), [pOwned](ZELSYPEventArgs*) {});
  listener = nullptr;
  EXPECT_FALSE(subscription.IsActive());
  EXPECT_EQ(pOwned.use_count(), 1);
  subscription.End();
}

TEST_F(ZELSYPSubscribeTest, MayOutliveAListenerThatGoesInTheMiddleOfADispatch)
{
  ZELSYPSubscription first = ZELSYPSubscribe(*listener, Opened(),
                                             [&](ZELSYPEventArgs*)
                                             {
                                               listener = nullptr;
                                               runs.Add("first");
                                             });
  ZELSYPSubscription second = ZELSYPSubscribe(*listener, Opened(), runs.Adding("second"));
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("first", "second"));
  EXPECT_FALSE(first.IsActive());
  EXPECT_FALSE(second.IsActive());
}

TEST_F(ZELSYPSubscribeTest, MayEndAfterItsListenerWentInTheSameDispatch)
{
  ZELSYPSubscription second;
  const ZELSYPSubscription first = ZELSYPSubscribe(*listener, Opened(),
                                                   [&](ZELSYPEventArgs*)
                                                   {
                                                     listener = nullptr;
                                                     second.End();
                                                   });
  second = ZELSYPSubscribe(*listener, Opened(), runs.Adding("second"));
  Raise(*listener);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPSubscribeTest, MayBeOwnedByItsOwnCallable)
{
  const auto pSubscription = std::make_shared<ZELSYPSubscription>();
  *pSubscription = ZELSYPSubscribe(*listener, Opened(), [pSubscription](ZELSYPEventArgs*) {});
  const std::weak_ptr<ZELSYPSubscription> pWatch = pSubscription;
  listener = nullptr;
  EXPECT_EQ(pWatch.use_count(), 1);
}

TEST_F(ZELSYPSubscribeTest, MayBeOwnedByTheCallableOfAnotherOne)
{
  auto pInner = std::make_unique<ZELSYPSubscription>(ZELSYPSubscribe(*listener, Opened(), runs.Adding("inner")));
  ZELSYPSubscription outer = ZELSYPSubscribe(*listener, Opened(), [pInner = std::move(pInner)](ZELSYPEventArgs*) {});
  outer.End();
  Raise(*listener);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPSubscribeTest, MovesWithWhatItStandsFor)
{
  ZELSYPSubscription first = ZELSYPSubscribe(*listener, Opened(), runs.Adding("moved"));
  ZELSYPSubscription second = std::move(first);
  first.End();
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("moved"));
  EXPECT_TRUE(second.IsActive());
}

TEST_F(ZELSYPSubscribeTest, EndsWhatAnotherOneIsMovedOver)
{
  ZELSYPSubscription subscription = ZELSYPSubscribe(*listener, Opened(), runs.Adding("old"));
  subscription = ZELSYPSubscribe(*listener, Opened(), runs.Adding("new"));
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("new"));
}

TEST_F(ZELSYPSubscribeTest, StaysWhatItIsWhenItIsMovedOverItself)
{
  ZELSYPSubscription subscription = ZELSYPSubscribe(*listener, Opened(), runs.Adding("same"));
  ZELSYPSubscription& same = subscription;
  subscription = std::move(same);
  EXPECT_TRUE(subscription.IsActive());
}

TEST_F(ZELSYPSubscribeTest, EndsItsOwnRegistrationOnly)
{
  const auto spHandler = runs.Note("shared");
  ZELSYPSubscription first = ZELSYPSubscribe(*listener, Opened(), spHandler);
  const ZELSYPSubscription second = ZELSYPSubscribe(*listener, Opened(), spHandler);
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("shared", "shared"));
  first.End();
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("shared"));
}

TEST_F(ZELSYPSubscribeTest, HandlesConsumedEventsWhenAsked)
{
  const ZELSYPSubscription consumer = ZELSYPSubscribe(*listener, Opened(), [](ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); });
  const ZELSYPSubscription plain = ZELSYPSubscribe(*listener, Opened(), runs.Adding("plain"));
  const ZELSYPSubscription eager = ZELSYPSubscribe(*listener, Opened(), runs.Adding("eager"), 1);
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("eager"));
}

TEST_F(ZELSYPSubscribeTest, TakesACallableWithArgumentsOfItsOwn)
{
  const ZELSYPSubscription subscription =
      ZELSYPSubscribe<NumberArgs>(*listener, Counted(), [&](NumberArgs* i_pArgs) { runs.Add(std::to_string(i_pArgs->GetNumber())); });
  RaiseNumber(*listener, 3);
  EXPECT_THAT(runs.Take(), ElementsAre("3"));
}

TEST_F(ZELSYPSubscribeTest, SubscribesToAStore)
{
  ZELSYPSubscription subscription;
  {
    ZELSYPEventHandlersSupport support;
    subscription = ZELSYPSubscribe(support, Opened(), runs.Adding("stored"));
    EXPECT_EQ(support.GetHandlersList(Opened()).GetSize(), 1);
  }
  EXPECT_FALSE(subscription.IsActive());
}

TEST_F(ZELSYPSubscribeTest, EndsInEveryStoreThatTookItOver)
{
  ZELSYPEventHandlersSupport first;
  ZELSYPEventHandlersSupport second;
  ZELSYPSubscription subscription = ZELSYPSubscribe(first, Opened(), runs.Adding("shared"));
  second.ReplaceHandlers(first);
  subscription.End();
  EXPECT_EQ(first.GetHandlersList(Opened()).GetSize(), 0);
  EXPECT_EQ(second.GetHandlersList(Opened()).GetSize(), 0);
}

TEST_F(ZELSYPSubscribeTest, IsNoLongerActiveOnceItsHandlerMustBeRemoved)
{
  const ZELSYPSubscription subscription = ZELSYPSubscribe(*listener, Opened(), ZELSYPMakeOnceHandler(runs.Adding("once")));
  EXPECT_TRUE(subscription.IsActive());
  Raise(*listener);
  EXPECT_FALSE(subscription.IsActive());
}

TEST_F(ZELSYPSubscribeTest, LeavesTheStoreWithTheNextLookAtTheEvent)
{
  ZELSYPEventHandlersSupport support;
  ZELSYPSubscription subscription = ZELSYPSubscribe(support, Opened(), runs.Adding("gone"));
  subscription.End();
  EXPECT_EQ(support.GetHandlersList(Opened()).GetSize(), 0);
}

TEST_F(ZELSYPSubscribeTest, DoesNotFillAStoreWhoseEventIsNeverRaised)
{
  ZELSYPEventHandlersSupport support;
  const ZELSYPSubscription kept = ZELSYPSubscribe(support, Opened(), runs.Adding("kept"));
  for (int round = 0; round < 1000; ++round)
    ZELSYPSubscribe(support, Opened(), runs.Adding("gone")).End();
  EXPECT_THAT(support.GetHandlersCount(Opened()), Le(4));
  EXPECT_TRUE(kept.IsActive());
}

TEST_F(ZELSYPSubscribeTest, CountsWhatStandsInAStore)
{
  RecordingFailureHandler failures;
  ZELSYPEventHandlersSupport support;
  EXPECT_EQ(support.GetHandlersCount(Opened()), 0);
  ZELSYPSubscription subscription = ZELSYPSubscribe(support, Opened(), runs.Adding("counted"));
  subscription.End();
  EXPECT_EQ(support.GetHandlersCount(Opened()), 1);
  support.GetHandlersList(Opened());
  EXPECT_EQ(support.GetHandlersCount(Opened()), 0);
  EXPECT_EQ(support.GetHandlersCount(nullptr), 0);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL"));
}

TEST_F(ZELSYPSubscribeTest, DoesNotFillAListenerWhoseEventIsNeverRaised)
{
  for (int round = 0; round < 1000; ++round)
    ZELSYPSubscribe(*listener, Opened(), runs.Adding("gone")).End();
  EXPECT_THAT(listener->GetHandlersSupport()->GetHandlersCount(Opened()), Le(4));
}

TEST_F(ZELSYPSubscribeTest, ReportsWhatTheStoreRefuses)
{
  RecordingFailureHandler failures;
  EXPECT_FALSE(ZELSYPSubscribe(*listener, nullptr, runs.Adding("never")).IsActive());
  EXPECT_FALSE(ZELSYPSubscribe<NumberArgs>(*listener, Opened(), [](NumberArgs*) {}).IsActive());
  EXPECT_FALSE(ZELSYPSubscribe(*listener, Opened(), nullptr).IsActive());
  EXPECT_THAT(failures.GetMessages(),
              ElementsAre("pointer i_pEvent is NULL",
                          "The handler expects argument of type NumberArgs but the event uses arguments of type ZELSYPEventArgs",
                          "pointer spHandler is NULL"));
}

TEST_F(ZELSYPSubscribeTest, OfNothingIsNotActiveAndEnds)
{
  ZELSYPSubscription subscription;
  EXPECT_FALSE(subscription.IsActive());
  subscription.End();
  subscription.End();
}

TEST_F(ZELSYPSubscribeTest, SubscribesToAClass)
{
  const ZELSYPSubscription own = ZELSYPSubscribe(*listener, Opened(), runs.Adding("own"));
  {
    const ZELSYPSubscription ofClass = ZELSYPSubscribeClass<Listener>(Opened(), runs.Adding("class"));
    Raise(*listener);
    EXPECT_THAT(runs.Take(), ElementsAre("class", "own"));
  }
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("own"));
}

TEST_F(ZELSYPSubscribeTest, SubscribesToJustTheClassThatIsNamed)
{
  const ZELSYPSubscription own = ZELSYPSubscribe(*listener, Opened(), runs.Adding("own"));
  const ZELSYPSubscription other = ZELSYPSubscribeClass<Other>(Opened(), runs.Adding("other"));
  const ZELSYPSubscription base = ZELSYPSubscribeClass<ZELSYPSimpleEventListener>(Opened(), runs.Adding("base"));
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("base", "own"));
}

TEST_F(ZELSYPSubscribeTest, SubscribesToAClassWithArgumentsOfItsOwn)
{
  const ZELSYPSubscription own = ZELSYPSubscribe(*listener, Counted(), [](ZELSYPEventArgs*) {});
  const ZELSYPSubscription ofClass =
      ZELSYPSubscribeClass<Listener, NumberArgs>(Counted(), [&](NumberArgs* i_pArgs) { runs.Add(std::to_string(i_pArgs->GetNumber())); });
  RaiseNumber(*listener, 6);
  EXPECT_THAT(runs.Take(), ElementsAre("6"));
}

TEST_F(ZELSYPSubscribeTest, SubscribesToAStoreOfClassHandlers)
{
  ZELSYPSubscription subscription;
  {
    ZELSYPClassEventHandlersSupport support;
    subscription = ZELSYPSubscribeClass(support, Listener::MetaObject(), Opened(), runs.Adding("class"));
    EXPECT_TRUE(subscription.IsActive());
    EXPECT_EQ(support.GetClassHandlersSupport(Listener::MetaObject())->GetHandlersList(Opened()).GetSize(), 1);
  }
  EXPECT_FALSE(subscription.IsActive());
}

TEST_F(ZELSYPSubscribeTest, ReportsAClassThatIsNull)
{
  RecordingFailureHandler failures;
  ZELSYPClassEventHandlersSupport support;
  EXPECT_FALSE(ZELSYPSubscribeClass(support, nullptr, Opened(), runs.Adding("never")).IsActive());
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pClass is NULL"));
}

TEST_F(ZELSYPSubscribeTest, DoesNotFillAClassWhoseEventIsNeverRaised)
{
  for (int round = 0; round < 1000; ++round)
    ZELSYPSubscribeClass<Other>(Opened(), runs.Adding("gone")).End();
  EXPECT_THAT(Other::GetClassHandlersSupport()->GetClassHandlersSupport(Other::MetaObject())->GetHandlersCount(Opened()), Le(4));
}

// Every listener base is subscribed to in the same way.
class Command : public ZELSYPCommandSimpleEventListener
{
  ZELDeclareClass;
};
ZELImplementClass(Command, ZELSYPCommandSimpleEventListener, EventTools_tests);
class Caller : public ZELSYPEventSubscriberEventListener
{
  ZELDeclareClass;
};
ZELImplementClass(Caller, ZELSYPEventSubscriberEventListener, EventTools_tests);

template <class AnyListener>
class ZELSYPSubscribeToAnyListener : public testing::Test
{
};
using AllListeners = testing::Types<Listener, Command, Caller>;
TYPED_TEST_SUITE(ZELSYPSubscribeToAnyListener, AllListeners, );

TYPED_TEST(ZELSYPSubscribeToAnyListener, RunsClassHandlersAndItsOwnUntilTheyEnd)
{
  Runs runs;
  TypeParam listener;
  ZELSYPEventArgs args(Opened());
  EXPECT_EQ(listener.GetHandlersSupport(), nullptr);
  {
    const ZELSYPSubscription own = ZELSYPSubscribe(listener, Opened(), runs.Adding("own"));
    const ZELSYPSubscription ofClass = ZELSYPSubscribeClass<TypeParam>(Opened(), runs.Adding("class"));
    EXPECT_EQ(listener.Dispatch(&args), 1);
    EXPECT_EQ(listener.GetHandlersSupport()->GetHandlersCount(Opened()), 1);
    EXPECT_NE(TypeParam::GetClassHandlersSupport()->GetClassHandlersSupport(TypeParam::MetaObject()), nullptr);
  }
  EXPECT_EQ(listener.Dispatch(&args), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("class", "own"));
}

TEST_F(ZELSYPSubscribeTest, HandlesConsumedEventsOfAClassWhenAsked)
{
  const ZELSYPSubscription own = ZELSYPSubscribe(*listener, Opened(), runs.Adding("own"));
  const ZELSYPSubscription consumer = ZELSYPSubscribeClass<Listener>(Opened(), [](ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); });
  const ZELSYPSubscription plain = ZELSYPSubscribeClass<Listener>(Opened(), runs.Adding("plain"));
  const ZELSYPSubscription eager = ZELSYPSubscribeClass<Listener>(Opened(), runs.Adding("eager"), 1);
  Raise(*listener);
  EXPECT_THAT(runs.Take(), ElementsAre("eager"));
}

TEST_F(ZELSYPSubscribeTest, PassesOnToAStoreOfClassHandlersWhetherConsumedEventsAreHandled)
{
  ZELSYPClassEventHandlersSupport support;
  const ZELSYPSubscription plain = ZELSYPSubscribeClass(support, Listener::MetaObject(), Opened(), runs.Adding("plain"));
  const ZELSYPSubscription eager = ZELSYPSubscribeClass(support, Listener::MetaObject(), Opened(), runs.Adding("eager"), 1);
  const ZELSYPEventHandlerInfoList list = support.GetClassHandlersSupport(Listener::MetaObject())->GetHandlersList(Opened());
  EXPECT_EQ(list.Get(0)->GetHandleConsumedEvents(), 0);
  EXPECT_EQ(list.Get(1)->GetHandleConsumedEvents(), 1);
}
