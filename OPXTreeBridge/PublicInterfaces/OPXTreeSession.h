// OPXTreeSession: the conversation between a tree view and a data source, one JSON-RPC 2.0 message in, at most one out.
// OPXTreeSession session(source); std::string answer = session.Answer(line); if (!answer.empty()) Send(answer);
//
// It knows no transport: whoever carries the messages hands each one over whole. The methods are tree/rows,
// tree/structure, tree/selectionChange, tree/collapseExpand and tree/pointerEvent; their "params" is the message record
// and their "result" the answer record.
#ifndef OPXTreeSession_H
#define OPXTreeSession_H

#include "OPXTreeBridgeExport.h"

#include <cstddef>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

class OPXTreeDataSource;

class OPXTREEBRIDGE_EXPORT OPXTreeSession
{
public:
  // In bytes.
  static constexpr std::size_t MaxMessageSize = std::size_t{16} << 20;
  // In levels of arrays and objects, the message's own and a batch's included.
  static constexpr int MaxNesting = 256;
  // Of a batch, and of a grouped request.
  static constexpr std::size_t MaxRequests = 1000;
  // In bytes: once the answers of a batch take so much, its other requests are refused.
  static constexpr std::size_t MaxBatchAnswerSize = std::size_t{64} << 20;

  // The source is borrowed and outlives the session. A session belongs to one thread at a time.
  explicit OPXTreeSession(OPXTreeDataSource& i_source);

  // The answer to one message: one line of valid UTF-8 without its end, or empty when nothing is to be sent (a
  // notification, or a batch of nothing else). Whatever the message holds, it is answered and the session serves on;
  // no exception leaves.
  // Errors: -32700 not JSON or not UTF-8; -32600 not a request, or over a limit above; -32601 no such method; -32602
  // wrong parameters ("data" names the place and what is wrong); -32603 the source failed ("data" says how).
  std::string Answer(std::string_view i_message) const;

  // The answer to a message over MaxMessageSize, for a transport that does not hold such a message.
  static std::string AnswerOversized();

private:
  std::string AnswerBatch(nlohmann::json& io_batch) const;
  std::string AnswerRequest(nlohmann::json& io_request, bool i_hasRoom = true) const;

  OPXTreeDataSource& _source;
};

#endif
