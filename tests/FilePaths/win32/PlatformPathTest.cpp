// What holds on Windows only: drives, wide names, names that the system shortens.
#include "../PathTexts.h"

#include <gtest/gtest.h>
#include <windows.h>

typedef std::vector<std::string> Texts;

static Texts List(const ZELSYPFilePath& i_pattern)
{
  ZELListValZELSYPFilePath list;
  i_pattern.ReadDirectory(list);
  return TextsOf(list);
}

// Japanese and a tree, which the ANSI code page of a western system lacks.
static const char* const Wide = "\xE6\x97\xA5\xE6\x9C\xAC\xF0\x9F\x8C\xB3.txt";

TEST(PlatformPath, FindsAFileByItsWideNameWhereTheNarrowOneFails)
{
  TemporaryTree tree;
  tree.AddFile(Wide);
  ASSERT_EQ(GetFileAttributesA(In(tree, Wide)), INVALID_FILE_ATTRIBUTES);
  EXPECT_EQ(In(tree, Wide).IsFile(), 1);
}

TEST(PlatformPath, SearchesAFileByItsWideNameWhereTheNarrowOneFails)
{
  TemporaryTree tree;
  tree.AddFile(Wide);
  const ZELSYPFilePath found = ZELSYPFilePath::Search(ZELSYPFilePath(ZELUnicodeString::FromUTF8(Wide)), tree.Path().c_str());
  EXPECT_EQ(found.IsEqual(In(tree, Wide)), 1);
}

TEST(PlatformPath, FindsADirectoryByItsNarrowNameOnly)
{
  TemporaryTree tree;
  tree.AddDirectory(Wide);
  EXPECT_EQ(In(tree, Wide).IsFile(), 0);
  EXPECT_EQ(In(tree, Wide).IsDirectory(), 0);
  EXPECT_EQ(In(tree, Wide).IsReadOnly(), 0);
  EXPECT_EQ(List(In(tree, "*")).size(), 1u);
  EXPECT_EQ(List(In(tree, Wide)).size(), 0u);
}

TEST(PlatformPath, TakesTrailingDotsAndSpacesOffAsTheSystemDoes)
{
  TemporaryTree tree;
  tree.AddFile("x");
  for (const char* name : {"x.", "x..", "x "})
    EXPECT_EQ(In(tree, name).IsFile(), 1) << name;
  EXPECT_EQ(List(In(tree, "*")), Texts{tree.Path("x")});
}

TEST(PlatformPath, ListsADirectoryByTheNameThatTheSystemDoesNotRewrite)
{
  TemporaryTree tree;
  tree.AddFile("f");
  const std::string directory = "\\\\?\\" + tree.Path();
  EXPECT_EQ(List((directory + "\\*").c_str()), Texts{directory + "\\f"});
}

TEST(PlatformPath, StartsALeadingBackslashAtTheWorkingDirectory)
{
  TemporaryTree tree;
  tree.AddFile("f");
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  EXPECT_EQ(List("\\*"), Texts{tree.Path("f")});
}

TEST(PlatformPath, ResolvesABareNameAgainstTheDrive)
{
  TemporaryTree tree;
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  EXPECT_EQ(TextOf(ZELSYPFilePath("f").GetFullPath()), tree.Path().substr(0, 2) + "\\f");
}

// Its directory is the drive, which without a backslash is the working directory there.
TEST(PlatformPath, ResolvesAFileAtTheRootOfADrive)
{
  TemporaryTree tree;
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  const std::string file = tree.Path().substr(0, 2) + "\\f";
  EXPECT_EQ(TextOf(ZELSYPFilePath(file.c_str()).GetFullPath()), file);
}

TEST(PlatformPath, MakesATemporaryFileOfTheFirstThreeLettersOfItsPrefix)
{
  ZELSYPFilePath path = ZELSYPFilePath::GetTemporaryFileName();
  EXPECT_EQ(TextOf(path.basename()).substr(0, 3), "ZEL");
  EXPECT_EQ(TextOf(path.GetExtension().GetText()), "tmp");
  EXPECT_EQ(path.Delete(), 0);
}

TEST(PlatformPath, PutsBackAWorkingDirectoryThatTheNarrowViewLacks)
{
  TemporaryTree tree;
  const std::string directory = "\xE6\x97\xA5\xE6\x9C\xAC";
  std::filesystem::current_path(tree.AddDirectory(directory));
  List(In(tree, "*"));
  EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), tree.SystemPath(directory)));
}

// With its end, the name fills the room of 1,024 characters.
TEST(PlatformPath, TriesAWideNameOfUpTo1023Characters)
{
  TemporaryTree tree;
  std::wstring folder = L"\\\\?\\" + tree.SystemPath().make_preferred().wstring();
  std::vector<std::wstring> folders;
  while (folder.size() < 820)
  {
    folders.push_back(folder += L'\\' + std::wstring(100, L'd'));
    ASSERT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
  }
  for (const std::size_t size : {1023u, 1024u})
  {
    const std::wstring name = folder + L"\\\x65E5" + std::wstring(size - folder.size() - 2, L'f');
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << size;
    CloseHandle(file);
    EXPECT_EQ(ZELSYPFilePath(ZELUnicodeString::FromUTF8(std::filesystem::path(name).u8string())).IsFile(), size == 1023) << size;
    EXPECT_TRUE(DeleteFileW(name.c_str())) << size;
  }
  for (; !folders.empty(); folders.pop_back())
    EXPECT_TRUE(RemoveDirectoryW(folders.back().c_str()));
}

TEST(PlatformPath, TakesAServerWithoutAShareForANameInTheWorkingDirectory)
{
  TemporaryTree tree;
  tree.AddDirectory("server");
  ASSERT_EQ(ZELSYPFilePath::SetWorkDir(In(tree)), 0);
  EXPECT_EQ(List("\\\\server"), Texts{TextOf(ZELSYPFilePath::GetWorkDir()) + "\\server"});
  EXPECT_EQ(List("\\\\no such server"), Texts());
}

static HANDLE Open(const std::filesystem::path& i_file)
{
  return CreateFileW(i_file.c_str(), FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
}

// The time of creation is not looked at: Wine has none of its own and answers what it makes of the others.
TEST(PlatformPath, SetTimeLeavesTheTimeOfTheLastAccessAlone)
{
  TemporaryTree tree;
  tree.AddFile("from");
  const auto to = tree.AddFile("to");
  const FILETIME times[] = {{1000, 29000000}, {2000, 29100000}, {3000, 29200000}};
  HANDLE file = Open(to);
  ASSERT_NE(SetFileTime(file, &times[0], &times[1], &times[2]), 0);
  FILETIME before[3], after[3];
  ASSERT_NE(GetFileTime(file, &before[0], &before[1], &before[2]), 0);
  CloseHandle(file);
  In(tree, "to").SetTime(In(tree, "from"));
  file = Open(to);
  ASSERT_NE(GetFileTime(file, &after[0], &after[1], &after[2]), 0);
  CloseHandle(file);
  EXPECT_EQ(CompareFileTime(&before[1], &after[1]), 0);
  EXPECT_NE(CompareFileTime(&before[2], &after[2]), 0);
}
