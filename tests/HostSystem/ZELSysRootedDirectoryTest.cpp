#include "ZELSysRootedDirectory.h"

#include "TestFolder.h"
#include "ZELSysFile.h"

#include <chrono>
#include <gmock/gmock.h>
#include <thread>
#include <utility>

using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace
{
ZELSysRootedDirectory Open(const std::filesystem::path& i_path)
{
  return ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(i_path.u8string()));
}

using Entries = std::vector<std::pair<std::string, ZELSysRootedDirectory::Kind>>;

Entries List(const ZELSysRootedDirectory& i_directory)
{
  Entries entries;
  EXPECT_TRUE(
      i_directory.ForEachEntry([&](std::string_view i_name, ZELSysRootedDirectory::Kind i_kind) { entries.emplace_back(i_name, i_kind); }));
  return entries;
}

ZELSysRootedDirectory::Details DetailsOf(const ZELSysRootedDirectory& i_directory, std::string_view i_name)
{
  ZELSysRootedDirectory::Details details;
  EXPECT_TRUE(i_directory.GetDetails(i_name, details)) << i_name;
  return details;
}

bool Settles(const ZELSysRootedDirectory& i_directory)
{
  for (int i = 0; i < 500 && !i_directory.GetStamp().isSettled; ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  return i_directory.GetStamp().isSettled;
}

// Names that lead nowhere, whatever there is.
const std::string notNames[] = {"", ".", "..", "d/e", "../d", "/", "d/", std::string("d\0", 2), "missing"};
} // namespace

TEST(ZELSysRootedDirectoryTest, WhatIsNoDirectoryIsNotOpen)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  EXPECT_TRUE(Open(folder.At("")).IsOpen());
  for (const std::filesystem::path& path : {folder.At("a.txt"), folder.At("missing"), std::filesystem::path()})
    EXPECT_FALSE(Open(path).IsOpen()) << path;
}

TEST(ZELSysRootedDirectoryTest, TheSystemSaysWhyADirectoryIsNotOpen)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  const auto getError = [&folder](const char* i_name)
  {
    std::error_code error;
    ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(folder.At(i_name).u8string()), &error);
    return error;
  };
  EXPECT_EQ(getError("missing"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(getError("a.txt"), std::errc::not_a_directory);
  EXPECT_EQ(getError(""), std::error_code());
}

TEST(ZELSysRootedDirectoryTest, WhatIsAskedOfOneThatIsNotOpenIsEmpty)
{
  const TestFolder folder;
  const ZELSysRootedDirectory missing = Open(folder.At("missing"));
  ZELSysRootedDirectory::Details details;
  EXPECT_FALSE(missing.OpenDirectory("d").IsOpen());
  EXPECT_FALSE(missing.OpenDescendant({}).IsOpen());
  EXPECT_FALSE(missing.OpenDescendant({"d"}).IsOpen());
  EXPECT_FALSE(missing.ForEachEntry([](std::string_view i_name, auto) { ADD_FAILURE() << i_name; }));
  EXPECT_FALSE(missing.GetDetails("d", details));
  EXPECT_TRUE(missing.GetStamp().IsSameContent({}));
  EXPECT_FALSE(missing.GetStamp().isSettled);
}

TEST(ZELSysRootedDirectoryTest, VisitsEveryEntryWithItsKindButTheDots)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  folder.Write(".hidden", "x");
  folder.Write("..two", "x");
  folder.MakeDirectory("d");
  const ZELSysRootedDirectory directory = Open(folder.At(""));
  const auto areAll = UnorderedElementsAre(Pair("a.txt", ZELSysRootedDirectory::File), Pair(".hidden", ZELSysRootedDirectory::File),
                                           Pair("..two", ZELSysRootedDirectory::File), Pair("d", ZELSysRootedDirectory::Directory));
  EXPECT_THAT(List(directory), areAll);
  EXPECT_THAT(List(directory), areAll) << "the second time";
  EXPECT_THAT(List(directory.OpenDirectory("d")), IsEmpty());
}

TEST(ZELSysRootedDirectoryTest, VisitsThousandsOfEntries)
{
  const TestFolder folder;
  for (int i = 0; i < 3000; ++i)
    folder.Write(std::to_string(i), "");
  EXPECT_EQ(List(Open(folder.At(""))).size(), 3000u);
}

TEST(ZELSysRootedDirectoryTest, ANameOfAnyScriptLeadsOneStepDown)
{
  const TestFolder folder;
  std::filesystem::create_directories(folder.At("") / std::filesystem::path(u"\u00e9\u4e2d\U0001F600") / "inside");
  const ZELSysRootedDirectory directory = Open(folder.At(""));
  const std::string name = List(directory).front().first;
  EXPECT_EQ(name, "\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80");
  EXPECT_THAT(List(directory.OpenDirectory(name)), UnorderedElementsAre(Pair("inside", ZELSysRootedDirectory::Directory)));
}

TEST(ZELSysRootedDirectoryTest, ADescendantIsOpenedStepByStep)
{
  const TestFolder folder;
  std::filesystem::create_directories(folder.At("d") / "e" / "f");
  const ZELSysRootedDirectory directory = Open(folder.At(""));
  EXPECT_THAT(List(directory.OpenDescendant({"d", "e"})), UnorderedElementsAre(Pair("f", ZELSysRootedDirectory::Directory)));
  EXPECT_FALSE(directory.OpenDescendant({"d", "missing", "f"}).IsOpen());
  EXPECT_FALSE(directory.OpenDescendant({"d", ".."}).IsOpen());
}

TEST(ZELSysRootedDirectoryTest, NoStepAtAllOpensTheDirectoryOnceMore)
{
  const TestFolder folder;
  folder.MakeDirectory("d");
  const ZELSysRootedDirectory again = Open(folder.At("")).OpenDescendant({});
  EXPECT_THAT(List(again), UnorderedElementsAre(Pair("d", ZELSysRootedDirectory::Directory)));
}

TEST(ZELSysRootedDirectoryTest, WhatIsNoNameOfAnEntryLeadsNowhere)
{
  const TestFolder folder;
  std::filesystem::create_directories(folder.At("d") / "e");
  const ZELSysRootedDirectory directory = Open(folder.At("d"));
  for (const std::string& name : notNames)
  {
    ZELSysRootedDirectory::Details details;
    EXPECT_FALSE(directory.OpenDirectory(name).IsOpen()) << name;
    EXPECT_FALSE(directory.GetDetails(name, details)) << name;
  }
}

TEST(ZELSysRootedDirectoryTest, AFileIsNoStepDown)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  EXPECT_FALSE(Open(folder.At("")).OpenDirectory("a.txt").IsOpen());
}

TEST(ZELSysRootedDirectoryTest, DetailsAreTheSizeAndTheTimeOfTheEntry)
{
  const TestFolder folder;
  folder.Write("a.txt", "12345");
  folder.MakeDirectory("d");
  constexpr std::uint64_t year2026 = 134142048000000000;
  ASSERT_TRUE(ZELSysFile(folder.Path("a.txt").c_str(), ZELSysFile::Write).SetLastWriteTime(year2026 + 1234567));
  const ZELSysRootedDirectory directory = Open(folder.At(""));
  EXPECT_EQ(DetailsOf(directory, "a.txt").size, 5u);
  EXPECT_EQ(DetailsOf(directory, "a.txt").lastWriteTime, year2026 + 1234567);
  EXPECT_EQ(DetailsOf(directory, "d").size, 0u);
  EXPECT_GT(DetailsOf(directory, "d").lastWriteTime, year2026 - 10000000000000000);
}

TEST(ZELSysRootedDirectoryTest, DetailsTellASizeOverFourGibibytes)
{
  const TestFolder folder;
  folder.Write("big", "");
  std::filesystem::resize_file(folder.At("big"), (std::uintmax_t{5} << 32) + 17);
  EXPECT_EQ(DetailsOf(Open(folder.At("")), "big").size, (std::uint64_t{5} << 32) + 17);
}

TEST(ZELSysRootedDirectoryTest, AStampTellsWhichDirectoryItIs)
{
  const TestFolder folder;
  folder.MakeDirectory("d");
  folder.MakeDirectory("e");
  const ZELSysRootedDirectory directory = Open(folder.At(""));
  EXPECT_TRUE(directory.OpenDirectory("d").GetStamp().IsSameDirectory(Open(folder.At("d")).GetStamp()));
  EXPECT_FALSE(directory.OpenDirectory("d").GetStamp().IsSameDirectory(directory.OpenDirectory("e").GetStamp()));
}

TEST(ZELSysRootedDirectoryTest, AStampChangesWithTheEntries)
{
  const TestFolder folder;
  const ZELSysRootedDirectory directory = Open(folder.At(""));
  ASSERT_TRUE(Settles(directory));
  const ZELSysRootedDirectory::Stamp before = directory.GetStamp();
  EXPECT_TRUE(before.IsSameContent(directory.GetStamp()));
  folder.Write("a.txt", "x");
  EXPECT_FALSE(before.IsSameContent(directory.GetStamp()));
  EXPECT_TRUE(before.IsSameDirectory(directory.GetStamp()));
}

TEST(ZELSysRootedDirectoryTest, ADirectoryThatHasJustChangedIsNotSettledYet)
{
  const TestFolder folder;
  const ZELSysRootedDirectory directory = Open(folder.At(""));
  ASSERT_TRUE(Settles(directory));
  // A machine that is busy may take the moment between the two.
  int changes = 0;
  do
    folder.Write(std::to_string(changes), "x");
  while (directory.GetStamp().isSettled && ++changes < 100);
  EXPECT_LT(changes, 100);
  EXPECT_TRUE(Settles(directory));
}

TEST(ZELSysRootedDirectoryTest, AMoveHandsTheDirectoryOver)
{
  const TestFolder folder;
  folder.MakeDirectory("d");
  ZELSysRootedDirectory first = Open(folder.At(""));
  ZELSysRootedDirectory second = std::move(first);
  EXPECT_FALSE(first.IsOpen()); // NOLINT(bugprone-use-after-move): that it is not open is what is told of it
  first = std::move(second);
  EXPECT_THAT(List(first), UnorderedElementsAre(Pair("d", ZELSysRootedDirectory::Directory)));
}
