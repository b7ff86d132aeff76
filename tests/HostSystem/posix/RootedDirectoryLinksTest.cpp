// What a rooted directory does with links, with a tree that changes under it, and with names of bytes: Wine makes no
// symbolic links, Windows keeps an open directory from being moved and has no names of bytes.
#include "../TestFolder.h"
#include "ZELSysRootedDirectory.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace
{
ZELSysRootedDirectory Open(const std::filesystem::path& i_path)
{
  return ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(i_path.string()));
}

ZELSysRootedDirectory::Kind KindOf(const ZELSysRootedDirectory& i_directory, std::string_view i_name)
{
  auto kind = ZELSysRootedDirectory::Directory;
  bool isThere = false;
  i_directory.ForEachEntry(
      [&](std::string_view i_visited, ZELSysRootedDirectory::Kind i_kind)
      {
        kind = i_visited == i_name ? i_kind : kind;
        isThere = isThere || i_visited == i_name;
      });
  EXPECT_TRUE(isThere) << i_name;
  return kind;
}
} // namespace

TEST(RootedDirectoryLinksTest, ALinkIsListedAsOneAndNeverFollowed)
{
  const TestFolder folder;
  std::filesystem::create_directories(folder.At("d") / "e");
  std::filesystem::create_symlink("d", folder.At("link"));
  const ZELSysRootedDirectory directory = Open(folder.At(""));
  ZELSysRootedDirectory::Details details;
  EXPECT_EQ(KindOf(directory, "link"), ZELSysRootedDirectory::Link);
  EXPECT_FALSE(directory.OpenDirectory("link").IsOpen());
  EXPECT_FALSE(directory.OpenDescendant({"link", "e"}).IsOpen());
  EXPECT_TRUE(directory.GetDetails("link", details));
  EXPECT_EQ(details.size, 0u);
}

TEST(RootedDirectoryLinksTest, ALinkThatLeadsNowhereHasDetailsOfItsOwn)
{
  const TestFolder folder;
  std::filesystem::create_symlink("missing", folder.At("link"));
  ZELSysRootedDirectory::Details details;
  EXPECT_TRUE(Open(folder.At("")).GetDetails("link", details));
  EXPECT_GT(details.lastWriteTime, 0u);
}

TEST(RootedDirectoryLinksTest, TheRootItselfMayBeNamedByALink)
{
  const TestFolder folder;
  std::filesystem::create_directories(folder.At("d") / "e");
  std::filesystem::create_symlink("d", folder.At("link"));
  EXPECT_TRUE(Open(folder.At("link")).OpenDirectory("e").IsOpen());
}

TEST(RootedDirectoryLinksTest, ADirectoryThatWasMovedAwayIsStillTheSame)
{
  const TestFolder folder;
  std::filesystem::create_directories(folder.At("d") / "e");
  const ZELSysRootedDirectory directory = Open(folder.At("d"));
  std::filesystem::rename(folder.At("d"), folder.At("elsewhere"));
  std::filesystem::create_symlink("/", folder.At("d"));
  EXPECT_TRUE(directory.OpenDirectory("e").IsOpen());
  EXPECT_FALSE(directory.OpenDirectory("etc").IsOpen());
}

TEST(RootedDirectoryLinksTest, APipeIsAnotherKindAndNotWaitedFor)
{
  const TestFolder folder;
  ASSERT_EQ(mkfifo(folder.At("pipe").c_str(), 0600), 0);
  const ZELSysRootedDirectory directory = Open(folder.At(""));
  EXPECT_EQ(KindOf(directory, "pipe"), ZELSysRootedDirectory::Other);
  EXPECT_FALSE(directory.OpenDirectory("pipe").IsOpen());
}

TEST(RootedDirectoryLinksTest, ANameThatIsNotTextLeadsToItsOwnEntry)
{
  const TestFolder folder;
  std::filesystem::create_directories(folder.At("bad\xFF\xC3name") / "inside");
  EXPECT_TRUE(Open(folder.At("")).OpenDescendant({"bad\xFF\xC3name", "inside"}).IsOpen());
}

TEST(RootedDirectoryLinksTest, ABackslashOrAColonIsPartOfAName)
{
  const TestFolder folder;
  std::filesystem::create_directories(folder.At("a\\b") / "c:");
  EXPECT_TRUE(Open(folder.At("")).OpenDescendant({"a\\b", "c:"}).IsOpen());
}
