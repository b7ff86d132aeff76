#include "RecordTesting.h"

using namespace RecordTesting;

TEST(NodesPathTest, StartsEmpty)
{
  const NodesPath nodes;
  EXPECT_THAT(nodes.ids, IsEmpty());
  EXPECT_THAT(nodes.indexPaths, IsEmpty());
}

TEST(NodesPathTest, MembersStandInTheirOrder)
{
  const NodesPath nodes{{"a"}, {{0, 2}}};
  EXPECT_THAT(nodes.ids, ElementsAre("a"));
  EXPECT_THAT(nodes.indexPaths, ElementsAre(ElementsAre(0, 2)));
}
