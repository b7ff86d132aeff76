// Names that Windows does not have: with the controls of ASCII.
#include "ChildProcess.h"
#include "TemporaryTree.h"

#include <gmock/gmock.h>

#include <string>

TEST(OPXExplorerTerminalTest, ControlsOfASCIIDoNotReachTheTerminal)
{
  TemporaryTree tree;
  tree.AddFile("a\x01z\x1B[31m\nz\x1F");
  const std::string out = ChildProcess(ChildProcess::Beside("opx-explorer"), {tree.SystemPath().u8string()}).Run().out;
  EXPECT_THAT(out, testing::StartsWith("a?z?[31m?z? "));
}
