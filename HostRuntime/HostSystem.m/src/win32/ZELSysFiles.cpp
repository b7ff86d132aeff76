#include "ZELSysFiles.h"

#include "SystemPath.h"

#include <direct.h>
#include <windows.h>

int ZELSysGetFileAttributes(const char* i_path)
{
  return static_cast<int>(GetFileAttributesA(SystemPath(i_path).Get()));
}

int ZELSysGetFileAttributesWide(const ZELUnicodeString& i_path)
{
  return static_cast<int>(GetFileAttributesW(SystemWidePath(i_path).Get()));
}

int ZELSysMakeDirectory(const char* i_path)
{
  return _mkdir(SystemPath(i_path).Get());
}

int ZELSysChangeDirectory(const char* i_path)
{
  return _chdir(SystemPath(i_path).Get());
}

bool ZELSysGetCurrentDirectory(char* o_buffer, int i_size)
{
  return o_buffer && i_size > 0 && _getcwd(o_buffer, i_size);
}

bool ZELSysHasOneRoot()
{
  return false;
}

bool ZELSysDeleteFile(const char* i_path)
{
  return DeleteFileA(SystemPath(i_path).Get()) != 0;
}

ZELUnicodeString ZELSysGetTemporaryDirectory()
{
  char buffer[MAX_PATH];
  const DWORD length = GetTempPathA(sizeof(buffer), buffer);
  return length > 0 && length < sizeof(buffer) ? ZELUnicodeString(buffer) : ZELUnicodeString();
}

ZELUnicodeString ZELSysMakeTemporaryFile(const ZELUnicodeString& i_directory, const char* i_prefix)
{
  char buffer[MAX_PATH];
  // The unique number 0: the system picks the number and creates the file.
  if (GetTempFileNameA(i_directory.GetNarrow(), i_prefix ? i_prefix : "", 0, buffer) == 0)
    return ZELUnicodeString();
  return ZELUnicodeString(buffer);
}
