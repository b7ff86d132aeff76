#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
SelectionChangeParameters Parsed(const char* i_text)
{
  return SelectionChangeParameters(json::parse(i_text));
}

std::string TextOf(const SelectionChangeParameters& i_change)
{
  const std::string text = i_change.ComputeJSON().dump();
  EXPECT_EQ(WrittenJSON(i_change), text);
  return text;
}

NodesPath AddedFrom(const json& i_nodes)
{
  return SelectionChangeParameters(json{{"addedNodes", i_nodes}}).GetAddedNodes();
}
} // namespace

TEST(SelectionChangeParametersTest, AWrongTypeIsCaughtWhereMessagesComeIn)
{
  const json message = json::parse(R"({"addedNodes":[0,2]})");
  std::string refused;
  const auto Serve = [](const SelectionChangeParameters&) { ADD_FAILURE(); };
  const auto Refuse = [&refused](const char* i_reason) { refused = i_reason; };
  try
  {
    Serve(SelectionChangeParameters(message));
  }
  catch (const nlohmann::json::type_error& error)
  {
    Refuse(error.what()); // "[json.exception.type_error.302] type must be array, but is number"
  }
  EXPECT_EQ(refused, "[json.exception.type_error.302] type must be array, but is number");
}

TEST(SelectionChangeParametersTest, StartsEmpty)
{
  EXPECT_EQ(TextOf({}), "{}");
  EXPECT_EQ(SelectionChangeParameters().GetAddedNodesSize(), 0);
}

TEST(SelectionChangeParametersTest, IsMadeFromIds)
{
  const SelectionChangeParameters change(std::vector<std::string>{"a", "b"}, std::vector<std::string>{"c"});
  EXPECT_THAT(change.GetAddedNodes().ids, ElementsAre("a", "b"));
  EXPECT_THAT(change.GetRemovedNodes().ids, ElementsAre("c"));
  EXPECT_EQ(TextOf(change), R"({"addedNodes":["a","b"],"removedNodes":["c"]})");
}

TEST(SelectionChangeParametersTest, IsMadeFromIndexPaths)
{
  const SelectionChangeParameters change(std::vector<IndexPath>{{0, 2}, {}}, std::vector<IndexPath>{});
  EXPECT_THAT(change.GetAddedNodes().indexPaths, ElementsAre(ElementsAre(0, 2), IsEmpty()));
  EXPECT_EQ(TextOf(change), R"({"addedNodes":[[0,2],[]]})");
}

TEST(SelectionChangeParametersTest, ReadsIdsAndIndexPathsSideBySide)
{
  const char* text = R"({"addedNodes":["a"],"removedNodes":[[3,1]]})";
  const SelectionChangeParameters change = Parsed(text);
  EXPECT_THAT(change.GetAddedNodes().ids, ElementsAre("a"));
  EXPECT_THAT(change.GetAddedNodes().indexPaths, IsEmpty());
  EXPECT_THAT(change.GetRemovedNodes().indexPaths, ElementsAre(ElementsAre(3, 1)));
  EXPECT_EQ(TextOf(change), text);
}

TEST(SelectionChangeParametersTest, TellsIndexPathsFromIdsByTheirNumbers)
{
  EXPECT_THAT(AddedFrom(json::parse("[[0,2],[1]]")).indexPaths, ElementsAre(ElementsAre(0, 2), ElementsAre(1)));
  EXPECT_THAT(AddedFrom(json::parse("[[0.9,2],[]]")).indexPaths, ElementsAre(ElementsAre(0, 2), IsEmpty()));
  EXPECT_THAT(AddedFrom(json::parse(R"(["a","b"])")).ids, ElementsAre("a", "b"));
}

TEST(SelectionChangeParametersTest, LeavesOutWhatAnEmptyArrayStated)
{
  const NodesPath nodes = AddedFrom(json::array());
  EXPECT_THAT(nodes.ids, IsEmpty());
  EXPECT_THAT(nodes.indexPaths, IsEmpty());
  EXPECT_EQ(TextOf(Parsed(R"({"addedNodes":[],"removedNodes":["x"]})")), R"({"removedNodes":["x"]})");
}

TEST(SelectionChangeParametersTest, IgnoresWhatIsNoArray)
{
  RecordingFailureHandler failures;
  EXPECT_EQ(TextOf(Parsed(R"({"addedNodes":"a","removedNodes":{"a":1}})")), "{}");
  EXPECT_THAT(failures.GetFailures(), IsEmpty());
}

TEST(SelectionChangeParametersTest, ReportsAMessageWithoutNodes)
{
  for (const char* text : {"{}", "null", "[]", R"("addedNodes")", "7"})
  {
    RecordingFailureHandler failures;
    EXPECT_EQ(TextOf(Parsed(text)), "{}");
    EXPECT_THAT(failures.GetFailures(),
                ElementsAre(FailedCheck("i_json.contains(\"removedNodes\") || i_json.contains(\"addedNodes\")", 344)))
        << text;
  }
}

TEST(SelectionChangeParametersTest, LetsTypeErrorsOutOfItsConstructor)
{
  const auto errorOf = [](const json& i_nodes) { return TypeErrorOf([&i_nodes] { AddedFrom(i_nodes); }); };
  EXPECT_EQ(errorOf({0, 2}), WrongType("array", "number"));
  EXPECT_EQ(errorOf({"a", 5}), WrongType("string", "number"));
  EXPECT_EQ(errorOf({{0, 1}, "a"}), WrongType("string", "array"));
  EXPECT_EQ(errorOf(json::parse("[[[1]]]")), WrongType("number", "array"));
  EXPECT_EQ(errorOf(json::parse("[true]")), WrongType("string", "boolean"));
}

TEST(SelectionChangeParametersTest, ClassifiesArraysOfAnyDepth)
{
  EXPECT_EQ(TypeErrorOf([] { AddedFrom(json::array({"a"})); }), "");
  const json message = []
  {
    json object;
    object["removedNodes"] = NestedArrays(100'000, 1);
    return object;
  }();
  EXPECT_EQ(TypeErrorOf([&message] { SelectionChangeParameters change(message); }), WrongType("number", "array"));
}

TEST(SelectionChangeParametersTest, SizesAreFlags)
{
  const SelectionChangeParameters change(std::vector<std::string>(5, "a"), {});
  EXPECT_EQ(change.GetAddedNodesSize(), 1);
  EXPECT_EQ(change.GetRemovedNodesSize(), 0);
  EXPECT_EQ(Parsed(R"({"removedNodes":[[1],[2],[3]]})").GetRemovedNodesSize(), 1);
}

TEST(SelectionChangeParametersTest, ReadsTheRemovedNodesFirst)
{
  EXPECT_EQ(TypeErrorOf([] { Parsed(R"({"addedNodes":[true],"removedNodes":[null]})"); }), WrongType("string", "null"));
}
