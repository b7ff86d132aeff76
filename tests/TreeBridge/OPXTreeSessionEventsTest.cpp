// What a tree session tells without having been asked, and how the view answers it.
#include "OPXTreeSession.h"

#include "MemorySource.h"
#include "RaisingSource.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <utility>

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class OPXTreeSessionEventsTest : public testing::Test
{
protected:
  // No check may fail because of what a view sends.
  ~OPXTreeSessionEventsTest() override { EXPECT_THAT(failures.GetMessages(), IsEmpty()); }

  OPXTreeSession::Output Output()
  {
    return [this](const std::string& i_message) { sent.push_back(i_message); };
  }
  OPXTreeSession::Output OutputThatThrowsFirst()
  {
    return [this, isFirst = true](const std::string& i_message) mutable
    {
      if (std::exchange(isFirst, false))
        throw std::runtime_error("closed");
      sent.push_back(i_message);
    };
  }
  RaisingSource::SuccessCallback Remember()
  {
    return [this](json& io_answer) { answers.push_back(io_answer); };
  }
  // The view's answer to a notification; what comes back.
  json Succeed(const std::string& i_params)
  {
    return json::parse(session->Answer(R"({"jsonrpc":"2.0","id":1,"method":"tree/succeeded","params":)" + i_params + "}"));
  }
  static json Done() { return json::parse(R"({"jsonrpc":"2.0","id":1,"result":null})"); }
  static json Refused(const json& i_data)
  {
    return {{"jsonrpc", "2.0"}, {"id", 1}, {"error", {{"code", -32602}, {"message", "Invalid params"}, {"data", i_data}}}};
  }

  RecordingFailureHandler failures;
  std::vector<std::string> sent;
  std::vector<json> answers;
  RaisingSource source;
  std::optional<OPXTreeSession> session{std::in_place, source, Output()};
};

const std::string structure = R"({"jsonrpc":"2.0","id":1,"method":"tree/structure","params":{}})";
const std::string structureAnswer = R"({"jsonrpc":"2.0","id":1,"result":null})";
const json none = {{"place", "/answerTo"}, {"reason", "no notification has this number"}};
const json over = {{"place", "/answerTo"}, {"reason", "answered before, or given up"}};

std::string ToldSelection(const std::string& i_id)
{
  return R"({"jsonrpc":"2.0","method":"tree/selectionChanged","params":{"addedNodes":[")" + i_id + R"("]}})";
}
} // namespace

TEST_F(OPXTreeSessionEventsTest, AModelChangeIsTold)
{
  source.RaiseModel(json::parse(R"([{"add":["a"]}])"));
  EXPECT_THAT(sent, ElementsAre(R"({"jsonrpc":"2.0","method":"tree/modelChanged","params":{"transactions":[{"add":["a"]}]}})"));
}

TEST_F(OPXTreeSessionEventsTest, ASelectionChangeIsToldAsItsRecordWritesIt)
{
  source.RaiseSelection({"a", "b"});
  EXPECT_THAT(sent, ElementsAre(R"({"jsonrpc":"2.0","method":"tree/selectionChanged","params":{"addedNodes":["a","b"]}})"));
}

TEST_F(OPXTreeSessionEventsTest, AnEmptySelectionChangeHasParametersAllTheSame)
{
  source.RaiseSelection({});
  EXPECT_THAT(sent, ElementsAre(R"({"jsonrpc":"2.0","method":"tree/selectionChanged","params":{}})"));
}

TEST_F(OPXTreeSessionEventsTest, AnUpdateOfTheViewIsTold)
{
  source.RaiseView(nullptr);
  EXPECT_THAT(sent, ElementsAre(R"({"jsonrpc":"2.0","method":"tree/viewUpdated","params":{"transactions":null}})"));
}

TEST_F(OPXTreeSessionEventsTest, EachWithASuccessCallbackCarriesANumberOfItsOwn)
{
  source.RaiseModel(1, Remember());
  source.RaiseSelection({"a"}, Remember());
  source.RaiseView(2);
  source.RaiseView(3, Remember());
  EXPECT_THAT(sent, ElementsAre(R"({"jsonrpc":"2.0","method":"tree/modelChanged","params":{"answerTo":1,"transactions":1}})",
                                R"({"jsonrpc":"2.0","method":"tree/selectionChanged","params":{"addedNodes":["a"],"answerTo":2}})",
                                R"({"jsonrpc":"2.0","method":"tree/viewUpdated","params":{"transactions":2}})",
                                R"({"jsonrpc":"2.0","method":"tree/viewUpdated","params":{"answerTo":3,"transactions":3}})"));
}

TEST_F(OPXTreeSessionEventsTest, TheViewsAnswerGoesToTheCallbackOfItsNotification)
{
  source.RaiseModel(1, [this](json& io_answer) { answers.push_back({"model", io_answer}); });
  source.RaiseSelection({"a"}, [this](json& io_answer) { answers.push_back({"selection", io_answer}); });
  EXPECT_EQ(Succeed(R"({"answerTo":2,"result":{"done":true}})"), Done());
  EXPECT_EQ(Succeed(R"({"answerTo":1,"result":[1]})"), Done());
  EXPECT_THAT(answers, ElementsAre(json::parse(R"(["selection",{"done":true}])"), json::parse(R"(["model",[1]])")));
}

TEST_F(OPXTreeSessionEventsTest, AnAnswerWithoutAResultIsNull)
{
  source.RaiseModel(1, Remember());
  EXPECT_EQ(Succeed(R"({"answerTo":1})"), Done());
  EXPECT_THAT(answers, ElementsAre(json()));
}

TEST_F(OPXTreeSessionEventsTest, AnAnswerMayBeANotificationItself)
{
  source.RaiseModel(1, Remember());
  session->Receive(R"({"jsonrpc":"2.0","method":"tree/succeeded","params":{"answerTo":1,"result":7}})");
  EXPECT_THAT(answers, ElementsAre(7));
  EXPECT_EQ(sent.size(), 1u);
}

TEST_F(OPXTreeSessionEventsTest, ASecondAnswerIsAnErrorAndRunsNothing)
{
  source.RaiseModel(1, Remember());
  Succeed(R"({"answerTo":1})");
  EXPECT_EQ(Succeed(R"({"answerTo":1})"), Refused(over));
  EXPECT_EQ(answers.size(), 1u);
}

TEST_F(OPXTreeSessionEventsTest, AnAnswerToANumberThatWasNeverGivenIsAnError)
{
  source.RaiseModel(1, Remember());
  for (const char* const number : {"0", "2", "18446744073709551615"})
    EXPECT_EQ(Succeed(std::string(R"({"answerTo":)") + number + "}"), Refused(none)) << number;
  EXPECT_THAT(answers, IsEmpty());
}

TEST_F(OPXTreeSessionEventsTest, AnAnswerWithoutAProperNumberIsAnError)
{
  source.RaiseModel(1, Remember());
  EXPECT_EQ(Succeed("{}"), Refused({{"place", ""}, {"missing", "answerTo"}}));
  EXPECT_EQ(Succeed("[1]"), Refused({{"place", ""}, {"expected", "object"}, {"found", "array"}}));
  for (const auto& [number, kind] :
       {std::pair("-1", "number"), {"1.0", "number"}, {"\"1\"", "string"}, {"null", "null"}, {"true", "boolean"}})
    EXPECT_EQ(Succeed(std::string(R"({"answerTo":)") + number + "}"),
              Refused({{"place", "/answerTo"}, {"expected", "number of a notification"}, {"found", kind}}))
        << number;
  EXPECT_THAT(answers, IsEmpty());
}

TEST_F(OPXTreeSessionEventsTest, ACallbackThatThrowsIsAnInternalErrorAndCountsAsCalled)
{
  source.RaiseModel(1, [](json&) { throw std::runtime_error("no room"); });
  const json error = Succeed(R"({"answerTo":1})")["error"];
  EXPECT_EQ(error, json::parse(R"({"code":-32603,"message":"Internal error","data":{"reason":"no room"}})"));
  EXPECT_EQ(Succeed(R"({"answerTo":1})"), Refused(over));
}

TEST_F(OPXTreeSessionEventsTest, ACallbackMayChangeTheAnswerItIsGiven)
{
  source.RaiseModel(1, [](json& io_answer) { io_answer["more"] = 1; });
  EXPECT_EQ(Succeed(R"({"answerTo":1,"result":{}})"), Done());
}

TEST_F(OPXTreeSessionEventsTest, ACallbackMayRaiseTheNextEvent)
{
  source.RaiseModel(1, [this](json&) { source.RaiseModel(2, Remember()); });
  Succeed(R"({"answerTo":1})");
  EXPECT_EQ(Succeed(R"({"answerTo":2,"result":7})"), Done());
  EXPECT_THAT(answers, ElementsAre(7));
}

TEST_F(OPXTreeSessionEventsTest, OfMoreCallbacksThanTheLimitTheOldestIsGivenUp)
{
  for (std::size_t i = 0; i <= OPXTreeSession::MaxAwaited; ++i)
    source.RaiseModel(i, Remember());
  EXPECT_EQ(Succeed(R"({"answerTo":1})"), Refused(over));
  EXPECT_EQ(Succeed(R"({"answerTo":2})"), Done());
  EXPECT_EQ(Succeed(R"({"answerTo":1001})"), Done());
  EXPECT_EQ(answers.size(), 2u);
}

TEST_F(OPXTreeSessionEventsTest, CallbacksThatStillWaitGoWithTheSessionUncalled)
{
  const auto pHeld = std::make_shared<int>();
  source.RaiseModel(1, [this, pHeld](json& io_answer) { answers.push_back(io_answer); });
  EXPECT_EQ(pHeld.use_count(), 2);
  session.reset();
  EXPECT_EQ(pHeld.use_count(), 1);
  EXPECT_THAT(answers, IsEmpty());
}

TEST_F(OPXTreeSessionEventsTest, ACallbackIsLetGoOnceItHasRun)
{
  const auto pHeld = std::make_shared<int>();
  source.RaiseModel(1, [pHeld](json&) {});
  Succeed(R"({"answerTo":1})");
  EXPECT_EQ(pHeld.use_count(), 1);
}

TEST_F(OPXTreeSessionEventsTest, ASessionThatHasGoneHearsNothing)
{
  session.reset();
  source.RaiseSelection({"a"});
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionEventsTest, TheSourceMayGoFirst)
{
  auto pSource = std::make_unique<RaisingSource>();
  OPXTreeSession second(*pSource, Output());
  pSource->RaiseSelection({"a"});
  pSource.reset();
  EXPECT_THAT(sent, ElementsAre(ToldSelection("a")));
}

TEST_F(OPXTreeSessionEventsTest, ASessionThatGoesInTheMiddleOfAnEventIsNotToldOfIt)
{
  RaisingSource other;
  std::optional<OPXTreeSession> second;
  const ZELSYPSubscription first =
      ZELSYPSubscribe(other, ZELSYPAbstractDataSource::SelectionChanged(), [&](ZELSYPEventArgs*) { second.reset(); });
  second.emplace(other, Output());
  other.RaiseSelection({"a"});
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionEventsTest, EachSessionOfASourceTellsItsViewAndCountsForItself)
{
  OPXTreeSession second(source, Output());
  source.RaiseModel(1, Remember());
  EXPECT_THAT(sent, ElementsAre(R"({"jsonrpc":"2.0","method":"tree/modelChanged","params":{"answerTo":1,"transactions":1}})",
                                R"({"jsonrpc":"2.0","method":"tree/modelChanged","params":{"answerTo":1,"transactions":1}})"));
  session.reset();
  source.RaiseModel(2);
  EXPECT_EQ(sent.size(), 3u);
}

TEST_F(OPXTreeSessionEventsTest, WhatAHandlerBeforeHasConsumedIsNotTold)
{
  RaisingSource other;
  const ZELSYPSubscription first =
      ZELSYPSubscribe(other, ZELSYPAbstractDataSource::SelectionChanged(), [](ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); });
  const OPXTreeSession second(other, Output());
  other.RaiseSelection({"a"});
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionEventsTest, TextsThatAreNotUTF8AreReplacedAndAMessageIsOneLine)
{
  source.RaiseSelection({"caf\xE9", "two\nlines"});
  EXPECT_THAT(sent, ElementsAre("{\"jsonrpc\":\"2.0\",\"method\":\"tree/selectionChanged\",\"params\":{\"addedNodes\":["
                                "\"caf\xEF\xBF\xBD\",\"two\\nlines\"]}}"));
}

TEST_F(OPXTreeSessionEventsTest, WithoutAnOutputTheSourceIsNotHeard)
{
  RaisingSource other;
  const OPXTreeSession second(other);
  EXPECT_EQ(other.GetHandlersSupport(), nullptr);
  EXPECT_EQ(json::parse(second.Answer(R"({"jsonrpc":"2.0","id":1,"method":"tree/succeeded","params":{"answerTo":1}})")), Refused(none));
}

TEST_F(OPXTreeSessionEventsTest, ASimpleSourceTellsOfChangesAsWell)
{
  MemorySource simple;
  const OPXTreeSession second(simple, Output());
  ZELSYPSelectionChangedEventArgs args(ZELSYPAbstractDataSource::SelectionChanged(), {{"a"}, {}}, nullptr);
  simple.Dispatch(&args);
  EXPECT_THAT(sent, ElementsAre(ToldSelection("a")));
}

TEST_F(OPXTreeSessionEventsTest, RowsMayComeFromAnotherObject)
{
  ZELSYPAbstractDataSource events;
  RaisingSource rows;
  int asked = 0;
  rows.whenAsked = [&] { ++asked; };
  const OPXTreeSession second(events, rows, Output());
  second.Receive(structure);
  EXPECT_THAT(sent, ElementsAre(structureAnswer));
  EXPECT_EQ(asked, 1);
}

TEST_F(OPXTreeSessionEventsTest, AnAnswerGoesBeforeWhatWasToldWhileItWasMade)
{
  source.whenAsked = [this]
  {
    source.RaiseSelection({"a"});
    source.RaiseSelection({"b"});
  };
  session->Receive(structure);
  EXPECT_THAT(sent, ElementsAre(structureAnswer, ToldSelection("a"), ToldSelection("b")));
}

TEST_F(OPXTreeSessionEventsTest, ABatchIsAnsweredBeforeWhatWasToldWhileItWasMade)
{
  source.whenAsked = [this] { source.RaiseSelection({"a"}); };
  session->Receive("[" + structure + "," + structure + "]");
  EXPECT_THAT(sent, ElementsAre("[" + structureAnswer + "," + structureAnswer + "]", ToldSelection("a"), ToldSelection("a")));
}

TEST_F(OPXTreeSessionEventsTest, ANotificationOfTheViewIsNotAnsweredButMayCauseOthers)
{
  source.whenAsked = [this] { source.RaiseSelection({"a"}); };
  session->Receive(R"({"jsonrpc":"2.0","method":"tree/structure","params":{}})");
  EXPECT_THAT(sent, ElementsAre(ToldSelection("a")));
}

TEST_F(OPXTreeSessionEventsTest, AnAnswerThatIsReturnedComesBehindWhatWasToldWhileItWasMade)
{
  source.whenAsked = [this] { source.RaiseSelection({"a"}); };
  sent.push_back(session->Answer(structure));
  EXPECT_THAT(sent, ElementsAre(ToldSelection("a"), structureAnswer));
}

TEST_F(OPXTreeSessionEventsTest, AViewThatAnswersFromWithinTheOutputKeepsTheOrder)
{
  RaisingSource other;
  std::optional<OPXTreeSession> second;
  second.emplace(
      other,
      [&](const std::string& i_message)
      {
        sent.push_back(i_message);
        const json message = json::parse(i_message);
        if (message.contains("method"))
          second->Receive(json{
              {"jsonrpc", "2.0"}, {"id", "view"}, {"method", "tree/succeeded"}, {"params", {{"answerTo", message["params"]["answerTo"]}}}}
                              .dump());
      });
  other.whenAsked = [&]
  {
    other.RaiseModel(1, Remember());
    other.RaiseModel(2, [&](json&) { other.RaiseModel(3, Remember()); });
  };
  second->Receive(structure);
  const std::string told = R"({"jsonrpc":"2.0","method":"tree/modelChanged","params":{"answerTo":)";
  const std::string done = R"({"jsonrpc":"2.0","id":"view","result":null})";
  EXPECT_THAT(sent, ElementsAre(structureAnswer, told + R"(1,"transactions":1}})", told + R"(2,"transactions":2}})", done, done,
                                told + R"(3,"transactions":3}})", done));
}

TEST_F(OPXTreeSessionEventsTest, WhatAnOutputThrowsReachesNobodyWhoRaisesAnEvent)
{
  session.emplace(source, OutputThatThrowsFirst());
  EXPECT_NO_THROW(source.RaiseSelection({"a"}));
  source.RaiseSelection({"b"});
  session->Receive(structure);
  EXPECT_THAT(sent, ElementsAre(ToldSelection("b"), structureAnswer));
}

TEST_F(OPXTreeSessionEventsTest, WhatWaitsBehindAMessageWhoseOutputThrowsIsSent)
{
  session.emplace(source, OutputThatThrowsFirst());
  source.whenAsked = [&] { source.RaiseSelection({"a"}); };
  EXPECT_NO_THROW(session->Receive(structure));
  EXPECT_THAT(sent, ElementsAre(ToldSelection("a")));
}
