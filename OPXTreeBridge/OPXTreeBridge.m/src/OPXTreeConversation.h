// OPXTreeConversation: what a session answers and tells, from its beginning to its end.
// auto pConversation = std::make_shared<OPXTreeConversation>(source, rows, output); pConversation->Receive(message);
//
// Whoever calls it holds it meanwhile: what it calls may end it.
#ifndef OPXTreeConversation_H
#define OPXTreeConversation_H

#include "OPXTreeMethods.h"
#include "OPXTreeSession.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

class OPXTreeError;
class OPXTreeOutbox;
class OPXTreeReply;

class OPXTreeConversation
{
public:
  OPXTreeConversation(ZELSYPAbstractDataSource& io_source, OPXTreeRowsSource& io_rows, OPXTreeSession::Output i_output);

  // As the operations of a session.
  void Receive(std::string_view i_message);
  std::string Answer(std::string_view i_message);
  // Nothing is heard, called or sent from here on.
  void End();

  // The answer to a message whose id cannot be told.
  static std::string AnswerError(const OPXTreeError& i_error);

private:
  std::string AnswerAll(nlohmann::json& io_message);
  void AnswerEach(nlohmann::json& io_batch, OPXTreeReply& io_reply);
  void AnswerRequest(nlohmann::json& io_request, OPXTreeReply& io_reply);
  std::string Close(OPXTreeReply& io_reply) const;

  const std::shared_ptr<OPXTreeOutbox> _pOutbox;
  OPXTreeMethods _methods;
};

#endif
