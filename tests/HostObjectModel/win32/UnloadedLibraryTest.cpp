// Its twin says the same of the other platform's libraries.
#include "ChildProcess.h"
#include "ChildProgram.h"
#include "ZELBaseUnknown_var.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <windows.h>

OPX_CHILD_ENTRY(UnloadALibraryWithClasses)
{
  const HMODULE pLibrary = LoadLibraryA("HostObjectModelTestLibrary.dll");
  std::printf("%d %d\n", pLibrary != nullptr, pLibrary && FreeLibrary(pLibrary) != 0);
  const ZELBaseUnknown_var object = ZELBaseUnknown_var::Adopt(ZELMetaClass::Find("LateCommand")->CreateObject());
  std::puts(object->IsA());
  return 0;
}

TEST(ZELMetaClass, OutlivesTheUnloadingOfItsLibrary)
{
  const std::string folder = ChildProcess::GetProgramFolder() + "/libraries-of-tests/HostObjectModel";
  EXPECT_EQ(ChildProcess::Self("UnloadALibraryWithClasses").SearchLibrariesIn(folder).Run().out, "1 1\nLateCommand\n");
}
