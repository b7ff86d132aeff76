#include "OPXTreeMethods.h"

#include "OPXTreeDataSource.h"
#include "OPXTreeError.h"
#include "OPXTreeParametersCheck.h"

#include <algorithm>
#include <iterator>

namespace Records = ZELSYPDataSourceParameters;

namespace
{
// The check before has let nothing through that the record stumbles over; if it has, the client learns it all the same.
template <class Record>
Record MakeRecord(const nlohmann::json& i_params)
{
  try
  {
    return Record(i_params);
  }
  catch (const nlohmann::json::exception& error)
  {
    throw OPXTreeError(OPXTreeError::InvalidParams, {{"reason", error.what()}});
  }
}

// A source's texts may be in any encoding; what is sent is always UTF-8.
template <class Answer>
std::string Write(const Answer& i_answer)
{
  std::string text;
  try
  {
    i_answer.WriteJSON(text);
  }
  catch (const nlohmann::json::type_error&)
  {
    text = i_answer.ComputeJSON().dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  }
  return text;
}

nlohmann::json CollectNotFound(const Records::TreeNodesAnswerParameters& i_answer, int i_requestCount)
{
  nlohmann::json notFound = nlohmann::json::array();
  for (int i = 0; i < i_requestCount; ++i)
    if (i_answer.GetNodeAsNotFound(i))
      notFound.push_back(i);
  return notFound;
}

std::string CallRows(OPXTreeDataSource& io_source, nlohmann::json& io_params)
{
  OPXTreeParametersCheck::CheckRows(io_params);
  const auto request = MakeRecord<Records::TreeNodesRequestParameters>(io_params);
  const auto answer = io_source.RequestRows(request);
  std::string result = Write(answer);
  const nlohmann::json notFound = CollectNotFound(answer, request.GetRequestCount());
  if (!notFound.empty())
    result.replace(result.size() - 1, 1, ",\"notFound\":" + notFound.dump() + "}");
  return result;
}

std::string CallStructure(OPXTreeDataSource& io_source, nlohmann::json& io_params)
{
  OPXTreeParametersCheck::CheckStructure(io_params);
  return Write(io_source.RequestStructure(MakeRecord<Records::TreeNodesModelStructureParameters>(io_params)));
}

std::string CallCollapseExpand(OPXTreeDataSource& io_source, nlohmann::json& io_params)
{
  OPXTreeParametersCheck::CheckCollapseExpand(io_params);
  return Write(io_source.RequestCollapseExpand(MakeRecord<Records::ModelCollapseExpandParameters>(io_params)));
}

std::string CallSelectionChange(OPXTreeDataSource& io_source, nlohmann::json& io_params)
{
  OPXTreeParametersCheck::CheckSelectionChange(io_params);
  return Write(io_source.RequestSelectionChange(MakeRecord<Records::SelectionChangeParameters>(io_params)));
}

std::string CallPointerEvent(OPXTreeDataSource& io_source, nlohmann::json& io_params)
{
  OPXTreeParametersCheck::CheckPointerEvent(io_params);
  io_source.RequestPointerEvent(MakeRecord<Records::PointerEventParameters>(io_params));
  return "null";
}

struct Method
{
  const char* name;
  std::string (*call)(OPXTreeDataSource&, nlohmann::json&);
};

constexpr Method methods[] = {{"tree/rows", CallRows},
                              {"tree/structure", CallStructure},
                              {"tree/selectionChange", CallSelectionChange},
                              {"tree/collapseExpand", CallCollapseExpand},
                              {"tree/pointerEvent", CallPointerEvent}};
} // namespace

std::string OPXTreeMethods::Call(OPXTreeDataSource& io_source, const std::string& i_method, nlohmann::json& io_params)
{
  const auto method = std::find_if(std::begin(methods), std::end(methods), [&](const Method& i_entry) { return i_method == i_entry.name; });
  if (method == std::end(methods))
    throw OPXTreeError(OPXTreeError::MethodNotFound, {{"method", i_method}});
  return method->call(io_source, io_params);
}
