#include "ChildProcess.h"
#include "ChildProgram.h"
#include "LibraryOfClasses.h"
#include "ZELBaseUnknown_var.h"

#include <cstdio>
#include <gtest/gtest.h>

OPX_CHILD_ENTRY(UnloadALibraryWithClasses)
{
  std::printf("%d\n", LibraryOfClasses::LoadAndUnload());
  const ZELBaseUnknown_var object = ZELBaseUnknown_var::Adopt(ZELMetaClass::Find("LateCommand")->CreateObject());
  std::puts(object->IsA());
  return 0;
}

TEST(ZELMetaClass, OutlivesTheUnloadingOfItsLibrary)
{
  const std::string folder = ChildProcess::GetProgramFolder() + "/libraries-of-tests/HostObjectModel";
  EXPECT_EQ(ChildProcess::Self("UnloadALibraryWithClasses").SearchLibrariesIn(folder).Run().out, "1\nLateCommand\n");
}
