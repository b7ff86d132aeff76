#include "OPXExplorerDirectorySource.h"

#include "OPXExplorerEntryID.h"
#include "OPXExplorerNodeID.h"
#include "OPXExplorerStructureBuilder.h"
#include "OPXExplorerTime.h"
#include "ZELSYPSelectionChangedEventArgs.h"

#include <algorithm>
#include <climits>
#include <stdexcept>
#include <utility>

namespace Records = ZELSYPDataSourceParameters;

namespace
{
// Of one answer, over all its requests: what is cut off can be asked for again.
constexpr int maxRows = 100000;

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

Records::SelectionChangeParameters MakeDeselection(Records::NodesPath i_nodes)
{
  if (i_nodes.ids.empty())
    return {std::vector<Records::IndexPath>(), std::move(i_nodes.indexPaths)};
  return {std::vector<std::string>(), std::move(i_nodes.ids)};
}

void EraseThoseIn(const std::set<std::string>& i_ids, std::vector<std::string>& io_ids)
{
  const auto isIn = [&i_ids](const std::string& i_id) { return i_ids.count(i_id) > 0; };
  io_ids.erase(std::remove_if(io_ids.begin(), io_ids.end(), isIn), io_ids.end());
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

void OPXExplorerDirectorySource::StartMessage()
{
  _cache.StartMessage();
}

Records::TreeNodesAnswerParameters OPXExplorerDirectorySource::RequestRows(const Records::TreeNodesRequestParameters& i_request)
{
  std::vector<std::vector<Row>> rows;
  std::vector<int> totals;
  std::vector<int> notFound;
  int room = maxRows;
  const OPXExplorerListing::SortModel sortModel = i_request.GetSortModel();
  for (int i = 0; i < i_request.GetRequestCount(); ++i)
  {
    const int first = std::max(i_request.GetFirstNodeIndex(i), 0);
    const int last = std::min(i_request.GetLastNodeIndex(i), first > INT_MAX - room ? INT_MAX : first + room);
    Block block = TryReadBlock(i_request.GroupKeys(i), first, last, sortModel);
    room -= static_cast<int>(block.rows.size());
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

// A directory that breaks off while it is listed counts as not found, so that the other requests keep their rows.
OPXExplorerDirectorySource::Block OPXExplorerDirectorySource::TryReadBlock(const Path& i_path, int i_first, int i_last,
                                                                           const OPXExplorerListing::SortModel& i_sortModel)
{
  try
  {
    return ReadBlock(i_path, i_first, i_last, i_sortModel);
  }
  catch (const std::runtime_error&)
  {
    return {};
  }
}

OPXExplorerDirectorySource::Block OPXExplorerDirectorySource::ReadBlock(const Path& i_path, int i_first, int i_last,
                                                                        const OPXExplorerListing::SortModel& i_sortModel)
{
  Block block;
  const ZELSysRootedDirectory directory = Find(i_path);
  if (!directory.IsOpen())
    return block;
  const std::shared_ptr<OPXExplorerListing> pListing = _cache.GetListing(directory);
  const OPXExplorerListing::Order& order = pListing->GetOrder(i_sortModel, directory, i_first == 0);
  block.isFound = true;
  block.total = static_cast<int>(order.size());
  const int last = std::min(i_last, block.total);
  for (int i = i_first; i < last; ++i)
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

void OPXExplorerDirectorySource::RequestModelCollapseExpand(const Records::ModelCollapseExpandParameters& i_change,
                                                            ModelCollapseExpandCallback i_callback)
{
  std::vector<Path> collapsed;
  std::vector<Path> expanded;
  for (const Path& path : i_change.GetPathIdsToExpand())
    if (!Find(path).IsOpen())
      collapsed.push_back(path);
  i_callback(Records::ModelCollapseExpandAnswerParameters(collapsed, expanded));
}

void OPXExplorerDirectorySource::RequestSelectionChange(const Records::SelectionChangeParameters& i_change,
                                                        SelectionChangeCallback i_callback)
{
  std::vector<std::string> added;
  std::vector<std::string> removed;
  Records::NodesPath refused;
  const std::set<std::string> before = _selection;
  for (const std::string& id : i_change.GetRemovedNodes().ids)
    Deselect(id, removed);
  const auto removedIDs = FindIDs(i_change.GetRemovedNodes().indexPaths);
  const auto addedIDs = FindIDs(i_change.GetAddedNodes().indexPaths);
  for (const Records::IndexPath& path : i_change.GetRemovedNodes().indexPaths)
    Deselect(removedIDs.at(path), removed);
  for (const std::string& id : i_change.GetAddedNodes().ids)
    if (!Select(id, added))
      refused.ids.push_back(id);
  for (const Records::IndexPath& path : i_change.GetAddedNodes().indexPaths)
    if (!Select(addedIDs.at(path), added))
      refused.indexPaths.push_back(path);
  // What went and came back is as it was.
  EraseThoseIn(before, added);
  EraseThoseIn(_selection, removed);
  i_callback(MakeDeselection(std::move(refused)));
  RaiseSelectionChanged(std::move(added), std::move(removed));
}

bool OPXExplorerDirectorySource::IsNode(const std::string& i_id) const
{
  Path path = OPXExplorerNodeID::GetEntryIDs(i_id);
  const std::string name = OPXExplorerEntryID::GetName(path.back());
  path.pop_back();
  const ZELSysRootedDirectory directory = Find(path);
  ZELSysRootedDirectory::Details details;
  return directory.IsOpen() && directory.GetDetails(name, details);
}

std::string OPXExplorerDirectorySource::FindID(const Records::IndexPath& i_path)
{
  Path path;
  for (const int index : i_path)
  {
    const int next = index < INT_MAX ? index + 1 : index;
    const Block block = index < 0 ? Block() : TryReadBlock(path, index, next, {});
    if (block.rows.empty())
      return {};
    path.push_back(block.rows[0].GetID());
  }
  return OPXExplorerNodeID::Make(path);
}

// In the order of the paths: those of one directory stand together, so that it is not forgotten and listed again between.
std::map<Records::IndexPath, std::string> OPXExplorerDirectorySource::FindIDs(const std::vector<Records::IndexPath>& i_paths)
{
  std::map<Records::IndexPath, std::string> ids;
  for (const Records::IndexPath& path : i_paths)
    ids.emplace(path, std::string());
  for (auto& [path, id] : ids)
    id = FindID(path);
  return ids;
}

bool OPXExplorerDirectorySource::Select(const std::string& i_id, std::vector<std::string>& io_added)
{
  if (_selection.count(i_id) > 0)
    return true;
  if (_selection.size() == MaxSelected || !IsNode(i_id))
    return false;
  _selection.insert(i_id);
  io_added.push_back(i_id);
  return true;
}

void OPXExplorerDirectorySource::Deselect(const std::string& i_id, std::vector<std::string>& io_removed)
{
  if (_selection.erase(i_id) > 0)
    io_removed.push_back(i_id);
}

void OPXExplorerDirectorySource::RaiseSelectionChanged(std::vector<std::string> i_added, std::vector<std::string> i_removed)
{
  if (i_added.empty() && i_removed.empty())
    return;
  ZELSYPSelectionChangedEventArgs args(SelectionChanged(), {std::move(i_added), std::move(i_removed)}, nullptr);
  Dispatch(&args);
}
