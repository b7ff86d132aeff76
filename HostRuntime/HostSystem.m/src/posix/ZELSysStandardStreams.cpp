#include "ZELSysStandardStreams.h"

#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace
{
std::error_code WriteAll(int i_stream, std::string_view i_text)
{
  while (!i_text.empty())
  {
    const ssize_t count = write(i_stream, i_text.data(), i_text.size());
    if (count < 0 && errno != EINTR)
      return {errno, std::system_category()};
    i_text.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
  }
  return {};
}
} // namespace

void ZELSysPrepareStandardStreams()
{
  std::signal(SIGPIPE, SIG_IGN);
}

int ZELSysReadStandardInput(char* o_buffer, int i_size)
{
  ssize_t count = -1;
  do
    count = read(STDIN_FILENO, o_buffer, static_cast<std::size_t>(i_size));
  while (count < 0 && errno == EINTR);
  return count < 0 ? 0 : static_cast<int>(count);
}

std::error_code ZELSysWriteStandardOutput(std::string_view i_text)
{
  return WriteAll(STDOUT_FILENO, i_text);
}

std::error_code ZELSysWriteStandardError(std::string_view i_text)
{
  return WriteAll(STDERR_FILENO, i_text);
}

bool ZELSysIsStandardErrorTerminal()
{
  return isatty(STDERR_FILENO) != 0;
}

std::vector<ZELUnicodeString> ZELSysGetArguments(int i_count, const char* const* i_pArguments)
{
  std::vector<ZELUnicodeString> arguments;
  for (int i = 1; i < i_count; ++i)
    arguments.push_back(ZELUnicodeString::FromUTF8(i_pArguments[i]));
  return arguments;
}
