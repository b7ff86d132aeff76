// OPXExplorerNodeID: a node of the tree named by one text: the ids that lead to it from the top level down, parted by slashes.
// OPXExplorerNodeID::Make({"music", "live"}) == "music/live"
//
// No name holds a slash, and an entry's id holds none but at its start (see OPXExplorerEntryID), so that the text can be
// read in one way only: "music//caf%E9" is "music" and "/caf%E9".
#ifndef OPXExplorerNodeID_H
#define OPXExplorerNodeID_H

#include <string>
#include <string_view>
#include <vector>

class OPXExplorerNodeID
{
public:
  // Empty for the top, which is no node.
  static std::string Make(const std::vector<std::string>& i_entryIDs);
  // Never empty: any text names something that may be there or not.
  static std::vector<std::string> GetEntryIDs(std::string_view i_id);
};

#endif
