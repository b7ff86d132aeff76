#include "Door.h"
#include "RecordingFailureHandler.h"

#include "ZELSYPSubscribe.h"
#include "ZELSYPTreeEventPathBuilder.h"

#include <gmock/gmock.h>

namespace
{
class Room : public Door
{
public:
  explicit Room(Room* i_pHouse = nullptr) : _pHouse(i_pHouse) {}
  Room* GetHouse() const { return _pHouse; }
  void MoveInto(Room& i_house) { _pHouse = &i_house; }

private:
  Room* _pHouse;
};

auto Writing(const char* i_text)
{
  return [i_text](ZELSYPEventArgs*) { Diary() += i_text; };
}

auto MakeBuilder()
{
  return ZELSYPTreeEventPathBuilder([](ZELBaseUnknown* i_pNode) -> ZELBaseUnknown* { return static_cast<Room*>(i_pNode)->GetHouse(); },
                                    [](ZELBaseUnknown* i_pNode) { return static_cast<Room*>(i_pNode)->GetHandlersSupport(); },
                                    [](ZELBaseUnknown*) { return Room::GetClassHandlersSupport(); });
}
} // namespace

TEST(TreeRoutes, AnEventTravelsFromItsOriginToTheRoot)
{
  Room house;
  Room kitchen(&house);
  const ZELSYPSubscription inHouse = ZELSYPSubscribe(house, Door::OpenedEvent(), Writing("house "));
  const ZELSYPSubscription inKitchen = ZELSYPSubscribe(kitchen, Door::OpenedEvent(), Writing("kitchen "));
  auto builder = MakeBuilder();
  OpenedArgs args(Door::OpenedEvent(), "Ada");
  builder.Dispatch(&kitchen, &args); // kitchen house
  EXPECT_EQ(TakeDiary(), "kitchen house ");
}

TEST(TreeRoutes, AListenersOwnDispatchEndsAtItself)
{
  Room house;
  Room kitchen(&house);
  const ZELSYPSubscription inHouse = ZELSYPSubscribe(house, Door::OpenedEvent(), Writing("house "));
  const ZELSYPSubscription inKitchen = ZELSYPSubscribe(kitchen, Door::OpenedEvent(), Writing("kitchen "));
  OpenedArgs args(Door::OpenedEvent(), "Ada");
  kitchen.Dispatch(&args); // kitchen: a listener is the only node of its own route
  EXPECT_EQ(TakeDiary(), "kitchen ");
}

TEST(TreeRoutes, ACycleOfParentsIsReportedAndNothingRuns)
{
  RecordingFailureHandler failures;
  Room house;
  Room kitchen(&house);
  house.MoveInto(kitchen);
  auto builder = MakeBuilder();
  OpenedArgs args(Door::OpenedEvent(), "Ada");
  const int answer = builder.Dispatch(&kitchen, &args); // 0, and a report: more than 4096 nodes from the origin to the root
  EXPECT_EQ(answer, 0);
  EXPECT_EQ(failures.GetFailures().at(0).details, "More than 4096 nodes from the origin to the root: a cycle of parents?");
}
