#include "ZELGetFunctionAddress.h"

#include "ChildProcess.h"
#include "ChildProgram.h"

#include <cstdio>
#include <gmock/gmock.h>

namespace
{
const char* const library = "HostSystemTestLibrary";

void PrintAnswer(ZELFunctionAddress i_entry)
{
  if (i_entry)
    std::printf("%d\n", reinterpret_cast<int (*)()>(reinterpret_cast<void*>(i_entry))());
  else
    std::puts("missing");
}

ChildResult RunWithLibrary(const char* i_entry)
{
  return ChildProcess::Self(i_entry).SearchLibrariesIn(ChildProcess::GetProgramFolder() + "/libraries-of-tests/HostSystem").Run();
}
} // namespace

OPX_CHILD_ENTRY(AskForEntry)
{
  PrintAnswer(ZELGetFunctionAddress("HostSystemTestAnswer", library, nullptr, -1, 1, 0));
  return 0;
}

OPX_CHILD_ENTRY(AskForAlias)
{
  PrintAnswer(ZELGetFunctionAddress("NoSuchEntry", library, "HostSystemTestAnswer", -1, 1, 0));
  PrintAnswer(ZELGetFunctionAddress("NoSuchEntry", library, "NorThisOne", -1, 1, 0));
  return 0;
}

OPX_CHILD_ENTRY(AskWithoutLoading)
{
  PrintAnswer(ZELGetFunctionAddress("HostSystemTestAnswer", library, nullptr, -1, 0, 0));
  PrintAnswer(ZELGetFunctionAddress("HostSystemTestAnswer", library, nullptr, -1, 1, 0));
  PrintAnswer(ZELGetFunctionAddress("HostSystemTestAnswer", library, nullptr, -1, 0, 0));
  return 0;
}

OPX_CHILD_ENTRY(AskAndReport)
{
  PrintAnswer(ZELGetFunctionAddress("Entry", "NoSuchLibraryAnywhere", nullptr, -1, 1, 1));
  return 0;
}

TEST(ZELGetFunctionAddressTest, EntryOfALibraryOfTheSearchPathIsFound)
{
  EXPECT_EQ(RunWithLibrary("AskForEntry").out, "42\n");
}

TEST(ZELGetFunctionAddressTest, LibraryOutsideTheSearchPathIsMissing)
{
  EXPECT_EQ(ChildProcess::Self("AskForEntry").Run().out, "missing\n");
}

TEST(ZELGetFunctionAddressTest, AliasServesWhenTheEntryIsMissing)
{
  EXPECT_EQ(RunWithLibrary("AskForAlias").out, "42\nmissing\n");
}

TEST(ZELGetFunctionAddressTest, WithoutLoadingOnlyALoadedLibraryIsAsked)
{
  EXPECT_EQ(RunWithLibrary("AskWithoutLoading").out, "missing\n42\n42\n");
}

TEST(ZELGetFunctionAddressTest, FailureIsPrintedOnlyWhenAsked)
{
  const ChildResult reported = ChildProcess::Self("AskAndReport").Run();
  EXPECT_EQ(reported.out, "missing\n");
  EXPECT_THAT(reported.err, testing::StartsWith("Entry of the library NoSuchLibraryAnywhere: "));
  EXPECT_EQ(ChildProcess::Self("AskForEntry").Run().err, "");
}

TEST(ZELGetFunctionAddressTest, NullNamesAreMissing)
{
  EXPECT_EQ(ZELGetFunctionAddress(nullptr, library, nullptr, -1, 1, 0), nullptr);
  EXPECT_EQ(ZELGetFunctionAddress("Entry", nullptr, nullptr, -1, 1, 0), nullptr);
}
