#include "OPXTreeConversation.h"

#include "OPXTreeError.h"
#include "OPXTreeMessageReader.h"
#include "OPXTreeOutbox.h"
#include "OPXTreeReply.h"

#include <cmath>
#include <exception>
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
} // namespace

OPXTreeConversation::OPXTreeConversation(ZELSYPAbstractDataSource& io_source, OPXTreeRowsSource& io_rows, OPXTreeSession::Output i_output)
    : _pOutbox(std::make_shared<OPXTreeOutbox>(std::move(i_output))), _methods(io_source, io_rows, _pOutbox)
{
}

void OPXTreeConversation::Receive(std::string_view i_message)
{
  _pOutbox->SendInAnswer([&] { return Answer(i_message); });
}

std::string OPXTreeConversation::Answer(std::string_view i_message)
{
  try
  {
    nlohmann::json message = OPXTreeMessageReader::Read(i_message);
    _methods.StartMessage();
    return AnswerAll(message);
  }
  catch (...)
  {
    return AnswerError(GetCurrentError());
  }
}

void OPXTreeConversation::End()
{
  _pOutbox->Close();
  _methods.End();
}

std::string OPXTreeConversation::AnswerError(const OPXTreeError& i_error)
{
  const auto pReply = std::make_shared<OPXTreeReply>(false);
  pReply->Add("null", false)->SetError(i_error);
  return pReply->Close(nullptr);
}

std::string OPXTreeConversation::AnswerAll(nlohmann::json& io_message)
{
  const auto pReply = std::make_shared<OPXTreeReply>(io_message.is_array());
  io_message.is_array() ? AnswerEach(io_message, *pReply) : AnswerRequest(io_message, *pReply);
  return _pOutbox->IsClosed() ? std::string() : Close(*pReply);
}

// The source may have gone together with the session: the other requests are not served.
void OPXTreeConversation::AnswerEach(nlohmann::json& io_batch, OPXTreeReply& io_reply)
{
  CheckBatch(io_batch);
  for (nlohmann::json& request : io_batch)
    if (!_pOutbox->IsClosed())
      AnswerRequest(request, io_reply);
}

void OPXTreeConversation::AnswerRequest(nlohmann::json& io_request, OPXTreeReply& io_reply)
{
  const char* const pFault = FindFault(io_request);
  const bool isNotification = !pFault && !io_request.contains("id");
  const auto pAnswer = io_reply.Add(GetID(io_request), isNotification);
  try
  {
    NeedRequest(!pFault, pFault);
    NeedRequest(io_reply.GetSize() < OPXTreeSession::MaxBatchAnswerSize, "the batch's answers so far take 64 MiB");
    // Parameters that are left out are null, which no method takes.
    _methods.Call(io_request["method"].get<std::string>(), io_request["params"], pAnswer);
  }
  catch (...)
  {
    pAnswer->SetError(GetCurrentError());
  }
}

std::string OPXTreeConversation::Close(OPXTreeReply& io_reply) const
{
  if (!_pOutbox->HasOutput())
    return io_reply.Close(nullptr);
  // Who answers late may do so when the session has gone.
  return io_reply.Close(
      [pWeakOutbox = std::weak_ptr(_pOutbox)](std::string i_reply)
      {
        if (const auto pOutbox = pWeakOutbox.lock())
          pOutbox->Send(std::move(i_reply));
      });
}
