// A directory that can be opened and then not be listed: made by running out of descriptors, which Windows does not.
#include "ChildProcess.h"
#include "DirectoryView.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
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
  TemporaryTree tree;
  tree.AddFile("file");
  // Descriptors for the three streams, the directory, and the same directory held open for the request.
  const ChildResult result = ChildProcess("/bin/bash", {"-c", "ulimit -n 5; exec \"$1\" \"$2\"", "bash",
                                                        ChildProcess::Beside("opx-explorer"), tree.SystemPath().string()})
                                 .Run();
  EXPECT_EQ(result.code, 1) << result;
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "opx-explorer: cannot list the directory " + tree.SystemPath().string() +
                            " to its end; see that it can be reached, then run it again\n");
}
