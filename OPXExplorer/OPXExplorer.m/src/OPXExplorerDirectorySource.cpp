#include "OPXExplorerDirectorySource.h"

#include "OPXExplorerEntryID.h"
#include "OPXExplorerStructureBuilder.h"
#include "OPXExplorerTime.h"

#include <algorithm>
#include <utility>

namespace Records = ZELSYPDataSourceParameters;

namespace
{
const char* GetKindName(ZELSysRootedDirectory::Kind i_kind)
{
  switch (i_kind)
  {
  case ZELSysRootedDirectory::Directory:
    return "directory";
  case ZELSysRootedDirectory::File:
    return "file";
  case ZELSysRootedDirectory::Link:
    return "link";
  case ZELSysRootedDirectory::Other:
    break;
  }
  return "other";
}

Records::TreeNodeProperties MakeRow(const OPXExplorerListing::Entry& i_entry, const ZELSysRootedDirectory& i_directory)
{
  std::string id = OPXExplorerEntryID::Make(i_entry.name);
  Records::Properties properties{
      {"id", id}, {"name", OPXExplorerEntryID::MakeDisplayName(i_entry.name)}, {"kind", GetKindName(i_entry.kind)}};
  ZELSysRootedDirectory::Details details;
  if (i_directory.GetDetails(i_entry.name, details))
  {
    properties["size"] = details.size;
    properties["modified"] = OPXExplorerTime::MakeISO8601(details.lastWriteTime);
  }
  return {std::move(id), std::move(properties), i_entry.kind == ZELSysRootedDirectory::Directory, -1};
}
} // namespace

// The rows of one request.
struct OPXExplorerDirectorySource::Block
{
  std::vector<Row> rows;
  int total = 0;
  bool isFound = false;
};

OPXExplorerDirectorySource::OPXExplorerDirectorySource(ZELSysRootedDirectory i_root) : _root(std::move(i_root)) {}

Records::TreeNodesAnswerParameters OPXExplorerDirectorySource::RequestRows(const Records::TreeNodesRequestParameters& i_request)
{
  std::vector<std::vector<Row>> rows;
  std::vector<int> totals;
  std::vector<int> notFound;
  const OPXExplorerListing::SortModel sortModel = i_request.GetSortModel();
  for (int i = 0; i < i_request.GetRequestCount(); ++i)
  {
    Block block = ReadBlock(i_request.GroupKeys(i), i_request.GetFirstNodeIndex(i), i_request.GetLastNodeIndex(i), sortModel);
    rows.push_back(std::move(block.rows));
    totals.push_back(block.total);
    if (!block.isFound)
      notFound.push_back(i);
  }
  Records::TreeNodesAnswerParameters answer(std::move(rows), std::move(totals));
  for (const int request : notFound)
    answer.SetNodeAsNotFound(true, request);
  return answer;
}

OPXExplorerDirectorySource::Block OPXExplorerDirectorySource::ReadBlock(const Path& i_path, int i_first, int i_last,
                                                                        const OPXExplorerListing::SortModel& i_sortModel)
{
  Block block;
  const ZELSysRootedDirectory directory = Find(i_path);
  if (!directory.IsOpen())
    return block;
  const std::shared_ptr<OPXExplorerListing> pListing = _cache.GetListing(directory);
  const OPXExplorerListing::Order& order = pListing->GetOrder(i_sortModel, directory, i_first <= 0);
  block.isFound = true;
  block.total = static_cast<int>(order.size());
  const int last = std::min(i_last, block.total);
  for (int i = std::max(i_first, 0); i < last; ++i)
    block.rows.push_back(MakeRow(pListing->GetEntry(order[static_cast<std::size_t>(i)]), directory));
  return block;
}

ZELSysRootedDirectory OPXExplorerDirectorySource::Find(const Path& i_path) const
{
  Path names;
  for (const std::string& id : i_path)
    names.push_back(OPXExplorerEntryID::GetName(id));
  return _root.OpenDescendant(names);
}

Records::TreeNodesModelStructureAnswerParameters
OPXExplorerDirectorySource::RequestStructure(const Records::TreeNodesModelStructureParameters& i_request)
{
  const Path path = i_request.GroupKeys(0);
  const ZELSysRootedDirectory directory = Find(path);
  if (!directory.IsOpen())
    return {};
  OPXExplorerStructureBuilder builder(directory, i_request.GetSortModel());
  return Records::TreeNodesModelStructureAnswerParameters(
      builder.Build(path.empty() ? std::string() : path.back(), i_request.GetExpandNbLevels()));
}

Records::ModelCollapseExpandAnswerParameters
OPXExplorerDirectorySource::RequestCollapseExpand(const Records::ModelCollapseExpandParameters& i_change)
{
  std::vector<Path> collapsed;
  std::vector<Path> expanded;
  for (const Path& path : i_change.GetPathIdsToExpand())
    if (!Find(path).IsOpen())
      collapsed.push_back(path);
  return Records::ModelCollapseExpandAnswerParameters(collapsed, expanded);
}
