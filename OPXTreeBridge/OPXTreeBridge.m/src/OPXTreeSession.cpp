#include "OPXTreeSession.h"

#include "OPXTreeDataSource.h"
#include "OPXTreeError.h"
#include "OPXTreeMessageReader.h"
#include "OPXTreeMethods.h"

#include <cmath>
#include <exception>
#include <nlohmann/json.hpp>

namespace
{
void NeedRequest(bool i_holds, const char* i_reason)
{
  if (!i_holds)
    throw OPXTreeError(OPXTreeError::InvalidRequest, {{"reason", i_reason}});
}

// A whole number of more than 64 bits is read as a floating one and would come back rounded.
bool IsExact(const nlohmann::json& i_number)
{
  return !i_number.is_number_float() || std::abs(i_number.get<double>()) < 0x1p63;
}

bool IsID(const nlohmann::json& i_value)
{
  return i_value.is_string() || i_value.is_null() || (i_value.is_number() && IsExact(i_value));
}

void CheckRequest(const nlohmann::json& i_request)
{
  NeedRequest(i_request.is_object(), "a request is an object");
  NeedRequest(!i_request.contains("id") || IsID(i_request["id"]), "\"id\" is a string, a number of at most 64 bits or null");
  NeedRequest(i_request.contains("jsonrpc") && i_request["jsonrpc"] == "2.0", "\"jsonrpc\" is \"2.0\"");
  NeedRequest(i_request.contains("method") && i_request["method"].is_string(), "\"method\" is a string");
  NeedRequest(!i_request.contains("params") || i_request["params"].is_structured(), "\"params\" is an object or an array");
}

// As JSON text; null when it cannot be told.
std::string GetID(const nlohmann::json& i_request)
{
  return i_request.contains("id") && IsID(i_request["id"]) ? i_request["id"].dump() : "null";
}

// Whatever went wrong, as an answer. To be called while an exception is handled.
std::string AnswerCurrentException(const std::string& i_id)
{
  try
  {
    throw;
  }
  catch (const OPXTreeError& error)
  {
    return error.ToAnswer(i_id);
  }
  catch (const std::exception& error)
  {
    return OPXTreeError(OPXTreeError::InternalError, {{"reason", error.what()}}).ToAnswer(i_id);
  }
  catch (...)
  {
    return OPXTreeError(OPXTreeError::InternalError, {{"reason", "unknown"}}).ToAnswer(i_id);
  }
}

std::string AnswerResult(const std::string& i_id, const std::string& i_result)
{
  return "{\"jsonrpc\":\"2.0\",\"id\":" + i_id + ",\"result\":" + i_result + "}";
}
} // namespace

OPXTreeSession::OPXTreeSession(OPXTreeDataSource& i_source) : _source(i_source) {}

std::string OPXTreeSession::Answer(std::string_view i_message) const
{
  try
  {
    nlohmann::json message = OPXTreeMessageReader::Read(i_message);
    return message.is_array() ? AnswerBatch(message) : AnswerRequest(message);
  }
  catch (...)
  {
    return AnswerCurrentException("null");
  }
}

std::string OPXTreeSession::AnswerOversized()
{
  return OPXTreeError::MessageTooLong().ToAnswer("null");
}

std::string OPXTreeSession::AnswerBatch(nlohmann::json& io_batch) const
{
  NeedRequest(!io_batch.empty(), "a batch holds at least one request");
  NeedRequest(io_batch.size() <= MaxRequests, "a batch holds at most 1000 requests");
  std::string answers;
  for (nlohmann::json& request : io_batch)
  {
    const std::string answer = AnswerRequest(request, answers.size() < MaxBatchAnswerSize);
    if (!answer.empty())
      answers += (answers.empty() ? "[" : ",") + answer;
  }
  return answers.empty() ? answers : answers + "]";
}

std::string OPXTreeSession::AnswerRequest(nlohmann::json& io_request, bool i_hasRoom) const
{
  const std::string id = GetID(io_request);
  bool isNotification = false;
  std::string answer;
  try
  {
    CheckRequest(io_request);
    isNotification = !io_request.contains("id");
    NeedRequest(i_hasRoom, "the batch's answers so far take 64 MiB");
    // Parameters that are left out are null, which no method takes.
    answer = AnswerResult(id, OPXTreeMethods::Call(_source, io_request["method"].get<std::string>(), io_request["params"]));
  }
  catch (...)
  {
    answer = AnswerCurrentException(id);
  }
  return isNotification ? std::string() : answer;
}
