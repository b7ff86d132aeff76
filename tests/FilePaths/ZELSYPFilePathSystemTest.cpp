#include "ChildProcess.h"
#include "ChildProgram.h"
#include "PathTexts.h"
#include "ZELProcess.h"
#include "ZELSysFile.h"

#include <cstdint>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>

namespace fs = std::filesystem;

static const std::uint64_t Second = 10000000;
// 1950-01-01 and 2100-01-01, with odd fractions: nothing is rounded to what a smaller clock holds.
static const std::uint64_t Before1970 = 110133216000000000 + 1234567;
static const std::uint64_t After2038 = 157469184000000000 + 7654321;

static std::string Long()
{
  return std::string(240, 'n');
}

static int Low(std::uint64_t i_time)
{
  return static_cast<int>(static_cast<std::uint32_t>(i_time));
}

TEST(ZELSYPFilePathSystem, TellsFilesFromDirectoriesAndFromNothing)
{
  TemporaryTree tree;
  tree.AddFile("d\\f");
  EXPECT_EQ(In(tree, "d\\f").IsFile(), 1);
  EXPECT_EQ(In(tree, "d\\f").IsDirectory(), 0);
  EXPECT_EQ(In(tree, "d").IsFile(), 0);
  EXPECT_EQ(In(tree, "d").IsDirectory(), 1);
  EXPECT_EQ(In(tree, "none").IsFile(), 0);
  EXPECT_EQ(In(tree, "none").IsDirectory(), 0);
}

TEST(ZELSYPFilePathSystem, TellsReadOnlyFiles)
{
  TemporaryTree tree;
  tree.AddFile("f");
  EXPECT_EQ(In(tree, "f").IsReadOnly(), 0);
  tree.SetReadOnly("f");
  EXPECT_EQ(In(tree, "f").IsReadOnly(), 1);
  EXPECT_EQ(In(tree, "none").IsReadOnly(), 0);
}

TEST(ZELSYPFilePathSystem, SaysNothingOfAnEmptyPath)
{
  const ZELSYPFilePath empty;
  EXPECT_EQ(empty.IsFile(), 0);
  EXPECT_EQ(empty.IsDirectory(), 0);
  EXPECT_EQ(empty.IsReadOnly(), 0);
  EXPECT_EQ(empty.GetFileSize(), 0);
  EXPECT_EQ(empty.GetTime(), 0);
}

TEST(ZELSYPFilePathSystem, FindsNamesThatAreNotASCIIOrVeryLong)
{
  TemporaryTree tree;
  for (const std::string& name : {std::string("caf\xC3\xA9 \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8C\xB3.txt"), Long().substr(0, 240)})
  {
    tree.AddFile(name, "12345");
    EXPECT_EQ(In(tree, name).IsFile(), 1) << name;
  }
}

TEST(ZELSYPFilePathSystem, TakesAPathLongerThanTheSystemDoesForNothing)
{
  const ZELSYPFilePath path(("C:\\" + std::string(40000, 'x')).c_str());
  EXPECT_EQ(path.IsFile(), 0);
  EXPECT_EQ(path.IsDirectory(), 0);
  EXPECT_EQ(path.GetFileSize(), -1);
  EXPECT_EQ(path.CreateDirectoryW(), -1);
  EXPECT_EQ(path.Delete(), 1);
}

TEST(ZELSYPFilePathSystem, AnswersTheSizeOfAFile)
{
  TemporaryTree tree;
  tree.AddFile("f", "12345");
  EXPECT_EQ(In(tree, "f").GetFileSize(), 5);
}

TEST(ZELSYPFilePathSystem, AnswersTheLow32BitsOfALargeSize)
{
  TemporaryTree tree;
  tree.AddSparseFile("4GiB+7", (std::uint64_t(4) << 30) + 7);
  tree.AddSparseFile("3GiB", std::uint64_t(3) << 30);
  EXPECT_EQ(In(tree, "4GiB+7").GetFileSize(), 7);
  EXPECT_EQ(In(tree, "3GiB").GetFileSize(), -1073741824);
}

TEST(ZELSYPFilePathSystem, AnswersMinusOneForTheSizeOfAMissingOrLockedFile)
{
  TemporaryTree tree;
  tree.AddFile("f", "12345");
  const ZELSysFile held(In(tree, "f"), ZELSysFile::Read);
  EXPECT_EQ(In(tree, "f").GetFileSize(), -1);
  EXPECT_EQ(In(tree, "none").GetFileSize(), -1);
}

TEST(ZELSYPFilePathSystem, AnswersTheLow32BitsOfTheLastWriteTime)
{
  TemporaryTree tree;
  tree.AddFile("f");
  for (const std::uint64_t time : {Before1970, After2038})
  {
    tree.SetTime("f", time);
    EXPECT_EQ(In(tree, "f").GetTime(), Low(time));
  }
}

TEST(ZELSYPFilePathSystem, AnswersNoTimeForADirectoryAMissingAndALockedFile)
{
  TemporaryTree tree;
  tree.AddFile("f");
  const ZELSysFile held(In(tree, "f"), ZELSysFile::Read);
  EXPECT_EQ(In(tree, "f").GetTime(), 0);
  EXPECT_EQ(In(tree).GetTime(), 0);
  EXPECT_EQ(In(tree, "none").GetTime(), 0);
}

TEST(ZELSYPFilePathSystem, SetTimeTakesTheLastWriteTimeOfAnother)
{
  TemporaryTree tree;
  tree.AddFile("from");
  tree.AddFile("to");
  for (const std::uint64_t time : {Before1970, After2038})
  {
    tree.SetTime("from", time);
    In(tree, "to").SetTime(In(tree, "from"));
    EXPECT_EQ(ZELSysFile(In(tree, "to"), ZELSysFile::Read).GetLastWriteTime(), time);
  }
}

TEST(ZELSYPFilePathSystem, SetTimeFromItselfChangesNothing)
{
  TemporaryTree tree;
  tree.AddFile("f");
  tree.SetTime("f", Before1970);
  In(tree, "f").SetTime(In(tree, "f"));
  EXPECT_EQ(In(tree, "f").GetTime(), Low(Before1970));
}

TEST(ZELSYPFilePathSystem, SetTimeDoesNothingUnlessBothAreFilesThatOpen)
{
  TemporaryTree tree;
  tree.AddFile("from");
  tree.AddFile("to");
  tree.SetTime("from", After2038);
  tree.SetTime("to", Before1970);
  In(tree, "to").SetTime(In(tree, "none"));
  In(tree, "to").SetTime(In(tree));
  In(tree, "none").SetTime(In(tree, "from"));
  {
    const ZELSysFile held(In(tree, "from"), ZELSysFile::Read);
    In(tree, "to").SetTime(In(tree, "from"));
  }
  {
    const ZELSysFile held(In(tree, "to"), ZELSysFile::Read);
    In(tree, "to").SetTime(In(tree, "from"));
  }
  EXPECT_EQ(In(tree, "to").GetTime(), Low(Before1970));
  EXPECT_EQ(In(tree, "none").IsFile(), 0);
}

// Times that differ in the high half only, in the low half only (above the sign bit of 32), and not at all.
TEST(ZELSYPFilePathSystem, CompareTimeOrdersByBothHalves)
{
  const std::uint64_t base = std::uint64_t(0x01D00000) << 32;
  struct
  {
    std::uint64_t mine, other;
    int order;
  } const cases[] = {{base + Second, base + Second, 0},
                     {base + 0xF0000000, base + 0x10000000, 1},
                     {base + 0x10000000, base + 0xF0000000, -1},
                     {base + (std::uint64_t(1) << 32), base + 0xF0000000, 1},
                     {base + 0xF0000000, base + (std::uint64_t(1) << 32), -1},
                     {Before1970, After2038, -1}};
  TemporaryTree tree;
  tree.AddFile("mine");
  tree.AddFile("other");
  for (const auto& [mine, other, order] : cases)
  {
    tree.SetTime("mine", mine);
    tree.SetTime("other", other);
    EXPECT_EQ(In(tree, "mine").CompareTime(In(tree, "other")), order) << mine << ' ' << other;
  }
}

TEST(ZELSYPFilePathSystem, CompareTimeRanksWhatIsNoFileAsOlder)
{
  TemporaryTree tree;
  tree.AddFile("f");
  EXPECT_EQ(In(tree, "none").CompareTime(In(tree, "f")), -1);
  EXPECT_EQ(In(tree, "f").CompareTime(In(tree, "none")), 1);
  EXPECT_EQ(In(tree).CompareTime(In(tree, "f")), -1);
  EXPECT_EQ(In(tree, "f").CompareTime(In(tree)), 1);
  EXPECT_EQ(In(tree, "none").CompareTime(In(tree, "none")), -1);
}

TEST(ZELSYPFilePathSystem, CompareTimeRanksALockedFileAsOlder)
{
  TemporaryTree tree;
  tree.AddFile("f");
  tree.AddFile("locked");
  const ZELSysFile held(In(tree, "locked"), ZELSysFile::Read);
  EXPECT_EQ(In(tree, "locked").CompareTime(In(tree, "f")), -1);
  EXPECT_EQ(In(tree, "f").CompareTime(In(tree, "locked")), 1);
}

TEST(ZELSYPFilePathSystem, CreateDirectoryWMakesOneLevel)
{
  TemporaryTree tree;
  EXPECT_EQ(In(tree, "d").CreateDirectoryW(), 0);
  EXPECT_EQ(In(tree, "d").IsDirectory(), 1);
  EXPECT_EQ(In(tree, "d").CreateDirectoryW(), -1);
  EXPECT_EQ(In(tree, "a\\b").CreateDirectoryW(), -1);
  EXPECT_EQ(In(tree, "a").IsDirectory(), 0);
}

TEST(ZELSYPFilePathSystem, AnswersForAnEmptyPathInThreeWays)
{
  EXPECT_EQ(ZELSYPFilePath().CreateDirectoryW(), 1);
  EXPECT_EQ(ZELSYPFilePath().Delete(), 0);
  EXPECT_EQ(ZELSYPFilePath().CreateRecursiveDirectory(), 1);
}

TEST(ZELSYPFilePathSystem, CreateRecursiveDirectoryMakesAllThatIsMissing)
{
  TemporaryTree tree;
  EXPECT_EQ(In(tree, "a\\b\\c").CreateRecursiveDirectory(), 0);
  EXPECT_EQ(In(tree, "a\\b\\c").IsDirectory(), 1);
}

TEST(ZELSYPFilePathSystem, CreateRecursiveDirectoryLeavesAnExistingOneAlone)
{
  TemporaryTree tree;
  EXPECT_EQ(In(tree).CreateRecursiveDirectory(), 0);
  EXPECT_TRUE(fs::is_empty(tree.SystemPath()));
}

TEST(ZELSYPFilePathSystem, CreateRecursiveDirectoryStartsAtTheWorkingDirectoryForABareName)
{
  TemporaryTree tree;
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  EXPECT_EQ(ZELSYPFilePath("x\\y").CreateRecursiveDirectory(), 0);
  EXPECT_EQ(In(tree, "x\\y").IsDirectory(), 1);
}

TEST(ZELSYPFilePathSystem, CreateRecursiveDirectoryTellsItsOwnFailureFromOneAbove)
{
  TemporaryTree tree;
  tree.AddFile("file");
  EXPECT_EQ(In(tree, "file").CreateRecursiveDirectory(), -1);
  EXPECT_EQ(In(tree, "file\\d").CreateRecursiveDirectory(), 1);
  EXPECT_EQ(In(tree, "file\\d\\e").CreateRecursiveDirectory(), 1);
}

TEST(ZELSYPFilePathSystem, DeletesFilesOnly)
{
  TemporaryTree tree;
  tree.AddFile("f");
  tree.AddDirectory("d");
  EXPECT_EQ(In(tree, "f").Delete(), 0);
  EXPECT_EQ(In(tree, "f").IsFile(), 0);
  EXPECT_EQ(In(tree, "f").Delete(), 1);
  EXPECT_EQ(In(tree, "d").Delete(), 1);
  EXPECT_EQ(In(tree, "d").IsDirectory(), 1);
}

TEST(ZELSYPFilePathSystem, MakesAnotherTemporaryFileEachTime)
{
  ZELSYPFilePath first = ZELSYPFilePath::GetTemporaryFileName();
  ZELSYPFilePath second = ZELSYPFilePath::GetTemporaryFileName();
  EXPECT_EQ(first.GetFileSize(), 0);
  EXPECT_EQ(second.GetFileSize(), 0);
  EXPECT_EQ(first == second, 0);
  EXPECT_EQ(TextOf(first).find('/'), std::string::npos);
  EXPECT_EQ(first.Delete(), 0);
  EXPECT_EQ(second.Delete(), 0);
}

TEST(ZELSYPFilePathSystem, ChangesAndAnswersTheWorkingDirectory)
{
  TemporaryTree tree;
  tree.AddDirectory("d");
  EXPECT_EQ(ZELSYPFilePath::SetWorkDir(In(tree, "d")), 0);
  EXPECT_TRUE(fs::equivalent(fs::current_path(), tree.SystemPath("d")));
  EXPECT_EQ(TextOf(ZELSYPFilePath::GetWorkDir().basename()), "d");
  EXPECT_EQ(TextOf(ZELSYPFilePath::GetWorkDir()).find('/'), std::string::npos);
}

TEST(ZELSYPFilePathSystem, KeepsTheWorkingDirectoryWhenTheNewOneIsMissing)
{
  TemporaryTree tree;
  const std::string before = TextOf(ZELSYPFilePath::GetWorkDir());
  EXPECT_EQ(ZELSYPFilePath::SetWorkDir(In(tree, "none")), -1);
  EXPECT_EQ(ZELSYPFilePath::SetWorkDir(ZELSYPFilePath()), -1);
  EXPECT_EQ(TextOf(ZELSYPFilePath::GetWorkDir()), before);
}

TEST(ZELSYPFilePathSystem, GetFullPathResolvesTheDirectoryAndJoinsTheName)
{
  TemporaryTree tree;
  tree.AddDirectory("a\\b");
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  const std::string here = TextOf(ZELSYPFilePath::GetWorkDir());
  EXPECT_EQ(TextOf(In(tree, "a\\b\\..\\.\\b\\f").GetFullPath()), here + "\\a\\b\\f");
  EXPECT_EQ(TextOf(ZELSYPFilePath("a\\..\\a\\f").GetFullPath()), here + "\\a\\f");
  EXPECT_EQ(TextOf(In(tree, "a\\b\\").GetFullPath()), here + "\\a\\b\\");
  EXPECT_EQ(TextOf(ZELSYPFilePath().GetFullPath()), here);
}

TEST(ZELSYPFilePathSystem, GetFullPathResolvesABareNameAgainstTheRoot)
{
  TemporaryTree tree;
  tree.AddFile("f");
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  const ZELSYPFilePath full = ZELSYPFilePath("f").GetFullPath();
  EXPECT_TRUE(TextOf(full) == "\\f" || TextOf(full) == TextOf(ZELSYPFilePath::GetWorkDir()).substr(0, 2) + "\\f") << TextOf(full);
}

TEST(ZELSYPFilePathSystem, GetFullPathOfAMissingDirectoryIsTheNameInTheWorkingDirectory)
{
  TemporaryTree tree;
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  EXPECT_EQ(TextOf(ZELSYPFilePath("none\\f").GetFullPath()), TextOf(ZELSYPFilePath::GetWorkDir()) + "\\f");
}

TEST(ZELSYPFilePathSystem, GetFullPathFindsADirectoryThatTheRootLacksInTheWorkingDirectory)
{
  TemporaryTree tree;
  tree.AddDirectory("not-at-the-root\\b");
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  const std::string here = TextOf(ZELSYPFilePath::GetWorkDir());
  EXPECT_EQ(TextOf(ZELSYPFilePath("\\not-at-the-root\\f").GetFullPath()), here + "\\not-at-the-root\\f");
  EXPECT_EQ(TextOf(ZELSYPFilePath("\\not-at-the-root\\b\\f").GetFullPath()), here + "\\not-at-the-root\\b\\f");
}

TEST(ZELSYPFilePathSystem, GetFullPathPutsTheWorkingDirectoryBack)
{
  TemporaryTree tree;
  tree.AddDirectory("a");
  for (const char* path : {"a\\f", "none\\f", "f", "\\f", ""})
  {
    ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
    ZELSYPFilePath(path).GetFullPath();
    EXPECT_TRUE(fs::equivalent(fs::current_path(), tree.SystemPath())) << path;
  }
}

TEST(ZELSYPFilePathSystem, IsUnderItselfAndTheDirectoriesAbove)
{
  EXPECT_EQ(ZELSYPFilePath("C:\\a\\b").IsUnderDirectory("C:\\a"), 1);
  EXPECT_EQ(ZELSYPFilePath("C:\\a\\b").IsUnderDirectory("C:\\a\\b"), 1);
  EXPECT_EQ(ZELSYPFilePath("C:\\a\\b").IsUnderDirectory("C:"), 1);
  EXPECT_EQ(ZELSYPFilePath("C:\\a\\b").IsUnderDirectory("C:/a"), 1);
}

TEST(ZELSYPFilePathSystem, IsUnderNoDirectoryOfAnotherCaseTrailWordOrNone)
{
  EXPECT_EQ(ZELSYPFilePath("C:\\a\\b").IsUnderDirectory("C:\\A"), 0);
  EXPECT_EQ(ZELSYPFilePath("C:\\a\\b").IsUnderDirectory("C:\\a\\"), 0);
  EXPECT_EQ(ZELSYPFilePath("C:\\ab").IsUnderDirectory("C:\\a"), 0);
  EXPECT_EQ(ZELSYPFilePath("C:\\a").IsUnderDirectory("C:\\a\\b"), 0);
  EXPECT_EQ(ZELSYPFilePath("C:\\a").IsUnderDirectory(""), 0);
  EXPECT_EQ(ZELSYPFilePath().IsUnderDirectory(""), 0);
}

TEST(ZELSYPFilePathSystem, SearchAnswersTheFirstDirectoryThatHoldsTheFile)
{
  TemporaryTree tree;
  tree.AddFile("b\\f");
  tree.AddFile("c\\f");
  std::string list = tree.Path("a") + ";;" + tree.Path("b") + ";" + tree.Path("c") + ";";
  EXPECT_EQ(TextOf(ZELSYPFilePath::Search("f", list.c_str())), tree.Path("b\\f"));
  std::replace(list.begin(), list.end(), '\\', '/');
  EXPECT_EQ(TextOf(ZELSYPFilePath::Search("f", list.c_str())), tree.Path("b\\f"));
}

TEST(ZELSYPFilePathSystem, SearchPassesOverADirectoryOfTheName)
{
  TemporaryTree tree;
  tree.AddDirectory("a\\f");
  tree.AddFile("b\\f");
  EXPECT_EQ(TextOf(ZELSYPFilePath::Search("f", (tree.Path("a") + ";" + tree.Path("b")).c_str())), tree.Path("b\\f"));
}

TEST(ZELSYPFilePathSystem, SearchFindsNothingInAnEmptyOrWrongList)
{
  TemporaryTree tree;
  for (const std::string& list : {std::string(), std::string(";;"), tree.Path(), tree.Path("none")})
    EXPECT_EQ(ZELSYPFilePath::Search("f", list.c_str()).IsNull(), 1) << list;
}

OPX_CHILD_ENTRY(SearchInstallPath)
{
  std::fputs(ZELSYPFilePath::Search("f", nullptr), stdout);
  return 0;
}

TEST(ZELSYPFilePathSystem, SearchWithoutAListReadsTheInstallPath)
{
  TemporaryTree tree;
  tree.AddFile("f");
  EXPECT_EQ(ChildProcess::Self("SearchInstallPath").Set("ZELInstallPath", ";" + tree.Path()).Run().out, tree.Path("f"));
  const ChildResult unset = ChildProcess::Self("SearchInstallPath").Unset("ZELInstallPath").Run();
  EXPECT_TRUE(unset.Succeeded()) << unset;
  EXPECT_EQ(unset.out, "");
}

OPX_CHILD_ENTRY(SearchAnEmptyList)
{
  std::fputs(ZELSYPFilePath::Search("f", ""), stdout);
  return 0;
}

TEST(ZELSYPFilePathSystem, SearchOfAnEmptyListDoesNotReadTheInstallPath)
{
  TemporaryTree tree;
  tree.AddFile("f");
  const ChildResult result = ChildProcess::Self("SearchAnEmptyList").Set("ZELInstallPath", tree.Path()).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out, "");
}
