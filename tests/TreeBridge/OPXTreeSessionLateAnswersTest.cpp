// Requests that the source answers later, twice or never.
#include "OPXTreeSession.h"

#include "RaisingSource.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class OPXTreeSessionLateAnswersTest : public testing::Test
{
protected:
  static std::string Select(const std::string& i_id)
  {
    return R"({"jsonrpc":"2.0","id":)" + i_id + R"(,"method":"tree/selectionChange","params":{"addedNodes":[]}})";
  }
  static std::string Selected(const std::string& i_id, const std::string& i_node)
  {
    return R"({"jsonrpc":"2.0","id":)" + i_id + R"(,"result":{"addedNodes":[")" + i_node + R"("]}})";
  }
  static std::string Failed(const std::string& i_id, const std::string& i_reason)
  {
    return R"({"jsonrpc":"2.0","id":)" + i_id + R"(,"error":{"code":-32603,"data":{"reason":")" + i_reason +
           R"("},"message":"Internal error"}})";
  }
  // Answers the oldest request that waits by a node.
  void AnswerNext(const std::string& i_node)
  {
    const auto callback = source.waiting.front();
    source.waiting.erase(source.waiting.begin());
    callback({{i_node}, {}});
  }

  std::vector<std::string> sent;
  RaisingSource source;
  std::optional<OPXTreeSession> session{std::in_place, source, [this](const std::string& i_message) { sent.push_back(i_message); }};
};

const std::string structure = R"({"jsonrpc":"2.0","id":0,"method":"tree/structure","params":{}})";
const std::string structureAnswer = R"({"jsonrpc":"2.0","id":0,"result":null})";
} // namespace

TEST_F(OPXTreeSessionLateAnswersTest, ALateAnswerIsSentWhenItComes)
{
  session->Receive(Select("1"));
  EXPECT_THAT(sent, IsEmpty());
  session->Receive(structure);
  AnswerNext("a");
  EXPECT_THAT(sent, ElementsAre(structureAnswer, Selected("1", "a")));
}

TEST_F(OPXTreeSessionLateAnswersTest, ALateAnswerIsSentThoughItsMessageWasToBeReturned)
{
  EXPECT_EQ(session->Answer(Select("1")), "");
  AnswerNext("a");
  EXPECT_THAT(sent, ElementsAre(Selected("1", "a")));
}

TEST_F(OPXTreeSessionLateAnswersTest, ABatchWaitsForTheLastOfItsAnswersAndKeepsItsOrder)
{
  session->Receive("[" + Select("1") + "," + structure + "," + Select("2") + "]");
  EXPECT_THAT(sent, IsEmpty());
  const auto first = source.waiting[0];
  source.waiting.erase(source.waiting.begin());
  AnswerNext("b");
  EXPECT_THAT(sent, IsEmpty());
  first({{"a"}, {}});
  EXPECT_THAT(sent, ElementsAre("[" + Selected("1", "a") + "," + structureAnswer + "," + Selected("2", "b") + "]"));
}

TEST_F(OPXTreeSessionLateAnswersTest, ABatchOfNotificationsIsNeverAnswered)
{
  session->Receive(R"([{"jsonrpc":"2.0","method":"tree/selectionChange","params":{"addedNodes":[]}}])");
  AnswerNext("a");
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionLateAnswersTest, OfSeveralAnswersTheFirstCounts)
{
  session->Receive(Select("1"));
  const auto callback = source.waiting[0];
  callback({{"a"}, {}});
  callback({{"b"}, {}});
  EXPECT_THAT(sent, ElementsAre(Selected("1", "a")));
}

TEST_F(OPXTreeSessionLateAnswersTest, ARequestWhoseCallbackIsDroppedIsAnErrorThen)
{
  session->Receive(Select("1"));
  source.waiting.clear();
  EXPECT_THAT(sent, ElementsAre(Failed("1", "the source gave no answer")));
}

TEST_F(OPXTreeSessionLateAnswersTest, ARequestWhoseCallbackIsDroppedAtOnceIsAnErrorAtOnce)
{
  source.whenAsked = [this] { source.waiting.clear(); };
  EXPECT_EQ(session->Answer(Select("1")), Failed("1", "the source gave no answer"));
}

TEST_F(OPXTreeSessionLateAnswersTest, ASourceThatAnswersAndThenFailsHasAnswered)
{
  source.whenAsked = [this]
  {
    source.waiting[0]({{"a"}, {}});
    throw std::runtime_error("too late");
  };
  EXPECT_EQ(session->Answer(Select("1")), Selected("1", "a"));
}

TEST_F(OPXTreeSessionLateAnswersTest, ASourceThatFailsAndThenAnswersHasFailed)
{
  source.whenAsked = [] { throw std::runtime_error("too early"); };
  EXPECT_EQ(session->Answer(Select("1")), Failed("1", "too early"));
  AnswerNext("a");
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionLateAnswersTest, WithoutAnOutputALateAnswerIsAnErrorAtOnce)
{
  const OPXTreeSession mute(source);
  EXPECT_EQ(mute.Answer(Select("1")), Failed("1", "the source gave no answer"));
  EXPECT_EQ(mute.Answer("[" + structure + "," + Select("2") + "]"),
            "[" + structureAnswer + "," + Failed("2", "the source gave no answer") + "]");
  AnswerNext("a");
  AnswerNext("b");
}

TEST_F(OPXTreeSessionLateAnswersTest, AnAnswerForASessionThatHasGoneIsSentNowhere)
{
  session->Receive(Select("1"));
  session->Receive(Select("2"));
  session.reset();
  AnswerNext("a");
  source.waiting.clear();
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionLateAnswersTest, ALateAnswerOfOneMessageThatComesWithinAnotherFollowsItsAnswer)
{
  session->Receive(Select("1"));
  source.whenAsked = [this] { AnswerNext("a"); };
  session->Receive(structure);
  EXPECT_THAT(sent, ElementsAre(structureAnswer, Selected("1", "a")));
}

TEST_F(OPXTreeSessionLateAnswersTest, WhatAnOutputThrowsReachesNobodyWhoAnswersLateOrDropsTheCallback)
{
  session.emplace(source, [](const std::string&) { throw std::runtime_error("closed"); });
  session->Receive(Select("1"));
  session->Receive(Select("2"));
  EXPECT_NO_THROW(AnswerNext("a"));
  EXPECT_NO_THROW(source.waiting.clear());
}
