#include "ZELSYPDispatchIfHeard.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPMakeWeakHandler.h"
#include "ZELSYPSubscribe.h"
#include "ZELSYPTreeEventPathBuilder.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class ZELSYPDispatchIfHeardTest : public testing::Test
{
protected:
  auto Making()
  {
    return [this]
    {
      runs.Add("made");
      return ZELHandle<NumberArgs>::Adopt(new NumberArgs(Counted(), 1));
    };
  }
  int DispatchFromListener() { return ZELSYPDispatchIfHeard(listener, Counted(), Making()); }
  // The root is a listener, the leaf has no store.
  int DispatchFromLeaf()
  {
    ZELSYPTreeEventPathBuilder builder(
        [this](ZELBaseUnknown* i_pNode) -> ZELBaseUnknown* { return i_pNode == &leaf ? &listener : nullptr; },
        [this](ZELBaseUnknown* i_pNode) { return i_pNode == &leaf ? nullptr : listener.GetHandlersSupport(); },
        [](ZELBaseUnknown*) { return Listener::GetClassHandlersSupport(); });
    return ZELSYPDispatchIfHeard(builder, &leaf, Counted(), Making());
  }

  Runs runs;
  ZELBaseUnknown leaf;
  Listener listener;
};
} // namespace

TEST_F(ZELSYPDispatchIfHeardTest, MakesNoArgumentsWhenNobodyListens)
{
  const ZELSYPSubscription other = ZELSYPSubscribe(listener, Opened(), runs.Adding("other"));
  EXPECT_EQ(DispatchFromListener(), 0);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPDispatchIfHeardTest, DispatchesWhenTheListenerHasAHandler)
{
  const ZELSYPSubscription own = ZELSYPSubscribe(listener, Counted(), runs.Adding("own"));
  EXPECT_EQ(DispatchFromListener(), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("made", "own"));
}

TEST_F(ZELSYPDispatchIfHeardTest, DispatchesWhenTheListenersClassHasAHandler)
{
  const ZELSYPSubscription other = ZELSYPSubscribe(listener, Opened(), runs.Adding("other"));
  const ZELSYPSubscription ofClass = ZELSYPSubscribeClass<Listener>(Counted(), runs.Adding("class"));
  EXPECT_EQ(DispatchFromListener(), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("made", "class"));
}

TEST_F(ZELSYPDispatchIfHeardTest, MakesNoArgumentsForAListenerThatNeverHadAHandler)
{
  const ZELSYPSubscription ofClass = ZELSYPSubscribeClass<Listener>(Counted(), runs.Adding("class"));
  EXPECT_EQ(DispatchFromListener(), 0);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPDispatchIfHeardTest, MakesNoArgumentsWhenAllHandlersMustBeRemoved)
{
  auto pTarget = std::make_unique<ZELSYPWeakTarget>();
  listener.AddHandler(Counted(), ZELSYPMakeWeakHandler(*pTarget, runs.Note("dead")), 0);
  pTarget.reset();
  EXPECT_EQ(DispatchFromListener(), 0);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPDispatchIfHeardTest, AsksTheWholeRouteOfABuilder)
{
  EXPECT_EQ(DispatchFromLeaf(), 0);
  EXPECT_THAT(runs.Take(), IsEmpty());
  const ZELSYPSubscription root = ZELSYPSubscribe(listener, Counted(), runs.Adding("root"));
  EXPECT_EQ(DispatchFromLeaf(), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("made", "root"));
}

TEST_F(ZELSYPDispatchIfHeardTest, RefusesNullEventsAndOrigins)
{
  RecordingFailureHandler failures;
  const ZELSYPSubscription own = ZELSYPSubscribe(listener, Counted(), runs.Adding("own"));
  EXPECT_EQ(ZELSYPDispatchIfHeard(listener, nullptr, Making()), 0);
  ZELSYPSingleEventPathBuilder builder(listener.GetHandlersSupport(), nullptr);
  EXPECT_EQ(ZELSYPDispatchIfHeard(builder, nullptr, Counted(), Making()), 0);
  EXPECT_THAT(runs.Take(), IsEmpty());
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL", "pointer i_pOrigin is NULL"));
}

TEST_F(ZELSYPDispatchIfHeardTest, AnswersAsDispatchDoesForArgumentsThatAreRefused)
{
  RecordingFailureHandler failures;
  const ZELSYPSubscription own = ZELSYPSubscribe(listener, Counted(), runs.Adding("own"));
  EXPECT_EQ(ZELSYPDispatchIfHeard(listener, Counted(), [] { return ZELHandle<NumberArgs>(); }), 0);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pArgs is NULL"));
}
