// Whatever bytes come, a tree session answers them with nothing or with answers of the protocol's form, and throws nothing.
// TreeSession_fuzz fuzz/corpus/TreeSession
#include "OPXTreeDataSource.h"
#include "OPXTreeSession.h"
#include "Require.h"

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

namespace
{
using namespace ZELSYPDataSourceParameters;
using nlohmann::json;

// Every node but "throw", which fails, has one child, and the id of that is the last byte of the last key.
class SmallSource : public OPXTreeDataSource
{
public:
  TreeNodesAnswerParameters RequestRows(const TreeNodesRequestParameters& i_request) override
  {
    std::vector<std::vector<TreeNodeProperties>> rows;
    for (int i = 0; i < i_request.GetRequestCount(); ++i)
      rows.push_back({MakeChild(i_request.GroupKeys(i))});
    std::vector<int> totals(rows.size(), 1);
    return {std::move(rows), std::move(totals)};
  }

  TreeNodesModelStructureAnswerParameters RequestStructure(const TreeNodesModelStructureParameters& i_request) override
  {
    MakeChild(i_request.GroupKeys(0));
    return {};
  }

  SelectionChangeParameters RequestSelectionChange(const SelectionChangeParameters& i_change) override { return i_change; }

private:
  static TreeNodeProperties MakeChild(const std::vector<std::string>& i_keys)
  {
    if (!i_keys.empty() && i_keys.back() == "throw")
      throw std::runtime_error("cannot be read \xFF");
    const std::string id = i_keys.empty() || i_keys.back().empty() ? "a" : i_keys.back().substr(i_keys.back().size() - 1);
    return {id, Properties{{"id", id}}, true, -1};
  }
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

void RequireAnswers(const std::string& i_text)
{
  Require(i_text.find('\n') == std::string::npos, "an answer is one line");
  const json answer = json::parse(i_text, nullptr, false);
  Require(!answer.is_discarded(), "an answer is JSON");
  if (!answer.is_array())
    return RequireOneAnswer(answer);
  Require(!answer.empty(), "a batch that is answered has answers");
  for (const json& one : answer)
    RequireOneAnswer(one);
}
} // namespace

// An exception ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* i_pData, std::size_t i_size)
{
  SmallSource source;
  const std::string answer = OPXTreeSession(source).Answer(std::string_view(reinterpret_cast<const char*>(i_pData), i_size));
  if (!answer.empty())
    RequireAnswers(answer);
  return 0;
}
