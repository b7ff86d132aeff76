#include "../LibraryOfClasses.h"

#include <dlfcn.h>

bool LibraryOfClasses::LoadAndUnload()
{
  void* const pLibrary = dlopen("libHostObjectModelTestLibrary.so", RTLD_LAZY);
  return pLibrary && dlclose(pLibrary) == 0;
}
