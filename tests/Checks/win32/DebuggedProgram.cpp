// This process is the debugger.
#include "../DebuggedProgram.h"

#include "ChildProcess.h"
#include "ChildProgram.h"
#include "TemporaryTree.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <windows.h>

namespace
{
// This process's own environment is what the child sees; it is put back when this goes.
class Environment
{
public:
  explicit Environment(const std::map<std::string, std::string>& i_variables)
  {
    for (const auto& [name, value] : i_variables)
    {
      const char* const before = std::getenv(name.c_str());
      _before[name] = before ? before : "";
      SetEnvironmentVariableA(name.c_str(), value.c_str());
    }
  }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;
  ~Environment()
  {
    for (const auto& [name, value] : _before)
      SetEnvironmentVariableA(name.c_str(), value.empty() ? nullptr : value.c_str());
  }

private:
  std::map<std::string, std::string> _before;
};

PROCESS_INFORMATION Start(std::string i_commandLine, const std::filesystem::path& i_output)
{
  SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
  const HANDLE output = CreateFileW(i_output.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
  STARTUPINFOA startup = {};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = startup.hStdError = output;
  PROCESS_INFORMATION process = {};
  const BOOL started =
      CreateProcessA(nullptr, i_commandLine.data(), nullptr, nullptr, TRUE, DEBUG_ONLY_THIS_PROCESS, nullptr, nullptr, &startup, &process);
  CloseHandle(output);
  if (!started)
    throw std::runtime_error(i_commandLine + ": error " + std::to_string(GetLastError()));
  return process;
}

bool IsBreak(const DEBUG_EVENT& i_event)
{
  return i_event.dwDebugEventCode == EXCEPTION_DEBUG_EVENT && i_event.u.Exception.ExceptionRecord.ExceptionCode == EXCEPTION_BREAKPOINT;
}

// Goes on after every break; any other exception is the program's own affair.
void Debug(DebuggedProgram::Result& io_result)
{
  const DWORD limit = 60000;
  DEBUG_EVENT event = {};
  while (WaitForDebugEvent(&event, limit))
  {
    if (event.dwDebugEventCode == CREATE_PROCESS_DEBUG_EVENT && event.u.CreateProcessInfo.hFile)
      CloseHandle(event.u.CreateProcessInfo.hFile);
    if (event.dwDebugEventCode == LOAD_DLL_DEBUG_EVENT && event.u.LoadDll.hFile)
      CloseHandle(event.u.LoadDll.hFile);
    io_result.breaks += IsBreak(event);
    const bool isOther = event.dwDebugEventCode == EXCEPTION_DEBUG_EVENT && !IsBreak(event);
    ContinueDebugEvent(event.dwProcessId, event.dwThreadId, isOther ? DBG_EXCEPTION_NOT_HANDLED : DBG_CONTINUE);
    if (event.dwDebugEventCode == EXIT_PROCESS_DEBUG_EVENT)
    {
      io_result.succeeded = event.u.ExitProcess.dwExitCode == 0;
      return;
    }
  }
}
} // namespace

DebuggedProgram::Result DebuggedProgram::Run(const std::string& i_entry, const std::vector<std::string>& i_arguments,
                                             const std::map<std::string, std::string>& i_environment, const std::string& i_libraries)
{
  TemporaryTree tree;
  std::string commandLine = '"' + ChildProcess::GetProgram() + "\" " + ChildProgram::Option + ' ' + i_entry;
  for (const std::string& argument : i_arguments)
    commandLine += " \"" + argument + '"';
  std::map<std::string, std::string> variables = i_environment;
  if (!i_libraries.empty())
    variables["PATH"] = i_libraries + ';' + std::getenv("PATH");
  const Environment environment(variables);
  const PROCESS_INFORMATION process = Start(commandLine, tree.SystemPath("output"));
  Result result;
  // The system's own at the start.
  result.breaks = -1;
  Debug(result);
  TerminateProcess(process.hProcess, 1);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  std::ifstream output(tree.SystemPath("output"));
  result.text.assign(std::istreambuf_iterator<char>(output), {});
  return result;
}
