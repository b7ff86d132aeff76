#include "SparseFile.h"

#include <stdexcept>
#include <windows.h>

// The runtime library's call would write every byte.
void MakeSparse(const std::filesystem::path& i_file, std::uint64_t i_size)
{
  const HANDLE file = CreateFileW(i_file.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  LARGE_INTEGER size;
  size.QuadPart = static_cast<LONGLONG>(i_size);
  const bool isDone = SetFilePointerEx(file, size, nullptr, FILE_BEGIN) && SetEndOfFile(file);
  CloseHandle(file);
  if (!isDone)
    throw std::runtime_error("cannot size " + i_file.u8string());
}
