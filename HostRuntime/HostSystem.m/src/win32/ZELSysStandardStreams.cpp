#include "ZELSysStandardStreams.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace
{
// The system tells in two ways that a pipe has no other end any more.
std::error_code GetWriteError()
{
  const DWORD error = GetLastError();
  if (error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA)
    return std::make_error_code(std::errc::broken_pipe);
  return {static_cast<int>(error), std::system_category()};
}

std::error_code WriteAll(DWORD i_stream, std::string_view i_text)
{
  const HANDLE stream = GetStdHandle(i_stream);
  while (!i_text.empty())
  {
    // A console takes no more than this at a time.
    const DWORD wanted = static_cast<DWORD>(i_text.size() < 32768 ? i_text.size() : 32768);
    DWORD count = 0;
    if (!WriteFile(stream, i_text.data(), wanted, &count, nullptr))
      return GetWriteError();
    i_text.remove_prefix(count);
  }
  return {};
}

std::u16string_view GetView(const wchar_t* i_text)
{
  static_assert(sizeof(wchar_t) == sizeof(char16_t));
  return reinterpret_cast<const char16_t*>(i_text);
}
} // namespace

void ZELSysPrepareStandardStreams()
{
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

int ZELSysReadStandardInput(char* o_buffer, int i_size)
{
  DWORD count = 0;
  return ReadFile(GetStdHandle(STD_INPUT_HANDLE), o_buffer, static_cast<DWORD>(i_size), &count, nullptr) ? static_cast<int>(count) : 0;
}

std::error_code ZELSysWriteStandardOutput(std::string_view i_text)
{
  return WriteAll(STD_OUTPUT_HANDLE, i_text);
}

std::error_code ZELSysWriteStandardError(std::string_view i_text)
{
  return WriteAll(STD_ERROR_HANDLE, i_text);
}

bool ZELSysIsStandardErrorTerminal()
{
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

std::vector<ZELUnicodeString> ZELSysGetArguments(int, const char* const*)
{
  std::vector<ZELUnicodeString> arguments;
  int count = 0;
  wchar_t** const pArguments = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; pArguments && i < count; ++i)
    arguments.push_back(ZELUnicodeString::FromUTF16(GetView(pArguments[i])));
  LocalFree(pArguments);
  return arguments;
}
