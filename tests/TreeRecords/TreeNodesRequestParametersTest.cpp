#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
const std::string s_error = "Error in TreeNodesRequestParameters(const nlohmann::json &i_json) : invalid JSON parameter\n";

TreeNodesRequestParameters Parsed(const char* i_text)
{
  return TreeNodesRequestParameters(json::parse(i_text));
}

TreeNodesRequestParameters Broken(const char* i_text)
{
  testing::internal::CaptureStderr();
  TreeNodesRequestParameters request = Parsed(i_text);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), s_error) << i_text;
  return request;
}

// First row, last row and number of group-key lists of a request that fails one check.
std::vector<int> AfterFailure(const char* i_text, const std::string& i_expression, int i_line)
{
  RecordingFailureHandler failures;
  const TreeNodesRequestParameters request = Parsed(i_text);
  EXPECT_THAT(failures.GetFailures(), ElementsAre(FailedCheck(i_expression, i_line))) << i_text;
  return {request.GetFirstNodeIndex(0), request.GetLastNodeIndex(0), request.GetRequestCount()};
}
} // namespace

TEST(TreeNodesRequestParametersTest, ReadsASingleRequest)
{
  const auto request = Parsed(R"({"startRow":0,"endRow":100,"groupKeys":[],"sortModel":[{"dataIndex":"name"}],"expandNLevels":1})");
  EXPECT_EQ(request.GetFirstNodeIndex(0), 0);
  EXPECT_EQ(request.GetLastNodeIndex(0), 100);
  EXPECT_EQ(request.GetRequestCount(), 1);
  EXPECT_THAT(request.GroupKeys(0), IsEmpty());
  EXPECT_THAT(request.GetSortModel(), testing::SizeIs(1));
  EXPECT_EQ(request.GetExpandNbLevels(), 1);
}

TEST(TreeNodesRequestParametersTest, AnswersMinusOneOutOfRange)
{
  const auto request = Parsed(R"({"startRow":0,"endRow":100})");
  for (const int index : {1, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
  {
    EXPECT_EQ(request.GetFirstNodeIndex(index), -1);
    EXPECT_EQ(request.GetLastNodeIndex(index), -1);
  }
}

TEST(TreeNodesRequestParametersTest, ReadsEachElementOfAGroupedRequest)
{
  const auto request = Parsed(R"({"groupedRequest":[
    {"startRow":0,"endRow":10,"groupKeys":["a"],"sortModel":[{"dataIndex":"one"}]},
    {"startRow":1,"endRow":11,"groupKeys":["a","b"]},
    {"startRow":2,"endRow":12,"groupKeys":[],"sortModel":[{"dataIndex":"three"}]}]})");
  EXPECT_EQ(request.GetRequestCount(), 3);
  for (int index = 0; index < 3; ++index)
  {
    EXPECT_EQ(request.GetFirstNodeIndex(index), index);
    EXPECT_EQ(request.GetLastNodeIndex(index), 10 + index);
  }
  EXPECT_THAT(request.GroupKeys(1), ElementsAre("a", "b"));
  EXPECT_THAT(request.GetSortModel(), ElementsAre(SortAttributeModel(json{{"dataIndex", "three"}})));
}

TEST(TreeNodesRequestParametersTest, KeepsTheSortModelOfTheLastElementOnly)
{
  EXPECT_THAT(Parsed(R"({"sortModel":[{"dataIndex":"top"}],"groupedRequest":[
    {"startRow":0,"endRow":1,"groupKeys":[],"sortModel":[{"dataIndex":"one"}]},{"startRow":0,"endRow":1,"groupKeys":[]}]})")
                  .GetSortModel(),
              IsEmpty());
}

TEST(TreeNodesRequestParametersTest, KeepsTheTopLevelSortModelOfAGroupedRequestWithoutElements)
{
  EXPECT_THAT(Parsed(R"({"sortModel":[{"dataIndex":"top"}],"groupedRequest":[]})").GetSortModel(), testing::SizeIs(1));
}

TEST(TreeNodesRequestParametersTest, CountsTopLevelGroupKeysBesideAGroupedRequest)
{
  const auto request = Parsed(R"({"groupKeys":["extra"],"groupedRequest":[{"startRow":5,"endRow":6,"groupKeys":["a"]}]})");
  EXPECT_EQ(request.GetRequestCount(), 2);
  EXPECT_THAT(request.GroupKeys(0), ElementsAre("extra"));
  EXPECT_THAT(request.GroupKeys(1), ElementsAre("a"));
  EXPECT_EQ(request.GetFirstNodeIndex(0), 5);
  EXPECT_EQ(request.GetFirstNodeIndex(1), -1);
}

TEST(TreeNodesRequestParametersTest, CountsNoRequestWithoutGroupKeys)
{
  const auto request = Parsed(R"({"startRow":0,"endRow":100})");
  EXPECT_EQ(request.GetRequestCount(), 0);
  EXPECT_EQ(request.GetLastNodeIndex(0), 100);
}

TEST(TreeNodesRequestParametersTest, ReadsGroupKeysThatAreNoArrayAsAnEmptyList)
{
  const auto request = Parsed(R"({"groupedRequest":[{"startRow":0,"endRow":1,"groupKeys":"a"}]})");
  EXPECT_EQ(request.GetRequestCount(), 1);
  EXPECT_THAT(request.GroupKeys(0), IsEmpty());
}

TEST(TreeNodesRequestParametersTest, CutsFractionsOff)
{
  EXPECT_EQ(Parsed(R"({"startRow":10.7,"endRow":20})").GetFirstNodeIndex(0), 10);
}

TEST(TreeNodesRequestParametersTest, ReportsASingleRequestWithoutRows)
{
  EXPECT_THAT(AfterFailure(R"({"endRow":1,"groupKeys":[]})", "i_request.contains(\"startRow\")", 198), ElementsAre(-1, -1, 1));
  EXPECT_THAT(AfterFailure(R"({"startRow":1,"groupKeys":[]})", "i_request.contains(\"endRow\")", 201), ElementsAre(1, -1, 1));
  for (const char* noObject : {"null", "5", R"("groupedRequest")", R"(["startRow"])"})
    EXPECT_THAT(AfterFailure(noObject, "i_request.contains(\"startRow\")", 198), ElementsAre(-1, -1, 0));
}

TEST(TreeNodesRequestParametersTest, ReportsAGroupedRequestThatIsNoArray)
{
  EXPECT_THAT(AfterFailure(R"({"groupedRequest":{"startRow":1,"endRow":2},"groupKeys":[]})", "groupedRequest.is_array()", 166),
              ElementsAre(-1, -1, 1));
}

TEST(TreeNodesRequestParametersTest, ReportsABrokenElementAndKeepsWhatWasRead)
{
  EXPECT_THAT(AfterFailure(R"({"groupedRequest":[{"endRow":2,"groupKeys":[]}]})", "request.value().contains(\"startRow\")", 168),
              ElementsAre(-1, -1, 0));
  EXPECT_THAT(AfterFailure(R"({"groupedRequest":[7]})", "request.value().contains(\"startRow\")", 168), ElementsAre(-1, -1, 0));
  EXPECT_THAT(AfterFailure(R"({"groupedRequest":[{"startRow":1,"groupKeys":[]}]})", "request.value().contains(\"endRow\")", 171),
              ElementsAre(1, -1, 0));
  EXPECT_THAT(AfterFailure(R"({"groupedRequest":[{"startRow":1,"endRow":2}]})", "request.value().contains(\"groupKeys\")", 174),
              ElementsAre(1, 2, 0));
  EXPECT_THAT(AfterFailure(R"({"groupedRequest":[{"startRow":1,"endRow":2,"groupKeys":[]},{},{"startRow":3,"endRow":4,"groupKeys":[]}]})",
                           "request.value().contains(\"startRow\")", 168),
              ElementsAre(1, 2, 1));
}

TEST(TreeNodesRequestParametersTest, TellsOfWrongTypesAndKeepsWhatWasRead)
{
  EXPECT_EQ(Broken(R"({"startRow":"0","endRow":1,"groupKeys":[]})").GetRequestCount(), 1);
  EXPECT_EQ(Broken(R"({"startRow":3,"endRow":null})").GetFirstNodeIndex(0), 3);
  const auto request =
      Broken(R"({"groupedRequest":[{"startRow":1,"endRow":2,"groupKeys":["a"]},{"startRow":3,"endRow":4,"groupKeys":[5]}]})");
  EXPECT_EQ(request.GetRequestCount(), 1);
  EXPECT_EQ(request.GetLastNodeIndex(1), 4);
}

TEST(TreeNodesRequestParametersTest, KeepsTheSortModelReadBeforeABrokenElement)
{
  const std::string first = R"({"groupedRequest":[{"startRow":1,"endRow":2,"groupKeys":[],"sortModel":[{"dataIndex":"one"}]},)";
  for (const char* const second : {R"({"startRow":"3","endRow":4,"groupKeys":[],)", R"({"startRow":3,"endRow":"4","groupKeys":[],)",
                                   R"({"startRow":3,"endRow":4,"groupKeys":[5],)"})
    EXPECT_THAT(Broken((first + second + R"("sortModel":[{"dataIndex":"two"}]}]})").c_str()).GetSortModel(),
                ElementsAre(SortAttributeModel(json{{"dataIndex", "one"}})))
        << second;
}

TEST(TreeNodesRequestParametersTest, LetsTypeErrorsOfTheCommonPartOut)
{
  const auto errorOf = [](const char* i_text) { return TypeErrorOf([i_text] { Parsed(i_text); }); };
  EXPECT_EQ(errorOf(R"({"startRow":0,"endRow":1,"groupKeys":[5]})"), WrongType("string", "number"));
  EXPECT_EQ(errorOf(R"({"startRow":0,"endRow":1,"expandNLevels":[]})"), WrongType("number", "array"));
}

TEST(TreeNodesRequestParametersTest, CopiesAndMovesWhole)
{
  TreeNodesRequestParameters request = Parsed(R"({"startRow":3,"endRow":4,"groupKeys":["a"]})");
  const TreeNodesRequestParameters copy = request;
  const TreeNodesRequestParameters moved = std::move(request);
  for (const auto* pRequest : {&copy, &moved})
  {
    EXPECT_EQ(pRequest->GetFirstNodeIndex(0), 3);
    EXPECT_THAT(pRequest->GroupKeys(0), ElementsAre("a"));
  }
}
