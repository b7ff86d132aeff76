#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
ModelCollapseExpandParameters Parsed(const char* i_text)
{
  return ModelCollapseExpandParameters(json::parse(i_text));
}
} // namespace

TEST(ModelCollapseExpandParametersTest, ReadsBothLists)
{
  const auto message = Parsed(R"({"nodesToCollapse":[["x"]],"nodesToExpand":[["a","b"],["c"],[]]})");
  EXPECT_THAT(message.GetPathIdsToCollapse(), ElementsAre(ElementsAre("x")));
  EXPECT_THAT(message.GetPathIdsToExpand(), ElementsAre(ElementsAre("a", "b"), ElementsAre("c"), IsEmpty()));
}

TEST(ModelCollapseExpandParametersTest, OneListIsEnough)
{
  RecordingFailureHandler failures;
  const auto expand = Parsed(R"({"nodesToExpand":[["a","b"],["c"]]})");
  EXPECT_THAT(expand.GetPathIdsToCollapse(), IsEmpty());
  EXPECT_THAT(expand.GetPathIdsToExpand(), testing::SizeIs(2));
  EXPECT_THAT(Parsed(R"({"nodesToCollapse":[["a"]]})").GetPathIdsToExpand(), IsEmpty());
  EXPECT_THAT(failures.GetFailures(), IsEmpty());
}

TEST(ModelCollapseExpandParametersTest, ReportsAMessageWithoutLists)
{
  for (const char* text : {"{}", "null", "7", R"(["nodesToExpand"])", R"("nodesToExpand")"})
  {
    RecordingFailureHandler failures;
    const auto message = Parsed(text);
    EXPECT_THAT(failures.GetFailures(),
                ElementsAre(FailedCheck("i_json.contains(\"nodesToCollapse\") || i_json.contains(\"nodesToExpand\")", 561)))
        << text;
    EXPECT_THAT(message.GetPathIdsToCollapse(), IsEmpty());
    EXPECT_THAT(message.GetPathIdsToExpand(), IsEmpty());
  }
}

TEST(ModelCollapseExpandParametersTest, ReportsAListThatIsNoArray)
{
  RecordingFailureHandler failures;
  const auto message = Parsed(R"({"nodesToCollapse":"x","nodesToExpand":{"a":["b"]}})");
  EXPECT_THAT(failures.GetFailures(), ElementsAre(Failed("This is not an array", 548), Failed("This is not an array", 548)));
  EXPECT_THAT(message.GetPathIdsToCollapse(), IsEmpty());
  EXPECT_THAT(message.GetPathIdsToExpand(), IsEmpty());
}

TEST(ModelCollapseExpandParametersTest, ReportsAPathThatIsNoArrayAndKeepsItsPlace)
{
  RecordingFailureHandler failures;
  const auto message = Parsed(R"({"nodesToExpand":["a",["b"]]})");
  EXPECT_THAT(failures.GetFailures(), ElementsAre(Failed("This is not an array", 540)));
  EXPECT_THAT(message.GetPathIdsToExpand(), ElementsAre(IsEmpty(), ElementsAre("b")));
}

TEST(ModelCollapseExpandParametersTest, LetsTypeErrorsOutOfItsConstructor)
{
  EXPECT_EQ(TypeErrorOf([] { Parsed(R"({"nodesToExpand":[["a",5]]})"); }), WrongType("string", "number"));
  EXPECT_EQ(TypeErrorOf([] { Parsed(R"({"nodesToCollapse":[[null]]})"); }), WrongType("string", "null"));
}

TEST(ModelCollapseExpandParametersTest, ReadsTheNodesToCollapseFirst)
{
  RecordingFailureHandler failures;
  Parsed(R"({"nodesToCollapse":"x","nodesToExpand":["a"]})");
  EXPECT_THAT(failures.GetFailures(), ElementsAre(Failed("This is not an array", 548), Failed("This is not an array", 540)));
}
