// ZELSYPFilePath: a file-system path kept with backslashes, its name operations and what the file system says about it.
// ZELSYPFilePath file = ZELSYPFilePath("C:/data") + "notes.txt"; if (file.IsFile()) ...
//
// The text is kept as it is given, but for slashes, which become backslashes: no case is folded, no separator, dot or
// double dot is taken out. An empty text is the null path. A null const char* counts as the empty text unless stated.
// No operation throws or reports; each answers in its own way, stated with it. One value belongs to one thread.
// GetFullPath and ReadDirectory change the working directory of the process while they run, and put it back.
#ifndef ZELSYPFilePath_H
#define ZELSYPFilePath_H

#include "OPXCoreToolsExport.h"
#include "ZELString.h"
#include "ZELUnicodeString.h"

#include <string_view>

class ZELListValZELSYPFilePath;

class OPXCORETOOLS_EXPORT ZELSYPFilePath
{
public:
  ZELSYPFilePath() noexcept;
  ZELSYPFilePath(const char* i_path);
  ZELSYPFilePath(ZELString i_path);
  ZELSYPFilePath(const ZELUnicodeString& i_path);
  ZELSYPFilePath(const ZELSYPFilePath& i_other) noexcept;
  ZELSYPFilePath& operator=(const ZELSYPFilePath& i_other) noexcept;
  ZELSYPFilePath& operator=(const char* i_path);
  ZELSYPFilePath& operator=(ZELString i_path);
  ZELSYPFilePath& operator=(const ZELUnicodeString& i_path);
  virtual ~ZELSYPFilePath();

  // The path in the system code page, zero-terminated; valid while this value lives and is unchanged. Never null.
  operator const char*() const;

  // --- Joining: this text, one backslash, the other text. Nothing looks for a separator that is there already, nor for
  // an empty side: "C:\dir\" and "f" give "C:\dir\\f", an empty path and "f" give "\f".
  ZELSYPFilePath operator+(const ZELSYPFilePath& i_path) const;
  ZELSYPFilePath operator+(const ZELString& i_path) const;
  ZELSYPFilePath operator+(const ZELUnicodeString& i_path) const;
  ZELSYPFilePath operator+(const char* i_path) const;
  ZELSYPFilePath& operator+=(const char* i_path);

  // --- Comparison of the narrow texts. Two notions of equality: the operators fold ASCII letters, IsEqual and Compare
  // do not.
  int operator==(const ZELSYPFilePath& i_path) const;
  int operator!=(const ZELSYPFilePath& i_path) const;
  // A null text is equal to no path.
  int operator==(const char* i_path) const;
  int operator!=(const char* i_path) const;
  // 1 when the texts are the same byte for byte.
  int IsEqual(const ZELSYPFilePath& i_path) const;
  // For QuickSort: -1, 0 or 1 by unsigned bytes, a prefix first; -1 when either is null.
  static int Compare(ZELSYPFilePath* i_pLeft, ZELSYPFilePath* i_pRight);
  // 1 for the empty text.
  int IsNull() const;

  // --- Components, told apart by backslashes and counted from the end; n below 1 counts as 1.
  // The n-th component: basename(2) of "a\b\c" is "b". The first one there is when the path has fewer, and empty for a
  // path that ends with a backslash.
  ZELSYPFilePath basename(int n = 1) const;
  // The path without its last n components and the backslash before them: dirname(2) of "C:\a\b\c" is "C:\a". Empty
  // when there are not so many.
  ZELSYPFilePath dirname(int n = 1) const;

  // --- Extensions. The last dot counts, wherever it stands: "a.d\f" has the extension "d\f".
  // What follows the last dot; empty without one.
  ZELString GetExtension() const;
  // 1 when GetExtension is i_extension, byte for byte; 0 for null.
  int HasExtension(const char* i_extension) const;
  // Appends the text as it is: no dot is put before it, and its slashes stay.
  void AddExtension(ZELString i_extension);
  // Replaces what follows the last dot; without one, appends a dot and the text.
  void SetExtension(ZELString i_extension);

  // --- What the file system says. All ask by the narrow view of the path.
  // 1 for an object that is not a directory; one that the narrow view cannot name is asked for by its wide name. 0 for
  // a directory, for nothing, and for the empty path.
  int IsFile() const;
  // 1 for a directory; 0 for anything else, nothing, and the empty path. No wide name is tried.
  int IsDirectory() const;
  // 1 for an object that must not be written to; 0 for any other, nothing, and the empty path. No wide name is tried.
  int IsReadOnly() const;

  // --- One open of the file each, shared with nobody, closed right after.
  // The low 32 bits of the size in bytes, so that a file of 4 GiB answers 0. -1 for a file that cannot be opened, 0
  // for the empty path.
  int GetFileSize() const;
  // The low 32 bits of the last-write time in 100-nanosecond intervals since 1601-01-01 UTC; 0 when it cannot be read.
  int GetTime() const;
  // Gives this file the last-write time of i_from; creation and access times stay. Does nothing unless both are files
  // that can be opened.
  void SetTime(const ZELSYPFilePath& i_from);
  // By last-write time: 1 when this file is newer, 0 for the same time, -1 when it is older or cannot be read; 1 when
  // only i_other cannot be read.
  int CompareTime(const ZELSYPFilePath& i_other) const;

  // --- Making and deleting.
  // Makes the last directory of the path: 0 made, -1 not made (it may be there already), 1 for the empty path. The name
  // is the exported one; no macro makes it.
  int CreateDirectoryW() const;
  // Makes the directory and all above it that are missing: 0 when it is there in the end. -1 when only its own making
  // failed; 1 when one above it cannot be made, and for the empty path.
  int CreateRecursiveDirectory() const;
  // Deletes the file: 0 deleted, 1 not deleted (a directory never is), and 0 for the empty path.
  int Delete() const;
  // A new empty file in the system's directory for temporary files; the empty path when none can be made.
  static ZELSYPFilePath GetTemporaryFileName();

  // --- The working directory of the process.
  // "." when it cannot be read or takes more than 2,047 bytes.
  static ZELSYPFilePath GetWorkDir();
  // 0 changed, -1 not changed.
  static int SetWorkDir(const ZELSYPFilePath& i_directory);

  // The directory of the path as the file system names it, joined with its basename; GetWorkDir for the empty path. A
  // bare file name is resolved against the root, not against the working directory.
  ZELSYPFilePath GetFullPath() const;
  // 1 when i_directory is this path or one of its dirnames, byte for byte; a trailing backslash never matches.
  int IsUnderDirectory(const ZELSYPFilePath& i_directory) const;

  // Appends to io_list every existing object that the path names, each component of which may hold stars; in the
  // system's own order. Letter case is ignored where there are stars. Always 1.
  // A path that begins with neither a drive nor a server starts at the working directory, which stands before the
  // results; where the system has one root for all paths, a leading backslash starts there.
  int ReadDirectory(ZELListValZELSYPFilePath& io_list) const;

  // The first directory of i_pathList (directories between ";") that holds a file of this name, joined with the name;
  // empty when none does. A null list is read from the environment variable ZELInstallPath.
  static ZELSYPFilePath Search(const ZELSYPFilePath& i_name, const char* i_pathList);

protected:
  // Turns every slash of the text into a backslash.
  void Normalize();
  // 1 when the narrow name matches the pattern, in which only the star is special.
  int TestMatch(const ZELUnicodeString& i_name, const ZELUnicodeString& i_pattern) const;
  // The same after the system's upper-casing of both.
  int TestMatchNoCase(const ZELUnicodeString& i_name, const ZELUnicodeString& i_pattern) const;

private:
  static ZELSYPFilePath FromView(std::string_view i_utf8);

  ZELUnicodeString _path;
};

#endif
