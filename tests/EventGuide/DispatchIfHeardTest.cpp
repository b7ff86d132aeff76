#include "Door.h"

#include "ZELSYPDispatchIfHeard.h"
#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

namespace
{
int g_looks = 0;

std::string LookThroughThePeephole()
{
  ++g_looks;
  return "Ada";
}
} // namespace

TEST(DispatchIfHeard, ArgumentsAreMadeForNobody)
{
  g_looks = 0;
  Door door;
  OpenedArgs args(Door::OpenedEvent(), LookThroughThePeephole()); // takes its time, and nobody listens
  door.Dispatch(&args);
  EXPECT_EQ(g_looks, 1);
}

TEST(DispatchIfHeard, ArgumentsAreMadeForWhoListens)
{
  g_looks = 0;
  Door door;
  const auto makeArgs = [] { return ZELHandle<OpenedArgs>::Adopt(new OpenedArgs(Door::OpenedEvent(), LookThroughThePeephole())); };
  ZELSYPDispatchIfHeard(door, Door::OpenedEvent(), makeArgs); // 0: nobody listens, nobody looks
  const ZELSYPSubscription greeting = ZELSYPSubscribe(door, Door::OpenedEvent(), [](ZELSYPEventArgs*) {});
  ZELSYPDispatchIfHeard(door, Door::OpenedEvent(), makeArgs); // 1: looks once
  EXPECT_EQ(g_looks, 1);
}
