#include "RecordTesting.h"

using namespace RecordTesting;

TEST(RequestAnswerTest, IsNull)
{
  EXPECT_EQ(RequestAnswer().ComputeJSON(), json());
  EXPECT_EQ(WrittenJSON(RequestAnswer()), "null");
}

TEST(RequestAnswerTest, AnswersWhatItsRecordComputes)
{
  const TreeNodesModelStructureAnswerParameters structure(json{{"a", 1}});
  const RequestAnswer& answer = structure;
  EXPECT_EQ(answer.ComputeJSON().dump(), R"({"a":1})");
  EXPECT_EQ(WrittenJSON(answer), R"({"a":1})");
}
