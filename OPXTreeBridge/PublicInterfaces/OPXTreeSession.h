// OPXTreeSession: the conversation between a tree view and a data source in JSON-RPC 2.0 messages.
// OPXTreeSession session(source, [&](const std::string& i_message) { Send(i_message); }); session.Receive(line);
//
// It knows no transport: whoever carries the messages hands each one over whole. The view calls the methods tree/rows,
// tree/structure, tree/selectionChange, tree/collapseExpand and tree/pointerEvent; their "params" is the message record
// and their "result" the answer record. The source's events reach the view as the notifications tree/modelChanged,
// tree/selectionChanged and tree/viewUpdated; where the event has a success callback, "params" holds the number
// "answerTo", and the view's call of tree/succeeded with that number and its "result" runs the callback, once.
#ifndef OPXTreeSession_H
#define OPXTreeSession_H

#include "OPXTreeBridgeExport.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

class OPXTreeConversation;
class OPXTreeRowsSource;
class ZELSYPAbstractDataSource;

class OPXTREEBRIDGE_EXPORT OPXTreeSession
{
public:
  // In bytes.
  static constexpr std::size_t MaxMessageSize = std::size_t{16} << 20;
  // In levels of arrays and objects, the message's own and a batch's included.
  static constexpr int MaxNesting = 256;
  // Of a batch, of a grouped request, and of a list of index paths.
  static constexpr std::size_t MaxRequests = 1000;
  // In bytes: once the answers of a batch take so much, its other requests are refused.
  static constexpr std::size_t MaxBatchAnswerSize = std::size_t{64} << 20;
  // Success callbacks that wait for the view: one more, and the oldest is given up.
  static constexpr std::size_t MaxAwaited = 1000;

  // Takes one message for the view: one line of valid UTF-8 without its end. It may call the session. What it throws is
  // dropped, and its message counts as sent: whoever raised an event, or answers late, could not know what to do about it.
  using Output = std::function<void(const std::string& i_message)>;

  // Without an output the source's events stay unheard, and a request that the source does not answer at once is an error.
  // Source and rows are borrowed: no message is given to the session once they have gone, but source and session may go
  // in either order. When the session goes, it hears no event any more, late answers are sent nowhere, and success
  // callbacks that still wait go with it, uncalled. What the session calls (the source, the rows, a success callback, the
  // output) may call the session, and may destroy it: nothing else is called or sent then, and the message that was being
  // served has no answer. Session, source and output belong to one thread at a time.
  OPXTreeSession(ZELSYPAbstractDataSource& i_source, OPXTreeRowsSource& i_rows, Output i_output = nullptr);
  // For a source that has its rows itself.
  template <class Source>
  explicit OPXTreeSession(Source& i_source, Output i_output = nullptr) : OPXTreeSession(i_source, i_source, std::move(i_output))
  {
  }
  OPXTreeSession(const OPXTreeSession&) = delete;
  OPXTreeSession& operator=(const OPXTreeSession&) = delete;
  ~OPXTreeSession();

  // Answers one message through the output: its answer goes first, then what the source told meanwhile, in its order.
  // Nothing is sent in answer to a notification, or to a batch of nothing else. A batch is answered when all of its
  // requests are, others meanwhile. Whatever the message holds, it is answered and the session serves on.
  // Errors: -32700 not JSON or not UTF-8; -32600 not a request, or over a limit above; -32601 no such method; -32602
  // wrong parameters ("data" names the place and what is wrong), or an answer to a notification that waits for none;
  // -32603 the source failed or gave no answer ("data" says how). No exception leaves.
  void Receive(std::string_view i_message) const;

  // The same with the answer returned, or empty when there is none or it comes later, through the output. What the source
  // tells meanwhile is sent before this returns.
  std::string Answer(std::string_view i_message) const;

  // The answer to a message over MaxMessageSize, for a transport that does not hold such a message.
  static std::string AnswerOversized();

private:
  const std::shared_ptr<OPXTreeConversation> _pConversation;
};

#endif
