// LoadedLibrary: a library of the system's search path, which stays loaded once it is found.
// const LoadedLibrary library("VisuDialog", true); if (auto entry = library.Find("ShowPanel")) entry();
#ifndef LoadedLibrary_H
#define LoadedLibrary_H

#include "ZELGetFunctionAddress.h"

#include <string>

class LoadedLibrary
{
public:
  // i_load false: only a library that is in the process already is found.
  LoadedLibrary(const char* i_name, bool i_load);

  // Null when the library or the entry is missing.
  ZELFunctionAddress Find(const char* i_function) const;

  // The library or program that holds i_address stays loaded until the process ends.
  static void KeepWhatHolds(const void* i_address);

  // The system's own words for the last thing that failed on this thread.
  static std::string GetLastFailure();

private:
  void* _handle;
};

#endif
