// A reader that goes away and a disk that is full, made with a shell.
#include "ChildProcess.h"
#include "TemporaryTree.h"

#include <gmock/gmock.h>

namespace
{
ChildResult RunShell(const std::string& i_script, const TemporaryTree& i_tree)
{
  return ChildProcess("/bin/bash", {"-c", i_script, "bash", ChildProcess::Beside("opx-explorer"), i_tree.SystemPath().string()}).Run();
}
} // namespace

TEST(OPXExplorerPipeTest, AReaderThatGoesAwayEndsItQuietlyWithSuccess)
{
  TemporaryTree tree;
  const ChildResult result =
      RunShell("{ yes noise | \"$1\" --stdio \"$2\"; echo \"code ${PIPESTATUS[1]}\" >&2; } | head -n 1 >/dev/null", tree);
  EXPECT_EQ(result.err, "code 0\n");
}

// The reader has gone before the first line, which the shell finds out as well.
TEST(OPXExplorerPipeTest, APersonMayStopReading)
{
  TemporaryTree tree;
  for (int i = 0; i < 10; ++i)
    tree.AddFile("directory" + std::to_string(i) + "\\file");
  const ChildResult result = RunShell("exec 3> >(true); wait \"$!\"; (trap '' PIPE; echo >&3) 2>/dev/null || echo broken >&2; "
                                      "\"$1\" \"$2\" >&3; echo \"code $?\" >&2",
                                      tree);
  EXPECT_EQ(result.err, "broken\ncode 0\n");
}

TEST(OPXExplorerPipeTest, AFullDiskIsToldOnceAndEndsItWithOne)
{
  TemporaryTree tree;
  tree.AddFile("one");
  tree.AddFile("two");
  for (const char* const command : {"\"$1\" \"$2\" >/dev/full", "printf 'noise\\nnoise\\n' | \"$1\" --stdio \"$2\" >/dev/full",
                                    "\"$1\" --help >/dev/full", "\"$1\" --version >/dev/full"})
  {
    const ChildResult result = RunShell(command, tree);
    EXPECT_EQ(result.code, 1) << command;
    EXPECT_EQ(result.err, "opx-explorer: cannot write the output: No space left on device; mend that or send the output elsewhere, "
                          "then run it again\n")
        << command;
  }
}

TEST(OPXExplorerPipeTest, EachAnswerIsSentBeforeTheNextMessageIsRead)
{
  TemporaryTree tree;
  const ChildResult result =
      RunShell("coproc \"$1\" --stdio \"$2\"; echo noise >&\"${COPROC[1]}\"; read -t 20 -r line <&\"${COPROC[0]}\" && "
               "echo \"${line:0:33}\"",
               tree);
  EXPECT_EQ(result.out, "{\"jsonrpc\":\"2.0\",\"id\":null,\"error\n");
}
