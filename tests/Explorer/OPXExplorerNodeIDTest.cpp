#include "OPXExplorerNodeID.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(OPXExplorerNodeIDTest, TheIdsOfAPathArePartedBySlashes)
{
  EXPECT_EQ(OPXExplorerNodeID::Make({"music", "live"}), "music/live");
  EXPECT_THAT(OPXExplorerNodeID::GetEntryIDs("music/live"), ElementsAre("music", "live"));
}

TEST(OPXExplorerNodeIDTest, ANodeOfTheTopLevelIsNamedByItsIdAlone)
{
  EXPECT_EQ(OPXExplorerNodeID::Make({"music"}), "music");
  EXPECT_THAT(OPXExplorerNodeID::GetEntryIDs("music"), ElementsAre("music"));
}

TEST(OPXExplorerNodeIDTest, IdsThatBeginWithASlashAreToldApart)
{
  for (const std::vector<std::string>& path :
       {std::vector<std::string>{"/caf%E9"}, {"music", "/caf%E9"}, {"/caf%E9", "music"}, {"/a%E9", "/b%E9"}})
    EXPECT_EQ(OPXExplorerNodeID::GetEntryIDs(OPXExplorerNodeID::Make(path)), path);
}

TEST(OPXExplorerNodeIDTest, AnyTextIsReadAsIdsThatNameNothing)
{
  EXPECT_THAT(OPXExplorerNodeID::GetEntryIDs(""), ElementsAre(""));
  EXPECT_THAT(OPXExplorerNodeID::GetEntryIDs("/"), ElementsAre("/"));
  EXPECT_THAT(OPXExplorerNodeID::GetEntryIDs("a/"), ElementsAre("a", ""));
  EXPECT_THAT(OPXExplorerNodeID::GetEntryIDs("a///"), ElementsAre("a", "/", ""));
}
