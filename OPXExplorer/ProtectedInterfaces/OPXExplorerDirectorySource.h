// OPXExplorerDirectorySource: the tree below one directory of the file system, as a tree session asks for it.
// OPXExplorerDirectorySource source{ZELSysRootedDirectory(path)}; OPXTreeSession session(source);
//
// A group key is an entry's id. Nothing outside the directory is served, and no link is followed: a key that names no
// entry, or whose entry is no directory that may be read, is not found. What names an entry is for the file system to say:
// where that makes no difference between "a" and "A", both do.
#ifndef OPXExplorerDirectorySource_H
#define OPXExplorerDirectorySource_H

#include "OPXExplorerListingCache.h"
#include "OPXTreeRowsSource.h"
#include "ZELSYPAbstractDataSource.h"
#include "ZELSysRootedDirectory.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

class OPXExplorerDirectorySource : public ZELSYPAbstractDataSource, public OPXTreeRowsSource
{
public:
  // That can be selected at a time.
  static constexpr std::size_t MaxSelected = 10000;

  explicit OPXExplorerDirectorySource(ZELSysRootedDirectory i_root);

  // Within one message each directory is listed once, and its sizes and times are asked once for an order.
  void StartMessage() override;

  // Rows: "id", "name", "kind" ("directory", "file", "link", "other"), "size" in bytes, "modified" in ISO 8601, UTC;
  // the last two are missing when the entry has gone since. A range is from its first row to before its last and is
  // clipped to the rows there are.
  ZELSYPDataSourceParameters::TreeNodesAnswerParameters
  RequestRows(const ZELSYPDataSourceParameters::TreeNodesRequestParameters& i_request) override;

  // As OPXExplorerStructureBuilder bounds it.
  ZELSYPDataSourceParameters::TreeNodesModelStructureAnswerParameters
  RequestStructure(const ZELSYPDataSourceParameters::TreeNodesModelStructureParameters& i_request) override;

  // Wants collapsed again what was expanded and is no directory that can be read.
  void RequestModelCollapseExpand(const ZELSYPDataSourceParameters::ModelCollapseExpandParameters& i_change,
                                  ModelCollapseExpandCallback i_callback) override;

  // Keeps the selection. A node is named by its OPXExplorerNodeID, or by its place in the order without a sort model. Wants
  // deselected again what was added and is not there, or beyond MaxSelected. Then, when the selection has become another
  // one, raises SelectionChanged with the ids of the nodes that came and went.
  void RequestSelectionChange(const ZELSYPDataSourceParameters::SelectionChangeParameters& i_change,
                              SelectionChangeCallback i_callback) override;

private:
  using Path = std::vector<std::string>;
  using Row = ZELSYPDataSourceParameters::TreeNodeProperties;
  struct Block;

  // Not open when the path is not found.
  ZELSysRootedDirectory Find(const Path& i_path) const;
  Block TryReadBlock(const Path& i_path, int i_first, int i_last, const OPXExplorerListing::SortModel& i_sortModel);
  Block ReadBlock(const Path& i_path, int i_first, int i_last, const OPXExplorerListing::SortModel& i_sortModel);

  bool IsNode(const std::string& i_id) const;
  // Empty when there is no such node.
  std::string FindID(const ZELSYPDataSourceParameters::IndexPath& i_path);
  std::map<ZELSYPDataSourceParameters::IndexPath, std::string> FindIDs(const std::vector<ZELSYPDataSourceParameters::IndexPath>& i_paths);
  // False when it cannot be selected.
  bool Select(const std::string& i_id, std::vector<std::string>& io_added);
  void Deselect(const std::string& i_id, std::vector<std::string>& io_removed);
  void RaiseSelectionChanged(std::vector<std::string> i_added, std::vector<std::string> i_removed);

  ZELSysRootedDirectory _root;
  OPXExplorerListingCache _cache;
  // The ids of nodes.
  std::set<std::string> _selection;
};

#endif
