#include "Door.h"

#include "ZELSYPSubscribe.h"
#include "ZELSYPSubscriptionBag.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>

namespace
{
class DeafPorter
{
public:
  explicit DeafPorter(Door& io_door)
  {
    const ZELSYPSubscription opened = ZELSYPSubscribe(io_door, Door::OpenedEvent(), [this](ZELSYPEventArgs*) { ++_visitors; });
  } // ends here

  int _visitors = 0;
};

class Porter
{
public:
  explicit Porter(Door& io_door)
  {
    _subscriptions += ZELSYPSubscribe(io_door, Door::OpenedEvent(), [this](ZELSYPEventArgs*) { ++_visitors; });
  }

  int _visitors = 0;

private:
  // The last member: no handler runs any more when the others go.
  ZELSYPSubscriptionBag _subscriptions;
};
} // namespace

TEST(Subscriptions, OneThatIsLocalEndsWithItsBlock)
{
  Door door;
  DeafPorter porter(door);
  door.Open("Ada");
  EXPECT_EQ(porter._visitors, 0);
}

TEST(Subscriptions, OneThatIsAMemberEndsWithItsObject)
{
  Door door;
  Porter porter(door);
  door.Open("Ada");
  EXPECT_EQ(porter._visitors, 1);
}

TEST(Subscriptions, ListenerAndSubscriberGoInAnyOrder)
{
  auto pDoor = std::make_unique<Door>();
  auto pPorter = std::make_unique<Porter>(*pDoor);
  pDoor.reset();   // the listener first,
  pPorter.reset(); // and nothing is amiss
  Door door;
  pPorter = std::make_unique<Porter>(door);
  pPorter.reset();
  EXPECT_FALSE(door.Open("Ada"));
}

TEST(Subscriptions, AClassIsSubscribedToByItsName)
{
  const ZELSYPSubscription everyDoor = ZELSYPSubscribeClass<Door>(Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "knock "; });
  Door door;
  Porter porter(door);
  door.Open("Ada");
  EXPECT_EQ(TakeDiary(), "knock ");
}
