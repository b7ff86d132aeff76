#include "TemporaryTree.h"

#include "SparseFile.h"
#include "ZELProcess.h"
#include "ZELSysFile.h"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace fs = std::filesystem;

// The first name that nobody has; a name left behind by a program with the same number is passed over.
static fs::path MakeOwnDirectory(const fs::path& i_folder)
{
  static std::atomic<int> number{0};
  const std::string stem = "opx-tree-" + std::to_string(ZELGetProcessId()) + "-";
  const fs::path folder = fs::canonical(i_folder);
  for (;;)
    if (const fs::path root = folder / (stem + std::to_string(number++)); fs::create_directory(root))
      return root;
}

TemporaryTree::TemporaryTree(const fs::path& i_folder) : _before(fs::current_path()), _root(MakeOwnDirectory(i_folder)) {}

TemporaryTree::~TemporaryTree()
{
  std::error_code ignored;
  fs::current_path(_before, ignored);
  GiveAllRightsBack();
  fs::remove_all(_root, ignored);
}

void TemporaryTree::GiveAllRightsBack() noexcept
{
  std::error_code ignored;
  std::vector<fs::path> directories{_root};
  while (!directories.empty())
  {
    const fs::path directory = std::move(directories.back());
    directories.pop_back();
    fs::permissions(directory, fs::perms::owner_all, fs::perm_options::add, ignored);
    for (const auto& entry : fs::directory_iterator(directory, ignored))
      if (entry.is_symlink(ignored))
        continue;
      else if (entry.is_directory(ignored))
        directories.push_back(entry.path());
      else
        fs::permissions(entry.path(), fs::perms::owner_write, fs::perm_options::add, ignored);
  }
}

std::string TemporaryTree::Path(std::string_view i_inside) const
{
  std::string text = _root.u8string();
  std::replace(text.begin(), text.end(), '/', '\\');
  if (text.front() == '\\')
    text.insert(0, "C:");
  return i_inside.empty() ? text : text + '\\' + std::string(i_inside);
}

fs::path TemporaryTree::SystemPath(std::string_view i_inside) const
{
  std::string text(i_inside);
  std::replace(text.begin(), text.end(), '\\', '/');
  return text.empty() ? _root : _root / fs::u8path(text);
}

fs::path TemporaryTree::AddDirectory(std::string_view i_inside)
{
  const fs::path path = SystemPath(i_inside);
  fs::create_directories(path);
  return path;
}

fs::path TemporaryTree::AddFile(std::string_view i_inside, std::string_view i_content)
{
  const fs::path path = SystemPath(i_inside);
  fs::create_directories(path.parent_path());
  if (!(std::ofstream(path, std::ios::binary) << i_content << std::flush))
    throw std::runtime_error("cannot write " + path.u8string());
  return path;
}

void TemporaryTree::AddSparseFile(std::string_view i_inside, std::uint64_t i_size)
{
  MakeSparse(AddFile(i_inside), i_size);
}

void TemporaryTree::SetTime(std::string_view i_inside, std::uint64_t i_time)
{
  ZELSysFile file(Path(i_inside).c_str(), ZELSysFile::Write);
  if (!file.IsOpen() || !file.SetLastWriteTime(i_time))
    throw std::runtime_error("cannot set the time of " + Path(i_inside));
}

void TemporaryTree::SetReadOnly(std::string_view i_inside, bool i_readOnly)
{
  const auto all = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  fs::permissions(SystemPath(i_inside), all, i_readOnly ? fs::perm_options::remove : fs::perm_options::add);
}
