#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
const std::string s_error = "Error in ModelChangeParameters(const nlohmann::json &i_json) : invalid JSON parameter\n";

ModelChangeParameters Parsed(const char* i_text)
{
  return ModelChangeParameters(json::parse(i_text));
}

ModelChangeParameters AfterFailure(const char* i_text, const std::string& i_expression, int i_line)
{
  RecordingFailureHandler failures;
  ModelChangeParameters change = Parsed(i_text);
  EXPECT_THAT(failures.GetFailures(), ElementsAre(FailedCheck(i_expression, i_line))) << i_text;
  return change;
}

ModelChangeParameters Broken(const char* i_text)
{
  testing::internal::CaptureStderr();
  ModelChangeParameters change = Parsed(i_text);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), s_error) << i_text;
  return change;
}
} // namespace

TEST(ModelChangeParametersTest, StartsEmpty)
{
  EXPECT_EQ(ModelChangeParameters().ComputeJSON().dump(), R"({"nodes":[],"operationType":""})");
}

TEST(ModelChangeParametersTest, IsMadeFromAnOperationAndNodes)
{
  const ModelChangeParameters change("update", {TreeNodeProperties("x", {}, true, 1)});
  EXPECT_EQ(change.GetOperationType(), "update");
  EXPECT_THAT(change.GetTreeNodesProperties(), ElementsAre(TreeNodeProperties("x", {}, true, 1)));
  EXPECT_EQ(change.ComputeJSON().dump(),
            R"({"nodes":[{"hasChildren":true,"id":"x","isSelected":1,"properties":{}}],"operationType":"update"})");
}

TEST(ModelChangeParametersTest, ReadsOperationAndNodes)
{
  const auto change = Parsed(R"({"operationType":"add","nodes":[{"indexPath":[0],"properties":{"n":1}},{"indexPath":[1]}]})");
  EXPECT_EQ(change.GetOperationType(), "add");
  EXPECT_THAT(change.GetTreeNodesProperties(),
              ElementsAre(TreeNodeProperties(IndexPath{0}, {{"n", 1}}, false, -1), TreeNodeProperties(IndexPath{1}, {}, false, -1)));
}

TEST(ModelChangeParametersTest, NoNodesAreAnEmptyArray)
{
  EXPECT_EQ(Parsed(R"({"operationType":"add","nodes":[]})").ComputeJSON()["nodes"].dump(), "[]");
}

TEST(ModelChangeParametersTest, ReportsWhatAMessageLacksAndKeepsWhatWasRead)
{
  EXPECT_EQ(AfterFailure(R"({"nodes":[]})", "i_json.contains(\"operationType\")", 421).GetOperationType(), "");
  EXPECT_EQ(AfterFailure("[]", "i_json.contains(\"operationType\")", 421).GetOperationType(), "");
  EXPECT_EQ(AfterFailure(R"({"operationType":"add"})", "i_json.contains(\"nodes\")", 425).GetOperationType(), "add");
  EXPECT_EQ(AfterFailure(R"({"operationType":"add","nodes":{}})", "nodes.is_array()", 428).GetOperationType(), "add");
}

TEST(ModelChangeParametersTest, TellsOfWrongTypesAndKeepsWhatWasRead)
{
  EXPECT_EQ(Broken(R"({"operationType":5,"nodes":[]})").GetOperationType(), "");
  const auto change = Broken(R"({"operationType":"add","nodes":[{"indexPath":[0]},{"indexPath":"1"},{"indexPath":[2]}]})");
  EXPECT_EQ(change.GetOperationType(), "add");
  EXPECT_THAT(change.GetTreeNodesProperties(), testing::SizeIs(1));
}

TEST(ModelChangeParametersTest, KeepsABrokenNodeWithItsDefaults)
{
  RecordingFailureHandler failures;
  EXPECT_THAT(Parsed(R"({"operationType":"add","nodes":[7]})").GetTreeNodesProperties(), ElementsAre(TreeNodeProperties()));
  EXPECT_THAT(failures.GetFailures(), testing::SizeIs(1));
}

TEST(ModelChangeParametersTest, ComparesOperationAndNodes)
{
  const ModelChangeParameters change("add", {TreeNodeProperties("x", {}, true, 1)});
  EXPECT_TRUE(change == ModelChangeParameters("add", {TreeNodeProperties("x", {}, true, 0)}));
  EXPECT_FALSE(change == ModelChangeParameters("remove", {TreeNodeProperties("x", {}, true, 1)}));
  EXPECT_FALSE(change == ModelChangeParameters("add", {}));
  EXPECT_FALSE(change == ModelChangeParameters("add", {TreeNodeProperties("y", {}, true, 1)}));
}
