// ZELListValZELSYPFilePath: an ordered list of paths with positions from 1; it owns copies of what it is given.
// ZELListValZELSYPFilePath files; ZELSYPFilePath("C:\\data\\*.txt").ReadDirectory(files); files.QuickSort(&ZELSYPFilePath::Compare);
//
// One list belongs to one thread. A position that does not exist is reported by the host's collection (one line on the
// standard error stream) and changes nothing.
#ifndef ZELListValZELSYPFilePath_H
#define ZELListValZELSYPFilePath_H

#include "OPXCoreToolsExport.h"
#include "ZELRawCollPV.h"
#include "ZELSYPFilePath.h"

class OPXCORETOOLS_EXPORT ZELListValZELSYPFilePath
{
public:
  typedef ZELRawCollPV::MemoryHandling MemoryHandling;

  ZELListValZELSYPFilePath() = default;
  // Room for i_capacity paths; negative counts as 0.
  explicit ZELListValZELSYPFilePath(int i_capacity);
  ZELListValZELSYPFilePath(const ZELListValZELSYPFilePath& i_other);
  ZELListValZELSYPFilePath& operator=(const ZELListValZELSYPFilePath& i_other);
  ~ZELListValZELSYPFilePath();

  int Size() const noexcept { return _paths.Size(); }
  void Append(const ZELSYPFilePath& i_path);
  // Later ones move down.
  void RemovePosition(int i_position);
  void RemoveAll(MemoryHandling i_memory = ZELRawCollPV::ReleaseMemory);

  // The path at the position, owned by the list and valid until it is removed. For a position that does not exist: an
  // empty path that is in no list.
  ZELSYPFilePath& operator[](int i_position);
  const ZELSYPFilePath& operator[](int i_position) const;

  // In place. The function answers below, at or above 0 as its first path goes before, with or after its second;
  // null leaves the order as it is.
  void QuickSort(int (*i_compare)(ZELSYPFilePath*, ZELSYPFilePath*));

  // By ZELSYPFilePath::operator==, which ignores letter case, path by path. 1 or 0.
  int operator==(const ZELListValZELSYPFilePath& i_other) const;
  int operator!=(const ZELListValZELSYPFilePath& i_other) const;

private:
  ZELSYPFilePath* At(int i_position) const { return static_cast<ZELSYPFilePath*>(_paths[i_position]); }
  ZELSYPFilePath& AtOrNowhere(int i_position) const;
  void AppendAll(const ZELListValZELSYPFilePath& i_other);

  ZELRawCollPV _paths;
};

#endif
