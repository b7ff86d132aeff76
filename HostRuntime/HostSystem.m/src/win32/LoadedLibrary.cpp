#include "LoadedLibrary.h"

#include <windows.h>

LoadedLibrary::LoadedLibrary(const char* i_name, bool i_load)
{
  const std::string file = std::string(i_name) + ".dll";
  _handle = i_load ? LoadLibraryA(file.c_str()) : GetModuleHandleA(file.c_str());
}

ZELFunctionAddress LoadedLibrary::Find(const char* i_function) const
{
  if (!_handle)
    return nullptr;
  // By way of void*: the system's type takes and answers something else than every entry does.
  return reinterpret_cast<ZELFunctionAddress>(reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(_handle), i_function)));
}

void LoadedLibrary::KeepWhatHolds(const void* i_address)
{
  HMODULE holder;
  GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN, static_cast<const char*>(i_address), &holder);
}

std::string LoadedLibrary::GetLastFailure()
{
  return "error " + std::to_string(GetLastError());
}
