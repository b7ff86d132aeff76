#include "OPXTreeOutbox.h"

#include <cstddef>
#include <utility>

OPXTreeOutbox::OPXTreeOutbox(OPXTreeSession::Output i_output) : _output(std::move(i_output)) {}

void OPXTreeOutbox::Send(std::string i_message)
{
  if (!i_message.empty())
    _messages.push_back(std::move(i_message));
  SendAll();
}

void OPXTreeOutbox::SendInAnswer(const std::function<std::string()>& i_makeAnswer)
{
  const std::size_t place = _messages.size();
  ++_answersInTheMaking;
  std::string answer = i_makeAnswer();
  --_answersInTheMaking;
  if (!answer.empty())
    _messages.insert(_messages.begin() + static_cast<std::ptrdiff_t>(place), std::move(answer));
  SendAll();
}

// An output that calls the session comes here again; what that adds is sent by the loop that is under way.
void OPXTreeOutbox::SendAll()
{
  if (_isSending || _answersInTheMaking > 0)
    return;
  _isSending = true;
  while (!_messages.empty())
  {
    const std::string message = std::move(_messages.front());
    _messages.pop_front();
    if (_output)
      _output(message);
  }
  _isSending = false;
}
