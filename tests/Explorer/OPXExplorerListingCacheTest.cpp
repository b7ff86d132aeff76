#include "OPXExplorerListingCache.h"

#include "SettledDirectory.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>

namespace
{
// "a" is smaller than "b".
struct TwoFiles : TemporaryTree
{
  TwoFiles()
  {
    AddFile("a", "1");
    AddFile("b", "22");
    WaitUntilSettled(SystemPath());
  }
};

std::string GetSmallest(OPXExplorerListingCache& io_cache, const ZELSysRootedDirectory& i_directory)
{
  const auto pListing = io_cache.GetListing(i_directory);
  const ZELSYPDataSourceParameters::SortAttributeModel bySize(nlohmann::json{{"dataIndex", "size"}, {"sort", "asc"}});
  return std::string(pListing->GetEntry(pListing->GetOrder({bySize}, i_directory, true)[0]).name);
}
} // namespace

TEST(OPXExplorerListingCacheTest, AnUnchangedDirectoryIsNotListedTwice)
{
  TemporaryTree tree;
  tree.AddFile("file");
  OPXExplorerListingCache cache;
  WaitUntilSettled(tree.SystemPath());
  const auto pListing = cache.GetListing(Open(tree.SystemPath()));
  EXPECT_EQ(pListing->GetCount(), 1u);
  EXPECT_EQ(cache.GetListing(Open(tree.SystemPath())), pListing);
}

TEST(OPXExplorerListingCacheTest, AChangedDirectoryIsListedAgain)
{
  TemporaryTree tree;
  OPXExplorerListingCache cache;
  WaitUntilSettled(tree.SystemPath());
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
  WaitUntilSettled(tree.SystemPath("16"));
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

TEST(OPXExplorerListingCacheTest, WithinAMessageADirectoryIsListedOnce)
{
  TemporaryTree tree;
  const ZELSysRootedDirectory directory = Open(tree.SystemPath());
  OPXExplorerListingCache cache;
  for (std::size_t count = 0; count < 3; ++count)
  {
    cache.StartMessage();
    EXPECT_EQ(cache.GetListing(directory)->GetCount(), count);
    tree.AddFile(std::to_string(count));
    EXPECT_EQ(cache.GetListing(directory)->GetCount(), count);
  }
}

TEST(OPXExplorerListingCacheTest, WithinAMessageSizesAreAskedOnce)
{
  TwoFiles tree;
  const ZELSysRootedDirectory directory = Open(tree.SystemPath());
  OPXExplorerListingCache cache;
  cache.StartMessage();
  EXPECT_EQ(GetSmallest(cache, directory), "a");
  tree.AddFile("a", "333");
  EXPECT_EQ(GetSmallest(cache, directory), "a");
  cache.StartMessage();
  EXPECT_EQ(GetSmallest(cache, directory), "b");
}
