// Times that only some file systems keep: the one in memory keeps what Linux can tell.
#include "DirectoryView.h"
#include "TemporaryTree.h"

#include <cstdlib>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <limits>
#include <string>
#include <sys/stat.h>

using nlohmann::json;
using testing::ElementsAre;

namespace
{
constexpr std::time_t lastMoment = std::numeric_limits<std::time_t>::max();

// In the file system in memory; each file is named by a letter.
class OPXExplorerFarTimesTest : public testing::Test
{
protected:
  void SetUp() override
  {
    if (!AddFile("probe", lastMoment))
      GTEST_SKIP() << "/dev/shm keeps no times so far ahead";
    std::filesystem::remove(tree.SystemPath("probe"));
  }

  // i_seconds: since 1970. False when the file system does not keep it.
  bool AddFile(const std::string& i_name, std::time_t i_seconds)
  {
    const std::filesystem::path path = tree.AddFile(i_name);
    const timespec times[] = {{0, UTIME_OMIT}, {i_seconds, 0}};
    struct stat status
    {
    };
    return utimensat(AT_FDCWD, path.c_str(), times, 0) == 0 && stat(path.c_str(), &status) == 0 && status.st_mtim.tv_sec == i_seconds;
  }

  std::string ShowTime(std::time_t i_seconds)
  {
    EXPECT_TRUE(AddFile("file", i_seconds));
    return DirectoryView(tree.SystemPath()).Rows({})[0]["modified"];
  }

  TemporaryTree tree{"/dev/shm"};
};
} // namespace

TEST_F(OPXExplorerFarTimesTest, AYearOfFiveDigitsIsWrittenInSixWithASign)
{
  EXPECT_EQ(ShowTime(253402300799), "9999-12-31T23:59:59Z");
  EXPECT_EQ(ShowTime(253402300800), "+010000-01-01T00:00:00Z");
}

TEST_F(OPXExplorerFarTimesTest, ATimeBeyondTheLastIsTheLast)
{
  EXPECT_EQ(ShowTime(1833029933769), "+060056-05-28T05:36:09Z");
  for (const std::time_t seconds : {std::time_t{1833029933770}, std::time_t{1844674407370}, std::time_t{2000000000000}, lastMoment})
    EXPECT_EQ(ShowTime(seconds), "+060056-05-28T05:36:10Z") << seconds;
}

TEST_F(OPXExplorerFarTimesTest, ATimeBeforeTheFirstIsTheFirst)
{
  EXPECT_EQ(ShowTime(-11644473600), "1601-01-01T00:00:00Z");
  EXPECT_EQ(ShowTime(-11644473601), "1601-01-01T00:00:00Z");
  EXPECT_EQ(ShowTime(std::numeric_limits<std::time_t>::min()), "1601-01-01T00:00:00Z");
}

TEST_F(OPXExplorerFarTimesTest, FarTimesAreSortedAsTheyLie)
{
  AddFile("a", lastMoment);
  AddFile("b", 253402300800);
  AddFile("c", std::numeric_limits<std::time_t>::min());
  AddFile("d", 1833029933769);
  const json sort = json::array({{{"dataIndex", "modified"}, {"sort", "asc"}}});
  EXPECT_THAT(DirectoryView(tree.SystemPath()).Names({}, 0, 9, sort), ElementsAre("c", "b", "d", "a"));
}
