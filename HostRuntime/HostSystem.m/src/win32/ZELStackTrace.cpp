#include "ZELStackTrace.h"

#include <windows.h>
// After windows.h, which it needs.
#include <dbghelp.h>

#include <cstring>
#include <mutex>

namespace
{
// The symbol library of the system serves one thread at a time.
class Symbols
{
public:
  Symbols() : _hold(Lock())
  {
    static const bool ready = Start();
    (void)ready;
  }

  // "function", empty when unknown.
  std::string Function(DWORD64 i_address) const
  {
    alignas(SYMBOL_INFO) char memory[sizeof(SYMBOL_INFO) + MAX_SYM_NAME] = {};
    SYMBOL_INFO* pSymbol = reinterpret_cast<SYMBOL_INFO*>(memory);
    pSymbol->SizeOfStruct = sizeof(SYMBOL_INFO);
    pSymbol->MaxNameLen = MAX_SYM_NAME;
    return SymFromAddr(GetCurrentProcess(), i_address, nullptr, pSymbol) ? std::string(pSymbol->Name) : std::string();
  }

  // " at file:line", empty when unknown.
  std::string Line(DWORD64 i_address) const
  {
    IMAGEHLP_LINE64 line = {};
    line.SizeOfStruct = sizeof(line);
    DWORD offset = 0;
    if (!SymGetLineFromAddr64(GetCurrentProcess(), i_address, &offset, &line))
      return std::string();
    return std::string(" at ") + line.FileName + ":" + std::to_string(line.LineNumber);
  }

private:
  static std::mutex& Lock()
  {
    static std::mutex lock;
    return lock;
  }

  static bool Start()
  {
    SymSetOptions(SYMOPT_UNDNAME | SYMOPT_DEFERRED_LOADS | SYMOPT_LOAD_LINES);
    return SymInitialize(GetCurrentProcess(), nullptr, TRUE) != 0;
  }

  std::lock_guard<std::mutex> _hold;
};

// " in module +0xOFFSET": what is known of every address.
std::string ModuleAndOffset(const void* i_address)
{
  HMODULE module = nullptr;
  char path[MAX_PATH] = "?";
  if (GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         static_cast<const char*>(i_address), &module))
    GetModuleFileNameA(module, path, sizeof(path));
  char offset[32];
  std::snprintf(offset, sizeof(offset), "+0x%llx",
                reinterpret_cast<unsigned long long>(i_address) - reinterpret_cast<unsigned long long>(module));
  return std::string(" in ") + path + offset;
}
} // namespace

void ZELStackTrace::GetTrace()
{
  void* addresses[256];
  const USHORT count = CaptureStackBackTrace(1, 256, addresses, nullptr);
  _frames.assign(addresses, addresses + count);
}

std::string ZELBasicStackTrace::Describe(int i_index) const
{
  if (i_index < 0 || i_index >= GetFrameCount())
    return std::string();
  const void* address = _frames[static_cast<std::size_t>(i_index)];
  // A frame holds the address behind its call, which may be the next line's.
  const DWORD64 call = reinterpret_cast<DWORD64>(address) - 1;
  const Symbols symbols;
  return symbols.Function(call) + symbols.Line(call) + ModuleAndOffset(address);
}
