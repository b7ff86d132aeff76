#include "ChildProcess.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <thread>
#include <windows.h>

namespace
{
// One end for this process, one for the child. Both are closed when it goes, unless they were before.
struct Channel
{
  explicit Channel(bool i_childReads)
  {
    SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
    HANDLE read = nullptr, write = nullptr;
    if (!CreatePipe(&read, &write, &inherited, 0))
      throw std::runtime_error("no channel to the child");
    own = i_childReads ? write : read;
    child = i_childReads ? read : write;
    SetHandleInformation(own, HANDLE_FLAG_INHERIT, 0);
  }
  Channel(const Channel&) = delete;
  Channel& operator=(const Channel&) = delete;
  ~Channel()
  {
    Close(own);
    Close(child);
  }

  static void Close(HANDLE& io_end)
  {
    if (io_end)
      CloseHandle(io_end);
    io_end = nullptr;
  }

  HANDLE own;
  HANDLE child;
};

void ReadAll(HANDLE i_from, std::string& o_text)
{
  char block[65536];
  DWORD length = 0;
  while (ReadFile(i_from, block, sizeof(block), &length, nullptr) && length > 0)
    o_text.append(block, length);
}

void WriteAll(Channel& io_channel, const std::string& i_text)
{
  DWORD length = 0;
  for (std::size_t done = 0; done < i_text.size(); done += length)
    if (!WriteFile(io_channel.own, i_text.data() + done, static_cast<DWORD>(i_text.size() - done), &length, nullptr))
      break;
  Channel::Close(io_channel.own);
}

// The runtime library writes "\r\n" for every "\n".
void KeepLineFeeds(std::string& io_text)
{
  for (std::size_t at = io_text.find("\r\n"); at != std::string::npos; at = io_text.find("\r\n", at))
    io_text.erase(at, 1);
}

// As the runtime library takes a command line apart: quotes and the backslashes before them are escaped.
std::string Quoted(const std::string& i_argument)
{
  std::string text = "\"";
  std::size_t backslashes = 0;
  for (const char c : i_argument)
  {
    if (c == '"')
      text.append(backslashes + 1, '\\');
    backslashes = c == '\\' ? backslashes + 1 : 0;
    text += c;
  }
  return text.append(backslashes, '\\') + '"';
}

std::string CommandLine(const std::string& i_program, const std::vector<std::string>& i_arguments)
{
  std::string line = Quoted(i_program);
  for (const std::string& argument : i_arguments)
    line += " " + Quoted(argument);
  return line;
}

typedef std::map<std::string, std::optional<std::string>> Changes;

bool Names(const std::string& i_variable, const Changes& i_changes)
{
  // The names of the system's own hidden variables begin with "=".
  const std::string name = i_variable.substr(0, i_variable.find('=', 1));
  return std::any_of(i_changes.begin(), i_changes.end(),
                     [&](const auto& i_change) { return _stricmp(name.c_str(), i_change.first.c_str()) == 0; });
}

std::string EnvironmentBlock(const Changes& i_changes)
{
  std::string block;
  char* strings = GetEnvironmentStringsA();
  for (const char* variable = strings; *variable; variable += std::string(variable).size() + 1)
    if (!Names(variable, i_changes))
      block.append(variable, std::string(variable).size() + 1);
  FreeEnvironmentStringsA(strings);
  for (const auto& [name, value] : i_changes)
    if (value)
      block.append((name + "=" + *value).c_str(), name.size() + value->size() + 2);
  return block + '\0';
}

HANDLE Start(const std::string& i_commandLine, std::string i_environment, HANDLE i_in, HANDLE i_out, HANDLE i_err)
{
  // The narrow call would take the line in the code page of the machine, which does not know every character.
  std::wstring commandLine = std::filesystem::u8path(i_commandLine).wstring();
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = i_in;
  startup.hStdOutput = i_out;
  startup.hStdError = i_err;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, i_environment.data(), nullptr, &startup, &process))
    throw std::runtime_error(i_commandLine + ": error " + std::to_string(GetLastError()));
  CloseHandle(process.hThread);
  return process.hProcess;
}

// Waits for the child, and ends it when its time is over.
void TakeEnd(HANDLE i_process, double i_seconds, ChildResult& io_result)
{
  constexpr UINT OutOfTime = 0xC0000000;
  io_result.timedOut = WaitForSingleObject(i_process, static_cast<DWORD>(i_seconds * 1000)) == WAIT_TIMEOUT;
  if (io_result.timedOut)
    TerminateProcess(i_process, OutOfTime);
  WaitForSingleObject(i_process, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(i_process, &code);
  CloseHandle(i_process);
  // The system's own codes are severe: one of the two highest bits is set. No program here answers such a number.
  io_result.ended = !io_result.timedOut && (code >> 30) == 0;
  io_result.code = static_cast<long>(code);
}
} // namespace

ChildProcess& ChildProcess::SearchLibrariesIn(const std::string& i_folder)
{
  const char* before = std::getenv("PATH");
  return Set("PATH", before ? i_folder + ";" + before : i_folder);
}

ChildResult ChildProcess::Run() const
{
  ChildResult result;
  Channel in(true), out(false), err(false);
  const HANDLE process = Start(CommandLine(_program, _arguments), EnvironmentBlock(_environment), in.child, out.child, err.child);
  for (Channel* pChannel : {&in, &out, &err})
    Channel::Close(pChannel->child);
  std::thread writer(WriteAll, std::ref(in), std::cref(_input));
  std::thread readerOut(ReadAll, out.own, std::ref(result.out));
  std::thread readerErr(ReadAll, err.own, std::ref(result.err));
  TakeEnd(process, _seconds, result);
  for (std::thread* pThread : {&writer, &readerOut, &readerErr})
    pThread->join();
  KeepLineFeeds(result.out);
  KeepLineFeeds(result.err);
  return result;
}

std::string ChildProcess::GetProgram()
{
  char path[MAX_PATH];
  return std::string(path, GetModuleFileNameA(nullptr, path, sizeof(path)));
}

std::string ChildProcess::Beside(const std::string& i_name)
{
  return GetProgramFolder() + "\\" + i_name + ".exe";
}
