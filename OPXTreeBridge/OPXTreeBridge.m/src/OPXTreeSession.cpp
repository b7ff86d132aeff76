#include "OPXTreeSession.h"

#include "OPXTreeConversation.h"
#include "OPXTreeError.h"

#include <utility>

OPXTreeSession::OPXTreeSession(ZELSYPAbstractDataSource& i_source, OPXTreeRowsSource& i_rows, Output i_output)
    : _pConversation(std::make_shared<OPXTreeConversation>(i_source, i_rows, std::move(i_output)))
{
}

OPXTreeSession::~OPXTreeSession()
{
  _pConversation->End();
}

// The conversation is held meanwhile, and the session not looked at any more: what is called may destroy it.
void OPXTreeSession::Receive(std::string_view i_message) const
{
  const std::shared_ptr<OPXTreeConversation> pConversation = _pConversation;
  pConversation->Receive(i_message);
}

std::string OPXTreeSession::Answer(std::string_view i_message) const
{
  const std::shared_ptr<OPXTreeConversation> pConversation = _pConversation;
  return pConversation->Answer(i_message);
}

std::string OPXTreeSession::AnswerOversized()
{
  return OPXTreeConversation::AnswerError(OPXTreeError::MessageTooLong());
}
