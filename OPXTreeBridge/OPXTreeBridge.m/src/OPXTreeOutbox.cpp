#include "OPXTreeOutbox.h"

#include <cstddef>
#include <utility>

namespace
{
// Counts what is under way, until it is over or left by an exception.
class UnderWay
{
public:
  explicit UnderWay(int& io_count) : _count(++io_count) {}
  ~UnderWay() { --_count; }
  UnderWay(const UnderWay&) = delete;
  UnderWay& operator=(const UnderWay&) = delete;

private:
  int& _count;
};
} // namespace

OPXTreeOutbox::OPXTreeOutbox(OPXTreeSession::Output i_output) : _output(std::move(i_output)) {}

void OPXTreeOutbox::Close()
{
  _isClosed = true;
  _messages.clear();
}

void OPXTreeOutbox::Send(std::string i_message)
{
  if (!i_message.empty() && !_isClosed)
    _messages.push_back(std::move(i_message));
  SendAll();
}

void OPXTreeOutbox::SendInAnswer(const std::function<std::string()>& i_makeAnswer)
{
  const std::size_t place = _messages.size();
  std::string answer = MakeAnswer(i_makeAnswer);
  if (!answer.empty() && !_isClosed)
    _messages.insert(_messages.begin() + static_cast<std::ptrdiff_t>(place), std::move(answer));
  SendAll();
}

std::string OPXTreeOutbox::MakeAnswer(const std::function<std::string()>& i_makeAnswer)
{
  const UnderWay making(_answersInTheMaking);
  return i_makeAnswer();
}

// An output that calls the session comes here again; what that adds is sent by the loop that is under way.
void OPXTreeOutbox::SendAll()
{
  if (_sending > 0 || _answersInTheMaking > 0)
    return;
  const UnderWay sending(_sending);
  while (!_messages.empty())
  {
    const std::string message = std::move(_messages.front());
    _messages.pop_front();
    SendNow(message);
  }
}

void OPXTreeOutbox::SendNow(const std::string& i_message) const
{
  try
  {
    if (_output)
      _output(i_message);
  }
  catch (...)
  {
    // Those who come here raised an event, dropped a callback or asked for something else: none of them can mend an output.
  }
}
