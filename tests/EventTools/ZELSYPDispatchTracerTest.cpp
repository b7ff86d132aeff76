#include "ZELSYPDispatchTracer.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPSingleEventPathBuilder.h"
#include "ZELSYPSubscribe.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>

#include <optional>
#include <regex>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class LoudListener : public Listener
{
  ZELDeclareClass;
};
ZELImplementClass(LoudListener, Listener, EventTools_tests);

// Its objects call themselves by another name.
class QuotedListener : public Listener
{
  ZELDeclareClass;

public:
  const char* IsA() const override { return "Listener \"two\""; }
};
ZELImplementClass(QuotedListener, Listener, EventTools_tests);

namespace
{
// Makes events that NewEvent refuses, with a report.
class BadFactory : public ZELSYPEventFactory
{
public:
  static auto Make(const char* i_name, ZELMetaClass* i_pOwner)
  {
    return ZELHandle<ZELSYPEvent>::Adopt(MakeEvent(i_name, ZELSYPEvent::NoPropagation, ZELSYPEventArgs::MetaObject(), i_pOwner));
  }
};

ZELMetaClass* QuotedRecord()
{
  static ZELMetaClass record(
      "Box<'\"'>", "EventTools_tests", ZELClassId(), [] { return Listener::MetaObject(); },
      [](ZELBaseUnknown*) -> void* { return nullptr; }, []() -> ZELBaseUnknown* { return nullptr; });
  return &record;
}

void Consume(ZELSYPEventArgs* i_pArgs)
{
  i_pArgs->Consume();
}

void Throw(ZELSYPEventArgs*)
{
  throw 7;
}

// The line of a handler that was registered on the listener.
std::string Line(const std::string& i_step, const std::string& i_event, int i_position)
{
  return i_step + " Listener." + i_event + " at Listener, instance handler, position " + std::to_string(i_position) +
         ": ZELSYPEventHandler";
}

class ZELSYPDispatchTracerTest : public testing::Test
{
protected:
  // Without addresses, which differ from run to run.
  auto Writing()
  {
    return [this](const std::string& i_line) { lines.push_back(std::regex_replace(i_line, std::regex("@(0x)?[0-9a-fA-F]+"), "")); };
  }
  // What a tracer writes of an Opened that the listener raises.
  std::vector<std::string> Trace(Listener& io_listener)
  {
    const ZELSYPDispatchTracer tracer(Writing());
    Raise(io_listener);
    return std::exchange(lines, {});
  }
  template <class Callable>
  void When(ZELSYPEvent* i_pEvent, Callable i_callable)
  {
    listener.AddHandler(i_pEvent, ZELSYPMakeHandler(i_callable), 0);
  }

  // What is written, in both formats, of an event that one handler hears, which was registered for a class of any name.
  void TraceBoth(const ZELHandle<ZELSYPEvent>& i_spEvent, Listener& io_listener)
  {
    ZELSYPClassEventHandlersSupport ofClasses;
    ofClasses.AddClassHandler(QuotedRecord(), i_spEvent, runs.Note("handler"), 0);
    ZELSYPEventHandlersSupport own;
    own.ReplaceHandlers(*ofClasses.GetClassHandlersSupport(QuotedRecord()));
    const ZELSYPDispatchTracer json(Writing(), ZELSYPDispatchTracer::Format::JSON);
    const ZELSYPDispatchTracer text(Writing());
    ZELSYPEventArgs args(i_spEvent);
    ZELSYPSingleEventPathBuilder(&own, nullptr).Dispatch(&io_listener, &args);
  }

  std::vector<std::string> lines;
  Runs runs;
  Listener listener;
};
} // namespace

TEST_F(ZELSYPDispatchTracerTest, SaysWhoRunsWhereAndForWhichClassItWasRegistered)
{
  const ZELSYPSubscription ofListeners = ZELSYPSubscribeClass<Listener>(Opened(), runs.Adding("class"));
  const ZELSYPSubscription ofLoudOnes = ZELSYPSubscribeClass<LoudListener>(Opened(), runs.Adding("derived class"));
  LoudListener loud;
  loud.AddHandler(Opened(), runs.Note("first"), 0);
  loud.AddHandler(Opened(), runs.Note("second"), 0);
  EXPECT_THAT(Trace(loud),
              ElementsAre("runs Listener.Opened at LoudListener, class handler of LoudListener, position 0: ZELSYPEventHandler",
                          "runs Listener.Opened at LoudListener, class handler of Listener, position 0: ZELSYPEventHandler",
                          "runs Listener.Opened at LoudListener, instance handler, position 0: ZELSYPEventHandler",
                          "runs Listener.Opened at LoudListener, instance handler, position 1: ZELSYPEventHandler"));
}

TEST_F(ZELSYPDispatchTracerTest, SaysForWhichClassAHandlerWasRegisteredThatTheNodeTookOver)
{
  ZELSYPClassEventHandlersSupport ofClasses;
  ofClasses.AddClassHandler(Listener::MetaObject(), Opened(), runs.Note("class"), 0);
  ZELSYPEventHandlersSupport own;
  own.ReplaceHandlers(*ofClasses.GetClassHandlersSupport(Listener::MetaObject()));
  const ZELSYPDispatchTracer tracer(Writing());
  ZELSYPEventArgs args(Opened());
  ZELSYPSingleEventPathBuilder(&own, nullptr).Dispatch(&listener, &args);
  EXPECT_THAT(lines, ElementsAre("runs Listener.Opened at Listener, class handler of Listener, position 0: ZELSYPEventHandler"));
}

TEST_F(ZELSYPDispatchTracerTest, SaysWhoConsumesAndWhoIsPassedOver)
{
  When(Opened(), Consume);
  When(Opened(), runs.Adding("plain"));
  listener.AddHandler(Opened(), runs.Note("eager"), 1);
  EXPECT_THAT(Trace(listener), ElementsAre(Line("runs", "Opened", 0), Line("consumes", "Opened", 0), Line("passed over", "Opened", 1),
                                           Line("runs", "Opened", 2)));
}

TEST_F(ZELSYPDispatchTracerTest, PutsNestedStepsBetweenThoseOfTheHandlerThatRaisedThem)
{
  When(Opened(),
       [&](ZELSYPEventArgs* i_pArgs)
       {
         RaiseNumber(listener, 1);
         i_pArgs->Consume();
       });
  When(Counted(), Consume);
  EXPECT_THAT(Trace(listener), ElementsAre(Line("runs", "Opened", 0), Line("runs", "Counted", 0), Line("consumes", "Counted", 0),
                                           Line("consumes", "Opened", 0)));
}

TEST_F(ZELSYPDispatchTracerTest, WritesJSON)
{
  const ZELSYPSubscription ofClass = ZELSYPSubscribeClass<Listener>(Opened(), runs.Adding("class"));
  When(Opened(), runs.Adding("own"));
  const ZELSYPDispatchTracer tracer(Writing(), ZELSYPDispatchTracer::Format::JSON);
  Raise(listener);
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_EQ(nlohmann::json::parse(lines[0]), nlohmann::json::parse(R"({"step": "runs", "event": "Listener.Opened", "node": "Listener",
                                             "list": 0, "class": "Listener", "position": 0, "handler": "ZELSYPEventHandler"})"));
  EXPECT_EQ(nlohmann::json::parse(lines[1]), nlohmann::json::parse(R"({"step": "runs", "event": "Listener.Opened", "node": "Listener",
                                             "list": 1, "class": null, "position": 0, "handler": "ZELSYPEventHandler"})"));
}

TEST_F(ZELSYPDispatchTracerTest, TellsNodesAndHandlersApart)
{
  When(Opened(), runs.Adding("handler"));
  std::string line;
  const ZELSYPDispatchTracer tracer([&](const std::string& i_line) { line = i_line; });
  Raise(listener);
  const std::regex expected("runs Listener.Opened at Listener@[0-9a-fxA-F]+, instance handler, position 0: "
                            "ZELSYPEventHandler@[0-9a-fxA-F]+");
  EXPECT_TRUE(std::regex_match(line, expected)) << line;
}

TEST_F(ZELSYPDispatchTracerTest, SaysNothingOnceItIsGone)
{
  When(Opened(), runs.Adding("handler"));
  {
    const ZELSYPDispatchTracer tracer(Writing());
  }
  Raise(listener);
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(ZELSYPDispatchTracerTest, MayGoWhileAHandlerRuns)
{
  std::optional<ZELSYPDispatchTracer> tracer(std::in_place, Writing());
  When(Opened(), [&](ZELSYPEventArgs*) { tracer.reset(); });
  When(Opened(), runs.Adding("after"));
  Raise(listener);
  EXPECT_THAT(lines, SizeIs(1));
  EXPECT_THAT(runs.Take(), ElementsAre("after"));
}

TEST_F(ZELSYPDispatchTracerTest, MayComeWhileAHandlerRuns)
{
  std::optional<ZELSYPDispatchTracer> tracer;
  When(Opened(), [&](ZELSYPEventArgs*) { tracer.emplace(Writing()); });
  When(Opened(), runs.Adding("after"));
  Raise(listener);
  EXPECT_THAT(lines, ElementsAre(Line("runs", "Opened", 1)));
}

TEST_F(ZELSYPDispatchTracerTest, GoesOnAfterAHandlerHasThrown)
{
  When(Opened(), Throw);
  When(Counted(), Consume);
  const ZELSYPDispatchTracer tracer(Writing());
  EXPECT_THROW(Raise(listener), int);
  RaiseNumber(listener, 1);
  EXPECT_THAT(lines, ElementsAre(Line("runs", "Opened", 0), Line("runs", "Counted", 0), Line("consumes", "Counted", 0)));
}

TEST_F(ZELSYPDispatchTracerTest, IsNotToldOfWhatItsWriterRaises)
{
  When(Opened(), runs.Adding("handler"));
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
  When(Opened(), runs.Adding("first"));
  When(Opened(), runs.Adding("second"));
  Raise(listener);
  EXPECT_EQ(line, "written");
  EXPECT_EQ(pOwned.use_count(), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("first", "second"));
}

TEST_F(ZELSYPDispatchTracerTest, WritesOnAfterItsWriterHasThrown)
{
  When(Opened(), runs.Adding("handler"));
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
  When(Opened(),
       [&](ZELSYPEventArgs* i_pArgs)
       {
         EXPECT_THROW(RaiseNumber(listener, 1), int);
         i_pArgs->Consume();
       });
  When(Counted(), Throw);
  EXPECT_THAT(Trace(listener), ElementsAre(Line("runs", "Opened", 0), Line("runs", "Counted", 0), Line("consumes", "Opened", 0)));
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
  EXPECT_THAT(
      lines,
      ElementsAre(
          R"({"step":"runs","event":"no event","node":"Listener","list":0,"class":null,"position":0,"handler":"ZELSYPEventHandler"})",
          "runs no event at Listener, instance handler, position 0: ZELSYPEventHandler"));
  EXPECT_THAT(runs.Take(), ElementsAre("handler"));
}

TEST_F(ZELSYPDispatchTracerTest, TellsAnEventWithoutAnOwnerAsOneOfNoClass)
{
  const RecordingFailureHandler refused;
  TraceBoth(BadFactory::Make("Opened", nullptr), listener);
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_EQ(lines[0], "runs no class.Opened at Listener, class handler of Box<'\"'>, position 0: ZELSYPEventHandler");
  EXPECT_EQ(nlohmann::json::parse(lines[1])["event"], "no class.Opened");
}

TEST_F(ZELSYPDispatchTracerTest, TellsAnEventWithoutANameByItsOwner)
{
  const RecordingFailureHandler refused;
  TraceBoth(BadFactory::Make(nullptr, Listener::MetaObject()), listener);
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_EQ(lines[0], "runs Listener. at Listener, class handler of Box<'\"'>, position 0: ZELSYPEventHandler");
  EXPECT_EQ(nlohmann::json::parse(lines[1])["event"], "Listener.");
}

TEST_F(ZELSYPDispatchTracerTest, EscapesInJSONWhateverANameHolds)
{
  const RecordingFailureHandler refused;
  QuotedListener quoted;
  TraceBoth(BadFactory::Make("a\"b\\\n\xFF", QuotedRecord()), quoted);
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_EQ(lines[0], "runs Box<'\"'>.a\"b\\\n\xFF at Listener \"two\", class handler of Box<'\"'>, position 0: ZELSYPEventHandler");
  EXPECT_EQ(lines[1], R"({"step":"runs","event":"Box<'\"'>.a\"b\\\n)"
                      "\xEF\xBF\xBD"
                      R"(","node":"Listener \"two\"","list":0,"class":"Box<'\"'>","position":0,"handler":"ZELSYPEventHandler"})");
}
