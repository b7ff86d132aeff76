#include "Door.h"

#include "ZELSYPDispatchTracer.h"
#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

#include <regex>
#include <sstream>

TEST(Tracing, ATracerWritesALineForEachStep)
{
  std::ostringstream log;
  Door door;
  const ZELSYPSubscription log1 = ZELSYPSubscribeClass<Door>(Door::OpenedEvent(), [](ZELSYPEventArgs*) {});
  const ZELSYPSubscription greeting = ZELSYPSubscribe(door, Door::OpenedEvent(), [](ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); });
  const ZELSYPSubscription log2 = ZELSYPSubscribe(door, Door::OpenedEvent(), [](ZELSYPEventArgs*) {});
  {
    const ZELSYPDispatchTracer tracer([&](const std::string& i_line) { log << i_line << '\n'; });
    door.Open("Ada");
  }
  door.Open("Bob"); // writes nothing
  EXPECT_EQ(std::regex_replace(log.str(), std::regex("@[0-9a-fxA-F]+"), "@1"),
            "runs Door.Opened at Door@1, class handler of Door, position 0: ZELSYPEventHandler@1\n"
            "runs Door.Opened at Door@1, instance handler, position 0: ZELSYPEventHandler@1\n"
            "consumes Door.Opened at Door@1, instance handler, position 0: ZELSYPEventHandler@1\n"
            "passed over Door.Opened at Door@1, instance handler, position 1: ZELSYPEventHandler@1\n");
}

TEST(Tracing, ATracerThatIsMadeAfterTheDispatchSaysNothing)
{
  std::ostringstream log;
  Door door;
  const ZELSYPSubscription greeting = ZELSYPSubscribe(door, Door::OpenedEvent(), [](ZELSYPEventArgs*) {});
  door.Open("Ada");
  const ZELSYPDispatchTracer tracer([&](const std::string& i_line) { log << i_line << '\n'; }); // too late: it keeps no history
  EXPECT_EQ(log.str(), "");
}
