// A directory that can be opened and then not be listed, made in ways that Windows does not have.
#include "ChildProcess.h"
#include "DirectoryView.h"
#include "TemporaryTree.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using nlohmann::json;

namespace
{
int GetNextDescriptor()
{
  const int next = open("/dev/null", O_RDONLY | O_CLOEXEC);
  close(next);
  return next;
}

// While it lives, the open directory can be asked for everything but its entries.
class Unlistable
{
public:
  explicit Unlistable(int i_directory) : _directory(i_directory), _kept(dup(i_directory))
  {
    const int bare = open(("/proc/self/fd/" + std::to_string(i_directory)).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    dup2(bare, _directory);
    close(bare);
  }
  Unlistable(const Unlistable&) = delete;
  Unlistable& operator=(const Unlistable&) = delete;
  ~Unlistable()
  {
    dup2(_kept, _directory);
    close(_kept);
  }

private:
  int _directory;
  int _kept;
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
  return ChildProcess(ChildProcess::Beside("opx-explorer"), {i_directory}).Run();
}
} // namespace

TEST(OPXExplorerBrokenListingTest, ADirectoryThatBreaksOffIsNotFoundUntilItCanBeListed)
{
  TemporaryTree tree;
  tree.AddFile("file");
  const int directory = GetNextDescriptor();
  const DirectoryView view(tree.SystemPath());
  json answer;
  {
    const Unlistable broken(directory);
    answer = view.AskRows({});
  }
  EXPECT_EQ(answer, json::parse(R"({"groupedRequestResult":{"lastRow":[0],"numberOfChildren":[0],"rows":[[]]},"notFound":[0]})"));
  EXPECT_TRUE(view.IsFound({}));
}

TEST(OPXExplorerBrokenListingTest, TheStructureOfADirectoryThatBreaksOffIsAnErrorThatSaysSo)
{
  const TemporaryTree tree;
  const int directory = GetNextDescriptor();
  const DirectoryView view(tree.SystemPath());
  const Unlistable broken(directory);
  const json answer = view.Ask("tree/structure", json::object());
  EXPECT_EQ(answer["error"]["code"], -32603) << answer;
  EXPECT_EQ(answer["error"]["data"]["reason"], "a directory could not be read to its end");
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
