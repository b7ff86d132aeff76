// What holds on Linux alone: its names are bytes, its file tree has one root, its debugger is another process.
#include "../TestFolder.h"
#include "ChildProcess.h"
#include "ChildProgram.h"
#include "ZELProcess.h"
#include "ZELSysDirectory.h"
#include "ZELSysFile.h"
#include "ZELSysFiles.h"

#include <csignal>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

OPX_CHILD_ENTRY(PrintTemporaryDirectory)
{
  std::printf("%s", ZELSysGetTemporaryDirectory().GetNarrow());
  return 0;
}

OPX_CHILD_ENTRY(TerminateWithAHandler)
{
  std::signal(SIGABRT, [](int) { _exit(0); });
  ZELTerminate();
}

TEST(SystemNamesTest, DrivePrefixNamesTheRoot)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  EXPECT_NE(ZELSysGetFileAttributes(("C:" + folder.Path("a.txt")).c_str()), -1);
  EXPECT_NE(ZELSysGetFileAttributes(("z:" + folder.Path("a.txt").substr(1)).c_str()), -1);
  EXPECT_EQ(ZELSysGetFileAttributes("C:"), ZELSysGetFileAttributes("\\"));
}

TEST(SystemNamesTest, AllPathsHangFromOneRoot)
{
  EXPECT_TRUE(ZELSysHasOneRoot());
}

TEST(SystemNamesTest, NetworkNameStartsAtTheRoot)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  EXPECT_NE(ZELSysGetFileAttributes(("\\" + folder.Path("a.txt")).c_str()), -1);
}

TEST(SystemNamesTest, EmptyNameAndEveryDriveListTheRoot)
{
  for (const char* root : {"", "C:", "z:"})
  {
    std::vector<std::string> names;
    ZELSysDirectory entries{ZELUnicodeString(root)};
    for (ZELUnicodeString name; entries.Next(name);)
      names.emplace_back(name.GetUTF8());
    EXPECT_THAT(names, testing::IsSupersetOf({"etc", "tmp", "usr"})) << root;
  }
}

TEST(SystemNamesTest, OneLetterAndAColonIsADriveOnlyForALetter)
{
  EXPECT_EQ(ZELSysGetFileAttributes("1:\\"), -1);
}

TEST(SystemNamesTest, NameThatIsNotTextIsListedTestedOpenedAndDeleted)
{
  const TestFolder folder;
  folder.Write("bad\xFF\xC3name", "123");
  ZELSysDirectory entries(ZELUnicodeString(folder.Path().c_str()));
  ZELUnicodeString name;
  ASSERT_TRUE(entries.Next(name));
  const ZELUnicodeString path = ZELUnicodeString(folder.Path("").c_str()) + name;
  EXPECT_EQ(name.GetUTF8(), "bad\xFF\xC3name");
  EXPECT_NE(ZELSysGetFileAttributesWide(path), -1);
  EXPECT_EQ(ZELSysFile(path.GetNarrow(), ZELSysFile::Read).GetSizeLow(), 3u);
  EXPECT_TRUE(ZELSysDeleteFile(path.GetNarrow()));
}

TEST(SystemNamesTest, AttributesAreThoseOfALinksTarget)
{
  const TestFolder folder;
  folder.MakeDirectory("d");
  std::filesystem::create_symlink(folder.At("d"), folder.At("link"));
  std::filesystem::create_symlink(folder.At("missing"), folder.At("broken"));
  EXPECT_EQ(ZELSysGetFileAttributes(folder.Path("link").c_str()) & ZELSysFileDirectory, ZELSysFileDirectory);
  EXPECT_EQ(ZELSysGetFileAttributes(folder.Path("broken").c_str()), -1);
}

TEST(SystemNamesTest, FileLockedElsewhereDoesNotOpen)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  const int holder = open(folder.At("a.txt").c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(flock(holder, LOCK_SH), 0);
  EXPECT_FALSE(ZELSysFile(folder.Path("a.txt").c_str(), ZELSysFile::Read).IsOpen());
  close(holder);
  EXPECT_TRUE(ZELSysFile(folder.Path("a.txt").c_str(), ZELSysFile::Read).IsOpen());
}

TEST(SystemNamesTest, PipeWithoutAWriterIsNotWaitedFor)
{
  const TestFolder folder;
  ASSERT_EQ(mkfifo(folder.At("pipe").c_str(), 0600), 0);
  EXPECT_EQ(ZELSysFile(folder.Path("pipe").c_str(), ZELSysFile::Read).GetSizeLow(), 0u);
}

TEST(SystemNamesTest, TimeBefore1601IsTheBeginning)
{
  const TestFolder folder;
  folder.Write("a.txt", "x");
  const timespec times[2] = {{0, UTIME_OMIT}, {-20000000000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, folder.At("a.txt").c_str(), times, 0), 0);
  struct stat status;
  ASSERT_EQ(stat(folder.At("a.txt").c_str(), &status), 0);
  const std::uint64_t kept = status.st_mtim.tv_sec <= -11644473600 ? 0 : static_cast<std::uint64_t>(status.st_mtim.tv_sec + 11644473600);
  EXPECT_EQ(ZELSysFile(folder.Path("a.txt").c_str(), ZELSysFile::Read).GetLastWriteTime(), kept * 10000000);
}

TEST(SystemNamesTest, TemporaryFileIsItsOwnersAlone)
{
  const TestFolder folder;
  const ZELUnicodeString name = ZELSysMakeTemporaryFile(ZELUnicodeString(folder.Path().c_str()), "ZELQM_7_");
  const std::string path(name.GetUTF8());
  const std::string bare = path.substr(path.rfind('\\') + 1);
  EXPECT_THAT(bare, testing::MatchesRegex("ZELQM_7_[A-Za-z0-9]{6}"));
  struct stat status;
  ASSERT_EQ(stat(folder.At(bare).c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777u, 0600u);
}

TEST(SystemNamesTest, TemporaryDirectoryIsTheOneOfTheEnvironment)
{
  EXPECT_EQ(ChildProcess::Self("PrintTemporaryDirectory").Set("TMPDIR", "/var/tmp").Run().out, "\\var\\tmp");
  EXPECT_EQ(ChildProcess::Self("PrintTemporaryDirectory").Unset("TMPDIR").Run().out, "\\tmp");
  EXPECT_EQ(ChildProcess::Self("PrintTemporaryDirectory").Set("TMPDIR", "").Run().out, "\\tmp");
}

TEST(SystemNamesTest, TerminateIsAnAbortThatNoHandlerTurnsAway)
{
  const ChildResult result = ChildProcess::Self("TerminateWithAHandler").Run();
  EXPECT_FALSE(result.ended) << result;
  EXPECT_EQ(result.code, SIGABRT);
}
