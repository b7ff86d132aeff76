// Tree records: the values behind every JSON message between a native tree data source and a tree view.
// TreeNodesRequestParameters request(json); int row = request.GetFirstNodeIndex(0); ... view(answer.ComputeJSON());
//
// All records are plain values: copied and moved memberwise, used from one thread at a time, they take no lock and keep
// nothing alive but their own members. A constructor that takes a JSON value reads it and keeps no reference to it; a
// broken message is reported to the installed failure handler with the quoted text, file "ZELSYPDataSourceParameters.cpp"
// and the given line, and the record keeps what had been read. "Type error" means the JSON library's exception 302, such
// as "type must be array, but is string"; where it leaves a constructor, or is told on standard error, stands there.
// A number that fits no int becomes what a conversion by the machine makes of it; a fraction is cut off towards zero.
//
// ComputeJSON answers a value that the caller owns. WriteJSON appends the text of ComputeJSON().dump() to io_text without
// making the value; where dump() throws (a text that is not UTF-8: type error 316), it throws the same and leaves io_text
// as it was.
//
// Reading, moving, WriteJSON and the ComputeJSON of a single node or of a structure take values of any depth; copying or
// comparing nodes and the ComputeJSON of an answer of rows go through the JSON library, which calls itself once a level:
// there the depth of the properties is limited by the stack of the thread.
#ifndef ZELSYPDataSourceParameters_H
#define ZELSYPDataSourceParameters_H

#include "OPXCoreToolsExport.h"

#include <nlohmann/json.hpp>

#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ZELSYPDataSourceParameters
{
// The position of a node under its parent at each level, from the top level down.
using IndexPath = std::vector<int>;
// The ids of the nodes from the top level down to the node meant.
using IdsPath = std::vector<std::string>;
// What a node shows, by name, sorted. It is the JSON library's own object, so that it moves into a message whole.
using Properties = nlohmann::json::object_t;

// Nodes of a tree, named by ids or by positions. Only one of the two is meant to be filled; in JSON the ids win.
struct NodesPath
{
  std::vector<std::string> ids;
  std::vector<IndexPath> indexPaths;
};

// One node as the data source describes it to the view.
// TreeNodeProperties node("c:/tmp", {{"name", "tmp"}}, true, -1); node.AddProperty("size", 12);
class OPXCORETOOLS_EXPORT TreeNodeProperties
{
public:
  // No position, no id, no properties, no children, selection not stated.
  TreeNodeProperties() = default;
  // Reads "indexPath", "id", "properties", "hasChildren" and "isSelected" (a number or a boolean); other keys are
  // ignored. Neither "indexPath" nor "idPath", or no object:
  // check "i_json.contains("indexPath") || i_json.contains("idPath")", line 34, all defaults. Type errors leave it.
  explicit TreeNodeProperties(const nlohmann::json& i_json);
  // i_isSelected: -1 not stated, 0 not selected, anything else selected. Give rvalues to have them moved.
  TreeNodeProperties(std::string i_id, Properties i_properties, bool i_hasChildren, int i_isSelected);
  TreeNodeProperties(IndexPath i_indexPath, Properties i_properties, bool i_hasChildren, int i_isSelected);
  // From a map that sorts in another way, such as std::map<std::string, nlohmann::json>: its values are moved one by one.
  template <typename Less>
  TreeNodeProperties(std::string i_id, std::map<std::string, nlohmann::json, Less> i_properties, bool i_hasChildren, int i_isSelected)
      : TreeNodeProperties(std::move(i_id), TakeProperties(i_properties), i_hasChildren, i_isSelected)
  {
  }
  template <typename Less>
  TreeNodeProperties(IndexPath i_indexPath, std::map<std::string, nlohmann::json, Less> i_properties, bool i_hasChildren, int i_isSelected)
      : TreeNodeProperties(std::move(i_indexPath), TakeProperties(i_properties), i_hasChildren, i_isSelected)
  {
  }

  // Replaces the value of a key that is there already.
  void AddProperty(std::string i_key, nlohmann::json i_value) { _properties.insert_or_assign(std::move(i_key), std::move(i_value)); }

  const Properties& GetProperties() const { return _properties; }
  bool HasChildren() const { return _hasChildren; }
  // As stored: -1 not stated, 0 not selected, anything else selected.
  int IsSelected() const { return _isSelected; }
  IndexPath GetIndexPath() const { return _indexPath; }
  std::string GetID() const { return _id; }

  // {"hasChildren": bool, "properties": object} and, where they are stated, "id", "indexPath" and "isSelected" (0 or 1).
  nlohmann::json ComputeJSON() const;
  // Position, id, children and properties; the selection is not compared.
  bool operator==(const TreeNodeProperties& i_other) const;

private:
  friend class TreeNodesAnswerParameters;

  template <typename Map>
  static Properties TakeProperties(Map& io_properties)
  {
    return Properties(std::make_move_iterator(io_properties.begin()), std::make_move_iterator(io_properties.end()));
  }

  IndexPath _indexPath;
  std::string _id;
  Properties _properties;
  bool _hasChildren = false;
  int _isSelected = -1;
};

// One sort criterion of the view: {"dataIndex": "name", "sort": "desc"}.
class OPXCORETOOLS_EXPORT SortAttributeModel
{
public:
  // A number in a message is stored as it is, so other values than these two are possible.
  enum Order : int
  {
    Ascending = 0,
    Descending = 1
  };

  // "sort" is "desc", any other text (ascending), or a number. No "dataIndex" or no object: check
  // "i_json.contains("dataIndex")", line 113, defaults. Nothing leaves it: a wrong type is told on standard error,
  // "Error in SortAttributeModel(const nlohmann::json &i_json) : invalid JSON parameter".
  explicit SortAttributeModel(const nlohmann::json& i_json);

  const std::string& GetAttribute() const { return _attribute; }
  const Order& GetOrder() const { return _order; }
  bool operator==(const SortAttributeModel& i_other) const { return _attribute == i_other._attribute && _order == i_other._order; }

private:
  void Read(const nlohmann::json& i_json);

  std::string _attribute;
  Order _order = Ascending;
};

// The base of every answer sent to the view. Answers are held by their concrete type or passed by reference, never
// deleted through this base.
class OPXCORETOOLS_EXPORT RequestAnswer
{
public:
  // The base answers JSON null.
  virtual nlohmann::json ComputeJSON() const;
  // Through this base the value is computed first; an answer record writes its text directly.
  void WriteJSON(std::string& io_text) const;
};

// The view's question for the structure of the model, and the common part of its question for rows.
// {"groupKeys": ["usr"], "sortModel": [{"dataIndex": "name", "sort": "asc"}], "expandNLevels": 2}
class OPXCORETOOLS_EXPORT TreeNodesModelStructureParameters
{
public:
  TreeNodesModelStructureParameters() = default;
  // Every key may be missing. "groupKeys" that is no array counts as one empty list; "sortModel" that is no array is
  // ignored. Type errors of "groupKeys" elements and "expandNLevels" leave it.
  explicit TreeNodesModelStructureParameters(const nlohmann::json& i_json);

  std::vector<SortAttributeModel> GetSortModel() const { return _sortModel; }
  // The keys that lead to the parent of that request; empty for the top level and for an index that is out of range.
  std::vector<std::string> GroupKeys(int i_index) const;
  // -2: the view did not say.
  int GetExpandNbLevels() const { return _expandNbLevels; }

protected:
  // Replaces the sort model by that of i_json, or by none.
  void ReadSortModel(const nlohmann::json& i_json);

  std::vector<SortAttributeModel> _sortModel;
  std::vector<std::vector<std::string>> _groupKeys;
  int _expandNbLevels = -2;
};

// The structure of the model as the data source gives it: nodes {"stringIdentifier", "numberOfChildren", "children"}.
class OPXCORETOOLS_EXPORT TreeNodesModelStructureAnswerParameters : public RequestAnswer
{
public:
  // Holds JSON null.
  TreeNodesModelStructureAnswerParameters() = default;
  // Stores i_json whatever the checks of its nodes report. A node with "children" must hold "numberOfChildren"
  // (check "i_json.contains("numberOfChildren")", line 523) and "stringIdentifier"
  // ("i_json.contains("stringIdentifier")", line 524), and its children be an array ("children.is_array()", line 526).
  // The depth of the tree is limited by memory alone.
  explicit TreeNodesModelStructureAnswerParameters(const nlohmann::json& i_json);
  explicit TreeNodesModelStructureAnswerParameters(nlohmann::json&& i_json);
  TreeNodesModelStructureAnswerParameters(const TreeNodesModelStructureAnswerParameters& i_other);
  TreeNodesModelStructureAnswerParameters(TreeNodesModelStructureAnswerParameters&&) = default;
  TreeNodesModelStructureAnswerParameters& operator=(const TreeNodesModelStructureAnswerParameters& i_other);
  TreeNodesModelStructureAnswerParameters& operator=(TreeNodesModelStructureAnswerParameters&&) = default;

  nlohmann::json ComputeJSON() const override;
  void WriteJSON(std::string& io_text) const;

private:
  static void CheckJsonStructure(const nlohmann::json& i_json);

  nlohmann::json _json;
};

// The view's question for the rows of one or several parents: {"startRow": 0, "endRow": 100, "groupKeys": []}, or
// {"groupedRequest": [{"startRow", "endRow", "groupKeys", "sortModel"}, ...]}.
class OPXCORETOOLS_EXPORT TreeNodesRequestParameters : public TreeNodesModelStructureParameters
{
public:
  // Type errors of the common part leave it; every other one is told on standard error, "Error in
  // TreeNodesRequestParameters(const nlohmann::json &i_json) : invalid JSON parameter", and ends the reading, as a
  // failed check does: "groupedRequest.is_array()", line 166; "request.value().contains("startRow")", 168;
  // "request.value().contains("endRow")", 171; "request.value().contains("groupKeys")", 174;
  // "i_request.contains("startRow")", 198; "i_request.contains("endRow")", 201.
  // The sort model of a grouped request is that of its last element.
  explicit TreeNodesRequestParameters(const nlohmann::json& i_json);

  // -1 when the request index is out of range.
  int GetFirstNodeIndex(const int& i_requestIndex) const;
  int GetLastNodeIndex(const int& i_requestIndex) const;
  // How many lists of group keys there are: 0 for a single request without "groupKeys", one more than there are rows
  // asked for when "groupKeys" stands beside "groupedRequest".
  int GetRequestCount() const { return static_cast<int>(_groupKeys.size()); }

private:
  void ReadGroupedRequest(const nlohmann::json& groupedRequest);
  void ReadSingleRequest(const nlohmann::json& i_request);

  std::vector<int> _firstNodeIndices;
  std::vector<int> _lastNodeIndices;
};

// The rows that answer a TreeNodesRequestParameters: for each request its nodes and how many there are in all.
class OPXCORETOOLS_EXPORT TreeNodesAnswerParameters : public RequestAnswer
{
public:
  TreeNodesAnswerParameters() = default;
  // Lists of different sizes are reported and stored: check
  // "i_nodesProperties.size() == i_totalNumberOfNodes.size()", line 225. Give rvalues to have them moved.
  TreeNodesAnswerParameters(std::vector<std::vector<TreeNodeProperties>> i_nodesProperties, std::vector<int> i_totalNumberOfNodes);

  // Empty, 0, nothing and false when the request index is out of range.
  std::vector<TreeNodeProperties> GetTreeNodesProperties(int i_requestIndex) const;
  int GetTotalNumberOfNodes(int i_requestIndex) const;
  void SetNodeAsNotFound(bool i_notFound, int i_requestIndex);
  bool GetNodeAsNotFound(int i_requestIndex) const;

  // {"groupedRequestResult": {"lastRow": [], "numberOfChildren": [], "rows": [[row, ...], ...]}}. A row is the node's
  // properties with "wux_group" (has children) and, where it is stated, "wux_isSelected" (0 or 1); these replace
  // properties of the same name. "lastRow" is the total when all children were returned, else -1.
  // Lists of different sizes: check "_nodesProperties.size() == _totalNumberOfNodes.size()", line 241; a missing total
  // gives -1.
  nlohmann::json ComputeJSON() const override;
  // The same value, with the properties moved into it: the nodes are left without properties.
  nlohmann::json TakeJSON();
  void WriteJSON(std::string& io_text) const;

  bool operator==(const TreeNodesAnswerParameters& i_other) const;

private:
  void CheckSizes() const;
  std::vector<int> ComputeLastRows() const;
  nlohmann::json AssembleJSON(nlohmann::json::array_t i_rows) const;

  std::vector<std::vector<TreeNodeProperties>> _nodesProperties;
  std::vector<int> _totalNumberOfNodes;
  std::vector<bool> _nodesNotFound;
};

// What the user collapsed and expanded: {"nodesToCollapse": [["a", "b"]], "nodesToExpand": [["c"]]}.
class OPXCORETOOLS_EXPORT ModelCollapseExpandParameters
{
public:
  // Neither key, or no object: check "i_json.contains("nodesToCollapse") || i_json.contains("nodesToExpand")",
  // line 561, no paths. A list (line 548) or a path (line 540) that is no array: "This is not an array", and it is
  // empty. Type errors of ids leave it.
  explicit ModelCollapseExpandParameters(const nlohmann::json& i_json);

  const std::vector<IdsPath>& GetPathIdsToCollapse() const { return _pathIdsToCollapse; }
  const std::vector<IdsPath>& GetPathIdsToExpand() const { return _pathIdsToExpand; }

private:
  std::vector<IdsPath> _pathIdsToCollapse;
  std::vector<IdsPath> _pathIdsToExpand;
};

// What the data source wants collapsed and expanded.
class OPXCORETOOLS_EXPORT ModelCollapseExpandAnswerParameters : public RequestAnswer
{
public:
  // Kept: both lists are copied although they are taken by a reference that could change them.
  ModelCollapseExpandAnswerParameters(std::vector<IdsPath>& i_pathIdsToCollapse, std::vector<IdsPath>& i_pathIdsToExpand);

  // {"nodesToCollapse": [[id, ...], ...], "nodesToExpand": [[id, ...], ...]}, both always there.
  nlohmann::json ComputeJSON() const override;
  void WriteJSON(std::string& io_text) const;

private:
  std::vector<IdsPath> _pathIdsToCollapse;
  std::vector<IdsPath> _pathIdsToExpand;
};

// Nodes added to and removed from the selection, in either direction: {"addedNodes": ["a"], "removedNodes": [[3, 1]]}.
class OPXCORETOOLS_EXPORT SelectionChangeParameters
{
public:
  SelectionChangeParameters() = default;
  SelectionChangeParameters(std::vector<std::string> i_addedIds, std::vector<std::string> i_removedIds);
  SelectionChangeParameters(std::vector<IndexPath> i_addedIndexPaths, std::vector<IndexPath> i_removedIndexPaths);
  // An array of nothing but numbers, at any depth, is read as index paths, any other array as ids; what is no array is
  // ignored. Neither key, or no object: check "i_json.contains("removedNodes") || i_json.contains("addedNodes")",
  // line 344, nothing selected. Type errors leave it, that of a flat array of numbers too.
  explicit SelectionChangeParameters(const nlohmann::json& i_json);

  NodesPath GetAddedNodes() const { return _addedNodes; }
  NodesPath GetRemovedNodes() const { return _removedNodes; }
  // A flag, not a count: 1 when there are any nodes, else 0.
  int GetAddedNodesSize() const;
  int GetRemovedNodesSize() const;

  // "addedNodes" and "removedNodes", each the ids if there are any, else the index paths, else left out.
  nlohmann::json ComputeJSON() const;
  void WriteJSON(std::string& io_text) const;

private:
  NodesPath _addedNodes;
  NodesPath _removedNodes;
};

// The data source's word to the view that nodes were changed: {"operationType": "update", "nodes": [node, ...]}.
class OPXCORETOOLS_EXPORT ModelChangeParameters
{
public:
  ModelChangeParameters() = default;
  ModelChangeParameters(std::string i_operationType, std::vector<TreeNodeProperties> i_nodes);
  // Checks, each of which ends the reading: "i_json.contains("operationType")", line 421; "i_json.contains("nodes")",
  // 425; "nodes.is_array()", 428. Type errors do not leave it; one is told on standard error, "Error in
  // ModelChangeParameters(const nlohmann::json &i_json) : invalid JSON parameter".
  explicit ModelChangeParameters(const nlohmann::json& i_json);

  const std::string& GetOperationType() const { return _operationType; }
  const std::vector<TreeNodeProperties>& GetTreeNodesProperties() const { return _nodes; }

  // {"nodes": [node, ...], "operationType": text}, both always there.
  nlohmann::json ComputeJSON() const;
  bool operator==(const ModelChangeParameters& i_other) const;

private:
  void Read(const nlohmann::json& i_json);

  std::string _operationType;
  std::vector<TreeNodeProperties> _nodes;
};

// A click or another pointer event on a node: {"idsPath": ["a", "b"], "type": "click", "modifiers": 6}.
class OPXCORETOOLS_EXPORT PointerEventParameters
{
public:
  // No "idsPath", or no object: check "i_json.contains("idsPath")", line 590, nothing else is read. "idsPath" that is no
  // array: "This is not an array", line 540. "pointerType" that is none of "mouse", "touch", "pen":
  // "Invalid pointer type", line 609, and the reading goes on. Type errors leave it.
  explicit PointerEventParameters(const nlohmann::json& i_json);

  const std::vector<std::string>& GetIdsPath() const { return _idsPath; }
  // "click" when the message did not say.
  std::string GetType() const { return _type.value_or("click"); }
  // "mouse", whatever the message said.
  std::string GetPointerType() const { return _pointerType.value_or("mouse"); }
  // The property under the pointer; empty when the message did not say.
  std::string GetDataIndex() const { return _dataIndex.value_or(""); }
  // 0 when the message did not say.
  unsigned int button() const { return _button.value_or(0u); }
  // 1 when the message did not say.
  unsigned int hitCount() const { return _hitCount.value_or(1u); }
  // Bits 1, 2 and 4 of the modifiers.
  bool isShift() const { return (_modifiers.value_or(0u) & 1u) != 0; }
  bool isAlt() const { return (_modifiers.value_or(0u) & 2u) != 0; }
  bool isCtrl() const { return (_modifiers.value_or(0u) & 4u) != 0; }

private:
  std::vector<std::string> _idsPath;
  std::optional<std::string> _type;
  std::optional<std::string> _pointerType;
  std::optional<std::string> _dataIndex;
  std::optional<unsigned int> _modifiers;
  std::optional<unsigned int> _hitCount;
  std::optional<unsigned int> _button;
};
} // namespace ZELSYPDataSourceParameters

#endif
