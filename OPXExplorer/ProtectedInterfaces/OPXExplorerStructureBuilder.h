// OPXExplorerStructureBuilder: the nodes below a directory, level by level, as much of them as an answer may hold.
// nlohmann::json node = OPXExplorerStructureBuilder(directory, sortModel).Build("usr", 2);
//
// Every node is {"stringIdentifier": id, "numberOfChildren": count}; one that is expanded has "children" besides. A
// directory whose entries do not all fit, or that may not be read, is not expanded.
#ifndef OPXExplorerStructureBuilder_H
#define OPXExplorerStructureBuilder_H

#include "OPXExplorerListing.h"
#include "ZELSysRootedDirectory.h"

#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

class OPXExplorerStructureBuilder
{
public:
  static constexpr std::size_t MaxNodes = 10000;
  static constexpr int MaxLevels = 32;

  // The directory is borrowed for the life of the builder.
  OPXExplorerStructureBuilder(const ZELSysRootedDirectory& i_directory, OPXExplorerListing::SortModel i_sortModel);

  // The directory's own node. i_levels: how many levels to expand below it; -2 (not stated) stands for one, any other
  // negative number for as many as there are.
  nlohmann::json Build(const std::string& i_id, int i_levels);

private:
  // A directory's node and the names that lead to it.
  struct Place
  {
    nlohmann::json* pNode;
    std::vector<std::string> path;
  };
  using Level = std::vector<Place>;

  Level ExpandLevel(const Level& i_level);
  void Expand(const Place& i_place, Level& io_nextLevel);
  nlohmann::json MakeChild(const ZELSysRootedDirectory& i_directory, const OPXExplorerListing::Entry& i_entry) const;

  const ZELSysRootedDirectory& _directory;
  OPXExplorerListing::SortModel _sortModel;
  std::size_t _nodesLeft = MaxNodes;
};

#endif
