#include "ZELSysFile.h"

#include "TestFolder.h"

#include <gmock/gmock.h>

namespace
{
constexpr std::uint64_t second = 10000000;

// The time read back after it was set.
std::uint64_t SetAndRead(const TestFolder& i_folder, std::uint64_t i_time)
{
  i_folder.Write("a.txt", "x");
  EXPECT_TRUE(ZELSysFile(i_folder.Path("a.txt").c_str(), ZELSysFile::Write).SetLastWriteTime(i_time));
  return ZELSysFile(i_folder.Path("a.txt").c_str(), ZELSysFile::Read).GetLastWriteTime();
}
} // namespace

TEST(ZELSysFileTest, TellsTheSize)
{
  const TestFolder folder;
  folder.Write("a.txt", "12345");
  EXPECT_EQ(ZELSysFile(folder.Path("a.txt").c_str(), ZELSysFile::Read).GetSizeLow(), 5u);
}

TEST(ZELSysFileTest, TellsTheLowHalfOfASizeOverFourGibibytes)
{
  const TestFolder folder;
  folder.Write("big", "");
  std::filesystem::resize_file(folder.At("big"), (std::uintmax_t{5} << 32) + 17);
  EXPECT_EQ(ZELSysFile(folder.Path("big").c_str(), ZELSysFile::Read).GetSizeLow(), 17u);
}

TEST(ZELSysFileTest, MissingFileAnswersTheFailureValues)
{
  const TestFolder folder;
  for (const std::string& path : {folder.Path("missing"), folder.Path(), std::string()})
  {
    ZELSysFile file(path.c_str(), ZELSysFile::Read);
    EXPECT_FALSE(file.IsOpen()) << path;
    EXPECT_EQ(file.GetSizeLow(), 0xFFFFFFFFu);
    EXPECT_EQ(file.GetLastWriteTime(), 0u);
    EXPECT_FALSE(file.SetLastWriteTime(second));
  }
  EXPECT_FALSE(ZELSysFile(nullptr, ZELSysFile::Read).IsOpen());
}

TEST(ZELSysFileTest, OpenDoesNotCreateOrEmptyAFile)
{
  const TestFolder folder;
  folder.Write("a.txt", "12345");
  EXPECT_FALSE(ZELSysFile(folder.Path("missing").c_str(), ZELSysFile::Write).IsOpen());
  EXPECT_FALSE(std::filesystem::exists(folder.At("missing")));
  EXPECT_EQ(ZELSysFile(folder.Path("a.txt").c_str(), ZELSysFile::Write).GetSizeLow(), 5u);
}

TEST(ZELSysFileTest, SecondOpenFailsWhileTheFirstLasts)
{
  const TestFolder folder;
  folder.Write("a.txt", "12345");
  {
    const ZELSysFile first(folder.Path("a.txt").c_str(), ZELSysFile::Read);
    EXPECT_TRUE(first.IsOpen());
    EXPECT_FALSE(ZELSysFile(folder.Path("a.txt").c_str(), ZELSysFile::Read).IsOpen());
    EXPECT_FALSE(ZELSysFile(folder.Path("a.txt").c_str(), ZELSysFile::Write).IsOpen());
  }
  EXPECT_TRUE(ZELSysFile(folder.Path("a.txt").c_str(), ZELSysFile::Read).IsOpen());
}

TEST(ZELSysFileTest, TimesKeepTheirHundredNanoseconds)
{
  const TestFolder folder;
  const std::uint64_t year2026 = 134142048000000000;
  EXPECT_EQ(SetAndRead(folder, year2026 + 1234567), year2026 + 1234567);
}

TEST(ZELSysFileTest, TimesBefore1970AndAfter2038AreKept)
{
  const TestFolder folder;
  const std::uint64_t year1970 = 11644473600 * second, year2038 = year1970 + (std::uint64_t{1} << 31) * second;
  EXPECT_EQ(SetAndRead(folder, year1970 - 1), year1970 - 1);
  EXPECT_EQ(SetAndRead(folder, year1970 - 40000000 * second + 7), year1970 - 40000000 * second + 7);
  EXPECT_EQ(SetAndRead(folder, year2038 + 5 * second + 3), year2038 + 5 * second + 3);
}
