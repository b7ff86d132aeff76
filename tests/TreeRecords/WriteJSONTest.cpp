#include "RandomJSON.h"
#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
constexpr int s_rounds = 3000;

TreeNodeProperties DrawNode(RandomJSON& io_random)
{
  static const char* const s_keys[] = {"wux_group", "wux_isSelected", "wux_", "wux_groups", "wux_isSelecteD", "wuz", "name"};
  Properties properties = io_random.Object(2);
  for (std::uint32_t count = io_random.Below(4); count > 0; --count)
    properties.insert_or_assign(s_keys[io_random.Below(7)], io_random.Value(1));
  return {io_random.Text(), std::move(properties), io_random.Below(2) == 0, static_cast<int>(io_random.Below(4)) - 2};
}

TreeNodesAnswerParameters DrawAnswer(RandomJSON& io_random)
{
  std::vector<std::vector<TreeNodeProperties>> blocks(io_random.Below(4));
  std::vector<int> totals;
  for (auto& nodes : blocks)
  {
    for (std::uint32_t count = io_random.Below(5); count > 0; --count)
      nodes.push_back(DrawNode(io_random));
    totals.push_back(static_cast<int>(io_random.Below(6)) - 1);
  }
  return {std::move(blocks), std::move(totals)};
}

std::vector<IdsPath> DrawPaths(RandomJSON& io_random)
{
  std::vector<IdsPath> paths(io_random.Below(4));
  for (IdsPath& path : paths)
    path.assign(io_random.Below(3), io_random.Text());
  return paths;
}

// The text is appended, and is that of dump().
template <typename Record>
void ExpectSameText(const Record& i_record)
{
  std::string text = "before[";
  i_record.WriteJSON(text);
  ASSERT_EQ(text, "before[" + i_record.ComputeJSON().dump());
}

TreeNodesAnswerParameters AnswerWith(json i_value)
{
  return {{{TreeNodeProperties("x", {{"v", std::move(i_value)}}, false, -1)}}, {1}};
}

// What dump() throws, WriteJSON throws, and the text stays what it was.
template <typename Record>
void ExpectSameError(const Record& i_record)
{
  const std::string expected = TypeErrorOf([&i_record] { i_record.ComputeJSON().dump(); });
  ASSERT_NE(expected.find("type_error.316"), std::string::npos);
  std::string text = "before";
  ASSERT_EQ(TypeErrorOf([&] { i_record.WriteJSON(text); }), expected);
  ASSERT_EQ(text, "before");
}
} // namespace

TEST(WriteJSONTest, AnswersOfRowsAreTheTextOfTheirValue)
{
  RandomJSON random(1);
  for (int round = 0; round < s_rounds; ++round)
    ExpectSameText(DrawAnswer(random));
}

TEST(WriteJSONTest, StructuresAreTheTextOfTheirValue)
{
  RandomJSON random(2);
  for (int round = 0; round < s_rounds; ++round)
    ExpectSameText(TreeNodesModelStructureAnswerParameters(random.Value(4)));
}

TEST(WriteJSONTest, PathsAndSelectionsAreTheTextOfTheirValue)
{
  RandomJSON random(3);
  for (int round = 0; round < s_rounds; ++round)
  {
    std::vector<IdsPath> collapse = DrawPaths(random);
    std::vector<IdsPath> expand = DrawPaths(random);
    ExpectSameText(ModelCollapseExpandAnswerParameters(collapse, expand));
    ExpectSameText(SelectionChangeParameters(IdsPath(random.Below(3), random.Text()), IdsPath(random.Below(3), random.Text())));
    ExpectSameText(SelectionChangeParameters(std::vector<IndexPath>(random.Below(3), {-1, 2147483647}), {}));
  }
}

TEST(WriteJSONTest, EveryLengthOfPlainTextIsWrittenWhole)
{
  for (std::size_t length = 0; length < 10'000; length += length < 100 ? 1 : 97)
    for (const char* end : {"", "\"", "\xE2\x82\xAC", "\x1f"})
      ExpectSameText(AnswerWith(std::string(length, 'x') + end));
}

TEST(WriteJSONTest, EverySingleByteIsWrittenOrRefusedAsTheLibraryDoes)
{
  for (int byte = 0; byte < 256; ++byte)
    for (const std::size_t before : {0u, 3u, 7u, 8u, 15u})
    {
      const auto answer = AnswerWith(std::string(before, 'x') + static_cast<char>(byte) + "after it");
      byte < 0x80 ? ExpectSameText(answer) : ExpectSameError(answer);
    }
}

TEST(WriteJSONTest, EveryPairOfBytesIsWrittenOrRefusedAsTheLibraryDoes)
{
  for (int lead = 0xC0; lead < 256; ++lead)
    for (int second = 0x70; second < 256; ++second)
      for (const char* rest : {"", "\x80", "\x80\xBF", "\xBF\xC0"})
      {
        const std::string word = std::string{static_cast<char>(lead), static_cast<char>(second)} + rest;
        const auto answer = AnswerWith(word);
        TypeErrorOf([&word] { json(word).dump(); }).empty() ? ExpectSameText(answer) : ExpectSameError(answer);
      }
}

TEST(WriteJSONTest, NumbersThatAreNoneAreNull)
{
  const std::string text = WrittenJSON(AnswerWith({std::nan(""), HUGE_VAL, -HUGE_VAL, -0.0, 1.0, 1e22}));
  EXPECT_NE(text.find(R"("v":[null,null,null,-0.0,1.0,1e+22])"), std::string::npos) << text;
}

TEST(WriteJSONTest, BrokenTextsAreRefusedWithTheWordsOfTheLibrary)
{
  RandomJSON random(4);
  for (int round = 0; round < s_rounds; ++round)
    ExpectSameError(AnswerWith(random.BrokenText()));
}

TEST(WriteJSONTest, BrokenKeysAndIdsAreRefusedToo)
{
  ExpectSameError(TreeNodesAnswerParameters({{TreeNodeProperties("x", {{"\xFF", 1}}, false, -1)}}, {1}));
  ExpectSameError(SelectionChangeParameters(IdsPath{"\xC3"}, IdsPath{}));
  ExpectSameError(TreeNodesModelStructureAnswerParameters(json{{"a", std::string(5000, 'x') + "\xE2\x82"}}));
  std::vector<IdsPath> paths = {{"\xED\xA0\x80"}};
  ExpectSameError(ModelCollapseExpandAnswerParameters(paths, paths));
}

TEST(WriteJSONTest, AnIdThatIsNotWrittenIsNotLookedAt)
{
  ExpectSameText(TreeNodesAnswerParameters({{TreeNodeProperties("\xFF", {}, false, -1)}}, {1}));
}
