// Names as Windows has them: Wine makes no symbolic links, and no name is anything but UTF-16.
#include "DirectoryView.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>

TEST(OPXExplorerLinksTest, ABackslashOrAColonIsNoPartOfAName)
{
  TemporaryTree tree;
  tree.AddFile("a\\b\\file");
  const DirectoryView view(tree.SystemPath());
  EXPECT_TRUE(view.IsFound({"a", "b"}));
  EXPECT_FALSE(view.IsFound({"a\\b"}));
  EXPECT_FALSE(view.IsFound({"a:"}));
  EXPECT_FALSE(view.IsFound({"a:b"}));
}
