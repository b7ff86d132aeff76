// MeddlingFailureHandler: does something whenever a check fails, and notes what the check said.
// MeddlingFailureHandler::While([&] { map.RemoveAll(); }, [&] { Walk(map); }, messages);
#ifndef MeddlingFailureHandler_H
#define MeddlingFailureHandler_H

#include "ZELSYPCheckFailureHandler.h"
#include "ZELSYPCheckFailureHandlerSetter.h"

#include <functional>
#include <string>
#include <vector>

class MeddlingFailureHandler : public ZELSYPCheckFailureHandler, private ZELSYPCheckFailureHandlerSetter
{
public:
  static void While(const std::function<void()>& i_meddling, const std::function<void()>& i_run, std::vector<std::string>& o_messages)
  {
    auto* const pHandler = new MeddlingFailureHandler;
    pHandler->_meddling = i_meddling;
    SetFailureHandler(pHandler);
    i_run();
    SetFailureHandler(nullptr);
    o_messages = pHandler->_messages;
    pHandler->Release();
  }
  void HandleFailure(const char* i_message, const char*, int, const char*) override
  {
    _messages.push_back(i_message);
    _meddling();
  }

private:
  std::function<void()> _meddling;
  std::vector<std::string> _messages;
};

#endif
