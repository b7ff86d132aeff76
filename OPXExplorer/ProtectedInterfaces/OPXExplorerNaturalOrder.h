// OPXExplorerNaturalOrder: the order in which a person expects names: file2 before FILE10.
// std::string key; OPXExplorerNaturalOrder::AppendKey("file10", key);
#ifndef OPXExplorerNaturalOrder_H
#define OPXExplorerNaturalOrder_H

#include <string>
#include <string_view>

class OPXExplorerNaturalOrder
{
public:
  // Appends a key such that names are in natural order when their keys are in the order of their bytes: case does not
  // count, and a run of digits counts as one number. Different names may have equal keys (a1, A1, a01). The key holds
  // no zero byte. i_name: UTF-8, broken bytes and all, without a zero byte.
  static void AppendKey(std::string_view i_name, std::string& io_text);
};

#endif
