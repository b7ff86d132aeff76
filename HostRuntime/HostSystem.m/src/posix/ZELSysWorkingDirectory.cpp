#include "ZELSysWorkingDirectory.h"

#include <climits>
#include <fcntl.h>
#include <unistd.h>

struct ZELSysWorkingDirectory::Place
{
  // O_PATH: a directory that may be entered but not listed is held as well.
  int directory = open(".", O_PATH | O_DIRECTORY | O_CLOEXEC);
  // For a process that has no descriptor left.
  char name[PATH_MAX];
  bool hasName = directory < 0 && getcwd(name, sizeof name);
};

ZELSysWorkingDirectory::ZELSysWorkingDirectory() : _pPlace(std::make_unique<Place>()) {}

ZELSysWorkingDirectory::~ZELSysWorkingDirectory()
{
  // Nobody is left to be told of a failure: the directory is gone for good.
  [[maybe_unused]] const bool isBack = fchdir(_pPlace->directory) == 0 || (_pPlace->hasName && chdir(_pPlace->name) == 0);
  if (_pPlace->directory >= 0)
    close(_pPlace->directory);
}
