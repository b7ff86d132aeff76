#include "OPXExplorerNodeID.h"

#include <cstddef>

std::string OPXExplorerNodeID::Make(const std::vector<std::string>& i_entryIDs)
{
  std::string id;
  for (const std::string& entryID : i_entryIDs)
    id += (id.empty() ? "" : "/") + entryID;
  return id;
}

std::vector<std::string> OPXExplorerNodeID::GetEntryIDs(std::string_view i_id)
{
  std::vector<std::string> entryIDs;
  // The first character of an entry's id parts nothing.
  for (std::size_t separator; (separator = i_id.find('/', 1)) != std::string_view::npos; i_id.remove_prefix(separator + 1))
    entryIDs.emplace_back(i_id.substr(0, separator));
  entryIDs.emplace_back(i_id);
  return entryIDs;
}
