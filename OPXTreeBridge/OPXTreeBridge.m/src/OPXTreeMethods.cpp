#include "OPXTreeMethods.h"

#include "OPXTreeError.h"
#include "OPXTreeParametersCheck.h"
#include "OPXTreeReply.h"
#include "ZELSYPAbstractDataSource.h"

#include <algorithm>
#include <iterator>
#include <utility>

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

// Hands an answer over whenever the source has it.
auto SetResultOf(const std::shared_ptr<OPXTreeAnswer>& i_pAnswer)
{
  return [i_pAnswer](const auto& i_answer) { i_pAnswer->SetResult(Write(i_answer)); };
}
} // namespace

struct OPXTreeMethods::Method
{
  const char* name;
  void (OPXTreeMethods::*pCall)(nlohmann::json&, const Answer&);
};

OPXTreeMethods::OPXTreeMethods(ZELSYPAbstractDataSource& io_source, OPXTreeRowsSource& io_rows, std::shared_ptr<OPXTreeOutbox> i_pOutbox)
    : _source(io_source), _rows(io_rows), _notifications(io_source, std::move(i_pOutbox))
{
}

void OPXTreeMethods::Call(const std::string& i_method, nlohmann::json& io_params, const Answer& i_pAnswer)
{
  static constexpr Method methods[] = {{"tree/rows", &OPXTreeMethods::CallRows},
                                       {"tree/structure", &OPXTreeMethods::CallStructure},
                                       {"tree/selectionChange", &OPXTreeMethods::CallSelectionChange},
                                       {"tree/collapseExpand", &OPXTreeMethods::CallCollapseExpand},
                                       {"tree/pointerEvent", &OPXTreeMethods::CallPointerEvent},
                                       {"tree/succeeded", &OPXTreeMethods::CallSucceeded}};
  const auto method = std::find_if(std::begin(methods), std::end(methods), [&](const Method& i_entry) { return i_method == i_entry.name; });
  if (method == std::end(methods))
    throw OPXTreeError(OPXTreeError::MethodNotFound, {{"method", i_method}});
  (this->*method->pCall)(io_params, i_pAnswer);
}

void OPXTreeMethods::CallRows(nlohmann::json& io_params, const Answer& i_pAnswer)
{
  OPXTreeParametersCheck::CheckRows(io_params);
  const auto request = MakeRecord<Records::TreeNodesRequestParameters>(io_params);
  const auto answer = _rows.RequestRows(request);
  std::string result = Write(answer);
  const nlohmann::json notFound = CollectNotFound(answer, request.GetRequestCount());
  if (!notFound.empty())
    result.replace(result.size() - 1, 1, ",\"notFound\":" + notFound.dump() + "}");
  i_pAnswer->SetResult(result);
}

void OPXTreeMethods::CallStructure(nlohmann::json& io_params, const Answer& i_pAnswer)
{
  OPXTreeParametersCheck::CheckStructure(io_params);
  i_pAnswer->SetResult(Write(_rows.RequestStructure(MakeRecord<Records::TreeNodesModelStructureParameters>(io_params))));
}

void OPXTreeMethods::CallCollapseExpand(nlohmann::json& io_params, const Answer& i_pAnswer)
{
  OPXTreeParametersCheck::CheckCollapseExpand(io_params);
  _source.RequestModelCollapseExpand(MakeRecord<Records::ModelCollapseExpandParameters>(io_params), SetResultOf(i_pAnswer));
}

void OPXTreeMethods::CallSelectionChange(nlohmann::json& io_params, const Answer& i_pAnswer)
{
  OPXTreeParametersCheck::CheckSelectionChange(io_params);
  _source.RequestSelectionChange(MakeRecord<Records::SelectionChangeParameters>(io_params), SetResultOf(i_pAnswer));
}

void OPXTreeMethods::CallPointerEvent(nlohmann::json& io_params, const Answer& i_pAnswer)
{
  OPXTreeParametersCheck::CheckPointerEvent(io_params);
  _source.RequestPointerEvent(MakeRecord<Records::PointerEventParameters>(io_params), SetResultOf(i_pAnswer));
}

void OPXTreeMethods::CallSucceeded(nlohmann::json& io_params, const Answer& i_pAnswer)
{
  _notifications.Succeed(io_params);
  i_pAnswer->SetResult("null");
}
