#include "OPXTreeSession.h"

#include "OPXTreeError.h"
#include "OPXTreeMessageReader.h"
#include "OPXTreeMethods.h"
#include "OPXTreeOutbox.h"
#include "OPXTreeReply.h"

#include <cmath>
#include <exception>
#include <nlohmann/json.hpp>
#include <utility>

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

// What keeps a value from being a request; null when nothing does.
const char* FindFault(const nlohmann::json& i_request)
{
  if (!i_request.is_object())
    return "a request is an object";
  if (i_request.contains("id") && !IsID(i_request["id"]))
    return "\"id\" is a string, a number of at most 64 bits or null";
  if (!i_request.contains("jsonrpc") || i_request["jsonrpc"] != "2.0")
    return "\"jsonrpc\" is \"2.0\"";
  if (!i_request.contains("method") || !i_request["method"].is_string())
    return "\"method\" is a string";
  if (i_request.contains("params") && !i_request["params"].is_structured())
    return "\"params\" is an object or an array";
  return nullptr;
}

// As JSON text; null when it cannot be told.
std::string GetID(const nlohmann::json& i_request)
{
  return i_request.contains("id") && IsID(i_request["id"]) ? i_request["id"].dump() : "null";
}

void CheckBatch(const nlohmann::json& i_batch)
{
  NeedRequest(!i_batch.empty(), "a batch holds at least one request");
  NeedRequest(i_batch.size() <= OPXTreeSession::MaxRequests, "a batch holds at most 1000 requests");
}

// Whatever went wrong. To be called while an exception is handled.
OPXTreeError GetCurrentError()
{
  try
  {
    throw;
  }
  catch (const OPXTreeError& error)
  {
    return error;
  }
  catch (const std::exception& error)
  {
    return OPXTreeError(OPXTreeError::InternalError, {{"reason", error.what()}});
  }
  catch (...)
  {
    return OPXTreeError(OPXTreeError::InternalError, {{"reason", "unknown"}});
  }
}

// The answer to a message whose id cannot be told.
std::string AnswerError(const OPXTreeError& i_error)
{
  const auto pReply = std::make_shared<OPXTreeReply>(false);
  pReply->Add("null", false)->SetError(i_error);
  return pReply->Close(nullptr);
}
} // namespace

OPXTreeSession::OPXTreeSession(ZELSYPAbstractDataSource& i_source, OPXTreeRowsSource& i_rows, Output i_output)
    : _pOutbox(std::make_shared<OPXTreeOutbox>(std::move(i_output))),
      _pMethods(std::make_unique<OPXTreeMethods>(i_source, i_rows, _pOutbox))
{
}

OPXTreeSession::~OPXTreeSession() = default;

void OPXTreeSession::Receive(std::string_view i_message) const
{
  _pOutbox->SendInAnswer([&] { return Answer(i_message); });
}

std::string OPXTreeSession::Answer(std::string_view i_message) const
{
  try
  {
    nlohmann::json message = OPXTreeMessageReader::Read(i_message);
    return AnswerAll(message);
  }
  catch (...)
  {
    return AnswerError(GetCurrentError());
  }
}

std::string OPXTreeSession::AnswerOversized()
{
  return AnswerError(OPXTreeError::MessageTooLong());
}

std::string OPXTreeSession::AnswerAll(nlohmann::json& io_message) const
{
  const auto pReply = std::make_shared<OPXTreeReply>(io_message.is_array());
  if (!io_message.is_array())
    AnswerRequest(io_message, *pReply);
  else
  {
    CheckBatch(io_message);
    for (nlohmann::json& request : io_message)
      AnswerRequest(request, *pReply);
  }
  if (!_pOutbox->HasOutput())
    return pReply->Close(nullptr);
  // Who answers late may do so when the session has gone.
  return pReply->Close(
      [pWeakOutbox = std::weak_ptr(_pOutbox)](std::string i_reply)
      {
        if (const auto pOutbox = pWeakOutbox.lock())
          pOutbox->Send(std::move(i_reply));
      });
}

void OPXTreeSession::AnswerRequest(nlohmann::json& io_request, OPXTreeReply& io_reply) const
{
  const char* const pFault = FindFault(io_request);
  const bool isNotification = !pFault && !io_request.contains("id");
  const auto pAnswer = io_reply.Add(GetID(io_request), isNotification);
  try
  {
    NeedRequest(!pFault, pFault);
    NeedRequest(io_reply.GetSize() < MaxBatchAnswerSize, "the batch's answers so far take 64 MiB");
    // Parameters that are left out are null, which no method takes.
    _pMethods->Call(io_request["method"].get<std::string>(), io_request["params"], pAnswer);
  }
  catch (...)
  {
    pAnswer->SetError(GetCurrentError());
  }
}
