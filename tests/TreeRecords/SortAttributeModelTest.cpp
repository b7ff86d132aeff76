#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
const std::string s_error = "Error in SortAttributeModel(const nlohmann::json &i_json) : invalid JSON parameter\n";

SortAttributeModel::Order OrderFrom(const json& i_sort)
{
  return SortAttributeModel(json{{"dataIndex", "name"}, {"sort", i_sort}}).GetOrder();
}

// The record of a broken message, which is told on standard error.
SortAttributeModel Broken(const json& i_message)
{
  testing::internal::CaptureStderr();
  SortAttributeModel model(i_message);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), s_error) << i_message;
  return model;
}
} // namespace

TEST(SortAttributeModelTest, ReadsAttributeAndOrder)
{
  const SortAttributeModel model(json{{"dataIndex", "name"}, {"sort", "desc"}});
  EXPECT_EQ(model.GetAttribute(), "name");
  EXPECT_EQ(model.GetOrder(), SortAttributeModel::Descending);
}

TEST(SortAttributeModelTest, SortsUpwardsUnlessToldOtherwise)
{
  EXPECT_EQ(SortAttributeModel(json{{"dataIndex", "name"}}).GetOrder(), SortAttributeModel::Ascending);
  for (const char* text : {"asc", "DESC", "desc ", "des", ""})
    EXPECT_EQ(OrderFrom(text), SortAttributeModel::Ascending) << text;
}

TEST(SortAttributeModelTest, KeepsANumberAsItIs)
{
  EXPECT_EQ(OrderFrom(1), SortAttributeModel::Descending);
  EXPECT_EQ(OrderFrom(1u), SortAttributeModel::Descending);
  EXPECT_EQ(OrderFrom(1.9), SortAttributeModel::Descending);
  EXPECT_EQ(static_cast<int>(OrderFrom(7)), 7);
  EXPECT_EQ(static_cast<int>(OrderFrom(-7.9)), -7);
}

TEST(SortAttributeModelTest, ReportsAMessageWithoutAttribute)
{
  for (const json& message : {json{{"sort", "desc"}}, json(), json("dataIndex"), json::array({"dataIndex"})})
  {
    RecordingFailureHandler failures;
    const SortAttributeModel model(message);
    EXPECT_THAT(failures.GetFailures(), ElementsAre(FailedCheck("i_json.contains(\"dataIndex\")", 113))) << message;
    EXPECT_EQ(model.GetAttribute(), "");
    EXPECT_EQ(model.GetOrder(), SortAttributeModel::Ascending);
  }
}

TEST(SortAttributeModelTest, TellsOfAnAttributeThatIsNoText)
{
  const SortAttributeModel model = Broken({{"dataIndex", 5}, {"sort", "desc"}});
  EXPECT_EQ(model.GetAttribute(), "");
  EXPECT_EQ(model.GetOrder(), SortAttributeModel::Ascending);
}

TEST(SortAttributeModelTest, TellsOfAnOrderThatIsNeitherTextNorNumber)
{
  for (const json& sort : {json(true), json(), json::array(), json::object()})
  {
    const SortAttributeModel model = Broken({{"dataIndex", "name"}, {"sort", sort}});
    EXPECT_EQ(model.GetAttribute(), "name");
    EXPECT_EQ(model.GetOrder(), SortAttributeModel::Ascending);
  }
}

TEST(SortAttributeModelTest, ComparesAttributeAndOrder)
{
  const SortAttributeModel model(json{{"dataIndex", "name"}, {"sort", 1}});
  EXPECT_TRUE(model == SortAttributeModel(json{{"dataIndex", "name"}, {"sort", "desc"}}));
  EXPECT_FALSE(model == SortAttributeModel(json{{"dataIndex", "name"}}));
  EXPECT_FALSE(model == SortAttributeModel(json{{"dataIndex", "names"}, {"sort", 1}}));
}
