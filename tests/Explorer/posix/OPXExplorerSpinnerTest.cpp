// The spinner on a terminal that the command script makes; Wine has no terminal to look at.
#include "OPXExplorerSpinner.h"

#include "ChildProcess.h"
#include "ChildProgram.h"
#include "OPXExplorerTreePrinter.h"
#include "OPXTreeRowsSource.h"
#include "OPXTreeSession.h"
#include "ZELSYPAbstractDataSource.h"

#include <chrono>
#include <gmock/gmock.h>
#include <thread>

using testing::MatchesRegex;

namespace
{
// A directory "inner", which is empty. Each listing takes its time.
class SlowSource : public ZELSYPAbstractDataSource, public OPXTreeRowsSource
{
public:
  explicit SlowSource(int i_milliseconds) : _time(i_milliseconds) {}

  ZELSYPDataSourceParameters::TreeNodesAnswerParameters
  RequestRows(const ZELSYPDataSourceParameters::TreeNodesRequestParameters& i_request) override
  {
    std::this_thread::sleep_for(_time);
    if (!i_request.GroupKeys(0).empty())
      return {{{}}, {0}};
    return {{{{"inner", {{"id", "inner"}, {"name", "inner"}, {"kind", "directory"}}, true, -1}}}, {1}};
  }
  ZELSYPDataSourceParameters::TreeNodesModelStructureAnswerParameters
  RequestStructure(const ZELSYPDataSourceParameters::TreeNodesModelStructureParameters&) override
  {
    return {};
  }

private:
  const std::chrono::milliseconds _time;
};

std::string EntryCommand(const std::string& i_entry, const std::string& i_milliseconds)
{
  return "'" + ChildProcess::GetProgram() + "' " + ChildProgram::Option + " " + i_entry + " " + i_milliseconds;
}

std::string WorkCommand(const std::string& i_milliseconds)
{
  return EntryCommand("WorkBeforeAPerson", i_milliseconds);
}

// What a terminal is told.
std::string ShownBy(const std::string& i_command)
{
  const ChildResult result = ChildProcess("/usr/bin/script", {"-qec", i_command, "/dev/null"}).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  return result.out;
}
} // namespace

OPX_CHILD_ENTRY(WorkBeforeAPerson)
{
  const OPXExplorerSpinner spinner("reading");
  std::this_thread::sleep_for(std::chrono::milliseconds(std::stoi(i_arguments.at(0))));
  return 0;
}

OPX_CHILD_ENTRY(PrintATree)
{
  SlowSource source(std::stoi(i_arguments.at(0)));
  const OPXTreeSession session(source);
  OPXExplorerOutput output;
  return OPXExplorerTreePrinter(session, output).Print() ? 0 : 1;
}

TEST(OPXExplorerSpinnerTest, TurnsWhileWorkTakesLongerThanHalfASecondAndLeavesNothing)
{
  const std::string shown = ShownBy(WorkCommand("1500"));
  EXPECT_THAT(shown, MatchesRegex("(\r[|/\\\\-] reading)+\r         \r"));
  EXPECT_EQ(shown.substr(0, 40), "\r| reading\r/ reading\r- reading\r\\ reading");
}

TEST(OPXExplorerSpinnerTest, ShortWorkShowsNothing)
{
  EXPECT_EQ(ShownBy(WorkCommand("0")), "");
}

TEST(OPXExplorerSpinnerTest, WorkOfLessThanHalfASecondShowsNothing)
{
  // A busy machine may make more of it, once.
  int tries = 0;
  while (!ShownBy(WorkCommand("300")).empty() && tries < 5)
    ++tries;
  EXPECT_LT(tries, 5);
}

TEST(OPXExplorerSpinnerTest, TurnsOnTheErrorStreamAlone)
{
  EXPECT_EQ(ShownBy(WorkCommand("700") + " 2>/dev/null"), "");
  EXPECT_NE(ShownBy(WorkCommand("700") + " >/dev/null"), "");
}

TEST(OPXExplorerSpinnerTest, NothingIsWrittenWhereNoPersonLooks)
{
  const ChildResult result = ChildProcess::Self("WorkBeforeAPerson", {"700"}).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out + result.err, "");
}

TEST(OPXExplorerSpinnerTest, TurnsBeforeThePrintedTreeWhileAListingTakesLongerThanHalfASecond)
{
  EXPECT_THAT(ShownBy(EntryCommand("PrintATree", "900")), MatchesRegex("(\r[|/\\\\-] reading the directory)+\r *\rinner/\r\n"
                                                                       "(\r[|/\\\\-] reading inner)+\r *\r"));
}

TEST(OPXExplorerSpinnerTest, ATreeThatIsListedQuicklyIsPrintedAlone)
{
  EXPECT_EQ(ShownBy(EntryCommand("PrintATree", "0")), "inner/\r\n");
}
