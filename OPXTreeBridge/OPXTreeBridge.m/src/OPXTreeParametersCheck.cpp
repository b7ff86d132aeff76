#include "OPXTreeParametersCheck.h"

#include "OPXTreeSession.h"
#include "OPXTreeValue.h"

namespace
{
void NeedPath(const OPXTreeValue& i_value)
{
  i_value.NeedEach(&OPXTreeValue::NeedString);
}
void NeedPaths(const OPXTreeValue& i_value)
{
  i_value.NeedEach(NeedPath);
}

void NeedSortEntry(const OPXTreeValue& i_value)
{
  i_value.Member("dataIndex").NeedString();
  i_value.IfMember("sort", [](const OPXTreeValue& i_sort) { i_sort.IsString() ? i_sort.NeedString() : i_sort.NeedNumber(); });
}

// A sort model or a list of group keys that is no array counts as an empty one.
void CheckSortModel(const OPXTreeValue& i_value)
{
  if (i_value.IsArray())
    i_value.NeedEach(NeedSortEntry);
}
void CheckGroupKeys(const OPXTreeValue& i_value)
{
  if (i_value.IsArray())
    NeedPath(i_value);
}

void CheckRange(const OPXTreeValue& i_request)
{
  i_request.Member("startRow").NeedInt();
  i_request.Member("endRow").NeedInt();
}

void CheckGroupedRequest(const OPXTreeValue& i_request)
{
  CheckRange(i_request);
  CheckGroupKeys(i_request.Member("groupKeys"));
  i_request.IfMember("sortModel", CheckSortModel);
}

void NeedEither(const OPXTreeValue& i_value, const char* i_first, const char* i_second, const char* i_expected)
{
  i_value.NeedObject();
  i_value.Need(i_value.Has(i_first) || i_value.Has(i_second), i_expected);
}

void NeedIndexPath(const OPXTreeValue& i_value)
{
  i_value.NeedEach(&OPXTreeValue::NeedNumber);
}

// A list of ids or a list of index paths, never a mixture; what is no array is ignored.
void CheckNodes(const OPXTreeValue& i_nodes)
{
  if (!i_nodes.IsArray())
    return;
  bool hasIDs = false;
  i_nodes.NeedEach([&hasIDs](const OPXTreeValue& i_node) { hasIDs = hasIDs || i_node.IsString(); });
  if (hasIDs)
    return i_nodes.NeedEach(&OPXTreeValue::NeedString);
  i_nodes.Need(i_nodes.GetSize() <= OPXTreeSession::MaxRequests, "at most 1000 index paths");
  i_nodes.NeedEach(NeedIndexPath);
}

void NeedPointerType(const OPXTreeValue& i_value)
{
  i_value.NeedString();
  i_value.Need(i_value.Is("mouse") || i_value.Is("touch") || i_value.Is("pen"), "mouse, touch or pen");
}
} // namespace

void OPXTreeParametersCheck::CheckStructure(nlohmann::json& io_params)
{
  const OPXTreeValue params(io_params);
  params.NeedObject();
  params.IfMember("groupKeys", CheckGroupKeys);
  params.IfMember("sortModel", CheckSortModel);
  params.IfMember("expandNLevels", &OPXTreeValue::NeedInt);
}

void OPXTreeParametersCheck::CheckRows(nlohmann::json& io_params)
{
  CheckStructure(io_params);
  const OPXTreeValue params(io_params);
  if (!params.Has("groupedRequest"))
    return CheckRange(params);
  params.Member("groupedRequest").NeedEach(CheckGroupedRequest);
  params.Member("groupedRequest").Need(params.Member("groupedRequest").GetSize() <= OPXTreeSession::MaxRequests, "at most 1000 requests");
}

void OPXTreeParametersCheck::CheckCollapseExpand(nlohmann::json& io_params)
{
  const OPXTreeValue params(io_params);
  NeedEither(params, "nodesToCollapse", "nodesToExpand", "nodesToCollapse or nodesToExpand");
  params.IfMember("nodesToCollapse", NeedPaths);
  params.IfMember("nodesToExpand", NeedPaths);
}

void OPXTreeParametersCheck::CheckSelectionChange(nlohmann::json& io_params)
{
  const OPXTreeValue params(io_params);
  NeedEither(params, "removedNodes", "addedNodes", "removedNodes or addedNodes");
  params.IfMember("removedNodes", CheckNodes);
  params.IfMember("addedNodes", CheckNodes);
}

void OPXTreeParametersCheck::CheckPointerEvent(nlohmann::json& io_params)
{
  const OPXTreeValue params(io_params);
  NeedPath(params.Member("idsPath"));
  params.IfMember("type", &OPXTreeValue::NeedString);
  params.IfMember("pointerType", NeedPointerType);
  params.IfMember("modifiers", &OPXTreeValue::NeedUnsigned);
  params.IfMember("button", &OPXTreeValue::NeedUnsigned);
  params.IfMember("hitCount", &OPXTreeValue::NeedUnsigned);
  params.IfMember("dataIndex", &OPXTreeValue::NeedString);
}

void OPXTreeParametersCheck::CheckSucceeded(nlohmann::json& io_params)
{
  const OPXTreeValue number = OPXTreeValue(io_params).Member("answerTo");
  number.Need(number.IsCount(), "number of a notification");
}
