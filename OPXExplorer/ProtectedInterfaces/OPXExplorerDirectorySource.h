// OPXExplorerDirectorySource: the tree below one directory of the file system, as a tree session asks for it.
// OPXExplorerDirectorySource source(ZELSysRootedDirectory(path)); OPXTreeSession session(source);
//
// A group key is an entry's id. Nothing outside the directory is served, and no link is followed: a key that is no id of
// an entry, or whose entry is no directory that may be read, is not found.
#ifndef OPXExplorerDirectorySource_H
#define OPXExplorerDirectorySource_H

#include "OPXExplorerListingCache.h"
#include "OPXTreeDataSource.h"
#include "ZELSysRootedDirectory.h"

#include <string>
#include <vector>

class OPXExplorerDirectorySource : public OPXTreeDataSource
{
public:
  explicit OPXExplorerDirectorySource(ZELSysRootedDirectory i_root);

  // Rows: "id", "name", "kind" ("directory", "file", "link", "other"), "size" in bytes, "modified" in ISO 8601, UTC;
  // the last two are missing when the entry has gone since. A range is from its first row to before its last and is
  // clipped to the rows there are.
  ZELSYPDataSourceParameters::TreeNodesAnswerParameters
  RequestRows(const ZELSYPDataSourceParameters::TreeNodesRequestParameters& i_request) override;

  // As OPXExplorerStructureBuilder bounds it.
  ZELSYPDataSourceParameters::TreeNodesModelStructureAnswerParameters
  RequestStructure(const ZELSYPDataSourceParameters::TreeNodesModelStructureParameters& i_request) override;

  // Wants collapsed again what was expanded and is no directory that can be read.
  ZELSYPDataSourceParameters::ModelCollapseExpandAnswerParameters
  RequestCollapseExpand(const ZELSYPDataSourceParameters::ModelCollapseExpandParameters& i_change) override;

private:
  using Path = std::vector<std::string>;
  using Row = ZELSYPDataSourceParameters::TreeNodeProperties;
  struct Block;

  // Not open when the path is not found.
  ZELSysRootedDirectory Find(const Path& i_path) const;
  Block TryReadBlock(const Path& i_path, int i_first, int i_last, const OPXExplorerListing::SortModel& i_sortModel);
  Block ReadBlock(const Path& i_path, int i_first, int i_last, const OPXExplorerListing::SortModel& i_sortModel);

  ZELSysRootedDirectory _root;
  OPXExplorerListingCache _cache;
};

#endif
