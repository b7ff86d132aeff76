#include "ZELSYPDataSourceParameters.h"

#include "ZELSYPCheck.h"
#include "ZELSYPJSONTextWriter.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <limits>
#include <string_view>
#include <type_traits>

// The lines in the checks are those under which users have hidden them; they stay whatever happens to this file.

namespace ZELSYPDataSourceParameters
{
namespace
{
using Json = nlohmann::json;

// ---- Reading

// Out of range, the library's conversion of a fraction to an integer is undefined. This is what it gives in practice:
// the machine's smallest integer, cut to the width asked for.
template <typename Integer>
Integer TruncateNumber(double i_number)
{
  using Wide = std::conditional_t<std::is_signed_v<Integer>, Integer, std::int64_t>;
  constexpr Wide smallest = std::numeric_limits<Wide>::min();
  constexpr double low = static_cast<double>(smallest);
  const bool fits = i_number > low - 1 && i_number < -low;
  return static_cast<Integer>(fits ? static_cast<Wide>(i_number) : smallest);
}

template <typename Integer>
Integer ToInteger(const Json& i_value)
{
  return i_value.is_number_float() ? TruncateNumber<Integer>(i_value.get<double>()) : i_value.get<Integer>();
}

template <typename Element>
std::vector<Element> ToVector(const Json& i_list, Element (*i_convert)(const Json&))
{
  if (!i_list.is_array())
    static_cast<void>(i_list.get<std::vector<int>>()); // raises the type error
  std::vector<Element> result;
  result.reserve(i_list.size());
  std::transform(i_list.begin(), i_list.end(), std::back_inserter(result), i_convert);
  return result;
}

IndexPath ToIndexPath(const Json& i_path)
{
  return ToVector(i_path, ToInteger<int>);
}

IdsPath ToKeys(const Json& i_keys)
{
  return i_keys.is_array() ? i_keys.get<IdsPath>() : IdsPath();
}

using PendingCopies = std::vector<std::pair<const Json*, Json*>>;

void CopyChild(const Json& i_from, Json& o_to, PendingCopies& io_pending)
{
  if (i_from.is_structured())
    io_pending.emplace_back(&i_from, &o_to);
  else
    o_to = i_from;
}

void CopyArray(const Json& i_from, Json& o_to, PendingCopies& io_pending)
{
  o_to = Json::array_t(i_from.size());
  std::size_t position = 0;
  for (const Json& child : i_from)
    CopyChild(child, o_to[position++], io_pending);
}

void CopyObject(const Json& i_from, Json& o_to, PendingCopies& io_pending)
{
  o_to = Json::object_t();
  auto& members = *o_to.get_ptr<Json::object_t*>();
  for (const auto& [key, child] : *i_from.get_ptr<const Json::object_t*>())
    CopyChild(child, members.emplace_hint(members.end(), key, nullptr)->second, io_pending);
}

// A copy of a value that may be nested deeper than the stack allows a function to call itself.
Json CopyDeep(const Json& i_value)
{
  Json copy;
  PendingCopies pending;
  CopyChild(i_value, copy, pending);
  while (!pending.empty())
  {
    const auto [pFrom, pTo] = pending.back();
    pending.pop_back();
    pFrom->is_array() ? CopyArray(*pFrom, *pTo, pending) : CopyObject(*pFrom, *pTo, pending);
  }
  return copy;
}

Properties CopyProperties(const Properties& i_properties)
{
  Properties copy;
  for (const auto& [key, value] : i_properties)
    copy.emplace_hint(copy.end(), key, CopyDeep(value));
  return copy;
}

Properties ToProperties(const Json& i_properties)
{
  if (!i_properties.is_object())
    return i_properties.get<Properties>(); // raises the type error
  return CopyProperties(*i_properties.get_ptr<const Properties*>());
}

// Runs i_read; an exception of the kind given is told on standard error and goes no further.
template <typename Exception, typename Read>
void ReadGuarded(const char* i_className, Read i_read)
{
  try
  {
    i_read();
  }
  catch (const Exception&)
  {
    std::fprintf(stderr, "Error in %s(const nlohmann::json &i_json) : invalid JSON parameter\n", i_className);
  }
}

bool IsNumeric(const Json& i_list)
{
  std::vector<const Json*> pending{&i_list};
  while (!pending.empty())
  {
    const Json& list = *pending.back();
    pending.pop_back();
    for (const Json& element : list)
    {
      if (element.is_array())
        pending.push_back(&element);
      else if (!element.is_number())
        return false;
    }
  }
  return true;
}

NodesPath ToNodesPath(const Json& i_nodes)
{
  NodesPath nodes;
  if (!i_nodes.is_array())
    return nodes;
  if (IsNumeric(i_nodes))
    nodes.indexPaths = ToVector(i_nodes, ToIndexPath);
  else
    nodes.ids = i_nodes.get<IdsPath>();
  return nodes;
}

bool CheckIsArray(const Json& i_json, int i_line)
{
  if (!i_json.is_array())
    CheckFailure__("This is not an array", __FILE_NAME__, i_line, nullptr);
  return i_json.is_array();
}

IdsPath ToIdsPath(const Json& i_path)
{
  return CheckIsArray(i_path, 540) ? i_path.get<IdsPath>() : IdsPath();
}

std::vector<IdsPath> ToIdsPaths(const Json& i_paths)
{
  return CheckIsArray(i_paths, 548) ? ToVector(i_paths, ToIdsPath) : std::vector<IdsPath>();
}

template <typename Value>
void ReadOptional(const Json& i_json, const char* i_key, Value (*i_convert)(const Json&), std::optional<Value>& o_value)
{
  if (i_json.contains(i_key))
    o_value = i_convert(i_json[i_key]);
}

std::string ToText(const Json& i_text)
{
  return i_text.get<std::string>();
}

void CheckPointerType(const std::string& i_type)
{
  if (i_type != "mouse" && i_type != "touch" && i_type != "pen")
    CheckFailure__("Invalid pointer type", __FILE_NAME__, 609, nullptr);
}

// The children to walk; null when there are none, or when the node is broken.
const Json* GetCheckedChildren(const Json& i_json)
{
  if (!i_json.contains("children"))
    return nullptr;
  if (!ZELSYP_CHECK_TRUE_AT(i_json.contains("numberOfChildren"), 523) || !ZELSYP_CHECK_TRUE_AT(i_json.contains("stringIdentifier"), 524))
    return nullptr;
  const Json& children = i_json["children"];
  return ZELSYP_CHECK_TRUE_AT(children.is_array(), 526) ? &children : nullptr;
}

// ---- Writing

const std::string s_group = "wux_group";
const std::string s_isSelected = "wux_isSelected";

int ToFlag(int i_isSelected)
{
  return i_isSelected != 0 ? 1 : 0;
}

Json MakeRow(Properties i_properties, bool i_hasChildren, int i_isSelected)
{
  i_properties.insert_or_assign(i_properties.end(), s_group, i_hasChildren);
  if (i_isSelected != -1)
    i_properties.insert_or_assign(i_properties.end(), s_isSelected, ToFlag(i_isSelected));
  return Json(std::move(i_properties));
}

// One block of rows for each request; i_makeRow may move out of the nodes.
template <typename Blocks, typename MakeRow>
Json::array_t MakeBlocks(Blocks& io_blocks, MakeRow i_makeRow)
{
  Json::array_t blocks;
  blocks.reserve(io_blocks.size());
  for (auto& nodes : io_blocks)
  {
    Json::array_t rows;
    rows.reserve(nodes.size());
    std::transform(nodes.begin(), nodes.end(), std::back_inserter(rows), i_makeRow);
    blocks.emplace_back(std::move(rows));
  }
  return blocks;
}

using Property = Properties::const_iterator;

void WriteProperties(ZELSYPJSONTextWriter& io_writer, Property i_begin, Property i_end)
{
  for (; i_begin != i_end; ++i_begin)
  {
    io_writer.WriteKey(i_begin->first);
    io_writer.Write(i_begin->second);
  }
}

// Writes the properties up to the key, then the key, and answers the first property after it.
template <typename Value>
Property WriteInOrder(ZELSYPJSONTextWriter& io_writer, const Properties& i_properties, Property i_begin, const std::string& i_key,
                      Value i_value)
{
  const Property place = i_properties.lower_bound(i_key);
  WriteProperties(io_writer, i_begin, place);
  io_writer.WriteKey(i_key);
  io_writer.Write(i_value);
  return place != i_properties.end() && place->first == i_key ? std::next(place) : place;
}

void WriteRow(ZELSYPJSONTextWriter& io_writer, const TreeNodeProperties& i_node)
{
  const Properties& properties = i_node.GetProperties();
  io_writer.Begin('{');
  Property rest = WriteInOrder(io_writer, properties, properties.begin(), s_group, i_node.HasChildren());
  if (i_node.IsSelected() != -1)
    rest = WriteInOrder(io_writer, properties, rest, s_isSelected, ToFlag(i_node.IsSelected()));
  WriteProperties(io_writer, rest, properties.end());
  io_writer.End('}');
}

void WriteRows(ZELSYPJSONTextWriter& io_writer, const std::vector<TreeNodeProperties>& i_nodes)
{
  io_writer.Separate();
  io_writer.Begin('[');
  for (const TreeNodeProperties& node : i_nodes)
  {
    io_writer.Separate();
    WriteRow(io_writer, node);
  }
  io_writer.End(']');
}

// Room for the usual row: a text that grows by doubling is copied, and its pages are asked of the system, twice.
void ReserveRows(std::string& io_text, const std::vector<std::vector<TreeNodeProperties>>& i_blocks)
{
  constexpr std::size_t usualRowSize = 192;
  std::size_t rows = 0;
  for (const auto& nodes : i_blocks)
    rows += nodes.size();
  io_text.reserve(io_text.size() + rows * usualRowSize);
}

template <typename Value>
void WriteMember(ZELSYPJSONTextWriter& io_writer, const char* i_key, const Value& i_value)
{
  io_writer.WriteKey(i_key);
  io_writer.Write(i_value);
}

void WriteWhole(const Json& i_value, std::string& io_text)
{
  ZELSYPJSONTextWriter writer(io_text);
  writer.Write(i_value);
  writer.Finish();
}

int HasNodes(const NodesPath& i_nodes)
{
  return i_nodes.indexPaths.empty() && i_nodes.ids.empty() ? 0 : 1;
}

// Calls i_put with the list that stands for the nodes; not at all when there are none.
template <typename Put>
void PutNodes(const NodesPath& i_nodes, Put i_put)
{
  if (!i_nodes.ids.empty())
    i_put(i_nodes.ids);
  else if (!i_nodes.indexPaths.empty())
    i_put(i_nodes.indexPaths);
}

// ---- Lists with one entry a request

template <typename Element>
bool Holds(const std::vector<Element>& i_list, int i_index)
{
  return static_cast<unsigned>(i_index) < i_list.size();
}

template <typename Element>
Element GetAt(const std::vector<Element>& i_list, int i_index, Element i_otherwise)
{
  return Holds(i_list, i_index) ? i_list[static_cast<unsigned>(i_index)] : i_otherwise;
}
} // namespace

// ---- TreeNodeProperties

TreeNodeProperties::TreeNodeProperties(const Json& i_json)
{
  if (!ZELSYP_CHECK_TRUE_AT(i_json.contains("indexPath") || i_json.contains("idPath"), 34))
    return;
  if (i_json.contains("indexPath"))
    _indexPath = ToIndexPath(i_json["indexPath"]);
  // Kept: the check accepts "idPath", the id is read from "id" alone.
  if (i_json.contains("id"))
    _id = i_json["id"].get<std::string>();
  if (i_json.contains("properties"))
    _properties = ToProperties(i_json["properties"]);
  if (i_json.contains("hasChildren"))
    _hasChildren = i_json["hasChildren"].get<bool>();
  if (i_json.contains("isSelected"))
    _isSelected = ToInteger<int>(i_json["isSelected"]);
}

TreeNodeProperties::TreeNodeProperties(std::string i_id, Properties i_properties, bool i_hasChildren, int i_isSelected)
    : _id(std::move(i_id)), _properties(std::move(i_properties)), _hasChildren(i_hasChildren), _isSelected(i_isSelected)
{
}

TreeNodeProperties::TreeNodeProperties(IndexPath i_indexPath, Properties i_properties, bool i_hasChildren, int i_isSelected)
    : _indexPath(std::move(i_indexPath)), _properties(std::move(i_properties)), _hasChildren(i_hasChildren), _isSelected(i_isSelected)
{
}

Json TreeNodeProperties::ComputeJSON() const
{
  Json::object_t json;
  json.emplace("properties", CopyProperties(_properties));
  json.emplace("hasChildren", _hasChildren);
  if (!_indexPath.empty())
    json.emplace("indexPath", _indexPath);
  if (!_id.empty())
    json.emplace("id", _id);
  if (_isSelected != -1)
    json.emplace("isSelected", ToFlag(_isSelected));
  return json;
}

bool TreeNodeProperties::operator==(const TreeNodeProperties& i_other) const
{
  // Kept: two nodes that differ in their selection only are equal.
  return _indexPath == i_other._indexPath && _id == i_other._id && _hasChildren == i_other._hasChildren &&
         _properties == i_other._properties;
}

// ---- SortAttributeModel

SortAttributeModel::SortAttributeModel(const Json& i_json)
{
  if (ZELSYP_CHECK_TRUE_AT(i_json.contains("dataIndex"), 113))
    ReadGuarded<std::exception>("SortAttributeModel", [this, &i_json] { Read(i_json); });
}

void SortAttributeModel::Read(const Json& i_json)
{
  _attribute = i_json["dataIndex"].get<std::string>();
  if (!i_json.contains("sort"))
    return;
  const Json& sort = i_json["sort"];
  if (sort.is_string())
    _order = sort == "desc" ? Descending : Ascending;
  else
    _order = sort.is_number() ? static_cast<Order>(ToInteger<int>(sort)) : sort.get<Order>();
}

// ---- RequestAnswer

Json RequestAnswer::ComputeJSON() const
{
  return nullptr;
}

void RequestAnswer::WriteJSON(std::string& io_text) const
{
  WriteWhole(ComputeJSON(), io_text);
}

// ---- TreeNodesModelStructureParameters

TreeNodesModelStructureParameters::TreeNodesModelStructureParameters(const Json& i_json)
{
  if (i_json.contains("groupKeys"))
    _groupKeys.push_back(ToKeys(i_json["groupKeys"]));
  ReadSortModel(i_json);
  if (i_json.contains("expandNLevels"))
    _expandNbLevels = ToInteger<int>(i_json["expandNLevels"]);
}

void TreeNodesModelStructureParameters::ReadSortModel(const Json& i_json)
{
  _sortModel.clear();
  if (!i_json.contains("sortModel") || !i_json["sortModel"].is_array())
    return;
  for (const Json& entry : i_json["sortModel"])
    _sortModel.emplace_back(entry);
}

std::vector<std::string> TreeNodesModelStructureParameters::GroupKeys(int i_index) const
{
  return GetAt(_groupKeys, i_index, {});
}

// ---- TreeNodesModelStructureAnswerParameters

TreeNodesModelStructureAnswerParameters::TreeNodesModelStructureAnswerParameters(const Json& i_json)
    : TreeNodesModelStructureAnswerParameters(CopyDeep(i_json))
{
}

TreeNodesModelStructureAnswerParameters::TreeNodesModelStructureAnswerParameters(Json&& i_json) : _json(std::move(i_json))
{
  CheckJsonStructure(_json);
}

TreeNodesModelStructureAnswerParameters::TreeNodesModelStructureAnswerParameters(const TreeNodesModelStructureAnswerParameters& i_other)
    : RequestAnswer(i_other), _json(CopyDeep(i_other._json))
{
}

TreeNodesModelStructureAnswerParameters&
TreeNodesModelStructureAnswerParameters::operator=(const TreeNodesModelStructureAnswerParameters& i_other)
{
  _json = CopyDeep(i_other._json);
  return *this;
}

// Depth first, in the order of the message, with a list of what is left instead of a call for each level.
void TreeNodesModelStructureAnswerParameters::CheckJsonStructure(const Json& i_json)
{
  std::vector<const Json*> pending{&i_json};
  while (!pending.empty())
  {
    const Json* pChildren = GetCheckedChildren(*pending.back());
    pending.pop_back();
    if (pChildren != nullptr)
      std::transform(pChildren->rbegin(), pChildren->rend(), std::back_inserter(pending), [](const Json& i_child) { return &i_child; });
  }
}

Json TreeNodesModelStructureAnswerParameters::ComputeJSON() const
{
  return CopyDeep(_json);
}

void TreeNodesModelStructureAnswerParameters::WriteJSON(std::string& io_text) const
{
  WriteWhole(_json, io_text);
}

// ---- TreeNodesRequestParameters

TreeNodesRequestParameters::TreeNodesRequestParameters(const Json& i_json) : TreeNodesModelStructureParameters(i_json)
{
  ReadGuarded<Json::exception>("TreeNodesRequestParameters",
                               [this, &i_json]
                               {
                                 if (i_json.contains("groupedRequest"))
                                   ReadGroupedRequest(i_json["groupedRequest"]);
                                 else
                                   ReadSingleRequest(i_json);
                               });
}

void TreeNodesRequestParameters::ReadGroupedRequest(const Json& groupedRequest)
{
  if (!ZELSYP_CHECK_TRUE_AT(groupedRequest.is_array(), 166))
    return;
  for (const auto& request : groupedRequest.items())
  {
    if (!ZELSYP_CHECK_TRUE_AT(request.value().contains("startRow"), 168))
      return;
    _firstNodeIndices.push_back(ToInteger<int>(request.value()["startRow"]));
    if (!ZELSYP_CHECK_TRUE_AT(request.value().contains("endRow"), 171))
      return;
    _lastNodeIndices.push_back(ToInteger<int>(request.value()["endRow"]));
    // Kept: the lists of the requests follow that of a "groupKeys" beside "groupedRequest".
    if (!ZELSYP_CHECK_TRUE_AT(request.value().contains("groupKeys"), 174))
      return;
    _groupKeys.push_back(ToKeys(request.value()["groupKeys"]));
    // Kept: each request replaces the sort model, the last one's stays.
    ReadSortModel(request.value());
  }
}

void TreeNodesRequestParameters::ReadSingleRequest(const Json& i_request)
{
  if (!ZELSYP_CHECK_TRUE_AT(i_request.contains("startRow"), 198))
    return;
  _firstNodeIndices.push_back(ToInteger<int>(i_request["startRow"]));
  if (!ZELSYP_CHECK_TRUE_AT(i_request.contains("endRow"), 201))
    return;
  _lastNodeIndices.push_back(ToInteger<int>(i_request["endRow"]));
}

int TreeNodesRequestParameters::GetFirstNodeIndex(const int& i_requestIndex) const
{
  return GetAt(_firstNodeIndices, i_requestIndex, -1);
}

int TreeNodesRequestParameters::GetLastNodeIndex(const int& i_requestIndex) const
{
  return GetAt(_lastNodeIndices, i_requestIndex, -1);
}

// ---- TreeNodesAnswerParameters

TreeNodesAnswerParameters::TreeNodesAnswerParameters(std::vector<std::vector<TreeNodeProperties>> i_nodesProperties,
                                                     std::vector<int> i_totalNumberOfNodes)
{
  static_cast<void>(ZELSYP_CHECK_TRUE_AT(i_nodesProperties.size() == i_totalNumberOfNodes.size(), 225));
  _nodesProperties = std::move(i_nodesProperties);
  _totalNumberOfNodes = std::move(i_totalNumberOfNodes);
  _nodesNotFound.resize(_nodesProperties.size(), false);
}

std::vector<TreeNodeProperties> TreeNodesAnswerParameters::GetTreeNodesProperties(int i_requestIndex) const
{
  return GetAt(_nodesProperties, i_requestIndex, {});
}

int TreeNodesAnswerParameters::GetTotalNumberOfNodes(int i_requestIndex) const
{
  return GetAt(_totalNumberOfNodes, i_requestIndex, 0);
}

void TreeNodesAnswerParameters::SetNodeAsNotFound(bool i_notFound, int i_requestIndex)
{
  if (Holds(_nodesNotFound, i_requestIndex))
    _nodesNotFound[static_cast<unsigned>(i_requestIndex)] = i_notFound;
}

bool TreeNodesAnswerParameters::GetNodeAsNotFound(int i_requestIndex) const
{
  return GetAt(_nodesNotFound, i_requestIndex, false);
}

void TreeNodesAnswerParameters::CheckSizes() const
{
  static_cast<void>(ZELSYP_CHECK_TRUE_AT(_nodesProperties.size() == _totalNumberOfNodes.size(), 241));
}

std::vector<int> TreeNodesAnswerParameters::ComputeLastRows() const
{
  std::vector<int> lastRows(_nodesProperties.size(), -1);
  const std::size_t count = std::min(_nodesProperties.size(), _totalNumberOfNodes.size());
  for (std::size_t request = 0; request < count; ++request)
    if (_nodesProperties[request].size() == static_cast<std::size_t>(_totalNumberOfNodes[request]))
      lastRows[request] = _totalNumberOfNodes[request];
  return lastRows;
}

Json TreeNodesAnswerParameters::AssembleJSON(Json::array_t i_rows) const
{
  Json::object_t result;
  result.emplace("lastRow", ComputeLastRows());
  result.emplace("numberOfChildren", _totalNumberOfNodes);
  result.emplace("rows", std::move(i_rows));
  Json::object_t answer;
  answer.emplace("groupedRequestResult", std::move(result));
  return answer;
}

Json TreeNodesAnswerParameters::ComputeJSON() const
{
  CheckSizes();
  return AssembleJSON(MakeBlocks(_nodesProperties, [](const TreeNodeProperties& i_node)
                                 { return MakeRow(i_node._properties, i_node._hasChildren, i_node._isSelected); }));
}

Json TreeNodesAnswerParameters::TakeJSON()
{
  CheckSizes();
  return AssembleJSON(MakeBlocks(_nodesProperties, [](TreeNodeProperties& io_node)
                                 { return MakeRow(std::move(io_node._properties), io_node._hasChildren, io_node._isSelected); }));
}

void TreeNodesAnswerParameters::WriteJSON(std::string& io_text) const
{
  CheckSizes();
  ReserveRows(io_text, _nodesProperties);
  ZELSYPJSONTextWriter writer(io_text);
  writer.Begin('{');
  writer.WriteKey("groupedRequestResult");
  writer.Begin('{');
  WriteMember(writer, "lastRow", ComputeLastRows());
  WriteMember(writer, "numberOfChildren", _totalNumberOfNodes);
  writer.WriteKey("rows");
  writer.Begin('[');
  for (const auto& nodes : _nodesProperties)
    WriteRows(writer, nodes);
  writer.End(']');
  writer.End('}');
  writer.End('}');
  writer.Finish();
}

bool TreeNodesAnswerParameters::operator==(const TreeNodesAnswerParameters& i_other) const
{
  return _nodesProperties == i_other._nodesProperties && _totalNumberOfNodes == i_other._totalNumberOfNodes &&
         _nodesNotFound == i_other._nodesNotFound;
}

// ---- ModelCollapseExpandParameters

ModelCollapseExpandParameters::ModelCollapseExpandParameters(const Json& i_json)
{
  if (!ZELSYP_CHECK_TRUE_AT(i_json.contains("nodesToCollapse") || i_json.contains("nodesToExpand"), 561))
    return;
  if (i_json.contains("nodesToCollapse"))
    _pathIdsToCollapse = ToIdsPaths(i_json["nodesToCollapse"]);
  if (i_json.contains("nodesToExpand"))
    _pathIdsToExpand = ToIdsPaths(i_json["nodesToExpand"]);
}

// ---- ModelCollapseExpandAnswerParameters

ModelCollapseExpandAnswerParameters::ModelCollapseExpandAnswerParameters(std::vector<IdsPath>& i_pathIdsToCollapse,
                                                                         std::vector<IdsPath>& i_pathIdsToExpand)
    : _pathIdsToCollapse(i_pathIdsToCollapse), _pathIdsToExpand(i_pathIdsToExpand)
{
}

Json ModelCollapseExpandAnswerParameters::ComputeJSON() const
{
  return {{"nodesToCollapse", _pathIdsToCollapse}, {"nodesToExpand", _pathIdsToExpand}};
}

void ModelCollapseExpandAnswerParameters::WriteJSON(std::string& io_text) const
{
  ZELSYPJSONTextWriter writer(io_text);
  writer.Begin('{');
  WriteMember(writer, "nodesToCollapse", _pathIdsToCollapse);
  WriteMember(writer, "nodesToExpand", _pathIdsToExpand);
  writer.End('}');
  writer.Finish();
}

// ---- SelectionChangeParameters

SelectionChangeParameters::SelectionChangeParameters(std::vector<std::string> i_addedIds, std::vector<std::string> i_removedIds)
    : _addedNodes{std::move(i_addedIds), {}}, _removedNodes{std::move(i_removedIds), {}}
{
}

SelectionChangeParameters::SelectionChangeParameters(std::vector<IndexPath> i_addedIndexPaths, std::vector<IndexPath> i_removedIndexPaths)
    : _addedNodes{{}, std::move(i_addedIndexPaths)}, _removedNodes{{}, std::move(i_removedIndexPaths)}
{
}

SelectionChangeParameters::SelectionChangeParameters(const Json& i_json)
{
  if (!ZELSYP_CHECK_TRUE_AT(i_json.contains("removedNodes") || i_json.contains("addedNodes"), 344))
    return;
  if (i_json.contains("removedNodes"))
    _removedNodes = ToNodesPath(i_json["removedNodes"]);
  if (i_json.contains("addedNodes"))
    _addedNodes = ToNodesPath(i_json["addedNodes"]);
}

// Kept: the sizes are flags, whatever their names say.
int SelectionChangeParameters::GetAddedNodesSize() const
{
  return HasNodes(_addedNodes);
}

int SelectionChangeParameters::GetRemovedNodesSize() const
{
  return HasNodes(_removedNodes);
}

Json SelectionChangeParameters::ComputeJSON() const
{
  Json json = Json::object();
  PutNodes(_addedNodes, [&json](const auto& i_nodes) { json["addedNodes"] = i_nodes; });
  PutNodes(_removedNodes, [&json](const auto& i_nodes) { json["removedNodes"] = i_nodes; });
  return json;
}

void SelectionChangeParameters::WriteJSON(std::string& io_text) const
{
  ZELSYPJSONTextWriter writer(io_text);
  writer.Begin('{');
  PutNodes(_addedNodes, [&writer](const auto& i_nodes) { WriteMember(writer, "addedNodes", i_nodes); });
  PutNodes(_removedNodes, [&writer](const auto& i_nodes) { WriteMember(writer, "removedNodes", i_nodes); });
  writer.End('}');
  writer.Finish();
}

// ---- ModelChangeParameters

ModelChangeParameters::ModelChangeParameters(std::string i_operationType, std::vector<TreeNodeProperties> i_nodes)
    : _operationType(std::move(i_operationType)), _nodes(std::move(i_nodes))
{
}

ModelChangeParameters::ModelChangeParameters(const Json& i_json)
{
  ReadGuarded<Json::exception>("ModelChangeParameters", [this, &i_json] { Read(i_json); });
}

void ModelChangeParameters::Read(const Json& i_json)
{
  if (!ZELSYP_CHECK_TRUE_AT(i_json.contains("operationType"), 421))
    return;
  _operationType = i_json["operationType"].get<std::string>();
  if (!ZELSYP_CHECK_TRUE_AT(i_json.contains("nodes"), 425))
    return;
  const Json& nodes = i_json["nodes"];
  if (!ZELSYP_CHECK_TRUE_AT(nodes.is_array(), 428))
    return;
  for (const Json& node : nodes)
    _nodes.emplace_back(node);
}

Json ModelChangeParameters::ComputeJSON() const
{
  Json::array_t nodes;
  nodes.reserve(_nodes.size());
  for (const TreeNodeProperties& node : _nodes)
    nodes.push_back(node.ComputeJSON());
  return {{"operationType", _operationType}, {"nodes", std::move(nodes)}};
}

bool ModelChangeParameters::operator==(const ModelChangeParameters& i_other) const
{
  return _operationType == i_other._operationType && _nodes == i_other._nodes;
}

// ---- PointerEventParameters

PointerEventParameters::PointerEventParameters(const Json& i_json)
{
  if (!ZELSYP_CHECK_TRUE_AT(i_json.contains("idsPath"), 590))
    return;
  _idsPath = ToIdsPath(i_json["idsPath"]);
  ReadOptional(i_json, "type", ToText, _type);
  // Kept: the pointer type is validated and not stored.
  if (i_json.contains("pointerType"))
    CheckPointerType(i_json["pointerType"].get<std::string>());
  ReadOptional(i_json, "modifiers", ToInteger<unsigned int>, _modifiers);
  ReadOptional(i_json, "button", ToInteger<unsigned int>, _button);
  ReadOptional(i_json, "hitCount", ToInteger<unsigned int>, _hitCount);
  ReadOptional(i_json, "dataIndex", ToText, _dataIndex);
}
} // namespace ZELSYPDataSourceParameters
