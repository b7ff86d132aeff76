#include "OPXExplorerEntryID.h"

#include <gtest/gtest.h>

TEST(OPXExplorerEntryIDTest, AValidNameIsItsOwnId)
{
  for (const char* const name : {"a", "caf\xC3\xA9", "100%", "a b", "%2F"})
  {
    EXPECT_EQ(OPXExplorerEntryID::Make(name), name);
    EXPECT_EQ(OPXExplorerEntryID::GetName(name), name);
  }
}

TEST(OPXExplorerEntryIDTest, EveryOtherNameHasAnIdThatLeadsBack)
{
  for (int byte = 0x80; byte < 0x100; ++byte)
  {
    const std::string name = "%a" + std::string(1, static_cast<char>(byte));
    const std::string id = OPXExplorerEntryID::Make(name);
    EXPECT_EQ(id[0], '/');
    EXPECT_EQ(OPXExplorerEntryID::GetName(id), name);
  }
}

TEST(OPXExplorerEntryIDTest, WhatNoNameHasAsItsIdStandsForNothing)
{
  for (const char* const id : {"/", "/a", "/..", "/%41", "/%e9", "/%", "/%E", "/%ZZ", "/\xE9", "/%E9%2F%"})
    EXPECT_EQ(OPXExplorerEntryID::GetName(id), "") << id;
}

TEST(OPXExplorerEntryIDTest, APersonSeesReplacementCharacters)
{
  EXPECT_EQ(OPXExplorerEntryID::MakeDisplayName("caf\xE9\"\\"), "caf\xEF\xBF\xBD\"\\");
}
