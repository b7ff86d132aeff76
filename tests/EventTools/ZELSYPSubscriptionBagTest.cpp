#include "ZELSYPSubscriptionBag.h"

#include "EventWorld.h"
#include "ZELSYPMakeWeakHandler.h"
#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Le;

namespace
{
// Says when it goes.
class Farewell
{
public:
  Farewell(Runs& io_runs, std::string i_name) : _runs(io_runs), _name(std::move(i_name)) {}
  ~Farewell() { _runs.Add(_name); }

private:
  Runs& _runs;
  const std::string _name;
};

class ZELSYPSubscriptionBagTest : public testing::Test
{
protected:
  ZELSYPSubscription SubscribeWithFarewell(const std::string& i_name)
  {
    return ZELSYPSubscribe(listener, Opened(), [p = std::make_shared<Farewell>(runs, i_name)](ZELSYPEventArgs*) {});
  }
  Runs runs;
  Listener listener;
};
} // namespace

TEST_F(ZELSYPSubscriptionBagTest, EndsWhatItHoldsWhenItGoes)
{
  {
    ZELSYPSubscriptionBag bag;
    bag += ZELSYPSubscribe(listener, Opened(), runs.Adding("first"));
    bag += ZELSYPSubscribe(listener, Opened(), runs.Adding("second"));
    Raise(listener);
    EXPECT_THAT(runs.Take(), ElementsAre("first", "second"));
  }
  Raise(listener);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPSubscriptionBagTest, EndsTheNewestFirst)
{
  ZELSYPSubscriptionBag bag;
  bag += SubscribeWithFarewell("first");
  bag += SubscribeWithFarewell("second");
  bag.EndAll();
  EXPECT_THAT(runs.Take(), ElementsAre("second", "first"));
  EXPECT_EQ(bag.GetSize(), 0u);
}

TEST_F(ZELSYPSubscriptionBagTest, MayGoInTheMiddleOfADispatchThatRunsItsHandlers)
{
  auto pBag = std::make_unique<ZELSYPSubscriptionBag>();
  *pBag += ZELSYPSubscribe(listener, Opened(), [&](ZELSYPEventArgs*) { pBag.reset(); });
  *pBag += ZELSYPSubscribe(listener, Opened(), runs.Adding("after"));
  Raise(listener);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPSubscriptionBagTest, EndsWhatIsAddedWhileItEnds)
{
  ZELSYPSubscriptionBag bag;
  const auto addAnother = [&](void*) { bag += ZELSYPSubscribe(listener, Opened(), runs.Adding("late")); };
  bag += ZELSYPSubscribe(listener, Opened(), [p = std::shared_ptr<void>(nullptr, addAnother)](ZELSYPEventArgs*) {});
  bag.EndAll();
  Raise(listener);
  EXPECT_THAT(runs.Take(), IsEmpty());
  EXPECT_EQ(bag.GetSize(), 0u);
}

TEST_F(ZELSYPSubscriptionBagTest, MovesWithAllItHolds)
{
  ZELSYPSubscriptionBag first;
  first += ZELSYPSubscribe(listener, Opened(), runs.Adding("moved"));
  ZELSYPSubscriptionBag second;
  second += ZELSYPSubscribe(listener, Opened(), runs.Adding("ended"));
  second = std::move(first);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("moved"));
}

TEST_F(ZELSYPSubscriptionBagTest, ForgetsSubscriptionsWhoseListenerHasGone)
{
  ZELSYPSubscriptionBag bag;
  bag += ZELSYPSubscribe(listener, Opened(), runs.Adding("kept"));
  for (int round = 0; round < 1000; ++round)
    bag += ZELSYPSubscribe(*std::make_unique<Listener>(), Opened(), runs.Adding("gone"));
  EXPECT_THAT(bag.GetSize(), Le(8u));
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("kept"));
}

TEST_F(ZELSYPSubscriptionBagTest, MayGoWithWhatItEnds)
{
  struct Owner
  {
    ZELSYPSubscriptionBag bag;
  };
  auto pOwner = std::make_shared<Owner>();
  const std::weak_ptr<Owner> pWatch = pOwner;
  ZELSYPSubscriptionBag& bag = pOwner->bag;
  bag += SubscribeWithFarewell("first");
  bag += ZELSYPSubscribe(listener, Opened(), [pOwner](ZELSYPEventArgs*) {});
  bag += SubscribeWithFarewell("last");
  pOwner.reset();
  bag.EndAll();
  EXPECT_TRUE(pWatch.expired());
  EXPECT_THAT(runs.Take(), ElementsAre("last", "first"));
}

TEST_F(ZELSYPSubscriptionBagTest, KeepsTheOrderOfThoseThatAreLeftWhenOthersAreForgotten)
{
  ZELSYPSubscriptionBag bag;
  for (int round = 0; round < 20; ++round)
  {
    bag += ZELSYPSubscribe(*std::make_unique<Listener>(), Opened(), runs.Adding("gone"));
    if (round % 5 == 0)
      bag += SubscribeWithFarewell(std::to_string(round));
  }
  EXPECT_THAT(runs.Take(), IsEmpty());
  bag.EndAll();
  EXPECT_THAT(runs.Take(), ElementsAre("15", "10", "5", "0"));
}

TEST_F(ZELSYPSubscriptionBagTest, TakesWhatIsAddedByWhatItForgets)
{
  ZELSYPSubscriptionBag bag;
  const auto addAnother = [&](void*) { bag += ZELSYPSubscribe(listener, Opened(), runs.Adding("late")); };
  {
    ZELSYPWeakTarget gone;
    bag += ZELSYPSubscribe(listener, Opened(),
                           ZELSYPMakeWeakHandler(gone, [p = std::shared_ptr<void>(nullptr, addAnother)](ZELSYPEventArgs*) {}));
  }
  for (int round = 0; round < 10; ++round)
    bag += ZELSYPSubscribe(listener, Counted(), runs.Adding("other"));
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("late"));
  EXPECT_EQ(bag.GetSize(), 11u);
}
