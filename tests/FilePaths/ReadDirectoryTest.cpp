#include "PathTexts.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

typedef std::vector<std::string> Texts;

static Texts List(const ZELSYPFilePath& i_pattern)
{
  ZELListValZELSYPFilePath list;
  EXPECT_EQ(i_pattern.ReadDirectory(list), 1);
  return TextsOf(list);
}

// The order of a listing is the system's own; where a test does not ask for it, the texts are sorted.
static Texts Sorted(Texts i_texts)
{
  std::sort(i_texts.begin(), i_texts.end());
  return i_texts;
}

static Texts ListIn(const TemporaryTree& i_tree, const char* i_inside)
{
  return Sorted(List(In(i_tree, i_inside)));
}

static Texts PathsIn(const TemporaryTree& i_tree, Texts i_inside)
{
  for (std::string& text : i_inside)
    text = i_tree.Path(text);
  return Sorted(i_inside);
}

TEST(ReadDirectory, ListsTheMatchingNamesOfADirectory)
{
  TemporaryTree tree;
  for (const char* name : {"dir\\a.txt", "dir\\B.TXT", "dir\\c.dat", "dir\\d.txt.bak"})
    tree.AddFile(name);
  EXPECT_EQ(ListIn(tree, "dir\\*.txt"), PathsIn(tree, {"dir\\a.txt", "dir\\B.TXT"}));
}

TEST(ReadDirectory, AppendsAfterWhatTheListHolds)
{
  TemporaryTree tree;
  tree.AddFile("f");
  ZELListValZELSYPFilePath list;
  list.Append("before");
  In(tree, "*").ReadDirectory(list);
  EXPECT_EQ(TextsOf(list), (Texts{"before", tree.Path("f")}));
}

TEST(ReadDirectory, KeepsTheSystemsOrder)
{
  TemporaryTree tree;
  for (int number = 0; number < 50; ++number)
    tree.AddFile(std::to_string(number * 7919 % 100));
  Texts expected;
  for (const auto& entry : fs::directory_iterator(tree.SystemPath()))
    expected.push_back(tree.Path(entry.path().filename().u8string()));
  EXPECT_EQ(List(In(tree, "*")), expected);
}

TEST(ReadDirectory, TakesEveryEntryButTheDotsForOneStar)
{
  TemporaryTree tree;
  tree.AddFile(".hidden");
  tree.AddFile("...dots");
  tree.AddDirectory("d");
  EXPECT_EQ(ListIn(tree, "*"), PathsIn(tree, {".hidden", "...dots", "d"}));
  EXPECT_EQ(ListIn(tree, "**"), Texts());
}

TEST(ReadDirectory, ExpandsEveryComponentWithStars)
{
  TemporaryTree tree;
  for (const char* name : {"one\\x\\f.txt", "one\\y\\f.txt", "two\\x\\f.txt", "three\\x\\g.txt"})
    tree.AddFile(name);
  EXPECT_EQ(ListIn(tree, "*e\\*\\*.txt"), PathsIn(tree, {"one\\x\\f.txt", "one\\y\\f.txt", "three\\x\\g.txt"}));
  EXPECT_EQ(ListIn(tree, "*\\x\\f.txt"), PathsIn(tree, {"one\\x\\f.txt", "two\\x\\f.txt"}));
}

TEST(ReadDirectory, FindsNothingBelowAMatchThatIsAFile)
{
  TemporaryTree tree;
  tree.AddFile("file");
  tree.AddFile("dir\\f");
  EXPECT_EQ(ListIn(tree, "*\\*"), PathsIn(tree, {"dir\\f"}));
}

TEST(ReadDirectory, ListsAPathWithoutStarsWhenItExists)
{
  TemporaryTree tree;
  tree.AddFile("f");
  EXPECT_EQ(ListIn(tree, "f"), PathsIn(tree, {"f"}));
  EXPECT_EQ(ListIn(tree, "none"), Texts());
  EXPECT_EQ(ListIn(tree, "none\\*"), Texts());
}

TEST(ReadDirectory, LeavesEmptyComponentsOut)
{
  TemporaryTree tree;
  tree.AddFile("d\\f");
  EXPECT_EQ(ListIn(tree, "\\d\\\\*\\"), PathsIn(tree, {"d\\f"}));
}

TEST(ReadDirectory, AnswersADriveAloneWithoutLookingForIt)
{
  EXPECT_EQ(List("C:\\"), Texts{"C:"});
  EXPECT_EQ(List("Q:\\"), Texts{"Q:"});
}

TEST(ReadDirectory, TakesADriveWithoutABackslashForARelativeName)
{
  EXPECT_EQ(List("C:"), Texts());
  EXPECT_EQ(List("Q:"), Texts());
}

TEST(ReadDirectory, DropsAllOfTheFirstComponentBehindADrive)
{
  TemporaryTree tree;
  tree.AddFile("f");
  const std::string drive = tree.Path().substr(0, 2);
  EXPECT_EQ(List((drive + "foo" + tree.Path("f").substr(2)).c_str()), Texts{tree.Path("f")});
  EXPECT_EQ(List("x:y"), Texts{"x:"});
}

TEST(ReadDirectory, KeepsComponentsOfDotsAsTheyAre)
{
  TemporaryTree tree;
  tree.AddFile("d\\file");
  tree.AddDirectory("e");
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree, "e")), 0);
  const std::string here = TextOf(ZELSYPFilePath::GetWorkDir());
  EXPECT_EQ(List("..\\d\\fi*"), Texts{here + "\\..\\d\\file"});
  EXPECT_EQ(List(".\\..\\d\\.\\file"), Texts{here + "\\.\\..\\d\\.\\file"});
}

TEST(ReadDirectory, AnswersAShareAloneWithoutLookingForIt)
{
  EXPECT_EQ(List("\\\\server\\share"), Texts{"\\\\server\\share"});
}

TEST(ReadDirectory, StartsARelativePathAtTheWorkingDirectory)
{
  TemporaryTree tree;
  tree.AddFile("a\\f.txt");
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  const std::string here = TextOf(ZELSYPFilePath::GetWorkDir());
  EXPECT_EQ(List("a\\*.txt"), Texts{here + "\\a\\f.txt"});
  EXPECT_EQ(List("*"), Texts{here + "\\a"});
  EXPECT_EQ(List("a"), Texts{here + "\\a"});
  EXPECT_EQ(List(ZELSYPFilePath()), Texts{here});
}

TEST(ReadDirectory, PutsTheWorkingDirectoryBack)
{
  TemporaryTree tree;
  tree.AddFile("a\\b\\f");
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree, "a")), 0);
  for (const std::string& pattern : {tree.Path("*\\*\\*"), tree.Path("none\\*"), std::string("b\\*"), std::string("C:\\"),
                                     std::string("\\\\server\\share\\*"), std::string("..\\*"), std::string()})
  {
    List(pattern.c_str());
    EXPECT_TRUE(fs::equivalent(fs::current_path(), tree.SystemPath("a"))) << pattern;
  }
}

TEST(ReadDirectory, FindsNamesThatAreNotASCIIWhateverTheirCase)
{
  TemporaryTree tree;
  tree.AddFile("caf\xC3\xA9.txt");
  tree.AddFile("caff.txt");
  EXPECT_EQ(List(In(tree, "CAF\xC3\x89*")), Texts{TextOf(In(tree, "caf\xC3\xA9.txt"))});
}

TEST(ReadDirectory, ListsNamesThatTheNarrowViewMayLack)
{
  TemporaryTree tree;
  const std::string name = "\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8C\xB3.txt";
  tree.AddFile(name);
  ZELListValZELSYPFilePath list;
  In(tree, "*.txt").ReadDirectory(list);
  ASSERT_EQ(list.Size(), 1);
  EXPECT_EQ(list[1].IsFile(), 1);
  EXPECT_EQ(list[1].IsEqual(In(tree, name)), 1);
}

TEST(ReadDirectory, ListsVeryLongNames)
{
  TemporaryTree tree;
  const std::string name = std::string(200, 'n') + ".txt";
  tree.AddFile(name);
  EXPECT_EQ(ListIn(tree, "*.txt"), PathsIn(tree, {name}));
}

TEST(ReadDirectory, ListsTenThousandFiles)
{
  TemporaryTree tree;
  Texts names;
  for (int number = 0; number < 10000; ++number)
    tree.AddFile(names.emplace_back("f" + std::to_string(number)));
  EXPECT_EQ(ListIn(tree, "F*"), PathsIn(tree, names));
}
