// ZELSysFile: one open of an existing file, for one question about it; closed when it goes.
// ZELSysFile file("C:\\data\\x", ZELSysFile::Read); if (file.IsOpen()) { auto time = file.GetLastWriteTime(); }
//
// Opened without sharing, existing files only, normal attributes. Linux has no such sharing; there an open that cannot
// take the file's advisory lock fails in the same way.
#ifndef ZELSysFile_H
#define ZELSysFile_H

#include "OPXHostRuntimeExport.h"

#include <cstdint>

class OPXHOSTRUNTIME_EXPORT ZELSysFile
{
public:
  enum Mode
  {
    Read,
    Write
  };

  ZELSysFile(const char* i_path, Mode i_mode);
  ZELSysFile(const ZELSysFile&) = delete;
  ZELSysFile& operator=(const ZELSysFile&) = delete;
  ~ZELSysFile();

  bool IsOpen() const noexcept;
  // The low 32 bits of the size in bytes; 0xFFFFFFFF when the file is not open.
  std::uint32_t GetSizeLow() const;
  // 100-nanosecond intervals since 1601-01-01 UTC; 0 when the file is not open.
  std::uint64_t GetLastWriteTime() const;
  // Leaves creation and access times alone. False when it could not be set.
  bool SetLastWriteTime(std::uint64_t i_time);

private:
  std::intptr_t _handle;
};

#endif
