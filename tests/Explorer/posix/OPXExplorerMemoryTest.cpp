// The memory that the program holds, as the system tells it of a running process; Windows is not asked.
#include "ChildProcess.h"
#include "LineMaker.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <sstream>
#include <string>

namespace
{
constexpr int allowedGrowth = 4096;
constexpr int allowedPeak = 60'000'000 / 1024;

std::string MakeLines(LineMaker& io_maker, int i_count)
{
  std::string lines;
  for (int i = 0; i < i_count; ++i)
    lines += io_maker.Make() + "\n";
  return lines + R"({"jsonrpc":"2.0","id":"the last line","method":"nothing"})" + "\n";
}

// Serves two files of lines, one after the other, and tells after each what memory is resident, in kB.
const char* const script = R"(
coproc EXPLORER { exec "$1" --stdio "$2"; }
exec 3<&"${EXPLORER[0]}" 4>&"${EXPLORER[1]}"
for lines in "$3" "$4"; do
  grep -q '"the last line"' <&3 &
  cat "$lines" >&4
  wait "$!" || exit 1
  sed -n 's/^VmRSS:[^0-9]*\([0-9]*\).*/\1/p' "/proc/$EXPLORER_PID/status"
done
)";

// Makes a directory of 100,000 files, where there is room in memory, since a disk takes its time; asks for its first
// thousand rows, and tells what memory was resident at most, in kB, and whether the answer has the last of them.
const char* const peakScript = R"(
directory=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d) || exit 1
trap 'rm -rf "$directory"' EXIT
(cd "$directory" && seq -f 'document%.0f.txt' 0 99999 | xargs touch)
coproc EXPLORER { exec "$1" --stdio "$directory"; }
echo "$2" >&"${EXPLORER[1]}"
read -r answer <&"${EXPLORER[0]}"
sed -n 's/^VmHWM:[^0-9]*\([0-9]*\).*/\1/p' "/proc/$EXPLORER_PID/status"
[[ $answer == *'"numberOfChildren":[100000]'*'"document999.txt"'* ]] && echo answered
)";

const char* const firstThousandRows = R"({"jsonrpc":"2.0","id":1,"method":"tree/rows","params":{"groupKeys":[],"startRow":0,"endRow":1000,)"
                                      R"("sortModel":[{"dataIndex":"name","sort":"asc"}]}})";

// A sanitizer's runtime answers nothing here; it takes memory of its own.
bool HasSanitizer()
{
  return mallinfo2().uordblks == 0;
}
} // namespace

TEST(OPXExplorerMemoryTest, AThousandSortedRowsOfAHundredThousandTakeLessThan60MB)
{
  if (HasSanitizer())
    GTEST_SKIP() << "a sanitizer's runtime takes memory of its own";
  const ChildResult result =
      ChildProcess("/bin/bash", {"-c", peakScript, "bash", ChildProcess::Beside("opx-explorer"), firstThousandRows}).Run();
  int peak = 0;
  std::string answered;
  ASSERT_TRUE(std::istringstream(result.out) >> peak >> answered) << result;
  EXPECT_EQ(answered, "answered");
  EXPECT_GT(peak, 0);
  EXPECT_LT(peak, allowedPeak);
  RecordProperty("kB_peak", peak);
}

TEST(OPXExplorerMemoryTest, TenThousandLinesLeaveTheMemoryAsItWas)
{
  if (HasSanitizer())
    GTEST_SKIP() << "a sanitizer's runtime keeps what is freed, and finds leaks by itself";
  TemporaryTree tree;
  tree.AddFile("served\\a\\b\\file");
  LineMaker maker;
  const std::string warmUp = tree.AddFile("warm-up", MakeLines(maker, 2000)).string();
  const std::string lines = tree.AddFile("lines", MakeLines(maker, 10000)).string();
  const ChildResult result = ChildProcess("/bin/bash", {"-c", script, "bash", ChildProcess::Beside("opx-explorer"),
                                                        tree.SystemPath("served").string(), warmUp, lines})
                                 .Run();
  int before = 0;
  int after = 0;
  ASSERT_TRUE(std::istringstream(result.out) >> before >> after) << result;
  EXPECT_GT(before, 0);
  EXPECT_LE(after - before, allowedGrowth) << "from " << before << " kB to " << after << " kB";
  RecordProperty("kB_before", before);
  RecordProperty("kB_after", after);
}
