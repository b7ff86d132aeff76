// Lists the text files of a directory, sorted, with their sizes.
// usage: ListTextFiles [PATTERN]   (without one it makes three files in a directory of its own and lists two of them)
#include "ZELListValZELSYPFilePath.h"
#include "ZELSYPFilePath.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

// How many files were printed.
static int PrintFiles(const ZELSYPFilePath& i_pattern)
{
  ZELListValZELSYPFilePath files;
  i_pattern.ReadDirectory(files);
  files.QuickSort(&ZELSYPFilePath::Compare);
  for (int position = 1; position <= files.Size(); ++position)
    std::printf("%s  %d bytes\n", static_cast<const char*>(files[position]), files[position].GetFileSize());
  return files.Size();
}

// True when two of the three files were listed.
static bool ListOwnFiles()
{
  // The name of the temporary file is nobody else's; a directory takes its place.
  ZELSYPFilePath directory = ZELSYPFilePath::GetTemporaryFileName();
  directory.Delete();
  directory.CreateDirectoryW();
  ZELSYPFilePath::SetWorkDir(directory);
  for (const char* name : {"b.txt", "A.TXT", "c.dat"})
    std::ofstream(name) << name;
  const int printed = PrintFiles("*.txt");
  ZELSYPFilePath::SetWorkDir(directory.dirname());
  std::filesystem::remove_all(static_cast<const char*>(directory.basename()));
  return printed == 2;
}

int main(int i_count, char** i_arguments)
{
  if (i_count < 2)
    return ListOwnFiles() ? 0 : 1;
  PrintFiles(i_arguments[1]);
  return 0;
}
