// A session that is destroyed by what it calls.
#include "OPXTreeSession.h"

#include "RaisingSource.h"
#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
class OPXTreeSessionEndTest : public testing::Test
{
protected:
  // The output goes with the session, as that of a closed connection does.
  OPXTreeSessionEndTest()
  {
    session.emplace(source,
                    [this, pConnection = std::make_shared<int>()](const std::string& i_message)
                    {
                      sent.push_back(i_message);
                      whenSent();
                      EXPECT_EQ(pConnection.use_count(), 1) << "an output that runs is whole";
                    });
  }
  void EndIt() { session.reset(); }
  RaisingSource::SuccessCallback End()
  {
    return [this](json&) { session.reset(); };
  }

  // A session of the other source that its first success callback owns.
  OPXTreeSession& RaiseWithOwner()
  {
    const auto pOwned = std::make_shared<std::optional<OPXTreeSession>>();
    pOwned->emplace(other, [this](const std::string& i_message) { sent.push_back(i_message); });
    other.RaiseModel(1, [pOwned](json&) {});
    return **pOwned;
  }

  std::function<void()> whenSent = [] {};
  std::vector<std::string> sent;
  RaisingSource source;
  RaisingSource other;
  std::optional<OPXTreeSession> session;
};

const std::string structure = R"({"jsonrpc":"2.0","id":1,"method":"tree/structure","params":{}})";
const std::string selection = R"({"jsonrpc":"2.0","id":1,"method":"tree/selectionChange","params":{"addedNodes":[]}})";
const std::string succeeded = R"({"jsonrpc":"2.0","id":1,"method":"tree/succeeded","params":{"answerTo":1}})";
} // namespace

TEST_F(OPXTreeSessionEndTest, ASessionDestroyedByItsSourceAnswersNothing)
{
  source.whenAsked = [this]
  {
    source.RaiseModel(1);
    EndIt();
    source.RaiseModel(2);
  };
  session->Receive(structure);
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionEndTest, AnAnswerThatWasToBeReturnedIsEmpty)
{
  source.whenAsked = [this] { EndIt(); };
  EXPECT_EQ(session->Answer(structure), "");
}

TEST_F(OPXTreeSessionEndTest, ASourceThatFailsThenIsNotAnswered)
{
  source.whenAsked = [this]
  {
    EndIt();
    throw 7;
  };
  session->Receive(structure);
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionEndTest, TheOtherRequestsOfABatchAreNotServed)
{
  int asked = 0;
  source.whenAsked = [&]
  {
    ++asked;
    EndIt();
  };
  session->Receive("[" + structure + "," + structure + "]");
  EXPECT_EQ(asked, 1);
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionEndTest, AMessageWithinAMessageMayEndIt)
{
  source.whenAsked = [this, depth = 0]() mutable
  {
    source.RaiseModel(depth);
    if (++depth == 3)
      EndIt();
    else
      session->Receive(structure);
  };
  session->Receive(structure);
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionEndTest, ASuccessCallbackMayEndIt)
{
  source.RaiseModel(1, End());
  sent.clear();
  session->Receive(succeeded);
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXTreeSessionEndTest, AnOutputThatEndsItWithAnAnswerGetsNoMore)
{
  source.whenAsked = [this] { source.RaiseModel(1); };
  whenSent = [this] { EndIt(); };
  session->Receive(structure);
  EXPECT_THAT(sent, ElementsAre(R"({"jsonrpc":"2.0","id":1,"result":null})"));
}

TEST_F(OPXTreeSessionEndTest, AnOutputThatEndsItWithANotificationGetsNoMore)
{
  whenSent = [this] { EndIt(); };
  source.RaiseModel(1, [](json&) {});
  source.RaiseModel(2);
  EXPECT_THAT(sent, SizeIs(1));
}

TEST_F(OPXTreeSessionEndTest, AnOutputThatEndsItWithALateAnswerGetsNoMore)
{
  session->Receive(selection);
  session->Receive(selection);
  whenSent = [this] { EndIt(); };
  for (const auto& callback : source.waiting)
    callback({});
  EXPECT_THAT(sent, SizeIs(1));
}

TEST_F(OPXTreeSessionEndTest, ASuccessCallbackMayOwnIt)
{
  OPXTreeSession& owned = RaiseWithOwner();
  owned.Receive(succeeded);
  EXPECT_THAT(sent, SizeIs(1));
}

TEST_F(OPXTreeSessionEndTest, ASuccessCallbackThatIsGivenUpMayOwnIt)
{
  RaiseWithOwner();
  for (std::size_t i = 0; i <= OPXTreeSession::MaxAwaited; ++i)
    other.RaiseModel(i, [](json&) {});
  EXPECT_THAT(sent, SizeIs(OPXTreeSession::MaxAwaited));
}
