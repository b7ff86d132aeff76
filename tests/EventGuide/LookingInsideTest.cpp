#include "Door.h"

#include "ZELSYPEventPath.h"
#include "ZELSYPSingleEventPathBuilder.h"
#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

#include <memory>

namespace
{
class OpenFactoryDoor : public Door
{
public:
  using Door::GetEventFactory;
};
} // namespace

TEST(LookingInside, AFactoryNamesItsEvents)
{
  Door::OpenedEvent();
  ZELSYPEventFactory& factory = *OpenFactoryDoor::GetEventFactory();
  for (const ZELSYPEvent* pEvent : factory.GetEventsOf(Door::MetaObject()))
    Diary() += std::string(pEvent->GetName()) + " takes " + pEvent->GetArgumentType()->GetName(); // Opened takes OpenedArgs
  EXPECT_EQ(TakeDiary(), "Opened takes OpenedArgs");
}

TEST(LookingInside, AnEventThatNobodyAskedForIsNotThereYet)
{
  ZELSYPEventFactory factory;
  const bool empty = factory.GetEvents().GetLength() == 0; // true: events are declared when they are first asked for
  EXPECT_TRUE(empty);
}

TEST(LookingInside, APathNamesItsStops)
{
  Door door;
  const ZELSYPSubscription own = ZELSYPSubscribe(door, Door::OpenedEvent(), [](ZELSYPEventArgs*) { Diary() += "never"; });
  ZELSYPSingleEventPathBuilder builder(door.GetHandlersSupport(), Door::GetClassHandlersSupport());
  OpenedArgs args(Door::OpenedEvent(), "Ada");
  args.SetOrigin(&door);
  const std::unique_ptr<ZELSYPEventPath> pPath(builder.BuildPath(&args)); // nothing runs
  for (int stop = 0; stop < pPath->GetElementCount(); ++stop)
    for (int list = 0; list < pPath->GetElement(stop)->GetListCount(); ++list)
      Diary() += std::to_string(pPath->GetElement(stop)->GetList(list).GetSize()) + " handler at a " +
                 pPath->GetElement(stop)->GetNode()->IsA(); // 1 handler at a Door
  EXPECT_EQ(TakeDiary(), "1 handler at a Door");
}
