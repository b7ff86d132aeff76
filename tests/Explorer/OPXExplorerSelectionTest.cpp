// The selection that a directory source keeps, and what it tells of it.
#include "OPXExplorerDirectorySource.h"

#include "OPXTreeSession.h"
#include "TemporaryTree.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
// "d" with "inner", and "file".
class OPXExplorerSelectionTest : public testing::Test
{
protected:
  OPXExplorerSelectionTest()
  {
    tree.AddFile("d\\inner");
    tree.AddFile("file");
  }

  // The result.
  json Change(const json& i_params)
  {
    sent.clear();
    session.Receive(json{{"jsonrpc", "2.0"}, {"id", 1}, {"method", "tree/selectionChange"}, {"params", i_params}}.dump());
    const json result = sent.at(0)["result"];
    sent.erase(sent.begin());
    return result;
  }
  json Add(const json& i_nodes) { return Change({{"addedNodes", i_nodes}}); }
  json Remove(const json& i_nodes) { return Change({{"removedNodes", i_nodes}}); }
  static json Notification(const json& i_params) { return {{"jsonrpc", "2.0"}, {"method", "tree/selectionChanged"}, {"params", i_params}}; }

  TemporaryTree tree;
  OPXExplorerDirectorySource source{ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(tree.SystemPath().u8string()))};
  std::vector<json> sent;
  OPXTreeSession session{source, [this](const std::string& i_message) { sent.push_back(json::parse(i_message)); }};
};
} // namespace

TEST_F(OPXExplorerSelectionTest, ASelectedNodeIsToldBehindTheAnswer)
{
  EXPECT_EQ(Add({"file"}), json::object());
  EXPECT_THAT(sent, ElementsAre(Notification({{"addedNodes", {"file"}}})));
}

TEST_F(OPXExplorerSelectionTest, ANodeBelowIsNamedByTheIdsThatLeadToIt)
{
  EXPECT_EQ(Add({"d/inner", "d"}), json::object());
  EXPECT_THAT(sent, ElementsAre(Notification({{"addedNodes", {"d/inner", "d"}}})));
}

TEST_F(OPXExplorerSelectionTest, AnIndexPathCountsInTheOrderWithoutASortModel)
{
  EXPECT_EQ(Add(json::parse("[[0,0],[1]]")), json::object());
  EXPECT_THAT(sent, ElementsAre(Notification({{"addedNodes", {"d/inner", "file"}}})));
}

TEST_F(OPXExplorerSelectionTest, IndexPathsAreToldInTheOrderTheyCame)
{
  EXPECT_EQ(Add(json::parse("[[1],[0],[7],[0,0],[1],[2]]")), json({{"removedNodes", {{7}, {2}}}}));
  EXPECT_THAT(sent, ElementsAre(Notification({{"addedNodes", {"file", "d", "d/inner"}}})));
}

TEST_F(OPXExplorerSelectionTest, ADeselectedNodeIsTold)
{
  Add({"file", "d"});
  EXPECT_EQ(Remove({"file"}), json::object());
  EXPECT_THAT(sent, ElementsAre(Notification({{"removedNodes", {"file"}}})));
  EXPECT_EQ(Remove(json::parse("[[0]]")), json::object());
  EXPECT_THAT(sent, ElementsAre(Notification({{"removedNodes", {"d"}}})));
}

TEST_F(OPXExplorerSelectionTest, OneChangeAddsAndRemoves)
{
  Add({"file"});
  Change({{"addedNodes", {"d"}}, {"removedNodes", {"file"}}});
  EXPECT_THAT(sent, ElementsAre(Notification({{"addedNodes", {"d"}}, {"removedNodes", {"file"}}})));
}

TEST_F(OPXExplorerSelectionTest, WhatChangesNothingIsNotTold)
{
  Add({"file"});
  EXPECT_EQ(Add({"file"}), json::object());
  EXPECT_THAT(sent, IsEmpty());
  EXPECT_EQ(Remove({"d"}), json::object());
  EXPECT_THAT(sent, IsEmpty());
  EXPECT_EQ(Add(json::array()), json::object());
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXExplorerSelectionTest, WhatGoesAndComesBackInOneChangeIsNotTold)
{
  Add({"file"});
  EXPECT_EQ(Change({{"addedNodes", {"file"}}, {"removedNodes", {"file"}}}), json::object());
  EXPECT_THAT(sent, IsEmpty());
  Change({{"addedNodes", {"file", "d"}}, {"removedNodes", {"file"}}});
  EXPECT_THAT(sent, ElementsAre(Notification({{"addedNodes", {"d"}}})));
}

TEST_F(OPXExplorerSelectionTest, WhatIsNotThereIsToBeDeselectedAgain)
{
  const json hostile = {"gone", "", "..", "/", "d/", "/d", "d/..", "d/inner/x", "inner", "../file"};
  EXPECT_EQ(Add(hostile), json({{"removedNodes", hostile}}));
  EXPECT_THAT(sent, IsEmpty());
  const json paths = json::parse("[[2],[-1],[0,1],[0,0,0],[],[2147483647],[-2147483648]]");
  EXPECT_EQ(Add(paths), json({{"removedNodes", paths}}));
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(OPXExplorerSelectionTest, OfSeveralNodesOnlyTheOnesThatAreThereAreSelected)
{
  EXPECT_EQ(Add({"gone", "file"}), json({{"removedNodes", {"gone"}}}));
  EXPECT_THAT(sent, ElementsAre(Notification({{"addedNodes", {"file"}}})));
}

TEST_F(OPXExplorerSelectionTest, ANodeThatHasGoneCanBeDeselected)
{
  Add({"file"});
  std::filesystem::remove(tree.SystemPath("file"));
  Remove({"file"});
  EXPECT_THAT(sent, ElementsAre(Notification({{"removedNodes", {"file"}}})));
}

TEST_F(OPXExplorerSelectionTest, TheSelectionIsTheSameForAllViewsAndEachIsTold)
{
  std::vector<json> other;
  OPXTreeSession second(source, [&](const std::string& i_message) { other.push_back(json::parse(i_message)); });
  Add({"file"});
  EXPECT_THAT(other, ElementsAre(Notification({{"addedNodes", {"file"}}})));
}
