#include "ZELSysFiles.h"

#include "TestFolder.h"
#include "ZELSysFile.h"

#include <gmock/gmock.h>

TEST(ZELSysFilesTest, FileHasNoDirectoryBitAndADirectoryHasIt)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  folder.MakeDirectory("d");
  EXPECT_EQ(ZELSysGetFileAttributes(folder.Path("a.txt").c_str()) & ZELSysFileDirectory, 0);
  EXPECT_EQ(ZELSysGetFileAttributes(folder.Path("d").c_str()) & ZELSysFileDirectory, ZELSysFileDirectory);
}

TEST(ZELSysFilesTest, FileThatNobodyMayWriteIsReadOnly)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  EXPECT_EQ(ZELSysGetFileAttributes(folder.Path("a.txt").c_str()) & ZELSysFileReadOnly, 0);
  const auto write = std::filesystem::perms::owner_write | std::filesystem::perms::group_write | std::filesystem::perms::others_write;
  std::filesystem::permissions(folder.At("a.txt"), write, std::filesystem::perm_options::remove);
  EXPECT_EQ(ZELSysGetFileAttributes(folder.Path("a.txt").c_str()) & ZELSysFileReadOnly, ZELSysFileReadOnly);
  std::filesystem::permissions(folder.At("a.txt"), write, std::filesystem::perm_options::add);
}

TEST(ZELSysFilesTest, MissingNullAndEmptyPathsHaveNoAttributes)
{
  const TestFolder folder;
  EXPECT_EQ(ZELSysGetFileAttributes(folder.Path("missing").c_str()), -1);
  EXPECT_EQ(ZELSysGetFileAttributes(nullptr), -1);
  EXPECT_EQ(ZELSysGetFileAttributes(""), -1);
  EXPECT_EQ(ZELSysGetFileAttributesWide(ZELUnicodeString()), -1);
}

TEST(ZELSysFilesTest, PathLongerThanTheSystemTakesHasNoAttributes)
{
  std::string path;
  while (path.size() < 10000)
    path += "\\directory";
  EXPECT_EQ(ZELSysGetFileAttributes(path.c_str()), -1);
  EXPECT_EQ(ZELSysGetFileAttributesWide(ZELUnicodeString(path.c_str())), -1);
}

TEST(ZELSysFilesTest, WideNameIsFoundWithCharactersOfEveryScript)
{
  const TestFolder folder;
  const std::u16string name = u"\u00e9\u4e2d\U0001F600.txt";
  std::ofstream(folder.At("") / std::filesystem::path(name)) << "x";
  const ZELUnicodeString path = ZELUnicodeString(folder.Path("").c_str()) + ZELUnicodeString::FromUTF16(name);
  EXPECT_NE(ZELSysGetFileAttributesWide(path), -1);
}

TEST(ZELSysFilesTest, MakesOneLevelOfDirectoryOnce)
{
  const TestFolder folder;
  EXPECT_EQ(ZELSysMakeDirectory(folder.Path("d").c_str()), 0);
  EXPECT_TRUE(std::filesystem::is_directory(folder.At("d")));
  EXPECT_EQ(ZELSysMakeDirectory(folder.Path("d").c_str()), -1);
  EXPECT_EQ(ZELSysMakeDirectory(folder.Path("e\\f").c_str()), -1);
  EXPECT_EQ(ZELSysMakeDirectory(nullptr), -1);
}

TEST(ZELSysFilesTest, DeletesFilesAndNoDirectories)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  folder.MakeDirectory("d");
  EXPECT_TRUE(ZELSysDeleteFile(folder.Path("a.txt").c_str()));
  EXPECT_FALSE(std::filesystem::exists(folder.At("a.txt")));
  EXPECT_FALSE(ZELSysDeleteFile(folder.Path("a.txt").c_str()));
  EXPECT_FALSE(ZELSysDeleteFile(folder.Path("d").c_str()));
  EXPECT_FALSE(ZELSysDeleteFile(nullptr));
}

TEST(ZELSysFilesTest, CurrentDirectoryIsTheOneChangedTo)
{
  const TestFolder folder;
  folder.Write("here", "x");
  char before[2048], now[2048];
  ASSERT_TRUE(ZELSysGetCurrentDirectory(before, sizeof(before)));
  EXPECT_EQ(ZELSysChangeDirectory(folder.Path().c_str()), 0);
  EXPECT_TRUE(ZELSysGetCurrentDirectory(now, sizeof(now)));
  EXPECT_NE(ZELSysGetFileAttributes("here"), -1);
  EXPECT_EQ(ZELSysChangeDirectory(folder.Path("missing").c_str()), -1);
  EXPECT_EQ(ZELSysChangeDirectory(before), 0);
  EXPECT_EQ(std::string(now).find('/'), std::string::npos);
  EXPECT_THAT(now, testing::HasSubstr(folder.At("").parent_path().filename().string()));
}

TEST(ZELSysFilesTest, CurrentDirectoryNeedsRoomForAllOfIt)
{
  char buffer[4096];
  ASSERT_TRUE(ZELSysGetCurrentDirectory(buffer, sizeof(buffer)));
  const int length = static_cast<int>(std::string(buffer).size());
  EXPECT_TRUE(ZELSysGetCurrentDirectory(buffer, length + 1));
  EXPECT_FALSE(ZELSysGetCurrentDirectory(buffer, length));
  EXPECT_FALSE(ZELSysGetCurrentDirectory(nullptr, 100));
  EXPECT_FALSE(ZELSysGetCurrentDirectory(buffer, 0));
}

TEST(ZELSysFilesTest, TemporaryFilesAreNewAndEmptyAndNamedAfterThePrefix)
{
  const ZELUnicodeString directory = ZELSysGetTemporaryDirectory();
  ASSERT_FALSE(directory.IsEmpty());
  const ZELUnicodeString first = ZELSysMakeTemporaryFile(directory, "ZELQM_12_");
  const ZELUnicodeString second = ZELSysMakeTemporaryFile(directory, "ZELQM_12_");
  EXPECT_NE(first, second);
  for (const ZELUnicodeString& name : {first, second})
  {
    EXPECT_EQ(ZELSysFile(name.GetNarrow(), ZELSysFile::Read).GetSizeLow(), 0u);
    EXPECT_THAT(std::string(name.GetUTF8()), testing::HasSubstr("\\ZEL"));
    EXPECT_TRUE(ZELSysDeleteFile(name.GetNarrow()));
  }
}

TEST(ZELSysFilesTest, NoTemporaryFileInAMissingDirectory)
{
  const TestFolder folder;
  EXPECT_TRUE(ZELSysMakeTemporaryFile(ZELUnicodeString(folder.Path("missing").c_str()), "ZEL").IsEmpty());
}
