// TemporaryTree: a directory of a test's own in the system's temporary directory; it goes with all that is in it.
// TemporaryTree tree; tree.AddFile("a/b.txt"); EXPECT_TRUE(ZELSYPFilePath(tree.Path("a\\b.txt").c_str()).IsFile());
//
// When it goes, the working directory is put back to what it was when it was made, and the tree is deleted whatever the
// test did to it, read-only and unreadable parts included. Trees never meet, not even in programs that run at the same
// time. Names are UTF-8; on Linux they may be any bytes.
#ifndef TemporaryTree_H
#define TemporaryTree_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

class TemporaryTree
{
public:
  // Throws std::filesystem::filesystem_error when it cannot be made.
  explicit TemporaryTree(const std::filesystem::path& i_folder = std::filesystem::temp_directory_path());
  TemporaryTree(const TemporaryTree&) = delete;
  TemporaryTree& operator=(const TemporaryTree&) = delete;
  ~TemporaryTree();

  // As the library writes paths, with a drive on every platform: C:\tmp\opx-tree-12-0\a. Backslashes part the names of
  // i_inside; empty: the tree itself.
  std::string Path(std::string_view i_inside = {}) const;
  // As the system takes paths.
  std::filesystem::path SystemPath(std::string_view i_inside = {}) const;

  // Makes what is missing above as well. Returns SystemPath.
  std::filesystem::path AddDirectory(std::string_view i_inside);
  std::filesystem::path AddFile(std::string_view i_inside, std::string_view i_content = {});
  // A file that takes no room on the disk, whatever its size in bytes.
  void AddSparseFile(std::string_view i_inside, std::uint64_t i_size);
  // 100-nanosecond intervals since 1601-01-01 UTC. Throws std::runtime_error when it cannot be set.
  void SetTime(std::string_view i_inside, std::uint64_t i_time);
  // Takes the right to write from everybody; a second call with false gives it back.
  void SetReadOnly(std::string_view i_inside, bool i_readOnly = true);

private:
  void GiveAllRightsBack() noexcept;

  std::filesystem::path _before;
  std::filesystem::path _root;
};

#endif
