#include "RecordTesting.h"

using namespace RecordTesting;

TEST(TreeNodesModelStructureParametersTest, StartsWithItsDefaults)
{
  for (const TreeNodesModelStructureParameters& structure :
       {TreeNodesModelStructureParameters(), TreeNodesModelStructureParameters(json::object()), TreeNodesModelStructureParameters(json(5))})
  {
    EXPECT_EQ(structure.GetExpandNbLevels(), -2);
    EXPECT_THAT(structure.GroupKeys(0), IsEmpty());
    EXPECT_THAT(structure.GetSortModel(), IsEmpty());
  }
}

TEST(TreeNodesModelStructureParametersTest, ReadsKeysSortModelAndLevels)
{
  const TreeNodesModelStructureParameters structure(
      json::parse(R"({"groupKeys":["a","b"],"sortModel":[{"dataIndex":"name","sort":"desc"},{"dataIndex":"size"}],"expandNLevels":3})"));
  EXPECT_THAT(structure.GroupKeys(0), ElementsAre("a", "b"));
  EXPECT_EQ(structure.GetExpandNbLevels(), 3);
  EXPECT_THAT(structure.GetSortModel(), ElementsAre(SortAttributeModel(json{{"dataIndex", "name"}, {"sort", "desc"}}),
                                                    SortAttributeModel(json{{"dataIndex", "size"}})));
}

TEST(TreeNodesModelStructureParametersTest, CutsAFractionOffTheLevels)
{
  EXPECT_EQ(TreeNodesModelStructureParameters(json{{"expandNLevels", 2.5}}).GetExpandNbLevels(), 2);
}

TEST(TreeNodesModelStructureParametersTest, GroupKeysOutOfRangeAreEmpty)
{
  const TreeNodesModelStructureParameters structure(json{{"groupKeys", {"a"}}});
  EXPECT_THAT(structure.GroupKeys(-1), IsEmpty());
  EXPECT_THAT(structure.GroupKeys(1), IsEmpty());
}

TEST(TreeNodesModelStructureParametersTest, CountsGroupKeysThatAreNoArrayAsOneEmptyList)
{
  const TreeNodesRequestParameters request(json{{"groupKeys", "a"}, {"startRow", 0}, {"endRow", 1}});
  EXPECT_EQ(request.GetRequestCount(), 1);
  EXPECT_THAT(request.GroupKeys(0), IsEmpty());
}

TEST(TreeNodesModelStructureParametersTest, IgnoresASortModelThatIsNoArray)
{
  EXPECT_THAT(TreeNodesModelStructureParameters(json::parse(R"({"sortModel":{"dataIndex":"name"}})")).GetSortModel(), IsEmpty());
}

TEST(TreeNodesModelStructureParametersTest, LetsTypeErrorsOutOfItsConstructor)
{
  const auto errorOf = [](const json& i_message) { return TypeErrorOf([&] { TreeNodesModelStructureParameters structure(i_message); }); };
  EXPECT_EQ(errorOf({{"groupKeys", {"a", 5}}}), WrongType("string", "number"));
  EXPECT_EQ(errorOf({{"expandNLevels", "3"}}), WrongType("number", "string"));
}

TEST(TreeNodesModelStructureParametersTest, ReadsTheSortModelBeforeTheLevels)
{
  const json message = json::parse(R"({"sortModel":[{"dataIndex":5}],"expandNLevels":"x"})");
  std::string error;
  const auto read = [&] { error = TypeErrorOf([&message] { TreeNodesModelStructureParameters structure(message); }); };
  EXPECT_EQ(StandardErrorOf(read), "Error in SortAttributeModel(const nlohmann::json &i_json) : invalid JSON parameter\n");
  EXPECT_EQ(error, WrongType("number", "string"));
}

TEST(TreeNodesModelStructureParametersTest, ReadsTheGroupKeysBeforeTheSortModel)
{
  const json message = json::parse(R"({"groupKeys":[1],"sortModel":[{"dataIndex":5}]})");
  EXPECT_EQ(StandardErrorOf([&] { TypeErrorOf([&message] { TreeNodesModelStructureParameters structure(message); }); }), "");
}
