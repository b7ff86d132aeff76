// A directory that can be opened and then not be listed: made by running out of descriptors, or by a process that has
// ended, neither of which Windows has.
#include "ChildProcess.h"
#include "DirectoryView.h"
#include "TemporaryTree.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using nlohmann::json;

namespace
{
// While it lives, this process can open one more descriptor and no second one.
class OneDescriptor
{
public:
  OneDescriptor()
  {
    getrlimit(RLIMIT_NOFILE, &_before);
    const int next = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(next);
    const rlimit limit{static_cast<rlim_t>(next) + 1, _before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &limit);
  }
  OneDescriptor(const OneDescriptor&) = delete;
  OneDescriptor& operator=(const OneDescriptor&) = delete;
  ~OneDescriptor() { setrlimit(RLIMIT_NOFILE, &_before); }

private:
  rlimit _before{};
};

// A process that has ended and is not forgotten yet: the system opens the folder of its network and cannot list it.
class EndedProcess
{
public:
  EndedProcess() : _process(fork())
  {
    if (_process == 0)
      _exit(0);
    siginfo_t end;
    waitid(P_PID, static_cast<id_t>(_process), &end, WEXITED | WNOWAIT);
  }
  EndedProcess(const EndedProcess&) = delete;
  EndedProcess& operator=(const EndedProcess&) = delete;
  ~EndedProcess() { waitpid(_process, nullptr, 0); }

  std::string GetFolder() const { return "/proc/" + std::to_string(_process); }

private:
  pid_t _process;
};

ChildResult Print(const std::string& i_directory)
{
  return ChildProcess(ChildProcess::Beside("opx-explorer"), {"--rows", "100", i_directory}).Run();
}
} // namespace

TEST(OPXExplorerBrokenListingTest, ADirectoryThatBreaksOffIsNotFoundUntilItCanBeListed)
{
  TemporaryTree tree;
  tree.AddFile("file");
  const DirectoryView view(tree.SystemPath());
  json answer;
  {
    // The directory is held open once more for the request, and a second time to be listed.
    const OneDescriptor only;
    answer = view.Ask("tree/rows", {{"startRow", 0}, {"endRow", 9}, {"groupKeys", json::array()}});
  }
  EXPECT_EQ(answer["result"], json::parse(R"({"groupedRequestResult":{"lastRow":[0],"numberOfChildren":[0],"rows":[[]]},"notFound":[0]})"));
  EXPECT_TRUE(view.IsFound({}));
}

TEST(OPXExplorerBrokenListingTest, ADirectoryThatBreaksOffIsNoTreeToPrint)
{
  const EndedProcess process;
  const ChildResult result = Print(process.GetFolder() + "/net");
  EXPECT_EQ(result.code, 1) << result;
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "opx-explorer: cannot list the directory " + process.GetFolder() +
                            "/net to its end; see that it can be reached, then run it again\n");
}

TEST(OPXExplorerBrokenListingTest, ADirectoryInTheTreeThatBreaksOffHasALineThatSaysSo)
{
  const EndedProcess process;
  const ChildResult result = Print(process.GetFolder());
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_THAT(result.out, testing::ContainsRegex("\nnet/[^\n]*\n  \\(not readable\\)\n"));
  EXPECT_EQ(result.err, "");
}
