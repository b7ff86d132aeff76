// The limit is the same everywhere; under Wine it takes minutes to make as many files.
#include "OPXExplorerDirectorySource.h"

#include "TemporaryTree.h"

#include <gmock/gmock.h>

using nlohmann::json;
namespace Records = ZELSYPDataSourceParameters;

namespace
{
json Change(OPXExplorerDirectorySource& io_source, const json& i_change)
{
  json answer;
  io_source.RequestSelectionChange(Records::SelectionChangeParameters(i_change),
                                   [&answer](const Records::SelectionChangeParameters& i_answer) { answer = i_answer.ComputeJSON(); });
  return answer;
}
} // namespace

TEST(OPXExplorerSelectionLimitTest, NoMoreNodesThanTheLimitAreSelectedAtATime)
{
  TemporaryTree tree;
  json ids = json::array();
  for (std::size_t i = 0; i <= OPXExplorerDirectorySource::MaxSelected; ++i)
  {
    const std::string folder = std::to_string(i / 100);
    const std::string name = std::to_string(i);
    tree.AddFile(folder + "\\" + name);
    ids.push_back(folder + "/" + name);
  }
  OPXExplorerDirectorySource source(ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(tree.SystemPath().u8string())));
  EXPECT_EQ(Change(source, {{"addedNodes", ids}}), json({{"removedNodes", {ids.back()}}}));
  EXPECT_EQ(Change(source, {{"addedNodes", {ids.front()}}}), json::object());
  EXPECT_EQ(Change(source, {{"addedNodes", {ids.back()}}, {"removedNodes", {ids.front()}}}), json::object());
}
