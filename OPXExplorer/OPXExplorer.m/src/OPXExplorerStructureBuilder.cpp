#include "OPXExplorerStructureBuilder.h"

#include "OPXExplorerEntryID.h"

#include <algorithm>
#include <utility>

namespace
{
std::size_t CountEntries(const ZELSysRootedDirectory& i_directory)
{
  std::size_t count = 0;
  if (i_directory.IsOpen())
    i_directory.ForEachEntry([&count](std::string_view, ZELSysRootedDirectory::Kind) { ++count; });
  return count;
}

nlohmann::json MakeNode(std::string i_id, std::size_t i_childCount)
{
  return {{"stringIdentifier", std::move(i_id)}, {"numberOfChildren", i_childCount}};
}

int BoundLevels(int i_levels)
{
  constexpr int notStated = -2;
  if (i_levels == notStated)
    return 1;
  return i_levels < 0 ? OPXExplorerStructureBuilder::MaxLevels : std::min(i_levels, OPXExplorerStructureBuilder::MaxLevels);
}
} // namespace

OPXExplorerStructureBuilder::OPXExplorerStructureBuilder(const ZELSysRootedDirectory& i_directory,
                                                         OPXExplorerListing::SortModel i_sortModel)
    : _directory(i_directory), _sortModel(std::move(i_sortModel))
{
}

nlohmann::json OPXExplorerStructureBuilder::Build(const std::string& i_id, int i_levels)
{
  nlohmann::json root = MakeNode(i_id, CountEntries(_directory));
  Level level{{&root, {}}};
  for (int i = BoundLevels(i_levels); i > 0 && !level.empty(); --i)
    level = ExpandLevel(level);
  return root;
}

OPXExplorerStructureBuilder::Level OPXExplorerStructureBuilder::ExpandLevel(const Level& i_level)
{
  Level nextLevel;
  for (const Place& place : i_level)
    if ((*place.pNode)["numberOfChildren"] <= _nodesLeft)
      Expand(place, nextLevel);
  return nextLevel;
}

void OPXExplorerStructureBuilder::Expand(const Place& i_place, Level& io_nextLevel)
{
  // Opened anew from the top: a wide level would hold more directories open than a process may.
  const ZELSysRootedDirectory directory = _directory.OpenDescendant(i_place.path);
  if (!directory.IsOpen())
    return;
  OPXExplorerListing listing(directory);
  if (listing.GetCount() > _nodesLeft)
    return;
  _nodesLeft -= listing.GetCount();
  nlohmann::json& children = (*i_place.pNode)["children"] = nlohmann::json::array();
  children.get_ref<nlohmann::json::array_t&>().reserve(listing.GetCount());
  for (const std::uint32_t position : listing.GetOrder(_sortModel, directory, true))
  {
    const OPXExplorerListing::Entry entry = listing.GetEntry(position);
    children.push_back(MakeChild(directory, entry));
    if (entry.kind != ZELSysRootedDirectory::Directory)
      continue;
    io_nextLevel.push_back({&children.back(), i_place.path});
    io_nextLevel.back().path.emplace_back(entry.name);
  }
  (*i_place.pNode)["numberOfChildren"] = children.size();
}

nlohmann::json OPXExplorerStructureBuilder::MakeChild(const ZELSysRootedDirectory& i_directory,
                                                      const OPXExplorerListing::Entry& i_entry) const
{
  const bool isDirectory = i_entry.kind == ZELSysRootedDirectory::Directory;
  return MakeNode(OPXExplorerEntryID::Make(i_entry.name), isDirectory ? CountEntries(i_directory.OpenDirectory(i_entry.name)) : 0);
}
