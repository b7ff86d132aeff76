// Every tree record is made from whatever bytes come, and what it writes is what it computes.
// TreeRecords_fuzz fuzz/corpus/TreeRecords
#include "Require.h"
#include "ZELSYPDataSourceParameters.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace
{
using namespace ZELSYPDataSourceParameters;
using nlohmann::json;

// A type error is a record's answer to a message of the wrong types.
template <typename Call>
void AllowTypeErrors(Call i_call)
{
  try
  {
    i_call();
  }
  catch (const json::type_error&)
  {
  }
}

template <typename Record>
void RequireSameText(const Record& i_record)
{
  std::string text;
  i_record.WriteJSON(text);
  Require(text == i_record.ComputeJSON().dump(), "the text that is written is that of the value");
}

void ReadNode(const json& i_json)
{
  const TreeNodeProperties node(i_json);
  Require(node == TreeNodeProperties(node.GetID(), node.GetProperties(), node.HasChildren(), 1) || !node.GetIndexPath().empty(),
          "a node is equal to one made of its members");
  const TreeNodesAnswerParameters answer({{node, node}}, {2});
  const std::string before = answer.ComputeJSON().dump();
  RequireSameText(answer);
  Require(TreeNodesAnswerParameters(answer).TakeJSON().dump() == before, "the value that is taken is the one computed");
}

void ReadRequest(const json& i_json)
{
  const TreeNodesRequestParameters request(i_json);
  for (int index = -1; index <= request.GetRequestCount(); ++index)
    Require(request.GroupKeys(index).empty() || (index >= 0 && index < request.GetRequestCount()), "keys belong to a request");
}

void ReadPaths(const json& i_json)
{
  const ModelCollapseExpandParameters message(i_json);
  auto collapse = message.GetPathIdsToCollapse();
  auto expand = message.GetPathIdsToExpand();
  RequireSameText(ModelCollapseExpandAnswerParameters(collapse, expand));
}

void ReadSelection(const json& i_json)
{
  const SelectionChangeParameters change(i_json);
  RequireSameText(change);
  const json again = change.ComputeJSON();
  Require(again.empty() || SelectionChangeParameters(again).ComputeJSON() == again, "a selection that is read back is the same");
}

void ReadModelChange(const json& i_json)
{
  const ModelChangeParameters change(i_json);
  Require(change.ComputeJSON()["nodes"].size() == change.GetTreeNodesProperties().size(), "every node is written");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* i_pData, std::size_t i_size)
{
  const json message = json::parse(i_pData, i_pData + i_size, nullptr, false);
  AllowTypeErrors([&message] { ReadNode(message); });
  AllowTypeErrors([&message] { SortAttributeModel model(message); });
  AllowTypeErrors([&message] { ReadRequest(message); });
  AllowTypeErrors([&message] { RequireSameText(TreeNodesModelStructureAnswerParameters(message)); });
  AllowTypeErrors([&message] { ReadPaths(message); });
  AllowTypeErrors([&message] { ReadSelection(message); });
  AllowTypeErrors([&message] { ReadModelChange(message); });
  AllowTypeErrors([&message] { PointerEventParameters event(message); });
  return 0;
}
