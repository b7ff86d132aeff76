#include "Door.h"

#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

#include <memory>

namespace
{
struct Lamp
{
  void Shine() { Diary() += "shine "; }
};
} // namespace

TEST(Snapshots, ARemovedHandlerStillRunsInTheDispatchThatHasBegun)
{
  const auto pLamp = std::make_unique<Lamp>();
  Door door;
  const auto spShining = ZELSYPMakeHandler([&](ZELSYPEventArgs*) { pLamp->Shine(); });
  const auto spRemoving = ZELSYPMakeHandler([&](ZELSYPEventArgs*) { door.RemoveHandler(Door::OpenedEvent(), spShining); });
  door.AddHandler(Door::OpenedEvent(), spRemoving, 0);
  door.AddHandler(Door::OpenedEvent(), spShining, 0);
  door.Open("Ada"); // shine: had the lamp gone with its handler, this would have been its ghost
  EXPECT_EQ(TakeDiary(), "shine ");
  door.Open("Ada");
  EXPECT_EQ(TakeDiary(), "");
}

TEST(Snapshots, AnEndedSubscriptionDoesNotRunInTheDispatchThatHasBegun)
{
  auto pLamp = std::make_unique<Lamp>();
  Door door;
  ZELSYPSubscription shining;
  const ZELSYPSubscription ending = ZELSYPSubscribe(door, Door::OpenedEvent(),
                                                    [&](ZELSYPEventArgs*)
                                                    {
                                                      shining.End();
                                                      pLamp.reset();
                                                    });
  shining = ZELSYPSubscribe(door, Door::OpenedEvent(), [&](ZELSYPEventArgs*) { pLamp->Shine(); });
  door.Open("Ada"); // nothing shines any more
  EXPECT_EQ(TakeDiary(), "");
}

TEST(Snapshots, AnAddedHandlerRunsFromTheNextDispatchOn)
{
  Door door;
  const auto spAdding = ZELSYPMakeHandler(
      [&](ZELSYPEventArgs*) { door.AddHandler(Door::OpenedEvent(), ZELSYPMakeHandler([](ZELSYPEventArgs*) { Diary() += "added "; }), 0); });
  door.AddHandler(Door::OpenedEvent(), spAdding, 0);
  door.Open("Ada"); // nothing yet
  door.Open("Ada"); // added
  EXPECT_EQ(TakeDiary(), "added ");
}
