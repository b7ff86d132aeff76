#include "ZELSYPDispatchTracer.h"

#include "EventWorld.h"
#include "ZELSYPSubscribe.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>

#include <optional>
#include <regex>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
class ZELSYPDispatchTracerTest : public testing::Test
{
protected:
  // Without addresses, which differ from run to run.
  auto Writing()
  {
    return [this](const std::string& i_line) { lines.push_back(std::regex_replace(i_line, std::regex("@(0x)?[0-9a-fA-F]+"), "")); };
  }

  std::vector<std::string> lines;
  Runs runs;
  Listener listener;
};
} // namespace

TEST_F(ZELSYPDispatchTracerTest, SaysWhoRunsWhere)
{
  const ZELSYPSubscription ofClass = ZELSYPSubscribeClass<Listener>(Opened(), runs.Adding("class"));
  listener.AddHandler(Opened(), runs.Note("first"), 0);
  listener.AddHandler(Opened(), runs.Note("second"), 0);
  const ZELSYPDispatchTracer tracer(Writing());
  Raise(listener);
  EXPECT_THAT(lines, ElementsAre("runs Listener.Opened at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "runs Listener.Opened at Listener, list 1, position 0: ZELSYPEventHandler",
                                 "runs Listener.Opened at Listener, list 1, position 1: ZELSYPEventHandler"));
}

TEST_F(ZELSYPDispatchTracerTest, SaysWhoConsumesAndWhoIsPassedOver)
{
  listener.AddHandler(Opened(), ZELSYPMakeHandler([](ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); }), 0);
  listener.AddHandler(Opened(), runs.Note("plain"), 0);
  listener.AddHandler(Opened(), runs.Note("eager"), 1);
  const ZELSYPDispatchTracer tracer(Writing());
  Raise(listener);
  EXPECT_THAT(lines, ElementsAre("runs Listener.Opened at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "consumes Listener.Opened at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "passed over Listener.Opened at Listener, list 0, position 1: ZELSYPEventHandler",
                                 "runs Listener.Opened at Listener, list 0, position 2: ZELSYPEventHandler"));
}

TEST_F(ZELSYPDispatchTracerTest, PutsNestedStepsBetweenThoseOfTheHandlerThatRaisedThem)
{
  listener.AddHandler(Opened(),
                      ZELSYPMakeHandler(
                          [&](ZELSYPEventArgs* i_pArgs)
                          {
                            RaiseNumber(listener, 1);
                            i_pArgs->Consume();
                          }),
                      0);
  listener.AddHandler(Counted(), ZELSYPMakeHandler([](ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); }), 0);
  const ZELSYPDispatchTracer tracer(Writing());
  Raise(listener);
  EXPECT_THAT(lines, ElementsAre("runs Listener.Opened at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "runs Listener.Counted at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "consumes Listener.Counted at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "consumes Listener.Opened at Listener, list 0, position 0: ZELSYPEventHandler"));
}

TEST_F(ZELSYPDispatchTracerTest, WritesJSON)
{
  listener.AddHandler(Opened(), runs.Note("handler"), 0);
  const ZELSYPDispatchTracer tracer(Writing(), ZELSYPDispatchTracer::Format::JSON);
  Raise(listener);
  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_EQ(nlohmann::json::parse(lines[0]), nlohmann::json::parse(R"({"step": "runs", "event": "Listener.Opened", "node": "Listener",
                                             "list": 0, "position": 0, "handler": "ZELSYPEventHandler"})"));
}

TEST_F(ZELSYPDispatchTracerTest, TellsNodesAndHandlersApart)
{
  listener.AddHandler(Opened(), runs.Note("handler"), 0);
  std::string line;
  const ZELSYPDispatchTracer tracer([&](const std::string& i_line) { line = i_line; });
  Raise(listener);
  const std::regex expected("runs Listener.Opened at Listener@[0-9a-fxA-F]+, list 0, position 0: ZELSYPEventHandler@[0-9a-fxA-F]+");
  EXPECT_TRUE(std::regex_match(line, expected)) << line;
}

TEST_F(ZELSYPDispatchTracerTest, SaysNothingOnceItIsGone)
{
  listener.AddHandler(Opened(), runs.Note("handler"), 0);
  {
    const ZELSYPDispatchTracer tracer(Writing());
  }
  Raise(listener);
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(ZELSYPDispatchTracerTest, MayGoWhileAHandlerRuns)
{
  std::optional<ZELSYPDispatchTracer> tracer(std::in_place, Writing());
  listener.AddHandler(Opened(), ZELSYPMakeHandler([&](ZELSYPEventArgs*) { tracer.reset(); }), 0);
  listener.AddHandler(Opened(), runs.Note("after"), 0);
  Raise(listener);
  EXPECT_THAT(lines, SizeIs(1));
  EXPECT_THAT(runs.Take(), ElementsAre("after"));
}

TEST_F(ZELSYPDispatchTracerTest, MayComeWhileAHandlerRuns)
{
  std::optional<ZELSYPDispatchTracer> tracer;
  listener.AddHandler(Opened(), ZELSYPMakeHandler([&](ZELSYPEventArgs*) { tracer.emplace(Writing()); }), 0);
  listener.AddHandler(Opened(), runs.Note("after"), 0);
  Raise(listener);
  EXPECT_THAT(lines, ElementsAre("runs Listener.Opened at Listener, list 0, position 1: ZELSYPEventHandler"));
}

TEST_F(ZELSYPDispatchTracerTest, GoesOnAfterAHandlerHasThrown)
{
  listener.AddHandler(Opened(), ZELSYPMakeHandler([](ZELSYPEventArgs*) { throw 7; }), 0);
  listener.AddHandler(Counted(), ZELSYPMakeHandler([](ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); }), 0);
  const ZELSYPDispatchTracer tracer(Writing());
  EXPECT_THROW(Raise(listener), int);
  RaiseNumber(listener, 1);
  EXPECT_THAT(lines, ElementsAre("runs Listener.Opened at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "runs Listener.Counted at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "consumes Listener.Counted at Listener, list 0, position 0: ZELSYPEventHandler"));
}

TEST_F(ZELSYPDispatchTracerTest, IsNotToldOfWhatItsWriterRaises)
{
  listener.AddHandler(Opened(), runs.Note("handler"), 0);
  int written = 0;
  const ZELSYPDispatchTracer tracer(
      [&](const std::string&)
      {
        ++written;
        Raise(listener);
      });
  Raise(listener);
  EXPECT_EQ(written, 1);
  EXPECT_THAT(runs.Take(), SizeIs(2));
}

TEST_F(ZELSYPDispatchTracerTest, MayBeDestroyedByItsWriter)
{
  std::optional<ZELSYPDispatchTracer> tracer;
  std::string line;
  const auto pOwned = std::make_shared<std::string>("written");
  tracer.emplace(
      [&, pOwned](const std::string&)
      {
        tracer.reset();
        line = *pOwned;
      });
  listener.AddHandler(Opened(), runs.Note("first"), 0);
  listener.AddHandler(Opened(), runs.Note("second"), 0);
  Raise(listener);
  EXPECT_EQ(line, "written");
  EXPECT_EQ(pOwned.use_count(), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("first", "second"));
}

TEST_F(ZELSYPDispatchTracerTest, WritesOnAfterItsWriterHasThrown)
{
  listener.AddHandler(Opened(), runs.Note("handler"), 0);
  int written = 0;
  const ZELSYPDispatchTracer tracer(
      [&](const std::string&)
      {
        if (++written == 1)
          throw 7;
      });
  EXPECT_THROW(Raise(listener), int);
  EXPECT_THAT(runs.Take(), IsEmpty());
  Raise(listener);
  EXPECT_EQ(written, 2);
  EXPECT_THAT(runs.Take(), ElementsAre("handler"));
}

TEST_F(ZELSYPDispatchTracerTest, SaysWhoConsumesWhenANestedHandlerHasThrown)
{
  listener.AddHandler(Opened(),
                      ZELSYPMakeHandler(
                          [&](ZELSYPEventArgs* i_pArgs)
                          {
                            EXPECT_THROW(RaiseNumber(listener, 1), int);
                            i_pArgs->Consume();
                          }),
                      0);
  listener.AddHandler(Counted(), ZELSYPMakeHandler([](ZELSYPEventArgs*) { throw 7; }), 0);
  const ZELSYPDispatchTracer tracer(Writing());
  Raise(listener);
  EXPECT_THAT(lines, ElementsAre("runs Listener.Opened at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "runs Listener.Counted at Listener, list 0, position 0: ZELSYPEventHandler",
                                 "consumes Listener.Opened at Listener, list 0, position 0: ZELSYPEventHandler"));
}

TEST_F(ZELSYPDispatchTracerTest, WritesThatThereIsNoEventWhereTheArgumentsHaveNone)
{
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(runs.Note("handler"), 0);
  ZELSYPEventPathElt stop{ZELBaseUnknown_var(&listener)};
  stop.AddList(list);
  ZELSYPEventArgs args(nullptr);
  const ZELSYPDispatchTracer text(Writing());
  const ZELSYPDispatchTracer json(Writing(), ZELSYPDispatchTracer::Format::JSON);
  stop.Dispatch(&args);
  EXPECT_THAT(lines,
              ElementsAre(R"({"step":"runs","event":"no event","node":"Listener","list":0,"position":0,"handler":"ZELSYPEventHandler"})",
                          "runs no event at Listener, list 0, position 0: ZELSYPEventHandler"));
  EXPECT_THAT(runs.Take(), ElementsAre("handler"));
}
