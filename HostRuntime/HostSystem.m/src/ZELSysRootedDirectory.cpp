#include "ZELSysRootedDirectory.h"

#include <utility>

ZELSysRootedDirectory::ZELSysRootedDirectory(std::intptr_t i_handle) noexcept : _handle(i_handle) {}

ZELSysRootedDirectory::ZELSysRootedDirectory(ZELSysRootedDirectory&& io_other) noexcept : _handle(std::exchange(io_other._handle, NotOpen))
{
}

ZELSysRootedDirectory& ZELSysRootedDirectory::operator=(ZELSysRootedDirectory&& io_other) noexcept
{
  std::swap(_handle, io_other._handle);
  return *this;
}

bool ZELSysRootedDirectory::IsOpen() const noexcept
{
  return _handle != NotOpen;
}

ZELSysRootedDirectory ZELSysRootedDirectory::OpenDescendant(const std::vector<std::string>& i_names) const
{
  ZELSysRootedDirectory directory = Duplicate();
  for (auto name = i_names.begin(); name != i_names.end() && directory.IsOpen(); ++name)
    directory = directory.OpenDirectory(*name);
  return directory;
}
