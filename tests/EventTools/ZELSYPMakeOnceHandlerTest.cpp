#include "ZELSYPMakeOnceHandler.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPMakeWeakHandler.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
class ZELSYPMakeOnceHandlerTest : public testing::Test
{
protected:
  Runs runs;
  Listener listener;
};
} // namespace

TEST_F(ZELSYPMakeOnceHandlerTest, RunsInTheFirstDispatchOnly)
{
  listener.AddHandler(Opened(), ZELSYPMakeOnceHandler(runs.Adding("once")), 0);
  listener.AddHandler(Opened(), runs.Note("each time"), 0);
  Raise(listener);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("once", "each time", "each time"));
}

TEST_F(ZELSYPMakeOnceHandlerTest, RunsOnceInNestedDispatches)
{
  listener.AddHandler(Opened(),
                      ZELSYPMakeOnceHandler(
                          [&](ZELSYPEventArgs*)
                          {
                            runs.Add("once");
                            Raise(listener);
                          }),
                      0);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("once"));
}

TEST_F(ZELSYPMakeOnceHandlerTest, RunsOnceWhenANestedDispatchReachesItFirst)
{
  listener.AddHandler(Opened(),
                      ZELSYPMakeHandler(
                          [&, nested = false](ZELSYPEventArgs*) mutable
                          {
                            if (!std::exchange(nested, true))
                              Raise(listener);
                          }),
                      0);
  listener.AddHandler(Opened(), ZELSYPMakeOnceHandler(runs.Adding("once")), 0);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("once"));
}

TEST_F(ZELSYPMakeOnceHandlerTest, RunsOnceWhenItIsRegisteredTwice)
{
  const auto spOnce = ZELSYPMakeOnceHandler(runs.Adding("once"));
  listener.AddHandler(Opened(), spOnce, 0);
  listener.AddHandler(Opened(), spOnce, 0);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("once"));
}

TEST_F(ZELSYPMakeOnceHandlerTest, MustBeRemovedOnceItHasRun)
{
  const auto spOnce = ZELSYPMakeOnceHandler(runs.Adding("once"));
  listener.AddHandler(Opened(), spOnce, 0);
  EXPECT_EQ(spOnce->MustBeRemoved(), 0);
  Raise(listener);
  EXPECT_NE(spOnce->MustBeRemoved(), 0);
  Raise(listener);
  EXPECT_EQ(listener.RemoveHandler(Opened(), spOnce), 0);
}

TEST_F(ZELSYPMakeOnceHandlerTest, GivesUpItsCallableWhenThatHasRun)
{
  const auto pOwned = std::make_shared<int>(0);
  const auto spOnce = ZELSYPMakeOnceHandler([pOwned](ZELSYPEventArgs*) {});
  listener.AddHandler(Opened(), spOnce, 0);
  Raise(listener);
  EXPECT_EQ(pOwned.use_count(), 1);
}

TEST_F(ZELSYPMakeOnceHandlerTest, HasRunEvenIfItThrows)
{
  const auto spOnce = ZELSYPMakeOnceHandler([](ZELSYPEventArgs*) { throw 7; });
  listener.AddHandler(Opened(), spOnce, 0);
  EXPECT_THROW(Raise(listener), int);
  Raise(listener);
}

TEST_F(ZELSYPMakeOnceHandlerTest, KeepsItsTurnWhileTheArgumentsAreConsumed)
{
  const auto spConsumer = ZELSYPMakeHandler([](ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); });
  listener.AddHandler(Opened(), spConsumer, 0);
  listener.AddHandler(Opened(), ZELSYPMakeOnceHandler(runs.Adding("once")), 0);
  Raise(listener);
  listener.RemoveHandler(Opened(), spConsumer);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("once"));
}

TEST_F(ZELSYPMakeOnceHandlerTest, KeepsItsTurnWhenTheHandlerRefusesTheArguments)
{
  RecordingFailureHandler failures;
  const auto spOnce = ZELSYPMakeOnceHandler<NumberArgs>([&](NumberArgs*) { runs.Add("once"); });
  ZELSYPEventArgs foreign(Opened());
  spOnce->Handle(&listener, nullptr);
  spOnce->Handle(&listener, &foreign);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pArgs is NULL", "boolean i_pArgs->IsAKindOf(Args::MetaObject()) is FALSE"));
  EXPECT_EQ(spOnce->MustBeRemoved(), 0);
  NumberArgs args(Counted(), 1);
  spOnce->Handle(&listener, &args);
  spOnce->Handle(&listener, &args);
  EXPECT_THAT(runs.Take(), ElementsAre("once"));
}

TEST_F(ZELSYPMakeOnceHandlerTest, HasTheArgumentsClassOfWhatItRuns)
{
  const auto spOnce = ZELSYPMakeOnceHandler<NumberArgs>([](NumberArgs*) {});
  listener.AddHandler(Counted(), spOnce, 0);
  RaiseNumber(listener, 1);
  EXPECT_EQ(spOnce->GetArgumentsClass(), NumberArgs::MetaObject());
}

TEST_F(ZELSYPMakeOnceHandlerTest, MustBeRemovedWhenTheHandlerThatItRunsMust)
{
  auto pTarget = std::make_unique<ZELSYPWeakTarget>();
  const auto spOnce = ZELSYPMakeOnceHandler(ZELSYPMakeWeakHandler(*pTarget, runs.Note("watched")));
  EXPECT_EQ(spOnce->MustBeRemoved(), 0);
  pTarget.reset();
  EXPECT_NE(spOnce->MustBeRemoved(), 0);
}

TEST_F(ZELSYPMakeOnceHandlerTest, RefusesANullHandler)
{
  RecordingFailureHandler failures;
  EXPECT_FALSE(ZELSYPMakeOnceHandler(nullptr));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer spHandler is NULL"));
}
