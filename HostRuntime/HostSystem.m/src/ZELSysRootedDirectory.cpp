#include "ZELSysRootedDirectory.h"

ZELSysRootedDirectory ZELSysRootedDirectory::OpenDescendant(const std::vector<std::string>& i_names) const
{
  ZELSysRootedDirectory directory = Duplicate();
  for (auto name = i_names.begin(); name != i_names.end() && directory.IsOpen(); ++name)
    directory = directory.OpenDirectory(*name);
  return directory;
}
