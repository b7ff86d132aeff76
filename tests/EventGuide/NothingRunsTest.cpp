#include "Door.h"

#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

TEST(NothingRuns, ADoorWithoutHandlersOfItsOwnRunsNoClassHandler)
{
  const ZELSYPSubscription knocking = ZELSYPSubscribeClass<Door>(Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "knock "; });
  Door door;
  door.Open("Ada"); // nothing runs, though every door has the class handler
  EXPECT_EQ(TakeDiary(), "");
}

TEST(NothingRuns, ADoorWithAHandlerOfItsOwnRunsTheClassHandlersToo)
{
  const ZELSYPSubscription knocking = ZELSYPSubscribeClass<Door>(Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "knock "; });
  Door door;
  const ZELSYPSubscription own = ZELSYPSubscribe(door, Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "creak "; });
  door.Open("Ada"); // knock creak
  EXPECT_EQ(TakeDiary(), "knock creak ");
}

class HearingDoor : public Door
{
public:
  // Removing what is not there makes the store, and adds nothing to it.
  HearingDoor()
  {
    RemoveHandler(OpenedEvent(), ZELSYPMakeHandler([](ZELSYPEventArgs*) {}));
  }
};

TEST(NothingRuns, ADoorThatHasMadeItsStoreRunsTheClassHandlers)
{
  const ZELSYPSubscription knocking = ZELSYPSubscribeClass<Door>(Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "knock "; });
  HearingDoor door;
  door.Open("Ada");
  EXPECT_EQ(TakeDiary(), "knock ");
}
