// How much one answer may hold.
#include "DirectoryView.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>

using nlohmann::json;

namespace
{
// Asks for all rows of the top directory so many times at once.
json AskRowsTimes(const DirectoryView& i_view, int i_times)
{
  json requests = json::array();
  for (int i = 0; i < i_times; ++i)
    requests.push_back({{"startRow", 0}, {"endRow", 1000}, {"groupKeys", json::array()}});
  return i_view.Ask("tree/rows", {{"groupedRequest", requests}})["result"]["groupedRequestResult"];
}
} // namespace

TEST(OPXExplorerLimitsTest, AnAnswerHoldsAHundredThousandRowsAndLaterRequestsGetFewerOrNone)
{
  TemporaryTree tree;
  for (int i = 0; i < 150; ++i)
    tree.AddDirectory(std::to_string(i));
  // 666 times 150 rows are 99,900.
  const json result = AskRowsTimes(DirectoryView(tree.SystemPath()), 668);
  EXPECT_EQ(result["rows"][665].size(), 150u);
  EXPECT_EQ(result["rows"][666].size(), 100u);
  EXPECT_EQ(result["rows"][667].size(), 0u);
  EXPECT_EQ(result["lastRow"][665], 150);
  EXPECT_EQ(result["lastRow"][666], -1);
  EXPECT_EQ(result["lastRow"][667], -1);
  EXPECT_EQ(result["numberOfChildren"][667], 150);
}
