#include "RecordTesting.h"

using namespace RecordTesting;

namespace
{
PointerEventParameters With(const char* i_key, const json& i_value)
{
  json message = {{"idsPath", {"a"}}};
  message[i_key] = i_value;
  return PointerEventParameters(message);
}

void ExpectDefaults(const PointerEventParameters& i_event)
{
  EXPECT_EQ(i_event.GetType(), "click");
  EXPECT_EQ(i_event.GetPointerType(), "mouse");
  EXPECT_EQ(i_event.GetDataIndex(), "");
  EXPECT_EQ(i_event.button(), 0u);
  EXPECT_EQ(i_event.hitCount(), 1u);
  EXPECT_FALSE(i_event.isShift() || i_event.isAlt() || i_event.isCtrl());
}

std::string TypeErrorWith(const char* i_key, const json& i_value)
{
  return TypeErrorOf([&] { With(i_key, i_value); });
}
} // namespace

TEST(PointerEventParametersTest, ReadsThePathAndDefaultsTheRest)
{
  const PointerEventParameters event(json{{"idsPath", {"a", "b"}}});
  EXPECT_THAT(event.GetIdsPath(), ElementsAre("a", "b"));
  ExpectDefaults(event);
}

TEST(PointerEventParametersTest, ReadsEveryMember)
{
  const PointerEventParameters event(
      json::parse(R"({"idsPath":["a"],"type":"dblclick","dataIndex":"name","modifiers":7,"hitCount":2,"button":3})"));
  EXPECT_EQ(event.GetType(), "dblclick");
  EXPECT_EQ(event.GetDataIndex(), "name");
  EXPECT_EQ(event.hitCount(), 2u);
  EXPECT_EQ(event.button(), 3u);
  EXPECT_TRUE(event.isShift() && event.isAlt() && event.isCtrl());
}

TEST(PointerEventParametersTest, KeepsStatedValuesThatAreEmptyOrZero)
{
  EXPECT_EQ(With("type", "").GetType(), "");
  EXPECT_EQ(With("hitCount", 0).hitCount(), 0u);
}

TEST(PointerEventParametersTest, EachModifierIsABit)
{
  const auto modifiers = [](unsigned i_bits)
  {
    const PointerEventParameters event = With("modifiers", i_bits);
    return std::vector<bool>{event.isShift(), event.isAlt(), event.isCtrl()};
  };
  EXPECT_THAT(modifiers(1), ElementsAre(true, false, false));
  EXPECT_THAT(modifiers(2), ElementsAre(false, true, false));
  EXPECT_THAT(modifiers(4), ElementsAre(false, false, true));
  EXPECT_THAT(modifiers(6), ElementsAre(false, true, true));
  EXPECT_THAT(modifiers(8), ElementsAre(false, false, false));
}

TEST(PointerEventParametersTest, ConvertsNumbersAsTheMachineDoes)
{
  EXPECT_EQ(With("button", 2.9).button(), 2u);
  EXPECT_EQ(With("button", -1).button(), 4294967295u);
  EXPECT_EQ(With("button", -1.5).button(), 4294967295u);
  EXPECT_EQ(With("button", 4294967298.0).button(), 2u);
  EXPECT_EQ(With("button", 1e300).button(), 0u);
  EXPECT_EQ(With("button", true).button(), 1u);
}

TEST(PointerEventParametersTest, ThePointerIsAMouseWhateverTheMessageSays)
{
  RecordingFailureHandler failures;
  for (const char* type : {"mouse", "touch", "pen"})
    EXPECT_EQ(With("pointerType", type).GetPointerType(), "mouse");
  EXPECT_THAT(failures.GetFailures(), IsEmpty());
}

TEST(PointerEventParametersTest, ReportsAnUnknownPointerAndReadsOn)
{
  RecordingFailureHandler failures;
  const PointerEventParameters event(json{{"idsPath", {"a"}}, {"pointerType", "stylus"}, {"dataIndex", "name"}});
  EXPECT_THAT(failures.GetFailures(), ElementsAre(Failed("Invalid pointer type", 609)));
  EXPECT_EQ(event.GetPointerType(), "mouse");
  EXPECT_EQ(event.GetDataIndex(), "name");
}

TEST(PointerEventParametersTest, ReportsAMessageWithoutPathAndReadsNothing)
{
  for (const json& message : {json{{"type", "dblclick"}, {"button", 2}}, json(), json(7), json("idsPath"), json::array({"idsPath"})})
  {
    RecordingFailureHandler failures;
    ExpectDefaults(PointerEventParameters(message));
    EXPECT_THAT(failures.GetFailures(), ElementsAre(FailedCheck("i_json.contains(\"idsPath\")", 590))) << message;
  }
}

TEST(PointerEventParametersTest, ReportsAPathThatIsNoArrayAndReadsOn)
{
  RecordingFailureHandler failures;
  const PointerEventParameters event(json{{"idsPath", "a"}, {"type", "dblclick"}});
  EXPECT_THAT(failures.GetFailures(), ElementsAre(Failed("This is not an array", 540)));
  EXPECT_THAT(event.GetIdsPath(), IsEmpty());
  EXPECT_EQ(event.GetType(), "dblclick");
}

TEST(PointerEventParametersTest, LetsTypeErrorsOutOfItsConstructor)
{
  EXPECT_EQ(TypeErrorWith("idsPath", {"a", 5}), WrongType("string", "number"));
  EXPECT_EQ(TypeErrorWith("type", 5), WrongType("string", "number"));
  EXPECT_EQ(TypeErrorWith("pointerType", nullptr), WrongType("string", "null"));
  EXPECT_EQ(TypeErrorWith("modifiers", "7"), WrongType("number", "string"));
  EXPECT_EQ(TypeErrorWith("button", json::array()), WrongType("number", "array"));
  EXPECT_EQ(TypeErrorWith("hitCount", json::object()), WrongType("number", "object"));
  EXPECT_EQ(TypeErrorWith("dataIndex", false), WrongType("string", "boolean"));
}

// Each key is broken in a way of its own; the error tells which was read first, and the next round leaves that one out.
TEST(PointerEventParametersTest, ReadsItsMembersInOneOrder)
{
  json message = json::parse(R"({"idsPath":[{}],"type":1,"pointerType":null,"modifiers":"7","button":[],"hitCount":{},"dataIndex":true})");
  const std::pair<const char*, std::string> order[] = {
      {"idsPath", WrongType("string", "object")},   {"type", WrongType("string", "number")},  {"pointerType", WrongType("string", "null")},
      {"modifiers", WrongType("number", "string")}, {"button", WrongType("number", "array")}, {"hitCount", WrongType("number", "object")},
      {"dataIndex", WrongType("string", "boolean")}};
  for (const auto& [key, error] : order)
  {
    EXPECT_EQ(TypeErrorOf([&message] { PointerEventParameters event(message); }), error);
    message.erase(key);
    message.emplace("idsPath", json::array());
  }
}
