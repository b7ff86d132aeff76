#include "PathTexts.h"

#include <gtest/gtest.h>
#include <type_traits>

static ZELSYPFilePath Slashed()
{
  ZELSYPFilePath path("q");
  path.AddExtension("/w\\dir\\x");
  return path;
}

TEST(ZELSYPFilePath, IsEmptyAtFirst)
{
  EXPECT_EQ(TextOf(ZELSYPFilePath()), "");
  EXPECT_EQ(ZELSYPFilePath().IsNull(), 1);
}

TEST(ZELSYPFilePath, TurnsSlashesIntoBackslashesFromEveryKindOfText)
{
  EXPECT_EQ(TextOf(ZELSYPFilePath("C:/a/b")), "C:\\a\\b");
  EXPECT_EQ(TextOf(ZELSYPFilePath(ZELString("C:/a/b"))), "C:\\a\\b");
  EXPECT_EQ(TextOf(ZELSYPFilePath(ZELUnicodeString("C:/a/b"))), "C:\\a\\b");
}

TEST(ZELSYPFilePath, TurnsSlashesInEveryAssignmentOfText)
{
  ZELSYPFilePath path;
  EXPECT_EQ(TextOf(path = "a/b"), "a\\b");
  EXPECT_EQ(TextOf(path = ZELString("c/d")), "c\\d");
  EXPECT_EQ(TextOf(path = ZELUnicodeString("e/f")), "e\\f");
}

TEST(ZELSYPFilePath, KeepsRepeatedAndTrailingSeparatorsDotsAndCase)
{
  EXPECT_EQ(TextOf(ZELSYPFilePath("C://a/.\\..//B\\")), "C:\\\\a\\.\\..\\\\B\\");
}

TEST(ZELSYPFilePath, StaysEmptyForEmptyAndNullTexts)
{
  EXPECT_EQ(ZELSYPFilePath("").IsNull(), 1);
  EXPECT_EQ(ZELSYPFilePath(static_cast<const char*>(nullptr)).IsNull(), 1);
  EXPECT_EQ(ZELSYPFilePath("x").IsNull(), 0);
}

TEST(ZELSYPFilePath, CopiesWithoutTurningSlashes)
{
  ZELSYPFilePath path("a");
  path.AddExtension("/b");
  ZELSYPFilePath assigned("c");
  assigned = path;
  EXPECT_EQ(TextOf(ZELSYPFilePath(path)), "a/b");
  EXPECT_EQ(TextOf(assigned), "a/b");
}

TEST(ZELSYPFilePath, IsDeletedThroughItsBase)
{
  EXPECT_TRUE(std::has_virtual_destructor_v<ZELSYPFilePath>);
}

TEST(ZELSYPFilePath, JoinsEveryKindOfTextWithOneBackslash)
{
  const ZELSYPFilePath path("C:\\a");
  EXPECT_EQ(TextOf(path + ZELSYPFilePath("b")), "C:\\a\\b");
  EXPECT_EQ(TextOf(path + ZELString("b/c")), "C:\\a\\b\\c");
  EXPECT_EQ(TextOf(path + ZELUnicodeString("b/c")), "C:\\a\\b\\c");
  EXPECT_EQ(TextOf(path + "b/c"), "C:\\a\\b\\c");
  EXPECT_EQ(TextOf(path), "C:\\a");
}

TEST(ZELSYPFilePath, JoiningLooksNeitherForASeparatorNorForAnEmptySide)
{
  EXPECT_EQ(TextOf(ZELSYPFilePath("C:\\dir\\") + "f"), "C:\\dir\\\\f");
  EXPECT_EQ(TextOf(ZELSYPFilePath() + "f"), "\\f");
  EXPECT_EQ(TextOf(ZELSYPFilePath("d") + ""), "d\\");
}

TEST(ZELSYPFilePath, JoiningTurnsSlashesThatAnExtensionBroughtIn)
{
  EXPECT_EQ(TextOf(Slashed() + "y"), "q\\w\\dir\\x\\y");
}

TEST(ZELSYPFilePath, AppendsToItselfAndAnswersItself)
{
  ZELSYPFilePath path("a");
  EXPECT_EQ(&(path += "b/c"), &path);
  EXPECT_EQ(TextOf(path), "a\\b\\c");
  path += static_cast<const char*>(path);
  EXPECT_EQ(TextOf(path), "a\\b\\c\\a\\b\\c");
}

TEST(ZELSYPFilePath, OperatorsFoldASCIILettersAndIsEqualDoesNot)
{
  EXPECT_EQ(ZELSYPFilePath("A\\B") == "a\\b", 1);
  EXPECT_EQ(ZELSYPFilePath("A\\B") == ZELSYPFilePath("a\\b"), 1);
  EXPECT_EQ(ZELSYPFilePath("A\\B") != "a\\b", 0);
  EXPECT_EQ(ZELSYPFilePath("A\\B") != ZELSYPFilePath("a\\b"), 0);
  EXPECT_EQ(ZELSYPFilePath("A\\B").IsEqual(ZELSYPFilePath("a\\b")), 0);
  EXPECT_EQ(ZELSYPFilePath("A\\B").IsEqual(ZELSYPFilePath("A\\B")), 1);
}

TEST(ZELSYPFilePath, OperatorsFoldLettersOnly)
{
  EXPECT_EQ(ZELSYPFilePath("[") == "{", 0);
  EXPECT_EQ(ZELSYPFilePath("@") == "`", 0);
  EXPECT_EQ(ZELSYPFilePath("ab") == "a", 0);
  EXPECT_EQ(ZELSYPFilePath("\xC3\x84") == "\xC3\xA4", 0);
}

TEST(ZELSYPFilePath, IsEqualToNoNullText)
{
  EXPECT_EQ(ZELSYPFilePath() == static_cast<const char*>(nullptr), 0);
  EXPECT_EQ(ZELSYPFilePath() != static_cast<const char*>(nullptr), 1);
}

TEST(ZELSYPFilePath, ComparesBytesUnsignedWithCaseAndPrefixFirst)
{
  ZELSYPFilePath upper("A\\B"), lower("a\\b"), prefix("a"), high("\xC3\xA9");
  EXPECT_EQ(ZELSYPFilePath::Compare(&upper, &lower), -1);
  EXPECT_EQ(ZELSYPFilePath::Compare(&lower, &upper), 1);
  EXPECT_EQ(ZELSYPFilePath::Compare(&lower, &lower), 0);
  EXPECT_EQ(ZELSYPFilePath::Compare(&prefix, &lower), -1);
  EXPECT_EQ(ZELSYPFilePath::Compare(&lower, &prefix), 1);
  EXPECT_EQ(ZELSYPFilePath::Compare(&high, &lower), 1);
}

TEST(ZELSYPFilePath, ComparesNullFirstOnEitherSide)
{
  ZELSYPFilePath path("p");
  EXPECT_EQ(ZELSYPFilePath::Compare(nullptr, &path), -1);
  EXPECT_EQ(ZELSYPFilePath::Compare(&path, nullptr), -1);
  EXPECT_EQ(ZELSYPFilePath::Compare(nullptr, nullptr), -1);
}

TEST(ZELSYPFilePath, BasenameCountsComponentsFromTheEnd)
{
  const ZELSYPFilePath path("a\\b\\c");
  EXPECT_EQ(TextOf(path.basename()), "c");
  EXPECT_EQ(TextOf(path.basename(2)), "b");
  EXPECT_EQ(TextOf(path.basename(3)), "a");
  EXPECT_EQ(TextOf(path.basename(0)), "c");
  EXPECT_EQ(TextOf(path.basename(-2147483647 - 1)), "c");
}

TEST(ZELSYPFilePath, BasenameIsTheFirstComponentWhenThereAreFewer)
{
  EXPECT_EQ(TextOf(ZELSYPFilePath("a\\b\\c").basename(2147483647)), "a");
  EXPECT_EQ(TextOf(ZELSYPFilePath("file").basename()), "file");
  EXPECT_EQ(TextOf(ZELSYPFilePath().basename(2)), "");
}

TEST(ZELSYPFilePath, BasenameOfATrailingSeparatorIsEmpty)
{
  EXPECT_EQ(ZELSYPFilePath("dir\\").basename(1).IsNull(), 1);
  EXPECT_EQ(TextOf(ZELSYPFilePath("dir\\").basename(2)), "dir");
}

TEST(ZELSYPFilePath, BasenameCountsSlashesOfAnExtensionOnceTheyAreCutOff)
{
  EXPECT_EQ(TextOf(Slashed().basename(2)), "dir");
  EXPECT_EQ(TextOf(Slashed().basename(3)), "w");
  EXPECT_EQ(TextOf(Slashed().basename(4)), "q");
}

TEST(ZELSYPFilePath, BasenameWithoutABackslashKeepsSlashes)
{
  ZELSYPFilePath path("a");
  path.AddExtension("/b");
  EXPECT_EQ(TextOf(path.basename()), "a/b");
  EXPECT_EQ(TextOf(path.dirname()), "");
}

TEST(ZELSYPFilePath, DirnameTakesComponentsFromTheEnd)
{
  EXPECT_EQ(TextOf(ZELSYPFilePath("C:\\a\\b\\c").dirname()), "C:\\a\\b");
  EXPECT_EQ(TextOf(ZELSYPFilePath("C:\\a\\b\\c").dirname(2)), "C:\\a");
  EXPECT_EQ(TextOf(ZELSYPFilePath("C:\\a\\b\\c").dirname(0)), "C:\\a\\b");
  EXPECT_EQ(TextOf(ZELSYPFilePath("C:\\x").dirname()), "C:");
}

TEST(ZELSYPFilePath, DirnameIsEmptyWhenThereIsNothingAbove)
{
  EXPECT_EQ(TextOf(ZELSYPFilePath("file").dirname()), "");
  EXPECT_EQ(TextOf(ZELSYPFilePath("\\x").dirname()), "");
  EXPECT_EQ(TextOf(ZELSYPFilePath("a\\b").dirname(2147483647)), "");
  EXPECT_EQ(TextOf(ZELSYPFilePath().dirname()), "");
}

TEST(ZELSYPFilePath, DirnameCountsSlashesOfAnExtensionOnceTheyAreCutOff)
{
  EXPECT_EQ(TextOf(Slashed().dirname(2)), "q\\w");
  EXPECT_EQ(TextOf(Slashed().dirname(3)), "q");
}

TEST(ZELSYPFilePath, CutsAMillionComponentsWithoutRunningOutOfStack)
{
  const ZELSYPFilePath path((std::string("first") + std::string(1000000, '\\')).c_str());
  EXPECT_EQ(TextOf(path.dirname(1000000)), "first");
  EXPECT_EQ(TextOf(path.basename(1000001)), "first");
}

TEST(ZELSYPFilePath, ExtensionFollowsTheLastDotOfTheWholePath)
{
  EXPECT_EQ(ZELSYPFilePath("archive.tar.gz").GetExtension(), ZELString("gz"));
  EXPECT_EQ(ZELSYPFilePath("a.d\\f").GetExtension(), ZELString("d\\f"));
  EXPECT_EQ(ZELSYPFilePath("a.").GetExtension(), ZELString(""));
  EXPECT_EQ(ZELSYPFilePath("name").GetExtension(), ZELString(""));
  EXPECT_EQ(ZELSYPFilePath().GetExtension(), ZELString(""));
}

TEST(ZELSYPFilePath, HasExtensionComparesWithCase)
{
  EXPECT_EQ(ZELSYPFilePath("a.txt").HasExtension("txt"), 1);
  EXPECT_EQ(ZELSYPFilePath("a.txt").HasExtension("TXT"), 0);
  EXPECT_EQ(ZELSYPFilePath("a.txt").HasExtension(nullptr), 0);
  EXPECT_EQ(ZELSYPFilePath("a").HasExtension(""), 1);
}

TEST(ZELSYPFilePath, AddExtensionAppendsTheTextAsItIs)
{
  ZELSYPFilePath path("name");
  path.AddExtension("txt");
  EXPECT_EQ(TextOf(path), "nametxt");
  path.AddExtension("/x");
  EXPECT_EQ(TextOf(path), "nametxt/x");
}

static std::string WithExtension(const char* i_path, const char* i_extension)
{
  ZELSYPFilePath path(i_path);
  path.SetExtension(i_extension);
  return TextOf(path);
}

TEST(ZELSYPFilePath, SetExtensionReplacesWhatFollowsTheLastDot)
{
  EXPECT_EQ(WithExtension("a.b.c", "txt"), "a.b.txt");
  EXPECT_EQ(WithExtension("a.b\\name", "txt"), "a.txt");
  EXPECT_EQ(WithExtension("a.b", ""), "a.");
}

TEST(ZELSYPFilePath, SetExtensionAddsADotWhereThereIsNone)
{
  EXPECT_EQ(WithExtension("name", "txt"), "name.txt");
  EXPECT_EQ(WithExtension("name", ""), "name.");
}

TEST(ZELSYPFilePath, SetExtensionTurnsSlashesOnlyWhereItReplaces)
{
  EXPECT_EQ(WithExtension("name", "a/b"), "name.a/b");
  EXPECT_EQ(WithExtension("name.x", "a/b"), "name.a\\b");
}
