// Whatever bytes come, line by line, a tree session sends nothing but answers and notifications of the protocol's form, runs no
// success callback twice, and throws nothing. TreeSession_fuzz fuzz/corpus/TreeSession
#include "OPXTreeRowsSource.h"
#include "OPXTreeSession.h"
#include "Require.h"
#include "ZELSYPAbstractDataSource.h"
#include "ZELSYPModelChangedEventArgs.h"
#include "ZELSYPSelectionChangedEventArgs.h"
#include "ZELSYPViewUpdatedEventArgs.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace
{
using namespace ZELSYPDataSourceParameters;
using nlohmann::json;

// Every node but "throw", which fails, has one child, and the id of that is the last byte of the last key. Each request
// raises an event that waits for the view's answer; a change of the selection is answered by the request that follows.
class SmallSource : public ZELSYPAbstractDataSource, public OPXTreeRowsSource
{
public:
  TreeNodesAnswerParameters RequestRows(const TreeNodesRequestParameters& i_request) override
  {
    AnswerWaiting();
    Raise<ZELSYPModelChangedEventArgs>(ModelChanged(), json{{"rows", i_request.GetRequestCount()}});
    std::vector<std::vector<TreeNodeProperties>> rows;
    for (int i = 0; i < i_request.GetRequestCount(); ++i)
      rows.push_back({MakeChild(i_request.GroupKeys(i))});
    std::vector<int> totals(rows.size(), 1);
    return {std::move(rows), std::move(totals)};
  }

  TreeNodesModelStructureAnswerParameters RequestStructure(const TreeNodesModelStructureParameters& i_request) override
  {
    AnswerWaiting();
    Raise<ZELSYPViewUpdatedEventArgs>(ViewUpdated(), json(i_request.GroupKeys(0)));
    MakeChild(i_request.GroupKeys(0));
    return {};
  }

  void RequestSelectionChange(const SelectionChangeParameters& i_change, SelectionChangeCallback i_callback) override
  {
    AnswerWaiting();
    _waiting = [i_change, i_callback] { i_callback(i_change); };
    Raise<ZELSYPSelectionChangedEventArgs>(SelectionChanged(), i_change);
  }

private:
  template <class Args, class Payload>
  void Raise(ZELSYPEvent* i_pEvent, const Payload& i_payload)
  {
    Args args(i_pEvent, i_payload,
              [isCalled = std::make_shared<bool>(false)](json& i_answer)
              {
                Require(!std::exchange(*isCalled, true), "a success callback runs once");
                if (i_answer == "throw")
                  throw std::runtime_error("no success \xFF");
              });
    Dispatch(&args);
  }

  void AnswerWaiting()
  {
    if (const auto waiting = std::exchange(_waiting, nullptr))
      waiting();
  }

  static TreeNodeProperties MakeChild(const std::vector<std::string>& i_keys)
  {
    if (!i_keys.empty() && i_keys.back() == "throw")
      throw std::runtime_error("cannot be read \xFF");
    const std::string id = i_keys.empty() || i_keys.back().empty() ? "a" : i_keys.back().substr(i_keys.back().size() - 1);
    return {id, Properties{{"id", id}}, true, -1};
  }

  std::function<void()> _waiting;
};

void RequireError(const json& i_error)
{
  Require(i_error.is_object() && i_error.contains("code") && i_error.contains("message"), "an error has a code and a message");
  const json& code = i_error["code"];
  Require(code == -32700 || (code >= -32603 && code <= -32600), "the code is one of the protocol's");
  Require(i_error["message"].is_string(), "the message is a text");
}

void RequireOneAnswer(const json& i_answer)
{
  Require(i_answer.is_object() && i_answer.size() == 3, "an answer is an object of three members");
  Require(i_answer.value("jsonrpc", json()) == "2.0" && i_answer.contains("id"), "an answer names the protocol and its request");
  Require(i_answer.contains("result") != i_answer.contains("error"), "an answer has a result or an error");
  if (i_answer.contains("error"))
    RequireError(i_answer["error"]);
}

void RequireNotification(const json& i_message)
{
  Require(i_message.size() == 3 && i_message.value("jsonrpc", json()) == "2.0", "a notification is an object of three members");
  const json method = i_message["method"];
  Require(method == "tree/modelChanged" || method == "tree/selectionChanged" || method == "tree/viewUpdated", "a notification is known");
  Require(i_message["params"].is_object() && i_message["params"]["answerTo"].is_number_unsigned(), "a notification can be answered");
}

void RequireMessage(const std::string& i_text)
{
  Require(i_text.find('\n') == std::string::npos, "a message is one line");
  const json message = json::parse(i_text, nullptr, false);
  Require(!message.is_discarded(), "a message is JSON");
  if (!message.is_array())
    return message.contains("method") ? RequireNotification(message) : RequireOneAnswer(message);
  Require(!message.empty(), "a batch that is answered has answers");
  for (const json& one : message)
    RequireOneAnswer(one);
}
} // namespace

// An exception ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* i_pData, std::size_t i_size)
{
  SmallSource source;
  const OPXTreeSession session(source, RequireMessage);
  std::string_view rest(reinterpret_cast<const char*>(i_pData), i_size);
  for (std::size_t end; (end = rest.find('\n')) != std::string_view::npos; rest.remove_prefix(end + 1))
    session.Receive(rest.substr(0, end));
  session.Receive(rest);
  return 0;
}
