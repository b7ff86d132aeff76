#include "ZELSYPEvent.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
const char* const k_notAnIdentifier = "One of the character of the identifier is not valid";

bool IsLetterOrUnderscore(int i_byte)
{
  return (i_byte >= 'A' && i_byte <= 'Z') || (i_byte >= 'a' && i_byte <= 'z') || i_byte == '_';
}

bool IsDigit(int i_byte)
{
  return i_byte >= '0' && i_byte <= '9';
}

std::string NameError(const std::string& i_name)
{
  const char* const error = ZELSYPEvent::CheckEventName(i_name.c_str());
  return error ? error : "valid";
}

// An event outside every factory, made of what it is given.
ZELHandle<ZELSYPEvent> MakeEvent(const char* i_name, ZELMetaClass* i_pArgumentType, ZELMetaClass* i_pOwnerClass)
{
  return ZELHandle<ZELSYPEvent>::Adopt(OpenFactory::MakeEvent(i_name, ZELSYPEvent::RootToOrigin, i_pArgumentType, i_pOwnerClass));
}
} // namespace

TEST(ZELSYPEventTest, NameOfLettersDigitsAndUnderscoresIsValid)
{
  for (const std::string name : {"_name", "a1", "Z_9", "_", "a", "Z", "ModelChanged", "__0__"})
    EXPECT_EQ("valid", NameError(name)) << name;
}

TEST(ZELSYPEventTest, NameMayHaveAnyLength)
{
  EXPECT_EQ("valid", NameError(std::string(1000000, 'x')));
}

TEST(ZELSYPEventTest, NullNameIsReportedAndNamedSo)
{
  RecordingFailureHandler failures;
  EXPECT_STREQ("Name is NULL", ZELSYPEvent::CheckEventName(nullptr));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_name is NULL"));
  EXPECT_EQ("ZELSYPEvent.cpp", failures.GetFailures()[0].file);
}

TEST(ZELSYPEventTest, EmptyNameIsNotValid)
{
  EXPECT_EQ("The string is empty", NameError(""));
}

TEST(ZELSYPEventTest, NameThatBeginsWithADigitIsNotValid)
{
  for (const std::string name : {"1a", "0", "12345", "9_", "1-"})
    EXPECT_EQ("The first character is a digit", NameError(name)) << name;
}

TEST(ZELSYPEventTest, NameWithAnotherCharacterIsNotValid)
{
  for (const std::string name : {"a-b", "two words", "caf\xC3\xA9", "\xC3\xA9t\xC3\xA9", "-", " a", "a ", "a.b", "a::b", "-1"})
    EXPECT_EQ(k_notAnIdentifier, NameError(name)) << name;
}

TEST(ZELSYPEventTest, EveryByteIsValidOrNotAtTheStartAndAfterIt)
{
  for (int byte = 1; byte < 256; ++byte)
  {
    const std::string text(1, static_cast<char>(byte));
    const std::string first = IsDigit(byte) ? "The first character is a digit" : IsLetterOrUnderscore(byte) ? "valid" : k_notAnIdentifier;
    EXPECT_EQ(first, NameError(text)) << byte;
    EXPECT_EQ(IsDigit(byte) || IsLetterOrUnderscore(byte) ? "valid" : k_notAnIdentifier, NameError("a" + text)) << byte;
  }
}

TEST(ZELSYPEventTest, CheckingANameReportsNothingButNull)
{
  RecordingFailureHandler failures;
  for (const std::string name : {"", "1", "-", "a"})
    NameError(name);
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPEventTest, PropagationsHaveTheirNumbers)
{
  EXPECT_EQ(0, static_cast<int>(ZELSYPEvent::RootToOrigin));
  EXPECT_EQ(1, static_cast<int>(ZELSYPEvent::OriginToRoot));
  EXPECT_EQ(2, static_cast<int>(ZELSYPEvent::NoPropagation));
  EXPECT_EQ(4u, sizeof(ZELSYPEvent::Propagation));
}

TEST(ZELSYPEventTest, PropagationsHaveTheirTexts)
{
  EXPECT_STREQ("RootToOrigin", ZELSYPEvent::PropagationToString(ZELSYPEvent::RootToOrigin));
  EXPECT_STREQ("OriginToRoot", ZELSYPEvent::PropagationToString(ZELSYPEvent::OriginToRoot));
  EXPECT_STREQ("NoPropagation", ZELSYPEvent::PropagationToString(ZELSYPEvent::NoPropagation));
}

TEST(ZELSYPEventTest, AnyOtherPropagationIsInvalid)
{
  for (const int number : {-1, 3, 4, 1000})
    EXPECT_STREQ("<invalid>", ZELSYPEvent::PropagationToString(static_cast<ZELSYPEvent::Propagation>(number))) << number;
}

TEST(ZELSYPEventTest, EventAnswersWhatItWasMadeOf)
{
  ZELSYPEventFactory factory;
  std::string name = "Opened";
  ZELSYPEvent* const pEvent = factory.NewEvent(name.c_str(), ZELSYPEvent::OriginToRoot, DoorArgs::MetaObject(), Door::MetaObject());
  ASSERT_TRUE(pEvent);
  name = "Closed";
  EXPECT_STREQ("Opened", pEvent->GetName());
  EXPECT_EQ(ZELSYPEvent::OriginToRoot, pEvent->GetPropagation());
  EXPECT_EQ(DoorArgs::MetaObject(), pEvent->GetArgumentType());
  EXPECT_EQ(Door::MetaObject(), pEvent->GetOwnerClass());
}

TEST(ZELSYPEventTest, ClassRecordSaysWhatAnEventIs)
{
  EXPECT_STREQ("ZELSYPEvent", ZELSYPEvent::ClassName());
  EXPECT_STREQ("ZELSYPEvent", ZELSYPEvent::MetaObject()->GetName());
  EXPECT_STREQ("OPXCoreTools", ZELSYPEvent::MetaObject()->GetModule());
  EXPECT_EQ(ZELBaseUnknown::MetaObject(), ZELSYPEvent::MetaObject()->GetBaseClass());
  EXPECT_EQ(nullptr, ZELSYPEvent::CreateItself());
}

TEST(ZELSYPEventTest, EventKnowsItsClass)
{
  OpenFactory factory;
  ZELSYPEvent* const pEvent = factory.NewDoorEvent("Opened");
  EXPECT_STREQ("ZELSYPEvent", pEvent->IsA());
  EXPECT_EQ(ZELSYPEvent::MetaObject(), pEvent->GetMetaObject());
  EXPECT_TRUE(pEvent->IsAKindOf("ZELSYPEvent"));
  EXPECT_TRUE(pEvent->IsAKindOf("ZELBaseUnknown"));
  EXPECT_FALSE(pEvent->IsAKindOf("ZELSYPEventArgs"));
}

TEST(ZELSYPEventTest, NewEventHasOneReference)
{
  RecordingFailureHandler failures;
  ZELSYPEvent* const pEvent =
      OpenFactory::MakeEvent("Opened", ZELSYPEvent::NoPropagation, ZELSYPEventArgs::MetaObject(), Door::MetaObject());
  EXPECT_EQ(0, pEvent->Release());
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPEventTest, EventIsMadeWithABadNameAndReportsIt)
{
  RecordingFailureHandler failures;
  const auto event = MakeEvent("a-b", ZELSYPEventArgs::MetaObject(), Door::MetaObject());
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean nameError == NULL is FALSE"));
  EXPECT_EQ(k_notAnIdentifier, failures.GetFailures()[0].details);
  EXPECT_EQ("ZELSYPEvent.cpp", failures.GetFailures()[0].file);
  EXPECT_STREQ("a-b", event->GetName());
}

TEST(ZELSYPEventTest, EventIsMadeOfNullsAndReportsEach)
{
  RecordingFailureHandler failures;
  const auto event = MakeEvent(nullptr, nullptr, nullptr);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_name is NULL", "boolean nameError == NULL is FALSE",
                                                  "pointer i_pOwnerClass is NULL", "pointer i_pArgumentType is NULL"));
  EXPECT_EQ("Name is NULL", failures.GetFailures()[1].details);
  EXPECT_STREQ("", event->GetName());
  EXPECT_EQ(nullptr, event->GetArgumentType());
  EXPECT_EQ(nullptr, event->GetOwnerClass());
}

TEST(ZELSYPEventTest, EventIsMadeWithArgumentsOfAnotherKindAndReportsIt)
{
  RecordingFailureHandler failures;
  const auto event = MakeEvent("Opened", Gate::MetaObject(), Door::MetaObject());
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean i_pArgumentType->IsAKindOf(ZELSYPEventArgs::MetaObject()) is FALSE"));
  EXPECT_EQ(std::nullopt, failures.GetFailures()[0].details);
  EXPECT_EQ(Gate::MetaObject(), event->GetArgumentType());
}
