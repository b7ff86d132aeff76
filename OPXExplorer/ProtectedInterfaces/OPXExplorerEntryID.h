// OPXExplorerEntryID: the id of a directory entry: its name, or what stands for a name that is no valid UTF-8.
// OPXExplorerEntryID::Make("caf\xE9") == "/caf%E9"
//
// No name can hold a slash, so that an id that begins with one stands for a name that is not UTF-8; there every byte
// beyond ASCII, and the percent sign, is written as % and two hexadecimal digits.
#ifndef OPXExplorerEntryID_H
#define OPXExplorerEntryID_H

#include <string>
#include <string_view>

class OPXExplorerEntryID
{
public:
  static std::string Make(std::string_view i_name);
  // The name that has exactly this id; empty, which no entry's name is, when there cannot be one.
  static std::string GetName(std::string_view i_id);
  // The name for a person: U+FFFD in place of what is no valid UTF-8.
  static std::string MakeDisplayName(std::string_view i_name);
};

#endif
