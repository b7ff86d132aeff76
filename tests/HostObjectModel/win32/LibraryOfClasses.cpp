#include "../LibraryOfClasses.h"

#include <windows.h>

bool LibraryOfClasses::LoadAndUnload()
{
  const HMODULE library = LoadLibraryA("HostObjectModelTestLibrary.dll");
  return library && FreeLibrary(library) != 0;
}
