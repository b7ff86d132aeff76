#include "ZELSysDirectory.h"

#include "TestFolder.h"

#include <gmock/gmock.h>
#include <vector>

using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace
{
std::vector<std::string> Names(const std::string& i_directory)
{
  ZELSysDirectory entries(ZELUnicodeString(i_directory.c_str()));
  std::vector<std::string> names;
  for (ZELUnicodeString name; entries.Next(name);)
    names.emplace_back(name.GetUTF8());
  return names;
}
} // namespace

TEST(ZELSysDirectoryTest, ListsFilesAndDirectoriesWithoutTheDots)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  folder.Write(".hidden", "x");
  folder.Write("..two", "x");
  folder.MakeDirectory("d");
  EXPECT_THAT(Names(folder.Path()), UnorderedElementsAre("a.txt", ".hidden", "..two", "d"));
}

TEST(ZELSysDirectoryTest, EmptyMissingAndPlainFilesHaveNoEntries)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  folder.MakeDirectory("d");
  EXPECT_THAT(Names(folder.Path("d")), IsEmpty());
  EXPECT_THAT(Names(folder.Path("missing")), IsEmpty());
  EXPECT_THAT(Names(folder.Path("a.txt")), IsEmpty());
}

TEST(ZELSysDirectoryTest, NamesOfEveryScriptComeWhole)
{
  const TestFolder folder;
  std::ofstream(folder.At("") / std::filesystem::path(u"\u00e9\u4e2d\U0001F600")) << "x";
  EXPECT_THAT(Names(folder.Path()), UnorderedElementsAre("\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80"));
}

TEST(ZELSysDirectoryTest, ThousandsOfEntriesAreAllListed)
{
  const TestFolder folder;
  for (int i = 0; i < 3000; ++i)
    folder.Write(std::to_string(i), "");
  EXPECT_EQ(Names(folder.Path()).size(), 3000u);
}

TEST(ZELSysDirectoryTest, AViewOfANameStaysValidUntilTheNextCall)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  folder.MakeDirectory("d");
  ZELSysDirectory entries(ZELUnicodeString(folder.Path().c_str()));
  std::vector<std::string> names;
  for (std::string_view name; entries.Next(name);)
    names.emplace_back(name);
  EXPECT_THAT(names, UnorderedElementsAre("a.txt", "d"));
}

TEST(ZELSysDirectoryTest, BothFormsOfNextWalkTheSameList)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  folder.Write("b.txt", "x");
  ZELSysDirectory entries(ZELUnicodeString(folder.Path().c_str()));
  std::string_view view;
  ASSERT_TRUE(entries.Next(view));
  const std::string first(view);
  ZELUnicodeString second;
  ASSERT_TRUE(entries.Next(second));
  EXPECT_THAT((std::vector<std::string>{first, std::string(second.GetUTF8())}), UnorderedElementsAre("a.txt", "b.txt"));
  EXPECT_FALSE(entries.Next(view));
  EXPECT_FALSE(entries.Next(second));
}

TEST(ZELSysDirectoryTest, AtItsEndTheTargetIsLeftAsItWas)
{
  const TestFolder folder;
  ZELSysDirectory entries(ZELUnicodeString(folder.Path().c_str()));
  ZELUnicodeString name("before");
  std::string_view view = "before";
  EXPECT_FALSE(entries.Next(name));
  EXPECT_FALSE(entries.Next(view));
  EXPECT_EQ(name.GetUTF8(), "before");
}
