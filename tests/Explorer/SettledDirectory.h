// SettledDirectory: directories whose last change lies so far back that their listings may be remembered.
// WaitUntilSettled(tree.SystemPath()); cache.GetListing(Open(tree.SystemPath()));
#ifndef SettledDirectory_H
#define SettledDirectory_H

#include "ZELSysRootedDirectory.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

inline ZELSysRootedDirectory Open(const std::filesystem::path& i_path)
{
  return ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(i_path.u8string()));
}

inline void WaitUntilSettled(const std::filesystem::path& i_path)
{
  const ZELSysRootedDirectory directory = Open(i_path);
  for (int i = 0; i < 500 && !directory.GetStamp().isSettled; ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  ASSERT_TRUE(directory.GetStamp().isSettled);
}

#endif
