#include "ZELSysFiles.h"

#include "SystemPath.h"
#include "ZELProcess.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr mode_t AnyoneWrites = S_IWUSR | S_IWGRP | S_IWOTH;

int GetAttributes(const SystemPath& i_path)
{
  struct stat status;
  if (stat(i_path.Get(), &status) != 0)
    return -1;
  return (S_ISDIR(status.st_mode) ? ZELSysFileDirectory : 0) | ((status.st_mode & AnyoneWrites) == 0 ? ZELSysFileReadOnly : 0);
}

ZELUnicodeString WithBackslashes(std::string i_text)
{
  SystemPath::TranslateBack(i_text.data());
  return ZELUnicodeString::FromUTF8(i_text);
}
} // namespace

int ZELSysGetFileAttributes(const char* i_path)
{
  return GetAttributes(SystemPath(i_path));
}

int ZELSysGetFileAttributesWide(const ZELUnicodeString& i_path)
{
  return GetAttributes(SystemPath(i_path));
}

int ZELSysMakeDirectory(const char* i_path)
{
  return mkdir(SystemPath(i_path).Get(), S_IRWXU | S_IRWXG | S_IRWXO);
}

int ZELSysChangeDirectory(const char* i_path)
{
  return chdir(SystemPath(i_path).Get());
}

bool ZELSysGetCurrentDirectory(char* o_buffer, int i_size)
{
  if (!o_buffer || i_size <= 0 || !getcwd(o_buffer, static_cast<std::size_t>(i_size)))
    return false;
  SystemPath::TranslateBack(o_buffer);
  return true;
}

bool ZELSysHasOneRoot()
{
  return true;
}

bool ZELSysDeleteFile(const char* i_path)
{
  return unlink(SystemPath(i_path).Get()) == 0;
}

ZELUnicodeString ZELSysGetTemporaryDirectory()
{
  const char* chosen = ZELGetEnv("TMPDIR");
  return WithBackslashes(chosen && *chosen ? chosen : P_tmpdir);
}

ZELUnicodeString ZELSysMakeTemporaryFile(const ZELUnicodeString& i_directory, const char* i_prefix)
{
  std::string name = SystemPath(i_directory).Get();
  if (name.empty() || name.back() != '/')
    name += '/';
  name += std::string(i_prefix ? i_prefix : "") + "XXXXXX";
  // Creates the file itself, with mode 0600, so that nobody can take the name in between.
  const int file = mkostemp(name.data(), O_CLOEXEC);
  if (file < 0)
    return ZELUnicodeString();
  close(file);
  return WithBackslashes(std::move(name));
}
