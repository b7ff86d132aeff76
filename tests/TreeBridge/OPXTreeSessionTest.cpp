#include "OPXTreeSession.h"

#include "MemorySource.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class OPXTreeSessionTest : public testing::Test
{
protected:
  // No check may fail because of what a client sends.
  ~OPXTreeSessionTest() override { EXPECT_THAT(failures.GetMessages(), IsEmpty()); }

  json Ask(const std::string& i_message) { return json::parse(session.Answer(i_message)); }
  json Call(const std::string& i_method, const std::string& i_params)
  {
    return Ask(R"({"jsonrpc":"2.0","id":1,"method":")" + i_method + R"(","params":)" + i_params + "}");
  }
  int GetCode(const std::string& i_message) { return Ask(i_message)["error"]["code"]; }
  int CallForCode(const std::string& i_method, const std::string& i_params)
  {
    const json answer = Call(i_method, i_params);
    return answer.contains("error") ? answer["error"]["code"].get<int>() : 0;
  }

  RecordingFailureHandler failures;
  MemorySource source;
  OPXTreeSession session{source};
};

const std::string topRows = R"({"jsonrpc":"2.0","id":1,"method":"tree/rows","params":{"startRow":0,"endRow":9,"groupKeys":[]}})";
const std::string note = R"({"jsonrpc":"2.0","method":"tree/pointerEvent","params":{"idsPath":["a"]}})";

std::string Repeat(const std::string& i_text, int i_times)
{
  std::string text;
  for (int i = 0; i < i_times; ++i)
    text += i_text;
  return text;
}
} // namespace

TEST_F(OPXTreeSessionTest, RowsAreAnsweredAsTheRecordComputesThem)
{
  EXPECT_EQ(session.Answer(topRows), R"({"jsonrpc":"2.0","id":1,"result":{"groupedRequestResult":{"lastRow":[2],"numberOfChildren":[2],)"
                                     R"("rows":[[{"id":"a","wux_group":true},{"id":"b","wux_group":false}]]}}})");
}

TEST_F(OPXTreeSessionTest, RequestsWhoseParentIsMissingAreNamedBesideTheResult)
{
  const json answer = Call("tree/rows", R"({"groupedRequest":[{"startRow":0,"endRow":9,"groupKeys":["x"]},)"
                                        R"({"startRow":0,"endRow":9,"groupKeys":["a"]},{"startRow":0,"endRow":9,"groupKeys":["y"]}]})");
  EXPECT_EQ(answer["result"]["notFound"], json({0, 2}));
  EXPECT_EQ(answer["result"]["groupedRequestResult"]["numberOfChildren"], json({0, 2, 0}));
}

TEST_F(OPXTreeSessionTest, ASingleRequestWithoutGroupKeysHasNoRows)
{
  EXPECT_EQ(Call("tree/rows", R"({"startRow":0,"endRow":9})")["result"]["groupedRequestResult"]["rows"], json::array());
}

TEST_F(OPXTreeSessionTest, StructureIsAnsweredByTheSource)
{
  EXPECT_EQ(Call("tree/structure", R"({"expandNLevels":2})")["result"], json());
  EXPECT_THAT(source.told, ElementsAre("structure 2"));
}

TEST_F(OPXTreeSessionTest, CollapseAndExpandAnswerTwoEmptyListsByDefault)
{
  EXPECT_EQ(Call("tree/collapseExpand", R"({"nodesToExpand":[["a"]]})")["result"],
            json({{"nodesToCollapse", json::array()}, {"nodesToExpand", json::array()}}));
}

TEST_F(OPXTreeSessionTest, SelectionChangeIsAnsweredByTheSource)
{
  EXPECT_EQ(Call("tree/selectionChange", R"({"addedNodes":["a"],"removedNodes":[[3,1]]})")["result"],
            json::parse(R"({"addedNodes":["a"],"removedNodes":[[3,1]]})"));
}

TEST_F(OPXTreeSessionTest, PointerEventIsToldAndAnsweredByNull)
{
  EXPECT_EQ(Call("tree/pointerEvent", R"({"idsPath":["a","a1"],"button":2})")["result"], json());
  EXPECT_THAT(source.told, ElementsAre("pointer 2 2"));
}

TEST_F(OPXTreeSessionTest, AnIdComesBackAsItWasSent)
{
  for (const char* const id : {"1", "-5", "1.5", "\"text\"", "\"\\u00e9\"", "null"})
    EXPECT_EQ(Ask(std::string(R"({"jsonrpc":"2.0","id":)") + id + R"(,"method":"x"})")["id"], json::parse(id)) << id;
}

TEST_F(OPXTreeSessionTest, AnIdOfAnotherKindIsNoRequest)
{
  for (const char* const id : {"true", "[1]", "{}"})
  {
    const json answer = Ask(std::string(R"({"jsonrpc":"2.0","id":)") + id + R"(,"method":"tree/rows"})");
    EXPECT_EQ(answer["error"]["code"], -32600) << id;
    EXPECT_EQ(answer["id"], json()) << id;
  }
}

TEST_F(OPXTreeSessionTest, ANotificationIsDoneAndNotAnswered)
{
  EXPECT_EQ(session.Answer(note), "");
  EXPECT_THAT(source.told, ElementsAre("pointer 1 0"));
}

TEST_F(OPXTreeSessionTest, AFailedNotificationIsNotAnswered)
{
  EXPECT_EQ(session.Answer(R"({"jsonrpc":"2.0","method":"nothing"})"), "");
  EXPECT_EQ(session.Answer(R"({"jsonrpc":"2.0","method":"tree/rows","params":{}})"), "");
  EXPECT_EQ(session.Answer(R"({"jsonrpc":"2.0","method":"tree/structure","params":{"groupKeys":["throw"]}})"), "");
}

TEST_F(OPXTreeSessionTest, WhatIsNotJSONIsAParseError)
{
  for (const char* const text : {"", " ", "x", "{", "[1,]", "{\"a\":1}}", "\"\xFF\"", "{\"a\":\"\xC0\x80\"}", "\"\\ud800\""})
  {
    const json answer = Ask(text);
    EXPECT_EQ(answer["error"]["code"], -32700) << text;
    EXPECT_EQ(answer["error"]["message"], "Parse error");
    EXPECT_TRUE(answer["error"]["data"]["reason"].is_string());
    EXPECT_EQ(answer["id"], json());
  }
}

TEST_F(OPXTreeSessionTest, ANumberLargerThanAnyDoubleIsTheNearestEndOfItsRange)
{
  const std::string manyNines(400, '9');
  for (const std::string& number : {std::string("1e400"), std::string("1.5E+400"), std::string("0.1e400"), manyNines, manyNines + ".5"})
  {
    Call("tree/rows", R"({"startRow":-)" + number + R"(,"endRow":)" + number + R"(,"groupKeys":["\"1e400"]})");
    EXPECT_THAT(source.told, ElementsAre("rows -2147483648 2147483647")) << number;
    source.told.clear();
  }
}

TEST_F(OPXTreeSessionTest, ANumberLargerThanAnyDoubleSpoilsNoOtherRequestOfItsBatch)
{
  const json answers = Ask(R"([{"jsonrpc":"2.0","id":1,"method":"tree/structure","params":{"a\\":[1e400,1e-400]}},)"
                           R"({"jsonrpc":"2.0","id":1e400,"method":"tree/structure","params":{}}])");
  EXPECT_EQ(answers[0], json::parse(R"({"jsonrpc":"2.0","id":1,"result":null})"));
  EXPECT_EQ(answers[1]["error"]["code"], -32600);
  EXPECT_EQ(answers[1]["id"], json());
}

TEST_F(OPXTreeSessionTest, WhatOnlyResemblesANumberLargerThanAnyDoubleIsNotJSON)
{
  for (const char* const text :
       {"01e400", "-01e400", "1.e400", "-.1e400", "1e400e", "1e400-", "+1e400", "-", "1e400x", "1e400 1", "1e+", "--1e400"})
    EXPECT_EQ(GetCode("[1e400," + std::string(text) + "]"), -32700) << text;
}

TEST_F(OPXTreeSessionTest, AParseErrorDoesNotQuoteAllOfAMessage)
{
  for (const std::string& message :
       {std::string(100000, '\t') + "x", "\"" + std::string(100000, 'a') + "\\q\"", "[1" + Repeat("\xC3\xA9", 100000)})
  {
    const json error = Ask(message)["error"];
    EXPECT_EQ(error["code"], -32700);
    EXPECT_THAT(error["data"]["reason"].get<std::string>(),
                testing::StartsWith("[json.exception.parse_error.101] parse error at line 1, column "));
    EXPECT_LT(error.dump().size(), 400u);
  }
}

TEST_F(OPXTreeSessionTest, AZeroByteDoesNotEndAMessage)
{
  EXPECT_EQ(GetCode(topRows + std::string("\0x", 2)), -32700);
}

TEST_F(OPXTreeSessionTest, WhatIsNoRequestObjectIsAnInvalidRequest)
{
  for (const char* const text :
       {"1", "null", "\"x\"", "{}", R"({"jsonrpc":"2.0"})", R"({"jsonrpc":"1.0","method":"tree/rows","id":1})",
        R"({"method":"tree/rows","id":1})", R"({"jsonrpc":2.0,"method":"tree/rows"})", R"({"jsonrpc":"2.0","method":1,"params":"bar"})",
        R"({"jsonrpc":"2.0","method":"tree/rows","params":1})", R"({"jsonrpc":"2.0","method":"tree/rows","params":null})"})
  {
    const json answer = Ask(text);
    EXPECT_EQ(answer["error"]["code"], -32600) << text;
    EXPECT_EQ(answer["error"]["message"], "Invalid Request");
  }
}

TEST_F(OPXTreeSessionTest, AnUnknownMethodIsNamedInTheError)
{
  const json error = Call("tree/row", "{}")["error"];
  EXPECT_EQ(error, json({{"code", -32601}, {"message", "Method not found"}, {"data", {{"method", "tree/row"}}}}));
}

TEST_F(OPXTreeSessionTest, AnEmptyBatchIsOneInvalidRequest)
{
  EXPECT_EQ(GetCode("[]"), -32600);
}

TEST_F(OPXTreeSessionTest, ABatchHoldsAThousandRequestsAndNoMore)
{
  std::string batch = "[" + topRows;
  for (int i = 1; i < 1000; ++i)
    batch += "," + topRows;
  EXPECT_EQ(Ask(batch + "]").size(), 1000u);
  EXPECT_EQ(GetCode(batch + "," + topRows + "]"), -32600);
}

TEST_F(OPXTreeSessionTest, AGroupedRequestHoldsAThousandRequestsAndNoMore)
{
  json requests = json::array();
  for (int i = 0; i < 1000; ++i)
    requests.push_back({{"startRow", 0}, {"endRow", 0}, {"groupKeys", json::array()}});
  EXPECT_TRUE(Call("tree/rows", json{{"groupedRequest", requests}}.dump()).contains("result"));
  requests.push_back(requests[0]);
  EXPECT_EQ(Call("tree/rows", json{{"groupedRequest", requests}}.dump())["error"]["code"], -32602);
}

TEST_F(OPXTreeSessionTest, AListHoldsAtMostAThousandIndexPaths)
{
  for (const char* const nodes : {"addedNodes", "removedNodes"})
  {
    json paths(1000, {0});
    EXPECT_TRUE(Call("tree/selectionChange", json{{nodes, paths}}.dump()).contains("result"));
    paths.push_back({0});
    EXPECT_EQ(Call("tree/selectionChange", json{{nodes, paths}}.dump())["error"]["data"],
              json({{"place", std::string("/") + nodes}, {"expected", "at most 1000 index paths"}, {"found", "array"}}));
  }
  EXPECT_TRUE(Call("tree/selectionChange", json{{"addedNodes", json(1001, "id")}}.dump()).contains("result"));
}

TEST(OPXTreeSessionMessagesTest, TheSourceLearnsOfEachMessageBeforeItsRequests)
{
  struct WatchfulSource : MemorySource
  {
    void StartMessage() override { told.push_back("message"); }
  } source;
  const OPXTreeSession session(source);
  session.Receive(topRows);
  session.Receive("[" + topRows + "," + note + "]");
  session.Receive("not JSON");
  EXPECT_THAT(source.told, ElementsAre("message", "rows 0 9", "message", "rows 0 9", "pointer 1 0"));
}

TEST(OPXTreeSessionLimitsTest, ABatchWhoseAnswersTakeTooMuchRefusesItsOtherRequests)
{
  struct LargeSource : ZELSYPAbstractDataSource, OPXTreeRowsSource
  {
    using Answer = ZELSYPDataSourceParameters::TreeNodesAnswerParameters;
    Answer RequestRows(const ZELSYPDataSourceParameters::TreeNodesRequestParameters&) override
    {
      return Answer({{{"a", {{"text", std::string(std::size_t{20} << 20, 'x')}}, false, -1}}}, {1});
    }
    ZELSYPDataSourceParameters::TreeNodesModelStructureAnswerParameters
    RequestStructure(const ZELSYPDataSourceParameters::TreeNodesModelStructureParameters&) override
    {
      return {};
    }
  } source;
  const std::string request = R"({"jsonrpc":"2.0","id":1,"method":"tree/rows","params":{"startRow":0,"endRow":1,"groupKeys":[]}})";
  const json answers =
      json::parse(OPXTreeSession(source).Answer("[" + request + "," + request + "," + request + "," + request + "," + request + "]"));
  std::vector<int> codes;
  for (const json& answer : answers)
    codes.push_back(answer.value("/error/code"_json_pointer, 0));
  EXPECT_THAT(codes, testing::ElementsAre(0, 0, 0, 0, -32600));
}

TEST_F(OPXTreeSessionTest, ABatchAnswersEachRequestInOrder)
{
  const json answers = Ask("[" + topRows + ",1," + note + R"(,{"jsonrpc":"2.0","id":"z","method":"nothing"}])");
  ASSERT_EQ(answers.size(), 3u);
  EXPECT_TRUE(answers[0].contains("result"));
  EXPECT_EQ(answers[1]["error"]["code"], -32600);
  EXPECT_EQ(answers[2]["id"], "z");
}

TEST_F(OPXTreeSessionTest, ABatchOfNotificationsIsNotAnswered)
{
  EXPECT_EQ(session.Answer("[" + note + "," + note + "]"), "");
  EXPECT_EQ(source.told.size(), 2u);
}

TEST_F(OPXTreeSessionTest, ABatchInsideABatchIsAnInvalidRequest)
{
  EXPECT_EQ(Ask("[[" + topRows + "]]")[0]["error"]["code"], -32600);
}

TEST_F(OPXTreeSessionTest, WrongParametersAreNamedByTheirPlace)
{
  const json error = Call("tree/rows", R"({"groupedRequest":[{"startRow":0,"endRow":"9","groupKeys":[]}]})")["error"];
  EXPECT_EQ(error, json::parse(R"({"code":-32602,"message":"Invalid params",)"
                               R"("data":{"place":"/groupedRequest/0/endRow","expected":"number","found":"string"}})"));
}

TEST_F(OPXTreeSessionTest, MissingParametersAreNamed)
{
  EXPECT_EQ(Call("tree/rows", R"({"startRow":0})")["error"]["data"], json({{"place", ""}, {"missing", "endRow"}}));
}

TEST_F(OPXTreeSessionTest, ParametersLeftOutAreWrongParameters)
{
  for (const char* const method : {"tree/rows", "tree/structure", "tree/selectionChange", "tree/collapseExpand", "tree/pointerEvent"})
  {
    EXPECT_EQ(GetCode(std::string(R"({"jsonrpc":"2.0","id":1,"method":")") + method + "\"}"), -32602) << method;
    EXPECT_EQ(CallForCode(method, "[]"), -32602) << method;
    EXPECT_EQ(CallForCode(method, "[1,2]"), -32602) << method;
  }
}

TEST_F(OPXTreeSessionTest, BrokenRowRequestsAreWrongParameters)
{
  for (const char* const params :
       {"{}", R"({"endRow":1})", R"({"startRow":null,"endRow":1})", R"({"startRow":0,"endRow":[]})", R"({"groupedRequest":{}})",
        R"({"groupedRequest":[1]})", R"({"groupedRequest":[{"endRow":1,"groupKeys":[]}]})",
        R"({"groupedRequest":[{"startRow":0,"endRow":1}]})", R"({"groupedRequest":[{"startRow":0,"endRow":1,"groupKeys":[1]}]})",
        R"({"groupedRequest":[{"startRow":0,"endRow":1,"groupKeys":[],"sortModel":[{}]}]})",
        R"({"startRow":0,"endRow":1,"groupKeys":[[]]})", R"({"startRow":0,"endRow":1,"sortModel":[1]})",
        R"({"startRow":0,"endRow":1,"sortModel":[{"sort":"asc"}]})", R"({"startRow":0,"endRow":1,"sortModel":[{"dataIndex":5}]})",
        R"({"startRow":0,"endRow":1,"sortModel":[{"dataIndex":"a","sort":true}]})", R"({"startRow":0,"endRow":1,"expandNLevels":"2"})"})
    EXPECT_EQ(CallForCode("tree/rows", params), -32602) << params;
}

TEST_F(OPXTreeSessionTest, WhatTheRecordsAcceptIsAccepted)
{
  for (const char* const params :
       {R"({"startRow":0,"endRow":1,"groupKeys":"a"})", R"({"startRow":true,"endRow":1.9})", R"({"groupedRequest":[]})",
        R"({"startRow":0,"endRow":1,"sortModel":{}})", R"({"startRow":0,"endRow":1,"sortModel":[{"dataIndex":"a","sort":7}]})",
        R"({"groupedRequest":[{"startRow":0,"endRow":1,"groupKeys":5}],"groupKeys":[]})"})
    EXPECT_EQ(CallForCode("tree/rows", params), 0) << params;
}

TEST_F(OPXTreeSessionTest, NumbersOutOfRangeBecomeTheNearestOnes)
{
  Call("tree/rows", R"({"startRow":-1e300,"endRow":1e300,"groupKeys":[]})");
  Call("tree/rows", R"({"startRow":-9223372036854775808,"endRow":18446744073709551615,"groupKeys":[]})");
  Call("tree/pointerEvent", R"({"idsPath":[],"button":-3})");
  Call("tree/pointerEvent", R"({"idsPath":[],"button":1e10})");
  EXPECT_THAT(source.told,
              ElementsAre("rows -2147483648 2147483647", "rows -2147483648 2147483647", "pointer 0 0", "pointer 0 4294967295"));
}

TEST_F(OPXTreeSessionTest, BrokenMessagesOfTheViewAreWrongParameters)
{
  EXPECT_EQ(CallForCode("tree/structure", R"({"groupKeys":[1]})"), -32602);
  for (const char* const params : {"{}", R"({"nodesToExpand":1})", R"({"nodesToCollapse":["a"]})", R"({"nodesToExpand":[[1]]})"})
    EXPECT_EQ(CallForCode("tree/collapseExpand", params), -32602) << params;
  for (const char* const params : {"{}", R"({"addedNodes":[0,2]})", R"({"addedNodes":["a",1]})", R"({"removedNodes":[[[]]]})",
                                   R"({"addedNodes":[["a"]]})", R"({"addedNodes":[null]})"})
    EXPECT_EQ(CallForCode("tree/selectionChange", params), -32602) << params;
  for (const char* const params :
       {"{}", R"({"idsPath":"a"})", R"({"idsPath":[1]})", R"({"idsPath":[],"type":1})", R"({"idsPath":[],"pointerType":"stylus"})",
        R"({"idsPath":[],"modifiers":"1"})", R"({"idsPath":[],"hitCount":null})", R"({"idsPath":[],"dataIndex":[]})"})
    EXPECT_EQ(CallForCode("tree/pointerEvent", params), -32602) << params;
}

TEST_F(OPXTreeSessionTest, SoundMessagesOfTheViewAreAccepted)
{
  for (const char* const params :
       {R"({"addedNodes":[]})", R"({"addedNodes":[[]]})", R"({"addedNodes":5})", R"({"removedNodes":["a","b"]})"})
    EXPECT_EQ(CallForCode("tree/selectionChange", params), 0) << params;
  EXPECT_EQ(CallForCode("tree/pointerEvent", R"({"idsPath":["a"],"type":"t","pointerType":"pen","modifiers":true,"hitCount":2.5})"), 0);
}

TEST_F(OPXTreeSessionTest, ASourceThatThrowsIsAnInternalErrorAndTheSessionServesOn)
{
  const json error = Call("tree/rows", R"({"startRow":0,"endRow":9,"groupKeys":["throw"]})")["error"];
  EXPECT_EQ(error["code"], -32603);
  EXPECT_EQ(error["message"], "Internal error");
  EXPECT_EQ(error["data"]["reason"], "the disk is on fire \xEF\xBF\xBD");
  EXPECT_EQ(CallForCode("tree/structure", R"({"groupKeys":["throw 7"]})"), -32603);
  EXPECT_TRUE(Ask(topRows).contains("result"));
}

TEST_F(OPXTreeSessionTest, TextsOfTheSourceThatAreNotUTF8AreReplaced)
{
  EXPECT_EQ(
      Call("tree/rows", R"({"startRow":0,"endRow":9,"groupKeys":["broken text"]})")["result"]["groupedRequestResult"]["rows"][0][0]["id"],
      "caf\xEF\xBF\xBD");
}

TEST_F(OPXTreeSessionTest, MessagesMayNestToTheLimitAndNoFurther)
{
  const std::string deepest = Repeat("[", 254) + Repeat("]", 254);
  const std::string head = R"({"jsonrpc":"2.0","id":1,"method":"tree/structure","params":{"x":)";
  EXPECT_TRUE(Ask(head + deepest + "}}").contains("result"));
  const json answer = Ask(head + "[" + deepest + "]}}");
  EXPECT_EQ(answer["error"],
            json::parse(R"({"code":-32600,"message":"Invalid Request","data":{"reason":"nested too deeply","maxLevels":256}})"));
}

TEST_F(OPXTreeSessionTest, AMillionOpenBracketsAreRefused)
{
  EXPECT_EQ(GetCode(std::string(1000000, '[')), -32600);
  EXPECT_EQ(GetCode(Repeat("{\"a\":", 200000)), -32600);
}

TEST_F(OPXTreeSessionTest, BracketsInsideTextsDoNotNest)
{
  EXPECT_EQ(GetCode("\"" + Repeat("\\\"[", 1000) + "\""), -32600);
  EXPECT_EQ(Ask(R"({"jsonrpc":"2.0","id":"\\\"[","method":")" + std::string(1000, '{') + "\"}")["error"]["code"], -32601);
  EXPECT_EQ(GetCode("\"" + std::string(1000, '[') + "\\"), -32700);
}

TEST_F(OPXTreeSessionTest, AMessageMayBeAsLongAsTheLimitAndNoLonger)
{
  const std::string longest = topRows + std::string(OPXTreeSession::MaxMessageSize - topRows.size(), ' ');
  EXPECT_TRUE(Ask(longest).contains("result"));
  const std::string answer = session.Answer(longest + " ");
  EXPECT_EQ(json::parse(answer)["error"],
            json::parse(R"({"code":-32600,"message":"Invalid Request","data":{"reason":"message too long","maxBytes":16777216}})"));
  EXPECT_EQ(answer, OPXTreeSession::AnswerOversized());
}
