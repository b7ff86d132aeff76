// Working directories that a name does not lead back to, which Windows does not have: it keeps them from being renamed.
#include "../TestFolder.h"
#include "ChildProcess.h"
#include "ChildProgram.h"
#include "ZELSysFiles.h"
#include "ZELSysWorkingDirectory.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{
void VisitTheRoot()
{
  const ZELSysWorkingDirectory restored;
  ZELSysChangeDirectory("\\");
}
} // namespace

OPX_CHILD_ENTRY(VisitTheRootWithoutDescriptors)
{
  const std::filesystem::path before = std::filesystem::current_path();
  int last = -1;
  for (int next = last; (next = open("/dev/null", O_RDONLY | O_CLOEXEC)) >= 0;)
    last = next;
  VisitTheRoot();
  close(last); // What looks for leaks at the end needs one.
  return std::filesystem::current_path() == before ? 0 : 1;
}

TEST(WorkingDirectoryTest, OneThatWasRenamedMeanwhileIsPutBack)
{
  const TestFolder folder;
  folder.MakeDirectory("d");
  const ZELSysWorkingDirectory outer;
  ASSERT_EQ(ZELSysChangeDirectory(folder.Path("d").c_str()), 0);
  {
    const ZELSysWorkingDirectory inner;
    ASSERT_EQ(ZELSysChangeDirectory("\\"), 0);
    std::filesystem::rename(folder.At("d"), folder.At("renamed"));
  }
  EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(folder.At("renamed")));
}

TEST(WorkingDirectoryTest, ANameLongerThanTheSystemTellsIsPutBack)
{
  const TestFolder folder;
  const ZELSysWorkingDirectory outer;
  ASSERT_EQ(ZELSysChangeDirectory(folder.Path().c_str()), 0);
  const std::string level(250, 'd');
  for (int depth = 0; depth < 20; ++depth)
    ASSERT_TRUE(ZELSysMakeDirectory(level.c_str()) == 0 && ZELSysChangeDirectory(level.c_str()) == 0) << depth;
  std::ofstream("here") << "x";
  VisitTheRoot();
  EXPECT_NE(ZELSysGetFileAttributes("here"), -1);
}

TEST(WorkingDirectoryTest, IsPutBackWithoutADescriptorLeft)
{
  const ChildResult result = ChildProcess::Self("VisitTheRootWithoutDescriptors").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
}
