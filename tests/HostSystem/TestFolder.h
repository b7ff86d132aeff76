// TestFolder: an empty folder of one test's own, removed with all it holds.
// TestFolder folder; folder.Write("a.txt", "text"); ZELSysGetFileAttributes(folder.Path("a.txt").c_str());
#ifndef TestFolder_H
#define TestFolder_H

#include "ZELProcess.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>

class TestFolder
{
public:
  TestFolder()
      : _folder(std::filesystem::temp_directory_path() /
                ("HostSystem_tests_" + std::to_string(ZELGetProcessId()) + "_" + std::to_string(NextNumber())))
  {
    std::filesystem::create_directory(_folder);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  ~TestFolder()
  {
    std::error_code ignored;
    std::filesystem::remove_all(_folder, ignored);
  }

  std::filesystem::path At(const std::string& i_name) const { return _folder / i_name; }
  // As the host's operations take it: with backslashes.
  std::string Path(const std::string& i_name) const
  {
    std::string path = At(i_name).string();
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
  }
  std::string Path() const { return Path("x").substr(0, Path("x").size() - 2); }
  void Write(const std::string& i_name, const std::string& i_text) const { std::ofstream(At(i_name), std::ios::binary) << i_text; }
  void MakeDirectory(const std::string& i_name) const { std::filesystem::create_directory(At(i_name)); }

private:
  static int NextNumber()
  {
    static std::atomic<int> last{0};
    return ++last;
  }

  std::filesystem::path _folder;
};

#endif
