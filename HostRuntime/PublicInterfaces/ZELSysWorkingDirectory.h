// ZELSysWorkingDirectory: remembers the working directory of the process and puts it back when it goes.
// { const ZELSysWorkingDirectory restored; ZELSysChangeDirectory("C:\\data"); }
//
// It remembers the directory, not its narrow name: one whose name is too long to read, is not in the system code page
// or holds a backslash of its own is put back as well, and so is one that was renamed meanwhile (Linux). The working
// directory belongs to the process: no other thread may depend on it meanwhile.
#ifndef ZELSysWorkingDirectory_H
#define ZELSysWorkingDirectory_H

#include "OPXHostRuntimeExport.h"

#include <memory>

class OPXHOSTRUNTIME_EXPORT ZELSysWorkingDirectory
{
public:
  ZELSysWorkingDirectory();
  ZELSysWorkingDirectory(const ZELSysWorkingDirectory&) = delete;
  ZELSysWorkingDirectory& operator=(const ZELSysWorkingDirectory&) = delete;
  ~ZELSysWorkingDirectory();

private:
  struct Place;
  std::unique_ptr<Place> _pPlace;
};

#endif
