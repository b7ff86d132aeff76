// What holds on Linux only: names of any bytes, a file tree with one root, rights that a process can lack.
#include "../PathTexts.h"
#include "ZELProcess.h"

#include <algorithm>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

typedef std::vector<std::string> Texts;

static Texts List(const ZELSYPFilePath& i_pattern)
{
  ZELListValZELSYPFilePath list;
  i_pattern.ReadDirectory(list);
  return TextsOf(list);
}

// What a process without special rights is answered; the superuser may read everything.
template <class Question>
static int AskAsNobody(Question i_question)
{
  const pid_t child = fork();
  if (child == 0)
    _exit(geteuid() == 0 && setuid(65534) != 0 ? 99 : i_question() & 0xFF);
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(PlatformPath, KeepsANameThatIsNotUTF8ByteForByte)
{
  TemporaryTree tree;
  const std::string name = "bad\xFF\xC3(.txt";
  tree.AddFile(name, "12345");
  ZELListValZELSYPFilePath list;
  In(tree, "*.txt").ReadDirectory(list);
  ASSERT_EQ(TextsOf(list), Texts{tree.Path(name)});
  EXPECT_EQ(list[1].IsFile(), 1);
  EXPECT_EQ(list[1].GetFileSize(), 5);
  EXPECT_NE(list[1].GetTime(), 0);
  EXPECT_EQ(TextOf(list[1].basename()), name);
  EXPECT_EQ(list[1].Delete(), 0);
  EXPECT_TRUE(fs::is_empty(tree.SystemPath()));
}

TEST(PlatformPath, TellsNamesWithTrailingDotsAndSpacesApart)
{
  TemporaryTree tree;
  for (const char* name : {"x", "x.", "x..", "x "})
  {
    EXPECT_EQ(In(tree, name).IsFile(), 0) << name;
    tree.AddFile(name);
    EXPECT_EQ(In(tree, name).IsFile(), 1) << name;
  }
  EXPECT_EQ(List(In(tree, "*")).size(), 4u);
  EXPECT_EQ(List(In(tree, "*.")).size(), 2u);
}

TEST(PlatformPath, NamesTheOneRootByADriveOrALeadingBackslash)
{
  TemporaryTree tree;
  tree.AddFile("f");
  const std::string withoutDrive = tree.Path().substr(2);
  EXPECT_EQ(ZELSYPFilePath((withoutDrive + "\\f").c_str()).IsFile(), 1);
  EXPECT_EQ(List((withoutDrive + "\\*").c_str()), Texts{withoutDrive + "\\f"});
  EXPECT_EQ(List("\\"), Texts{"\\"});
}

TEST(PlatformPath, StartsAtTheRootWithOneBackslashOnly)
{
  const Texts found = List("\\*");
  EXPECT_NE(std::find(found.begin(), found.end(), "\\tmp"), found.end());
  ASSERT_EQ(chdir("/"), 0);
  EXPECT_EQ(List("tmp"), Texts{"\\tmp"});
}

TEST(PlatformPath, ListsAShareBelowTheRoot)
{
  TemporaryTree tree;
  tree.AddFile("f");
  const std::string share = '\\' + tree.Path().substr(2);
  EXPECT_EQ(List((share + "\\*").c_str()), Texts{share + "\\f"});
}

TEST(PlatformPath, TakesAServerWithoutAShareForANameAtTheRoot)
{
  EXPECT_EQ(List("\\\\tmp"), Texts{"\\tmp"});
  EXPECT_EQ(List("\\\\no such server"), Texts());
}

TEST(PlatformPath, SetTimeLeavesTheTimeOfTheLastAccessAlone)
{
  TemporaryTree tree;
  tree.AddFile("from");
  const std::string to = tree.AddFile("to").string();
  const timespec times[] = {{1000000000, 123456700}, {1100000000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, to.c_str(), times, 0), 0);
  In(tree, "to").SetTime(In(tree, "from"));
  struct stat now;
  ASSERT_EQ(stat(to.c_str(), &now), 0);
  EXPECT_NE(now.st_mtim.tv_sec, 1100000000);
  EXPECT_EQ(now.st_atim.tv_sec, 1000000000);
  EXPECT_EQ(now.st_atim.tv_nsec, 123456700);
}

TEST(PlatformPath, MakesATemporaryFileForItsOwnerOnly)
{
  ZELSYPFilePath path = ZELSYPFilePath::GetTemporaryFileName();
  const std::string name = TextOf(path.basename());
  const std::string prefix = "ZELQM_" + std::to_string(ZELGetProcessId()) + "_";
  EXPECT_EQ(name.substr(0, prefix.size()), prefix);
  EXPECT_EQ(name.size(), prefix.size() + 6);
  EXPECT_EQ(fs::status(fs::temp_directory_path() / name).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(path.Delete(), 0);
}

TEST(PlatformPath, AnswersNoSizeAndNoTimeOfAnUnreadableFile)
{
  TemporaryTree tree;
  tree.AddFile("f", "12345");
  const ZELSYPFilePath path = In(tree, "f");
  ASSERT_EQ(AskAsNobody([&] { return path.GetFileSize(); }), 5);
  fs::permissions(tree.SystemPath("f"), fs::perms::none);
  EXPECT_EQ(AskAsNobody([&] { return path.IsFile(); }), 1);
  EXPECT_EQ(AskAsNobody([&] { return path.GetFileSize(); }), 0xFF);
  EXPECT_EQ(AskAsNobody([&] { return path.GetTime(); }), 0);
  EXPECT_EQ(AskAsNobody([&] { return path.CompareTime(path); }), 1);
}

TEST(PlatformPath, ListsNothingInAnUnreadableDirectoryAndReturns)
{
  TemporaryTree tree;
  tree.AddFile("open\\f");
  tree.AddFile("shut\\f");
  fs::permissions(tree.SystemPath("shut"), fs::perms::none);
  EXPECT_EQ(AskAsNobody([&] { return List(In(tree, "*\\f")).size() == 1 && List(In(tree, "*\\*")).size() == 1; }), 1);
  EXPECT_EQ(AskAsNobody([&] { return In(tree, "shut\\new").CreateRecursiveDirectory() == -1; }), 1);
}

TEST(PlatformPath, PutsBackAWorkingDirectoryThatCannotBeNamed)
{
  TemporaryTree tree;
  tree.AddDirectory("gone");
  fs::create_directory(tree.SystemPath() / "back\\slash");
  for (const auto& directory : {fs::path("gone"), fs::path("back\\slash")})
  {
    fs::current_path(tree.SystemPath() / directory);
    struct stat before, after;
    ASSERT_EQ(stat(".", &before), 0);
    fs::remove(tree.SystemPath() / "gone");
    In(tree, "*").GetFullPath();
    List(In(tree, "*"));
    ASSERT_EQ(stat(".", &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino) << directory;
  }
}

// Goes down from the tree by i_levels directories with names of 200 letters.
static void GoDown(const TemporaryTree& i_tree, int i_levels)
{
  fs::current_path(i_tree.SystemPath());
  const std::string name(200, 'd');
  for (int level = 0; level < i_levels; ++level)
  {
    ASSERT_TRUE(fs::create_directory(name));
    ASSERT_EQ(chdir(name.c_str()), 0);
  }
}

TEST(PlatformPath, NamesAWorkingDirectoryThatIsTooLongWithADot)
{
  TemporaryTree tree;
  ASSERT_NO_FATAL_FAILURE(GoDown(tree, 12));
  struct stat before, after;
  ASSERT_EQ(stat(".", &before), 0);
  EXPECT_EQ(TextOf(ZELSYPFilePath::GetWorkDir()), ".");
  List(In(tree, "*\\*"));
  ASSERT_EQ(stat(".", &after), 0);
  EXPECT_EQ(before.st_ino, after.st_ino);
}

// The last one, with its end, fills the room of 2,048 bytes.
TEST(PlatformPath, NamesAWorkingDirectoryOfUpTo2047BytesInFull)
{
  TemporaryTree tree;
  ASSERT_NO_FATAL_FAILURE(GoDown(tree, 9));
  const std::string last(2047 - fs::current_path().native().size() - 1, 'e');
  ASSERT_TRUE(fs::create_directory(last) && fs::create_directory(last + 'e'));
  for (const auto& directory : {fs::current_path(), fs::current_path() / last})
  {
    ASSERT_EQ(chdir(directory.c_str()), 0);
    std::string here = directory.native();
    std::replace(here.begin(), here.end(), '/', '\\');
    EXPECT_EQ(TextOf(ZELSYPFilePath::GetWorkDir()), here);
    EXPECT_EQ(TextOf(ZELSYPFilePath(".\\f").GetFullPath()), here + "\\f");
  }
  ASSERT_EQ(chdir(("../" + last + 'e').c_str()), 0);
  EXPECT_EQ(TextOf(ZELSYPFilePath::GetWorkDir()), ".");
  EXPECT_EQ(TextOf(ZELSYPFilePath(".\\f").GetFullPath()), "\\f");
}

// A start that cannot be named is ".", which follows the change to each component.
TEST(PlatformPath, ChangesToEachComponentOnItsWay)
{
  TemporaryTree tree;
  ASSERT_NO_FATAL_FAILURE(GoDown(tree, 12));
  ASSERT_TRUE(fs::create_directory("sub"));
  EXPECT_EQ(List("*"), Texts{".\\sub"});
  EXPECT_EQ(List("sub"), Texts());
  ASSERT_TRUE(fs::create_directory("sub/sub"));
  EXPECT_EQ(List("sub"), Texts{".\\sub"});
}

TEST(PlatformPath, DoesNotWaitForAPipe)
{
  TemporaryTree tree;
  ASSERT_EQ(mkfifo(tree.SystemPath("pipe").c_str(), 0600), 0);
  EXPECT_EQ(In(tree, "pipe").IsFile(), 1);
  EXPECT_EQ(In(tree, "pipe").GetFileSize(), 0);
}
