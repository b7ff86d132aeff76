#include "ZELSysWorkingDirectory.h"

#include "TestFolder.h"
#include "ZELSysFiles.h"

#include <gtest/gtest.h>

namespace
{
std::string Here()
{
  return std::filesystem::current_path().u8string();
}
} // namespace

TEST(ZELSysWorkingDirectoryTest, IsPutBackWhenItGoes)
{
  const TestFolder folder;
  const std::string before = Here();
  {
    const ZELSysWorkingDirectory restored;
    ASSERT_EQ(ZELSysChangeDirectory(folder.Path().c_str()), 0);
    EXPECT_NE(Here(), before);
  }
  EXPECT_EQ(Here(), before);
}

TEST(ZELSysWorkingDirectoryTest, EachPutsBackWhatItFound)
{
  const TestFolder folder;
  folder.MakeDirectory("d");
  const ZELSysWorkingDirectory outer;
  ASSERT_EQ(ZELSysChangeDirectory(folder.Path().c_str()), 0);
  const std::string before = Here();
  {
    const ZELSysWorkingDirectory inner;
    ASSERT_EQ(ZELSysChangeDirectory(folder.Path("d").c_str()), 0);
  }
  EXPECT_EQ(Here(), before);
}

TEST(ZELSysWorkingDirectoryTest, ANameOfAnyScriptIsPutBack)
{
  const TestFolder folder;
  const std::filesystem::path named = folder.At("") / std::filesystem::path(u"\u4e2d\U0001F600");
  std::filesystem::create_directory(named);
  const ZELSysWorkingDirectory outer;
  std::filesystem::current_path(named);
  const std::string before = Here();
  {
    const ZELSysWorkingDirectory inner;
    ASSERT_EQ(ZELSysChangeDirectory(folder.Path().c_str()), 0);
  }
  EXPECT_EQ(Here(), before);
}
