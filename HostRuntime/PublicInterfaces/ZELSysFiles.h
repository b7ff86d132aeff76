// The system's files, as the narrow view of a path names them: attributes, directories, deletion, names.
// int attributes = ZELSysGetFileAttributes("C:\\data\\x");
//
// A path is a text with backslashes. On Windows it goes to the system as it is. On Linux a backslash becomes a slash, a
// drive prefix (C:) names the root of the one file tree, and the bytes are otherwise handed on untouched. Null paths
// fail. No operation throws.
#ifndef ZELSysFiles_H
#define ZELSysFiles_H

#include "OPXHostRuntimeExport.h"
#include "ZELUnicodeString.h"

// Bits of an attribute answer.
enum ZELSysFileAttribute
{
  ZELSysFileReadOnly = 0x1,
  ZELSysFileDirectory = 0x10
};

// The attribute bits, or -1 when there is no such object. The second form asks by the wide name.
OPXHOSTRUNTIME_EXPORT int ZELSysGetFileAttributes(const char* i_path);
OPXHOSTRUNTIME_EXPORT int ZELSysGetFileAttributesWide(const ZELUnicodeString& i_path);

// The runtime library's own answers: 0 on success, -1 on failure.
OPXHOSTRUNTIME_EXPORT int ZELSysMakeDirectory(const char* i_path);
OPXHOSTRUNTIME_EXPORT int ZELSysChangeDirectory(const char* i_path);
// The current directory with backslashes, as long as it takes fewer than i_size bytes; false when it cannot be read.
OPXHOSTRUNTIME_EXPORT bool ZELSysGetCurrentDirectory(char* o_buffer, int i_size);

// Whether all paths hang from one root, which a leading backslash names (Linux); otherwise each drive has its own.
OPXHOSTRUNTIME_EXPORT bool ZELSysHasOneRoot();

// True when the file was deleted. Directories are not.
OPXHOSTRUNTIME_EXPORT bool ZELSysDeleteFile(const char* i_path);

// The system's directory for temporary files, and a new empty file in it whose name begins as the system's service
// makes it of i_prefix. Empty when it cannot be made.
OPXHOSTRUNTIME_EXPORT ZELUnicodeString ZELSysGetTemporaryDirectory();
OPXHOSTRUNTIME_EXPORT ZELUnicodeString ZELSysMakeTemporaryFile(const ZELUnicodeString& i_directory, const char* i_prefix);

#endif
