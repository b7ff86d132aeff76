// OPXTreeOutbox: the messages for the view, sent in their order, and those of one answer behind the answer.
// OPXTreeOutbox outbox(output); outbox.Send(notification); outbox.SendInAnswer([&] { return Answer(message); });
#ifndef OPXTreeOutbox_H
#define OPXTreeOutbox_H

#include "OPXTreeSession.h"

#include <deque>
#include <functional>
#include <string>

class OPXTreeOutbox
{
public:
  // An empty output takes nothing.
  explicit OPXTreeOutbox(OPXTreeSession::Output i_output);

  bool HasOutput() const { return static_cast<bool>(_output); }
  // From here on nothing is sent. The output stays until the outbox goes: it may be running.
  void Close();
  bool IsClosed() const { return _isClosed; }
  // Sends a message now, or after the answer that is being made or the message that is being sent. An empty one is none.
  // Whoever calls holds the outbox meanwhile, for the output may destroy its session; what the output throws is dropped.
  void Send(std::string i_message);
  // Sends what i_makeAnswer returns, and then what was to be sent while it ran. When it throws, that waits for the next call.
  void SendInAnswer(const std::function<std::string()>& i_makeAnswer);

private:
  std::string MakeAnswer(const std::function<std::string()>& i_makeAnswer);
  void SendAll();
  void SendNow(const std::string& i_message) const;

  const OPXTreeSession::Output _output;
  std::deque<std::string> _messages;
  bool _isClosed = false;
  int _answersInTheMaking = 0;
  int _sending = 0;
};

#endif
