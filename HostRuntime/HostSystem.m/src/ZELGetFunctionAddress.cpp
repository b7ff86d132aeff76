#include "ZELGetFunctionAddress.h"

#include "LoadedLibrary.h"

#include <cstdio>

ZELFunctionAddress ZELGetFunctionAddress(const char* i_function, const char* i_library, const char* i_alias, int, int i_load, int i_report)
{
  if (!i_function || !i_library)
    return nullptr;
  const LoadedLibrary library(i_library, i_load != 0);
  ZELFunctionAddress entry = library.Find(i_function);
  if (!entry && i_alias)
    entry = library.Find(i_alias);
  if (!entry && i_report == 1)
    std::fprintf(stderr, "%s of the library %s: %s\n", i_function, i_library, LoadedLibrary::GetLastFailure().c_str());
  return entry;
}
