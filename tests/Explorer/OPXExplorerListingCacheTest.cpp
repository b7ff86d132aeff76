#include "OPXExplorerListingCache.h"

#include "TemporaryTree.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace
{
ZELSysRootedDirectory Open(const std::filesystem::path& i_path)
{
  return ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(i_path.u8string()));
}

void WaitUntilSettled(const ZELSysRootedDirectory& i_directory)
{
  for (int i = 0; i < 500 && !i_directory.GetStamp().isSettled; ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  ASSERT_TRUE(i_directory.GetStamp().isSettled);
}
} // namespace

TEST(OPXExplorerListingCacheTest, AnUnchangedDirectoryIsNotListedTwice)
{
  TemporaryTree tree;
  tree.AddFile("file");
  OPXExplorerListingCache cache;
  WaitUntilSettled(Open(tree.SystemPath()));
  const auto pListing = cache.GetListing(Open(tree.SystemPath()));
  EXPECT_EQ(pListing->GetCount(), 1u);
  EXPECT_EQ(cache.GetListing(Open(tree.SystemPath())), pListing);
}

TEST(OPXExplorerListingCacheTest, AChangedDirectoryIsListedAgain)
{
  TemporaryTree tree;
  OPXExplorerListingCache cache;
  WaitUntilSettled(Open(tree.SystemPath()));
  EXPECT_EQ(cache.GetListing(Open(tree.SystemPath()))->GetCount(), 0u);
  tree.AddFile("file");
  EXPECT_EQ(cache.GetListing(Open(tree.SystemPath()))->GetCount(), 1u);
}

TEST(OPXExplorerListingCacheTest, ADirectoryThatHasJustChangedIsListedAgain)
{
  TemporaryTree tree;
  OPXExplorerListingCache cache;
  const ZELSysRootedDirectory directory = Open(tree.SystemPath());
  const auto isListedAgain = [&](int i_number)
  {
    tree.AddFile("file" + std::to_string(i_number));
    const auto pListing = cache.GetListing(directory);
    return cache.GetListing(directory) != pListing;
  };
  // A machine that is busy may take the moment between the change and the listing.
  int number = 0;
  while (!isListedAgain(number) && number < 100)
    ++number;
  EXPECT_LT(number, 100);
}

TEST(OPXExplorerListingCacheTest, TheDirectoryAskedForLongestAgoIsForgottenFirst)
{
  TemporaryTree tree;
  for (int i = 0; i < 17; ++i)
    tree.AddDirectory(std::to_string(i));
  const auto open = [&tree](int i_number) { return Open(tree.SystemPath(std::to_string(i_number))); };
  WaitUntilSettled(open(16));
  OPXExplorerListingCache cache;
  const auto pFirst = cache.GetListing(open(0));
  const auto pSecond = cache.GetListing(open(1));
  for (int i = 2; i < 16; ++i)
    cache.GetListing(open(i));
  EXPECT_EQ(cache.GetListing(open(0)), pFirst);
  cache.GetListing(open(16));
  EXPECT_EQ(cache.GetListing(open(0)), pFirst);
  EXPECT_NE(cache.GetListing(open(1)), pSecond);
}
