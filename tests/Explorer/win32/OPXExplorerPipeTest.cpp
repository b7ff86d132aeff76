// There is no shell here that takes a reader away: that the program tells a closed output is tested on Linux.
#include "ChildProcess.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>

TEST(OPXExplorerPipeTest, LineEndsOfTheOutputAreNotTranslatedTwice)
{
  TemporaryTree tree;
  const ChildResult result =
      ChildProcess(ChildProcess::Beside("opx-explorer"), {"--stdio", tree.SystemPath().u8string()}).Input("x\r\nx\n").Run();
  EXPECT_EQ(result.out.find('\r'), std::string::npos);
  EXPECT_EQ(result.code, 0);
}
