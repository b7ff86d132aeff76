#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
using Failures = std::vector<RecordingFailureHandler::Failure>;

// What the checks of a structure report; the structure is stored in any case.
Failures FailuresOf(const json& i_structure)
{
  RecordingFailureHandler failures;
  const TreeNodesModelStructureAnswerParameters answer(i_structure);
  EXPECT_EQ(answer.ComputeJSON(), i_structure);
  EXPECT_EQ(WrittenJSON(answer), i_structure.dump());
  return failures.GetFailures();
}

const auto s_noNumber = FailedCheck("i_json.contains(\"numberOfChildren\")", 523);
const auto s_noIdentifier = FailedCheck("i_json.contains(\"stringIdentifier\")", 524);
const auto s_noArray = FailedCheck("children.is_array()", 526);

json Node(json i_children)
{
  return {{"stringIdentifier", "x"}, {"numberOfChildren", 1}, {"children", std::move(i_children)}};
}

const json s_withoutNumber = {{"children", json::array()}, {"stringIdentifier", "x"}};
const json s_withoutIdentifier = {{"children", json::array()}, {"numberOfChildren", 0}};
} // namespace

TEST(TreeNodesModelStructureAnswerParametersTest, StartsWithNull)
{
  EXPECT_EQ(TreeNodesModelStructureAnswerParameters().ComputeJSON(), json());
  EXPECT_EQ(WrittenJSON(TreeNodesModelStructureAnswerParameters()), "null");
}

TEST(TreeNodesModelStructureAnswerParametersTest, AcceptsATree)
{
  EXPECT_THAT(FailuresOf(Node({Node(json::array()), Node({5})})), IsEmpty());
}

TEST(TreeNodesModelStructureAnswerParametersTest, AcceptsAnythingAsALeaf)
{
  for (const json& leaf : {json(), json(5), json("children"), json::array({"children"}), json{{"name", "x"}}})
    EXPECT_THAT(FailuresOf(leaf), IsEmpty()) << leaf;
}

TEST(TreeNodesModelStructureAnswerParametersTest, ReportsEachThingThatANodeLacks)
{
  EXPECT_THAT(FailuresOf(s_withoutNumber), ElementsAre(s_noNumber));
  EXPECT_THAT(FailuresOf(s_withoutIdentifier), ElementsAre(s_noIdentifier));
  EXPECT_THAT(FailuresOf(Node("none")), ElementsAre(s_noArray));
  EXPECT_THAT(FailuresOf({{"children", 1}}), ElementsAre(s_noNumber));
}

TEST(TreeNodesModelStructureAnswerParametersTest, ReportsInTheOrderOfTheTree)
{
  EXPECT_THAT(FailuresOf(Node({Node({s_withoutNumber, Node(1)}), s_withoutIdentifier})),
              ElementsAre(s_noNumber, s_noArray, s_noIdentifier));
}

TEST(TreeNodesModelStructureAnswerParametersTest, DoesNotLookBelowABrokenNode)
{
  EXPECT_THAT(FailuresOf({{"children", {s_withoutIdentifier}}, {"stringIdentifier", "x"}}), ElementsAre(s_noNumber));
}

TEST(TreeNodesModelStructureAnswerParametersTest, KeepsAValueThatIsGivenAway)
{
  json structure = Node(json::array());
  const json copy = structure;
  EXPECT_EQ(TreeNodesModelStructureAnswerParameters(std::move(structure)).ComputeJSON(), copy);
}

TEST(TreeNodesModelStructureAnswerParametersTest, WalksATreeOfAnyDepth)
{
  constexpr int depth = 100'000;
  json tree = s_withoutNumber;
  for (int level = 0; level < depth; ++level)
  {
    json node = {{"stringIdentifier", "x"}, {"numberOfChildren", 1}};
    node["children"].push_back(std::move(tree));
    tree = std::move(node);
  }
  RecordingFailureHandler failures;
  const TreeNodesModelStructureAnswerParameters answer(tree);
  EXPECT_THAT(failures.GetFailures(), ElementsAre(s_noNumber));
  EXPECT_TRUE(answer.ComputeJSON()["children"][0]["children"].is_array());
  EXPECT_EQ(WrittenJSON(answer).size(),
            s_withoutNumber.dump().size() + depth * std::string(R"({"children":[],"numberOfChildren":1,"stringIdentifier":"x"})").size());
}

TEST(TreeNodesModelStructureAnswerParametersTest, CopiesAValueOfAnyDepth)
{
  const TreeNodesModelStructureAnswerParameters answer(NestedArrays(200'000, 1));
  const TreeNodesModelStructureAnswerParameters copy = answer;
  TreeNodesModelStructureAnswerParameters assigned;
  assigned = answer;
  EXPECT_EQ(WrittenJSON(copy), WrittenJSON(answer));
  EXPECT_EQ(WrittenJSON(assigned), WrittenJSON(answer));
}
