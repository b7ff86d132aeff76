// Links and names that are not UTF-8: Wine makes no symbolic links, and Windows has no names of bytes.
#include "DirectoryView.h"
#include "TemporaryTree.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

using nlohmann::json;
using testing::ElementsAre;

TEST(OPXExplorerLinksTest, ALinkIsListedAsALinkAndNeverFollowed)
{
  TemporaryTree tree;
  tree.AddFile("root\\inside\\file");
  tree.AddFile("secret\\file", "secret");
  std::filesystem::create_symlink("../secret", tree.SystemPath("root\\out"));
  std::filesystem::create_symlink("inside", tree.SystemPath("root\\in"));
  std::filesystem::create_symlink("../secret/file", tree.SystemPath("root\\text"));
  const DirectoryView view(tree.SystemPath("root"));
  EXPECT_THAT(view.Names({}), ElementsAre("inside", "in", "out", "text"));
  for (std::size_t i : {1u, 2u, 3u})
  {
    const json row = view.Rows({})[i];
    EXPECT_EQ(row["kind"], "link");
    EXPECT_EQ(row["wux_group"], false);
    EXPECT_EQ(row["size"], 0);
    EXPECT_FALSE(view.IsFound({row["id"]}));
  }
  EXPECT_FALSE(view.IsFound({"out", "file"}));
  EXPECT_FALSE(view.IsFound({"inside", "file"}));
}

TEST(OPXExplorerLinksTest, ADirectoryExchangedForALinkIsNotFollowed)
{
  TemporaryTree tree;
  tree.AddFile("root\\inside\\file");
  tree.AddFile("secret\\file");
  const DirectoryView view(tree.SystemPath("root"));
  EXPECT_TRUE(view.IsFound({"inside"}));
  std::filesystem::remove_all(tree.SystemPath("root\\inside"));
  std::filesystem::create_symlink("../secret", tree.SystemPath("root\\inside"));
  EXPECT_FALSE(view.IsFound({"inside"}));
}

TEST(OPXExplorerLinksTest, ANameThatIsNotUTF8HasAnIdOfItsOwnThatLeadsToIt)
{
  TemporaryTree tree;
  tree.AddFile("caf\xE9%\\file");
  tree.AddFile("caf\xEF\xBF\xBD%");
  const DirectoryView view(tree.SystemPath());
  const json rows = view.Rows({});
  EXPECT_EQ(rows[0]["id"], "/caf%E9%25");
  EXPECT_EQ(rows[0]["name"], "caf\xEF\xBF\xBD%");
  EXPECT_EQ(rows[1]["id"], "caf\xEF\xBF\xBD%");
  EXPECT_THAT(view.Names({"/caf%E9%25"}), ElementsAre("file"));
  EXPECT_FALSE(view.IsFound({"/caf%e9%25"}));
  EXPECT_FALSE(view.IsFound({"caf\xEF\xBF\xBD%"}));
}

TEST(OPXExplorerLinksTest, ABackslashOrAColonIsPartOfAName)
{
  TemporaryTree tree;
  std::filesystem::create_directories(tree.SystemPath() / "a\\b" / "c:");
  const DirectoryView view(tree.SystemPath());
  EXPECT_THAT(view.Names({"a\\b"}), ElementsAre("c:"));
  EXPECT_TRUE(view.IsFound({"a\\b", "c:"}));
}

TEST(OPXExplorerLinksTest, APipeIsAnotherKindAndBlocksNothing)
{
  TemporaryTree tree;
  ASSERT_EQ(mkfifo(tree.SystemPath("pipe").c_str(), 0600), 0);
  const DirectoryView view(tree.SystemPath());
  EXPECT_EQ(view.Rows({})[0]["kind"], "other");
  EXPECT_FALSE(view.IsFound({"pipe"}));
}
