// Outputs that take nothing, handed to the program as handles.
#include "ChildProcess.h"
#include "TemporaryTree.h"

#include <filesystem>
#include <gtest/gtest.h>

#include <utility>
#include <windows.h>

namespace
{
struct Pipe
{
  Pipe()
  {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    EXPECT_TRUE(CreatePipe(&read, &write, &inherited, 0));
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe()
  {
    CloseHandle(read);
    CloseHandle(write);
  }

  HANDLE read = nullptr;
  HANDLE write = nullptr;
};

// The exit code of opx-explorer with this output.
DWORD PrintTo(HANDLE i_output, const TemporaryTree& i_tree)
{
  std::wstring command = L"opx-explorer \"" + i_tree.SystemPath().wstring() + L"\"";
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = i_output;
  PROCESS_INFORMATION process{};
  const std::wstring program = std::filesystem::u8path(ChildProcess::Beside("opx-explorer")).wstring();
  EXPECT_TRUE(CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process));
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 99;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return code;
}
} // namespace

TEST(OPXExplorerPipeTest, APersonMayStopReading)
{
  TemporaryTree tree;
  tree.AddFile("file");
  Pipe pipe;
  CloseHandle(std::exchange(pipe.read, nullptr));
  EXPECT_EQ(PrintTo(pipe.write, tree), 0u);
}

TEST(OPXExplorerPipeTest, AnOutputThatCannotBeWrittenEndsItWithOne)
{
  TemporaryTree tree;
  tree.AddFile("file");
  const Pipe pipe;
  EXPECT_EQ(PrintTo(pipe.read, tree), 1u);
}

TEST(OPXExplorerPipeTest, LineEndsOfTheOutputAreNotTranslatedTwice)
{
  TemporaryTree tree;
  const ChildResult result =
      ChildProcess(ChildProcess::Beside("opx-explorer"), {"--stdio", tree.SystemPath().u8string()}).Input("x\r\nx\n").Run();
  EXPECT_EQ(result.out.find('\r'), std::string::npos);
  EXPECT_EQ(result.code, 0);
}
