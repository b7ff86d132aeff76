#include "Door.h"

#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

namespace
{
auto Writing(const char* i_text)
{
  return [i_text](ZELSYPEventArgs*) { Diary() += i_text; };
}

void Stop(ZELSYPEventArgs* i_pArgs)
{
  Diary() += "stop ";
  i_pArgs->Consume();
}
} // namespace

class CellarDoor : public Door
{
  ZELDeclareClass;
};
ZELImplementClass(CellarDoor, Door, MyLibrary);

TEST(Order, ClassHandlersRunBeforeTheObjectsOwn)
{
  CellarDoor door;
  const ZELSYPSubscription first = ZELSYPSubscribe(door, Door::OpenedEvent(), Writing("own-1 "));
  const ZELSYPSubscription second = ZELSYPSubscribe(door, Door::OpenedEvent(), Writing("own-2 "));
  const ZELSYPSubscription ofDoors = ZELSYPSubscribeClass<Door>(Door::OpenedEvent(), Writing("door "));
  const ZELSYPSubscription ofCellars = ZELSYPSubscribeClass<CellarDoor>(Door::OpenedEvent(), Writing("cellar "));
  door.Open("Ada"); // cellar door own-1 own-2
  EXPECT_EQ(TakeDiary(), "cellar door own-1 own-2 ");
}

TEST(Order, AnObjectsOwnHandlerComesTooLateToStopAClassHandler)
{
  const ZELSYPSubscription ofDoors = ZELSYPSubscribeClass<Door>(Door::OpenedEvent(), Writing("door "));
  CellarDoor door;
  const ZELSYPSubscription stopping = ZELSYPSubscribe(door, Door::OpenedEvent(), Stop); // consumes
  door.Open("Ada");                                                                     // door stop
  EXPECT_EQ(TakeDiary(), "door stop ");
}

TEST(Order, AHandlerOfTheMostDerivedClassRunsFirst)
{
  const ZELSYPSubscription ofDoors = ZELSYPSubscribeClass<Door>(Door::OpenedEvent(), Writing("door "));
  CellarDoor door;
  const ZELSYPSubscription own = ZELSYPSubscribe(door, Door::OpenedEvent(), Writing("own "));
  const ZELSYPSubscription stopping = ZELSYPSubscribeClass<CellarDoor>(Door::OpenedEvent(), Stop);
  door.Open("Ada"); // stop
  EXPECT_EQ(TakeDiary(), "stop ");
}
