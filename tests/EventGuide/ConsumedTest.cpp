#include "Door.h"

#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

namespace
{
void Greet(ZELSYPEventArgs* i_pArgs)
{
  Diary() += "greet ";
  i_pArgs->Consume();
}
} // namespace

TEST(Consumed, AHandlerThatDoesNotAskForConsumedEventsMissesThem)
{
  Door door;
  const ZELSYPSubscription greeting = ZELSYPSubscribe(door, Door::OpenedEvent(), Greet); // consumes
  const ZELSYPSubscription log = ZELSYPSubscribe(door, Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "log "; });
  door.Open("Ada"); // greet: the log has a gap
  EXPECT_EQ(TakeDiary(), "greet ");
}

TEST(Consumed, AHandlerThatAsksForConsumedEventsSeesThemAll)
{
  Door door;
  const ZELSYPSubscription greeting = ZELSYPSubscribe(door, Door::OpenedEvent(), Greet);
  const ZELSYPSubscription log = ZELSYPSubscribe(
      door, Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "log "; }, 1);
  door.Open("Ada"); // greet log
  EXPECT_EQ(TakeDiary(), "greet log ");
}

TEST(Consumed, TheAnswerOfDispatchDoesNotSayWhetherSomebodyConsumed)
{
  Door door;
  const ZELSYPSubscription log = ZELSYPSubscribe(door, Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "log "; });
  OpenedArgs args(Door::OpenedEvent(), "Ada");
  const bool taken = door.Dispatch(&args) == 1; // true, though nobody consumed: the route was run
  EXPECT_TRUE(taken);
  EXPECT_EQ(TakeDiary(), "log ");
}

TEST(Consumed, TheArgumentsSayWhetherSomebodyConsumed)
{
  Door door;
  const ZELSYPSubscription log = ZELSYPSubscribe(door, Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "log "; });
  OpenedArgs args(Door::OpenedEvent(), "Ada");
  door.Dispatch(&args);
  const bool taken = args.IsConsumed() != 0;
  EXPECT_FALSE(taken);
  EXPECT_EQ(TakeDiary(), "log ");
}
