// LibraryOfClasses: the library of classes that only these tests know, loaded and unloaded by the system's own calls.
// if (LibraryOfClasses::LoadAndUnload()) ...
#ifndef LibraryOfClasses_H
#define LibraryOfClasses_H

namespace LibraryOfClasses
{
// Whether the system did both without an error.
bool LoadAndUnload();
} // namespace LibraryOfClasses

#endif
