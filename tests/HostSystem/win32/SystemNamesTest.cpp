// What holds on Windows alone: each drive has a root of its own, a name behind \\?\ goes to the file system as it is written.
#include "../TestFolder.h"
#include "ZELSysDirectory.h"
#include "ZELSysFiles.h"

#include <gmock/gmock.h>

TEST(SystemNamesTest, DirectoryIsListedByTheNameThatTheSystemDoesNotRewrite)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  ZELSysDirectory entries(ZELUnicodeString(("\\\\?\\" + folder.Path()).c_str()));
  ZELUnicodeString name;
  ASSERT_TRUE(entries.Next(name));
  EXPECT_EQ(name.GetUTF8(), "a.txt");
  EXPECT_FALSE(entries.Next(name));
}

TEST(SystemNamesTest, EachDriveHasARootOfItsOwn)
{
  EXPECT_FALSE(ZELSysHasOneRoot());
}
