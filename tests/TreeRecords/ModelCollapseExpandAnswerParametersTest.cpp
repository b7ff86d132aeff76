#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
std::string TextOf(std::vector<IdsPath> i_collapse, std::vector<IdsPath> i_expand)
{
  const ModelCollapseExpandAnswerParameters answer(i_collapse, i_expand);
  const std::string text = answer.ComputeJSON().dump();
  EXPECT_EQ(WrittenJSON(answer), text);
  return text;
}
} // namespace

TEST(ModelCollapseExpandAnswerParametersTest, WritesBothLists)
{
  EXPECT_EQ(TextOf({{"a", "b"}, {}}, {{"c"}}), R"({"nodesToCollapse":[["a","b"],[]],"nodesToExpand":[["c"]]})");
}

TEST(ModelCollapseExpandAnswerParametersTest, WritesEmptyListsAsEmptyArrays)
{
  EXPECT_EQ(TextOf({}, {}), R"({"nodesToCollapse":[],"nodesToExpand":[]})");
}

TEST(ModelCollapseExpandAnswerParametersTest, KeepsItsOwnCopies)
{
  std::vector<IdsPath> collapse = {{"a"}};
  std::vector<IdsPath> expand;
  const ModelCollapseExpandAnswerParameters answer(collapse, expand);
  EXPECT_THAT(collapse, testing::SizeIs(1));
  collapse.clear();
  EXPECT_EQ(answer.ComputeJSON()["nodesToCollapse"].dump(), R"([["a"]])");
}
