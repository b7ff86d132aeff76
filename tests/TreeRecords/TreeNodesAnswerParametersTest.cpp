#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
const std::string s_builtUnequal = "i_nodesProperties.size() == i_totalNumberOfNodes.size()";
const std::string s_writtenUnequal = "_nodesProperties.size() == _totalNumberOfNodes.size()";

TreeNodeProperties Node(const char* i_name)
{
  return {"id", {{"name", i_name}}, false, -1};
}

std::vector<TreeNodeProperties> Nodes(std::size_t i_count)
{
  return std::vector<TreeNodeProperties>(i_count, Node("n"));
}

// The three ways to the JSON of an answer agree.
std::string TextOf(TreeNodesAnswerParameters i_answer)
{
  const std::string text = i_answer.ComputeJSON().dump();
  EXPECT_EQ(WrittenJSON(i_answer), text);
  EXPECT_EQ(i_answer.TakeJSON().dump(), text);
  return text;
}

std::string RowOf(TreeNodeProperties i_node)
{
  const std::string text = TextOf({{{std::move(i_node)}}, {1}});
  const std::string before = R"({"groupedRequestResult":{"lastRow":[1],"numberOfChildren":[1],"rows":[[)";
  EXPECT_EQ(text.substr(0, before.size()), before);
  return text.substr(before.size(), text.size() - before.size() - std::string("]]}}").size());
}
} // namespace

TEST(TreeNodesAnswerParametersTest, StartsEmpty)
{
  EXPECT_EQ(TextOf({}), R"({"groupedRequestResult":{"lastRow":[],"numberOfChildren":[],"rows":[]}})");
}

TEST(TreeNodesAnswerParametersTest, KeepsTheNodesOfEachRequest)
{
  const TreeNodesAnswerParameters answer({{Node("a"), Node("b")}, {}}, {2, 250});
  EXPECT_THAT(answer.GetTreeNodesProperties(0), ElementsAre(Node("a"), Node("b")));
  EXPECT_THAT(answer.GetTreeNodesProperties(1), IsEmpty());
  EXPECT_EQ(answer.GetTotalNumberOfNodes(0), 2);
  EXPECT_EQ(answer.GetTotalNumberOfNodes(1), 250);
  EXPECT_FALSE(answer.GetNodeAsNotFound(0));
}

TEST(TreeNodesAnswerParametersTest, AnswersNothingOutOfRange)
{
  TreeNodesAnswerParameters answer({Nodes(1), Nodes(1)}, {1, 1});
  for (const int index : {2, 5, -1, std::numeric_limits<int>::min()})
  {
    answer.SetNodeAsNotFound(true, index);
    EXPECT_FALSE(answer.GetNodeAsNotFound(index));
    EXPECT_THAT(answer.GetTreeNodesProperties(index), IsEmpty());
    EXPECT_EQ(answer.GetTotalNumberOfNodes(index), 0);
  }
  EXPECT_TRUE(answer == TreeNodesAnswerParameters({Nodes(1), Nodes(1)}, {1, 1}));
}

TEST(TreeNodesAnswerParametersTest, MarksARequestAsNotFoundAndBack)
{
  TreeNodesAnswerParameters answer({{}, {}}, {0, 0});
  answer.SetNodeAsNotFound(true, 1);
  EXPECT_TRUE(answer.GetNodeAsNotFound(1));
  EXPECT_FALSE(answer.GetNodeAsNotFound(0));
  answer.SetNodeAsNotFound(false, 1);
  EXPECT_FALSE(answer.GetNodeAsNotFound(1));
}

TEST(TreeNodesAnswerParametersTest, EachListOfNodesHasItsNotFoundMark)
{
  RecordingFailureHandler failures;
  TreeNodesAnswerParameters fewTotals({{}, {}}, {1});
  fewTotals.SetNodeAsNotFound(true, 1);
  EXPECT_TRUE(fewTotals.GetNodeAsNotFound(1));
  TreeNodesAnswerParameters manyTotals({{}}, {1, 1});
  manyTotals.SetNodeAsNotFound(true, 1);
  EXPECT_FALSE(manyTotals.GetNodeAsNotFound(1));
}

TEST(TreeNodesAnswerParametersTest, SaysWhetherAllChildrenWereReturned)
{
  const json answer = json::parse(TextOf({{Nodes(2), Nodes(100), {}, {}}, {2, 250, 0, 5}}))["groupedRequestResult"];
  EXPECT_EQ(answer["lastRow"].dump(), "[2,-1,0,-1]");
  EXPECT_EQ(answer["numberOfChildren"].dump(), "[2,250,0,5]");
  EXPECT_EQ(answer["rows"].size(), 4u);
  EXPECT_EQ(answer["rows"][0].size(), 2u);
  EXPECT_EQ(answer["rows"][1].size(), 100u);
}

TEST(TreeNodesAnswerParametersTest, MoreNodesThanTheTotalAreNotAllChildren)
{
  EXPECT_THAT(TextOf({{Nodes(3)}, {2}}), testing::StartsWith(R"({"groupedRequestResult":{"lastRow":[-1],"numberOfChildren":[2],)"));
}

TEST(TreeNodesAnswerParametersTest, ARowHoldsThePropertiesAndWhetherThereAreChildren)
{
  EXPECT_EQ(RowOf({"id", {{"name", "n"}, {"zip", 1}}, true, -1}), R"({"name":"n","wux_group":true,"zip":1})");
  EXPECT_EQ(RowOf({IndexPath{3}, {}, false, -1}), R"({"wux_group":false})");
}

TEST(TreeNodesAnswerParametersTest, ARowHoldsTheSelectionWhenItIsStated)
{
  EXPECT_EQ(RowOf({"id", {{"wux_i", 1}, {"x", 2}}, false, 0}), R"({"wux_group":false,"wux_i":1,"wux_isSelected":0,"x":2})");
  EXPECT_EQ(RowOf({"id", {}, false, 7}), R"({"wux_group":false,"wux_isSelected":1})");
}

TEST(TreeNodesAnswerParametersTest, TheRowsOwnKeysReplacePropertiesOfTheirNames)
{
  const Properties properties = {{"a", 1}, {"wux_group", "mine"}, {"wux_isSelected", "mine"}, {"z", 2}};
  EXPECT_EQ(RowOf({"id", properties, true, 1}), R"({"a":1,"wux_group":true,"wux_isSelected":1,"z":2})");
  EXPECT_EQ(RowOf({"id", properties, true, -1}), R"({"a":1,"wux_group":true,"wux_isSelected":"mine","z":2})");
}

TEST(TreeNodesAnswerParametersTest, TakingTheJSONLeavesTheNodesWithoutProperties)
{
  TreeNodesAnswerParameters answer({{Node("a")}}, {1});
  answer.TakeJSON();
  EXPECT_THAT(answer.GetTreeNodesProperties(0).at(0).GetProperties(), IsEmpty());
  EXPECT_EQ(answer.GetTotalNumberOfNodes(0), 1);
}

TEST(TreeNodesAnswerParametersTest, NotFoundIsNotPartOfTheJSON)
{
  TreeNodesAnswerParameters answer({{}}, {0});
  const std::string text = TextOf(answer);
  answer.SetNodeAsNotFound(true, 0);
  EXPECT_EQ(TextOf(answer), text);
}

TEST(TreeNodesAnswerParametersTest, ReportsListsOfDifferentSizesAndStoresThem)
{
  RecordingFailureHandler failures;
  const TreeNodesAnswerParameters answer({Nodes(1), Nodes(2)}, {1});
  EXPECT_THAT(failures.GetFailures(), ElementsAre(FailedCheck(s_builtUnequal, 225)));
  EXPECT_THAT(answer.GetTreeNodesProperties(1), testing::SizeIs(2));
  EXPECT_EQ(answer.GetTotalNumberOfNodes(1), 0);
}

TEST(TreeNodesAnswerParametersTest, ReportsListsOfDifferentSizesWhenWrittenAndWritesThem)
{
  RecordingFailureHandler failures;
  const TreeNodesAnswerParameters answer({{}, {}}, {0});
  failures.Clear();
  EXPECT_EQ(TextOf(answer), R"({"groupedRequestResult":{"lastRow":[0,-1],"numberOfChildren":[0],"rows":[[],[]]}})");
  EXPECT_THAT(failures.GetFailures(),
              ElementsAre(FailedCheck(s_writtenUnequal, 241), FailedCheck(s_writtenUnequal, 241), FailedCheck(s_writtenUnequal, 241)));
}

TEST(TreeNodesAnswerParametersTest, ComparesNodesTotalsAndFlags)
{
  const TreeNodesAnswerParameters answer({Nodes(1), Nodes(2)}, {1, 2});
  EXPECT_TRUE(answer == TreeNodesAnswerParameters({Nodes(1), Nodes(2)}, {1, 2}));
  EXPECT_FALSE(answer == TreeNodesAnswerParameters({Nodes(1), Nodes(1)}, {1, 2}));
  EXPECT_FALSE(answer == TreeNodesAnswerParameters({Nodes(1), Nodes(2)}, {1, 3}));
  EXPECT_FALSE(answer == TreeNodesAnswerParameters({Nodes(1)}, {1}));
  TreeNodesAnswerParameters notFound = answer;
  notFound.SetNodeAsNotFound(true, 0);
  EXPECT_FALSE(answer == notFound);
}
