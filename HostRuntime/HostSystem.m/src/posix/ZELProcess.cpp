#include "ZELProcess.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace
{
// The first bytes of a file of the system's process table, zero-terminated; empty when it cannot be read.
template <int Size>
void ReadStart(const char* i_path, char (&o_text)[Size])
{
  const int file = open(i_path, O_RDONLY | O_CLOEXEC);
  const ssize_t length = file >= 0 ? read(file, o_text, Size - 1) : 0;
  o_text[length > 0 ? length : 0] = 0;
  if (file >= 0)
    close(file);
}
} // namespace

void ZELTerminate()
{
  // A handler of the application must not turn the end into something else.
  std::signal(SIGABRT, SIG_DFL);
  std::abort();
}

int ZELGetProcessId()
{
  return getpid();
}

bool ZELSysIsDebuggerPresent()
{
  static const char Label[] = "\nTracerPid:";
  char status[4096];
  ReadStart("/proc/self/status", status);
  const char* tracer = std::strstr(status, Label);
  return tracer && std::atoi(tracer + sizeof(Label) - 1) != 0;
}

void ZELSysDebugBreak()
{
  raise(SIGTRAP);
}
