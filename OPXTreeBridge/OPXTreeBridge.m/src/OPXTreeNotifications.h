// OPXTreeNotifications: the events of a data source on their way to the view, and the view's answers on their way back.
// OPXTreeNotifications notifications(source, pOutbox); notifications.Succeed(params);
#ifndef OPXTreeNotifications_H
#define OPXTreeNotifications_H

#include "ZELSYPSubscriptionBag.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>

class OPXTreeOutbox;
class ZELSYPAbstractDataSource;

class OPXTreeNotifications
{
public:
  // Hears the source only when somebody takes the messages.
  OPXTreeNotifications(ZELSYPAbstractDataSource& io_source, std::shared_ptr<OPXTreeOutbox> i_pOutbox);

  // Gives "result" (null when there is none) to the success callback of the notification that "answerTo" names. Throws an
  // OPXTreeError when none waits; lets through what the callback throws, which counts as called.
  void Succeed(nlohmann::json& io_params);
  // From here on nothing is heard, and no success callback waits.
  void End();

private:
  using SuccessCallback = std::function<void(nlohmann::json&)>;

  void Send(const char* i_method, nlohmann::json i_params, SuccessCallback i_successCallback);
  std::uint64_t Await(SuccessCallback i_successCallback);
  SuccessCallback TakeAwaited(std::uint64_t i_number);

  const std::shared_ptr<OPXTreeOutbox> _pOutbox;
  // By the number of the notification, which is never used again.
  std::map<std::uint64_t, SuccessCallback> _awaited;
  std::uint64_t _lastNumber = 0;
  ZELSYPSubscriptionBag _subscriptions;
};

#endif
