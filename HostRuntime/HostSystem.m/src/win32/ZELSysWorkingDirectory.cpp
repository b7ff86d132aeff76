#include "ZELSysWorkingDirectory.h"

#include <cstdlib>
#include <direct.h>
#include <memory>

struct ZELSysWorkingDirectory::Place
{
  // As long as it takes.
  std::unique_ptr<wchar_t, decltype(&std::free)> name{_wgetcwd(nullptr, 0), &std::free};
};

ZELSysWorkingDirectory::ZELSysWorkingDirectory() : _pPlace(std::make_unique<Place>()) {}

ZELSysWorkingDirectory::~ZELSysWorkingDirectory()
{
  // The runtime library's call, which keeps the working directory of the drive as well.
  if (_pPlace->name)
    _wchdir(_pPlace->name.get());
}
