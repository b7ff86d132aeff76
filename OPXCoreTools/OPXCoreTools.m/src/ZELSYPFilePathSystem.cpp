// What the file system says about a path.
#include "ZELSYPFilePath.h"

#include "CaseFolding.h"
#include "PathExpansion.h"
#include "TextPieces.h"
#include "WildcardPattern.h"
#include "ZELListValZELSYPFilePath.h"
#include "ZELProcess.h"
#include "ZELSysFile.h"
#include "ZELSysFiles.h"
#include "ZELSysWorkingDirectory.h"

#include <cstdint>
#include <string>

static const int NO_ATTRIBUTES = -1;

// Whether the narrow path names an object with the attribute.
static int HasAttribute(const ZELUnicodeString& i_path, ZELSysFileAttribute i_attribute)
{
  const int attributes = i_path.IsEmpty() ? NO_ATTRIBUTES : ZELSysGetFileAttributes(i_path.GetNarrow());
  return attributes != NO_ATTRIBUTES && (attributes & i_attribute) != 0;
}

int ZELSYPFilePath::IsFile() const
{
  if (_path.IsEmpty())
    return 0;
  int attributes = ZELSysGetFileAttributes(_path.GetNarrow());
  if (attributes == NO_ATTRIBUTES)
    attributes = ZELSysGetFileAttributesWide(_path);
  return attributes != NO_ATTRIBUTES && (attributes & ZELSysFileDirectory) == 0;
}

int ZELSYPFilePath::IsDirectory() const
{
  return HasAttribute(_path, ZELSysFileDirectory);
}

int ZELSYPFilePath::IsReadOnly() const
{
  return HasAttribute(_path, ZELSysFileReadOnly);
}

int ZELSYPFilePath::GetFileSize() const
{
  // Kept: a file that cannot be opened answers the failure value of the size, which is -1 here.
  return _path.IsEmpty() ? 0 : static_cast<int>(ZELSysFile(_path.GetNarrow(), ZELSysFile::Read).GetSizeLow());
}

// False, with the time left as it is, when the file cannot be opened.
static bool ReadLastWriteTime(const char* i_path, std::uint64_t& o_time)
{
  const ZELSysFile file(i_path, ZELSysFile::Read);
  if (file.IsOpen())
    o_time = file.GetLastWriteTime();
  return file.IsOpen();
}

int ZELSYPFilePath::GetTime() const
{
  std::uint64_t time = 0;
  if (IsFile())
    ReadLastWriteTime(_path.GetNarrow(), time);
  return static_cast<int>(static_cast<std::uint32_t>(time));
}

void ZELSYPFilePath::SetTime(const ZELSYPFilePath& i_from)
{
  std::uint64_t time = 0;
  if (!IsFile() || !i_from.IsFile() || !ReadLastWriteTime(i_from, time))
    return;
  ZELSysFile file(_path.GetNarrow(), ZELSysFile::Write);
  if (file.IsOpen())
    file.SetLastWriteTime(time);
}

int ZELSYPFilePath::CompareTime(const ZELSYPFilePath& i_other) const
{
  std::uint64_t time = 0;
  std::uint64_t otherTime = 0;
  if (!IsFile())
    return -1;
  if (!i_other.IsFile() || !ReadLastWriteTime(i_other, otherTime))
    return 1;
  if (!ReadLastWriteTime(_path.GetNarrow(), time))
    return -1;
  return (time > otherTime) - (time < otherTime);
}

int ZELSYPFilePath::CreateDirectoryW() const
{
  // Kept: the three ways of answering for an empty path: 1 here, 0 in Delete, 1 in CreateRecursiveDirectory.
  return _path.IsEmpty() ? 1 : ZELSysMakeDirectory(_path.GetNarrow());
}

int ZELSYPFilePath::CreateRecursiveDirectory() const
{
  if (IsDirectory())
    return 0;
  int missing = 0;
  for (ZELSYPFilePath parent = dirname(1); !parent.IsNull() && !parent.IsDirectory(); parent = parent.dirname(1))
    ++missing;
  for (; missing > 0; --missing)
    if (dirname(missing).CreateDirectoryW() != 0)
      return 1;
  return CreateDirectoryW();
}

int ZELSYPFilePath::Delete() const
{
  return !_path.IsEmpty() && !ZELSysDeleteFile(_path.GetNarrow());
}

ZELSYPFilePath ZELSYPFilePath::GetTemporaryFileName()
{
  const std::string prefix = "ZELQM_" + std::to_string(ZELGetProcessId()) + '_';
  return ZELSYPFilePath(ZELSysMakeTemporaryFile(ZELSysGetTemporaryDirectory(), prefix.c_str()));
}

// The current directory, or i_unreadable.
static ZELSYPFilePath CurrentDirectory(const char* i_unreadable)
{
  char buffer[2048];
  return ZELSYPFilePath(ZELSysGetCurrentDirectory(buffer, sizeof buffer) ? buffer : i_unreadable);
}

ZELSYPFilePath ZELSYPFilePath::GetWorkDir()
{
  return CurrentDirectory(".");
}

int ZELSYPFilePath::SetWorkDir(const ZELSYPFilePath& i_directory)
{
  return ZELSysChangeDirectory(i_directory);
}

// Changes to the directory of the path, if need be as seen from the current directory; the way stays where it can.
static void ChangeToDirectoryOf(const ZELSYPFilePath& i_path)
{
  // Kept: a bare file name has an empty dirname, which the backslash makes the root.
  if (ZELSYPFilePath::SetWorkDir(i_path.dirname(1) + "") != 0)
    ZELSYPFilePath::SetWorkDir((ZELSYPFilePath::GetWorkDir() + i_path).dirname(1) + "");
}

static ZELSYPFilePath CurrentDirectoryWithoutTail()
{
  const ZELUnicodeString directory(static_cast<const char*>(CurrentDirectory("")));
  const std::string_view text = directory.GetUTF8();
  return ZELSYPFilePath(ZELUnicodeString::FromUTF8(text.substr(0, text.find_last_not_of('\\') + 1)));
}

ZELSYPFilePath ZELSYPFilePath::GetFullPath() const
{
  if (_path.IsEmpty())
    return GetWorkDir();
  const ZELSysWorkingDirectory restored;
  ChangeToDirectoryOf(*this);
  return CurrentDirectoryWithoutTail() + basename(1);
}

int ZELSYPFilePath::IsUnderDirectory(const ZELSYPFilePath& i_directory) const
{
  for (ZELSYPFilePath place(*this); !place.IsNull(); place = place.dirname(1))
    if (place.IsEqual(i_directory))
      return 1;
  return 0;
}

int ZELSYPFilePath::TestMatch(const ZELUnicodeString& i_name, const ZELUnicodeString& i_pattern) const
{
  return WildcardPattern(i_pattern.GetNarrow()).Matches(i_name.GetNarrow());
}

int ZELSYPFilePath::TestMatchNoCase(const ZELUnicodeString& i_name, const ZELUnicodeString& i_pattern) const
{
  std::string name, pattern;
  UpperCaseNarrow(i_name.GetUTF8(), name);
  UpperCaseNarrow(i_pattern.GetUTF8(), pattern);
  return WildcardPattern(pattern).Matches(name);
}

int ZELSYPFilePath::ReadDirectory(ZELListValZELSYPFilePath& io_list) const
{
  PathExpansion expansion(_path);
  for (const ZELUnicodeString& found : expansion.Run())
    io_list.Append(found);
  return 1;
}

ZELSYPFilePath ZELSYPFilePath::Search(const ZELSYPFilePath& i_name, const char* i_pathList)
{
  const char* const list = i_pathList ? i_pathList : ZELGetEnv("ZELInstallPath");
  TextPieces directories(list ? list : "", ';');
  for (std::string_view directory; directories.Next(directory);)
  {
    const ZELSYPFilePath candidate = ZELSYPFilePath(ZELString(directory)) + i_name;
    if (candidate.IsFile())
      return candidate;
  }
  return ZELSYPFilePath();
}
