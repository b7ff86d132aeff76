#include "LoadedLibrary.h"

#include <dlfcn.h>

LoadedLibrary::LoadedLibrary(const char* i_name, bool i_load)
    : _handle(dlopen(("lib" + std::string(i_name) + ".so").c_str(), RTLD_LAZY | (i_load ? 0 : RTLD_NOLOAD)))
{
}

ZELFunctionAddress LoadedLibrary::Find(const char* i_function) const
{
  // A null handle would search the whole program.
  return _handle ? reinterpret_cast<ZELFunctionAddress>(dlsym(_handle, i_function)) : nullptr;
}

void LoadedLibrary::KeepWhatHolds(const void* i_address)
{
  Dl_info holder;
  if (dladdr(i_address, &holder))
    dlopen(holder.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
}

std::string LoadedLibrary::GetLastFailure()
{
  const char* failure = dlerror();
  return failure ? failure : "not loaded";
}
