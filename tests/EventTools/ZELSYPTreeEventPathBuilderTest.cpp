#include "ZELSYPTreeEventPathBuilder.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPSubscribe.h"
#include "ZELSYPSubscriptionBag.h"

#include <gmock/gmock.h>

#include <deque>
#include <map>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class ZELSYPTreeEventPathBuilderTest : public testing::Test
{
protected:
  // A chain of nodes, the leaf first.
  void MakeChain(int i_length)
  {
    nodes.resize(static_cast<std::size_t>(i_length));
    for (std::size_t node = 1; node < nodes.size(); ++node)
      parents[&nodes[node - 1]] = &nodes[node];
  }
  auto MakeBuilder(int i_depthLimit = 4096)
  {
    return ZELSYPTreeEventPathBuilder([this](ZELBaseUnknown* i_pNode) { return parents[i_pNode]; },
                                      [](ZELBaseUnknown* i_pNode) { return static_cast<Listener*>(i_pNode)->GetHandlersSupport(); },
                                      [](ZELBaseUnknown*) { return Listener::GetClassHandlersSupport(); }, i_depthLimit);
  }
  void NoteAt(std::size_t i_node, ZELSYPEvent* i_pEvent, const std::string& i_name)
  {
    subscriptions += ZELSYPSubscribe(nodes[i_node], i_pEvent, runs.Adding(i_name));
  }
  template <class Builder>
  int RaiseOpened(Builder& io_builder)
  {
    ZELSYPEventArgs args(Opened());
    return io_builder.Dispatch(&nodes.front(), &args);
  }

  Runs runs;
  std::deque<Listener> nodes;
  std::map<ZELBaseUnknown*, ZELBaseUnknown*> parents;
  ZELSYPSubscriptionBag subscriptions;
};
} // namespace

TEST_F(ZELSYPTreeEventPathBuilderTest, RunsFromTheOriginToTheRoot)
{
  MakeChain(3);
  NoteAt(0, Opened(), "leaf");
  NoteAt(1, Opened(), "parent");
  NoteAt(2, Opened(), "root");
  auto builder = MakeBuilder();
  EXPECT_EQ(RaiseOpened(builder), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("leaf", "parent", "root"));
}

TEST_F(ZELSYPTreeEventPathBuilderTest, RunsFromTheRootToTheOrigin)
{
  MakeChain(3);
  NoteAt(0, Counted(), "leaf");
  NoteAt(2, Counted(), "root");
  auto builder = MakeBuilder();
  NumberArgs args(Counted());
  EXPECT_EQ(builder.Dispatch(&nodes[0], &args), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("root", "leaf"));
}

TEST_F(ZELSYPTreeEventPathBuilderTest, RunsClassHandlersAtEachNodeBeforeItsOwn)
{
  MakeChain(2);
  NoteAt(0, Opened(), "leaf");
  NoteAt(1, Opened(), "root");
  subscriptions += ZELSYPSubscribeClass<Listener>(Opened(), runs.Adding("class"));
  auto builder = MakeBuilder();
  RaiseOpened(builder);
  EXPECT_THAT(runs.Take(), ElementsAre("class", "leaf", "class", "root"));
}

TEST_F(ZELSYPTreeEventPathBuilderTest, PassesByNodesWithoutStores)
{
  MakeChain(3);
  NoteAt(2, Opened(), "root");
  ZELSYPTreeEventPathBuilder builder([this](ZELBaseUnknown* i_pNode) { return parents[i_pNode]; },
                                     [](ZELBaseUnknown* i_pNode) { return static_cast<Listener*>(i_pNode)->GetHandlersSupport(); },
                                     [](ZELBaseUnknown*) -> ZELSYPClassEventHandlersSupport* { return nullptr; });
  EXPECT_EQ(RaiseOpened(builder), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("root"));
}

TEST_F(ZELSYPTreeEventPathBuilderTest, TakesAChainOfAsManyNodesAsTheLimit)
{
  MakeChain(5);
  NoteAt(4, Opened(), "root");
  auto builder = MakeBuilder(5);
  EXPECT_EQ(RaiseOpened(builder), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("root"));
}

TEST_F(ZELSYPTreeEventPathBuilderTest, RefusesAChainOfMoreNodesThanTheLimit)
{
  RecordingFailureHandler failures;
  MakeChain(6);
  NoteAt(0, Opened(), "leaf");
  auto builder = MakeBuilder(5);
  EXPECT_EQ(RaiseOpened(builder), 0);
  EXPECT_THAT(runs.Take(), IsEmpty());
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean depth < _depthLimit is FALSE", "pointer pElt is NULL", "pointer pPath is NULL"));
  EXPECT_EQ(failures.GetFailures()[0].details, "More than 5 nodes from the origin to the root: a cycle of parents?");
  EXPECT_EQ(failures.GetFailures()[1].details, "Implementation of BuildElement returned NULL");
}

TEST_F(ZELSYPTreeEventPathBuilderTest, HasALimitOf4096Nodes)
{
  RecordingFailureHandler failures;
  MakeChain(4096);
  auto builder = MakeBuilder();
  EXPECT_EQ(RaiseOpened(builder), 1);
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
  MakeChain(4097);
  EXPECT_EQ(RaiseOpened(builder), 0);
}

TEST_F(ZELSYPTreeEventPathBuilderTest, EndsWhenTheParentsAreACycle)
{
  RecordingFailureHandler failures;
  MakeChain(3);
  parents[&nodes[2]] = &nodes[0];
  NoteAt(0, Opened(), "leaf");
  auto builder = MakeBuilder();
  EXPECT_EQ(RaiseOpened(builder), 0);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPTreeEventPathBuilderTest, EndsWhenANodeIsItsOwnParent)
{
  RecordingFailureHandler failures;
  MakeChain(1);
  parents[&nodes[0]] = &nodes[0];
  auto builder = MakeBuilder();
  EXPECT_EQ(RaiseOpened(builder), 0);
}

TEST_F(ZELSYPTreeEventPathBuilderTest, RoutesAgainOnceTheCycleIsGone)
{
  MakeChain(2);
  parents[&nodes[1]] = &nodes[0];
  NoteAt(1, Opened(), "root");
  auto builder = MakeBuilder();
  {
    RecordingFailureHandler failures;
    EXPECT_EQ(RaiseOpened(builder), 0);
  }
  parents[&nodes[1]] = nullptr;
  EXPECT_EQ(RaiseOpened(builder), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("root"));
}

TEST_F(ZELSYPTreeEventPathBuilderTest, RunsAnEventThatDoesNotTravelAtTheOriginOfACycle)
{
  MakeChain(1);
  parents[&nodes[0]] = &nodes[0];
  static ZELSYPEvent* const s_pLocal =
      Listener::GetEventFactory()->NewEvent("Local", ZELSYPEvent::NoPropagation, ZELSYPEventArgs::MetaObject(), Listener::MetaObject());
  NoteAt(0, s_pLocal, "leaf");
  auto builder = MakeBuilder();
  ZELSYPEventArgs args(s_pLocal);
  EXPECT_EQ(builder.Dispatch(&nodes[0], &args), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("leaf"));
}

TEST_F(ZELSYPTreeEventPathBuilderTest, IsUsedAgainByTheHandlersThatItRuns)
{
  MakeChain(2);
  auto builder = MakeBuilder(2);
  subscriptions += ZELSYPSubscribe(nodes[0], Opened(),
                                   [&](ZELSYPEventArgs*)
                                   {
                                     NumberArgs args(Counted());
                                     EXPECT_EQ(builder.Dispatch(&nodes[0], &args), 1);
                                   });
  NoteAt(1, Opened(), "root");
  NoteAt(1, Counted(), "nested root");
  EXPECT_EQ(RaiseOpened(builder), 1);
  EXPECT_THAT(runs.Take(), ElementsAre("nested root", "root"));
}

TEST_F(ZELSYPTreeEventPathBuilderTest, CountsAnewAfterACallableHasThrown)
{
  MakeChain(2);
  bool throws = true;
  ZELSYPTreeEventPathBuilder builder(
      [&](ZELBaseUnknown* i_pNode)
      {
        if (throws && i_pNode == &nodes[1])
          throw 7;
        return parents[i_pNode];
      },
      [](ZELBaseUnknown* i_pNode) { return static_cast<Listener*>(i_pNode)->GetHandlersSupport(); },
      [](ZELBaseUnknown*) { return Listener::GetClassHandlersSupport(); }, 2);
  EXPECT_THROW(RaiseOpened(builder), int);
  throws = false;
  EXPECT_EQ(RaiseOpened(builder), 1);
}

TEST_F(ZELSYPTreeEventPathBuilderTest, RefusesALimitBelowOneNode)
{
  RecordingFailureHandler failures;
  MakeChain(1);
  auto builder = MakeBuilder(0);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean i_depthLimit >= 1 is FALSE"));
  EXPECT_EQ(RaiseOpened(builder), 1);
}
