#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
const std::string s_check = "i_json.contains(\"indexPath\") || i_json.contains(\"idPath\")";

void ExpectDefaults(const TreeNodeProperties& i_node)
{
  EXPECT_THAT(i_node.GetIndexPath(), IsEmpty());
  EXPECT_EQ(i_node.GetID(), "");
  EXPECT_THAT(i_node.GetProperties(), IsEmpty());
  EXPECT_FALSE(i_node.HasChildren());
  EXPECT_EQ(i_node.IsSelected(), -1);
}

std::string TypeErrorOfMember(const char* i_key, const json& i_value)
{
  json message = {{"indexPath", json::array()}};
  message[i_key] = i_value;
  return TypeErrorOf([&message] { TreeNodeProperties node(message); });
}

int SelectionFrom(const json& i_value)
{
  return TreeNodeProperties(json{{"idPath", 0}, {"isSelected", i_value}}).IsSelected();
}
} // namespace

TEST(TreeNodePropertiesTest, StartsWithItsDefaults)
{
  ExpectDefaults(TreeNodeProperties());
}

TEST(TreeNodePropertiesTest, IsMadeFromAnIdWithoutPosition)
{
  const TreeNodeProperties node("tmp", {{"size", 12}}, true, 0);
  EXPECT_EQ(node.GetID(), "tmp");
  EXPECT_THAT(node.GetIndexPath(), IsEmpty());
  EXPECT_EQ(json(node.GetProperties()), json({{"size", 12}}));
  EXPECT_TRUE(node.HasChildren());
  EXPECT_EQ(node.IsSelected(), 0);
}

TEST(TreeNodePropertiesTest, IsMadeFromAPositionWithoutId)
{
  const TreeNodeProperties node(IndexPath{0, 3}, {}, false, 7);
  EXPECT_EQ(node.GetID(), "");
  EXPECT_THAT(node.GetIndexPath(), ElementsAre(0, 3));
  EXPECT_EQ(node.IsSelected(), 7);
}

TEST(TreeNodePropertiesTest, ReadsEveryMember)
{
  const TreeNodeProperties node(json::parse(
      R"({"indexPath":[0,3],"id":"x","properties":{"name":"n","deep":{"a":[1,{"b":null}]}},"hasChildren":true,"isSelected":0,"else":1})"));
  EXPECT_THAT(node.GetIndexPath(), ElementsAre(0, 3));
  EXPECT_EQ(node.GetID(), "x");
  EXPECT_EQ(json(node.GetProperties()), json::parse(R"({"name":"n","deep":{"a":[1,{"b":null}]}})"));
  EXPECT_TRUE(node.HasChildren());
  EXPECT_EQ(node.IsSelected(), 0);
}

TEST(TreeNodePropertiesTest, ReportsAMessageWithoutPositionAndKeepsItsDefaults)
{
  RecordingFailureHandler failures;
  ExpectDefaults(TreeNodeProperties(json{{"id", "x"}, {"hasChildren", true}}));
  EXPECT_THAT(failures.GetFailures(), ElementsAre(FailedCheck(s_check, 34)));
}

TEST(TreeNodePropertiesTest, ReportsWhatIsNoObject)
{
  for (const json& message : {json(), json(5), json("indexPath"), json::array({"indexPath"}), json(true)})
  {
    RecordingFailureHandler failures;
    ExpectDefaults(TreeNodeProperties(message));
    EXPECT_THAT(failures.GetFailures(), ElementsAre(FailedCheck(s_check, 34))) << message;
  }
}

TEST(TreeNodePropertiesTest, AcceptsAnIdPathAndReadsNothingFromIt)
{
  RecordingFailureHandler failures;
  const TreeNodeProperties node(json{{"idPath", {"a", "b"}}});
  EXPECT_THAT(failures.GetFailures(), IsEmpty());
  ExpectDefaults(node);
  EXPECT_EQ(node.ComputeJSON().dump(), R"({"hasChildren":false,"properties":{}})");
}

TEST(TreeNodePropertiesTest, TakesASelectionAsNumberOrBoolean)
{
  EXPECT_EQ(SelectionFrom(true), 1);
  EXPECT_EQ(SelectionFrom(false), 0);
  EXPECT_EQ(SelectionFrom(-5), -5);
  EXPECT_EQ(SelectionFrom(5u), 5);
  EXPECT_EQ(SelectionFrom(2.9), 2);
  EXPECT_EQ(SelectionFrom(-2.9), -2);
}

TEST(TreeNodePropertiesTest, ConvertsNumbersThatFitNoIntAsTheMachineDoes)
{
  EXPECT_EQ(SelectionFrom(std::int64_t{0x100000007}), 7);
  EXPECT_EQ(SelectionFrom(2147483647.5), 2147483647);
  EXPECT_EQ(SelectionFrom(-2147483648.5), std::numeric_limits<int>::min());
  EXPECT_EQ(SelectionFrom(2147483648.0), std::numeric_limits<int>::min());
  EXPECT_EQ(SelectionFrom(1e300), std::numeric_limits<int>::min());
  EXPECT_EQ(SelectionFrom(std::nan("")), std::numeric_limits<int>::min());
}

TEST(TreeNodePropertiesTest, LetsTypeErrorsOutOfItsConstructor)
{
  EXPECT_EQ(TypeErrorOfMember("indexPath", "0,3"), WrongType("array", "string"));
  EXPECT_EQ(TypeErrorOfMember("indexPath", json::object()), WrongType("array", "object"));
  EXPECT_EQ(TypeErrorOfMember("indexPath", {0, "3"}), WrongType("number", "string"));
  EXPECT_EQ(TypeErrorOfMember("id", 5), WrongType("string", "number"));
  EXPECT_EQ(TypeErrorOfMember("properties", json::array()), WrongType("object", "array"));
  EXPECT_EQ(TypeErrorOfMember("properties", nullptr), WrongType("object", "null"));
  EXPECT_EQ(TypeErrorOfMember("hasChildren", 1), WrongType("boolean", "number"));
  EXPECT_EQ(TypeErrorOfMember("isSelected", "yes"), WrongType("number", "string"));
}

TEST(TreeNodePropertiesTest, WritesEverythingThatIsStated)
{
  const TreeNodeProperties node(
      json{{"indexPath", {0, 3}}, {"id", "x"}, {"isSelected", true}, {"hasChildren", true}, {"properties", {{"n", 1}}}});
  EXPECT_EQ(node.ComputeJSON().dump(), R"({"hasChildren":true,"id":"x","indexPath":[0,3],"isSelected":1,"properties":{"n":1}})");
}

TEST(TreeNodePropertiesTest, WritesASelectionAsZeroOrOne)
{
  const auto written = [](int i_isSelected) { return TreeNodeProperties("x", {}, false, i_isSelected).ComputeJSON(); };
  EXPECT_FALSE(written(-1).contains("isSelected"));
  EXPECT_EQ(written(0)["isSelected"].dump(), "0");
  EXPECT_EQ(written(2)["isSelected"].dump(), "1");
  EXPECT_EQ(written(-2)["isSelected"].dump(), "1");
}

TEST(TreeNodePropertiesTest, AddingAPropertyReplacesTheOneOfThatNameAndKeepsTheOrder)
{
  TreeNodeProperties node;
  node.AddProperty("b", 1);
  node.AddProperty("a", 2);
  node.AddProperty("b", "new");
  EXPECT_EQ(json(node.GetProperties()).dump(), R"({"a":2,"b":"new"})");
}

TEST(TreeNodePropertiesTest, ComparesEverythingButTheSelection)
{
  const TreeNodeProperties node("x", {{"n", 1}}, true, 0);
  EXPECT_TRUE(node == TreeNodeProperties("x", {{"n", 1}}, true, 1));
  EXPECT_TRUE(node == TreeNodeProperties("x", {{"n", 1.0}}, true, -1));
  EXPECT_FALSE(node == TreeNodeProperties("y", {{"n", 1}}, true, 0));
  EXPECT_FALSE(node == TreeNodeProperties("x", {{"n", 2}}, true, 0));
  EXPECT_FALSE(node == TreeNodeProperties("x", {{"m", 1}}, true, 0));
  EXPECT_FALSE(node == TreeNodeProperties("x", {}, true, 0));
  EXPECT_FALSE(node == TreeNodeProperties("x", {{"n", 1}}, false, 0));
  EXPECT_FALSE(TreeNodeProperties(IndexPath{0, 3}, {}, true, 0) == TreeNodeProperties(IndexPath{0, 4}, {}, true, 0));
}

TEST(TreeNodePropertiesTest, ReadsAndWritesPropertiesOfAnyDepth)
{
  const TreeNodeProperties node(json{{"idPath", 0}, {"properties", {{"deep", NestedArrays(200'000, 1)}}}});
  EXPECT_TRUE(node.GetProperties().at("deep")[0][0].is_array());
  EXPECT_TRUE(node.ComputeJSON()["properties"]["deep"][0][0].is_array());
}

TEST(TreeNodePropertiesTest, TakesAMapOfAnyOrder)
{
  const std::map<std::string, json> upwards = {{"a", 1}, {"b", {2, 3}}};
  std::map<std::string, json, std::greater<>> downwards(upwards.begin(), upwards.end());
  const TreeNodeProperties expected("x", {{"a", 1}, {"b", {2, 3}}}, true, -1);
  EXPECT_EQ(TreeNodeProperties("x", upwards, true, -1), expected);
  EXPECT_EQ(TreeNodeProperties("x", std::move(downwards), true, -1), expected);
  EXPECT_EQ(TreeNodeProperties(IndexPath{3}, upwards, true, -1).GetProperties(), expected.GetProperties());
  EXPECT_THAT(upwards, testing::SizeIs(2));
}

TEST(TreeNodePropertiesTest, MovesTheValuesOfAMapThatIsGivenAway)
{
  std::map<std::string, json> properties = {{"text", std::string(1000, 'x')}};
  const char* const pText = properties["text"].get_ref<const std::string&>().data();
  const TreeNodeProperties node("x", std::move(properties), true, -1);
  EXPECT_EQ(node.GetProperties().at("text").get_ref<const std::string&>().data(), pText);
}
