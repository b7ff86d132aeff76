#include "OPXTreeNotifications.h"

#include "OPXTreeError.h"
#include "OPXTreeOutbox.h"
#include "OPXTreeParametersCheck.h"
#include "OPXTreeSession.h"
#include "ZELSYPAbstractDataSource.h"
#include "ZELSYPModelChangedEventArgs.h"
#include "ZELSYPSelectionChangedEventArgs.h"
#include "ZELSYPSubscribe.h"
#include "ZELSYPViewUpdatedEventArgs.h"

#include <utility>

OPXTreeNotifications::OPXTreeNotifications(ZELSYPAbstractDataSource& io_source, std::shared_ptr<OPXTreeOutbox> i_pOutbox)
    : _pOutbox(std::move(i_pOutbox))
{
  if (!_pOutbox->HasOutput())
    return;
  _subscriptions += ZELSYPSubscribe<ZELSYPModelChangedEventArgs>(
      io_source, ZELSYPAbstractDataSource::ModelChanged(),
      [this](ZELSYPModelChangedEventArgs* i_pArgs) {
        Send("tree/modelChanged", {{"transactions", i_pArgs->GetTransactions()}}, i_pArgs->GetSuccessCallback());
      });
  _subscriptions += ZELSYPSubscribe<ZELSYPSelectionChangedEventArgs>(
      io_source, ZELSYPAbstractDataSource::SelectionChanged(),
      [this](ZELSYPSelectionChangedEventArgs* i_pArgs)
      { Send("tree/selectionChanged", i_pArgs->GetParameters().ComputeJSON(), i_pArgs->GetSuccessCallback()); });
  _subscriptions += ZELSYPSubscribe<ZELSYPViewUpdatedEventArgs>(
      io_source, ZELSYPAbstractDataSource::ViewUpdated(),
      [this](ZELSYPViewUpdatedEventArgs* i_pArgs) {
        Send("tree/viewUpdated", {{"transactions", i_pArgs->GetTransactions()}}, i_pArgs->GetSuccessCallback());
      });
}

// The outbox is held, and nothing else looked at in the end: what is given up may own the session, and the output may
// destroy it.
void OPXTreeNotifications::Send(const char* i_method, nlohmann::json i_params, SuccessCallback i_successCallback)
{
  const std::shared_ptr<OPXTreeOutbox> pOutbox = _pOutbox;
  if (i_successCallback)
    i_params["answerTo"] = Await(std::move(i_successCallback));
  const nlohmann::json message{{"jsonrpc", "2.0"}, {"method", i_method}, {"params", std::move(i_params)}};
  // A source's texts may be in any encoding.
  pOutbox->Send(message.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}

std::uint64_t OPXTreeNotifications::Await(SuccessCallback i_successCallback)
{
  const std::uint64_t number = ++_lastNumber;
  _awaited.emplace(number, std::move(i_successCallback));
  // No number is 0: nothing is given up then.
  const auto givenUp = _awaited.extract(_awaited.size() > OPXTreeSession::MaxAwaited ? _awaited.begin()->first : 0);
  return number;
}

OPXTreeNotifications::SuccessCallback OPXTreeNotifications::TakeAwaited(std::uint64_t i_number)
{
  auto awaited = _awaited.extract(i_number);
  if (!awaited.empty())
    return std::move(awaited.mapped());
  const bool isKnown = i_number > 0 && i_number <= _lastNumber;
  throw OPXTreeError(OPXTreeError::InvalidParams,
                     {{"place", "/answerTo"}, {"reason", isKnown ? "answered before, or given up" : "no notification has this number"}});
}

void OPXTreeNotifications::Succeed(nlohmann::json& io_params)
{
  OPXTreeParametersCheck::CheckSucceeded(io_params);
  TakeAwaited(io_params["answerTo"].get<std::uint64_t>())(io_params["result"]);
}

void OPXTreeNotifications::End()
{
  _subscriptions.EndAll();
  _awaited.clear();
}
