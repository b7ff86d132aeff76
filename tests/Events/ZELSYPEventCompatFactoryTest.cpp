#include "ZELSYPEventCompatFactory.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"
#include "ZELUnicodeString.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ZELSYPEventCompatFactoryTest, EventStaysAtItsOriginAndTakesPlainArguments)
{
  RecordingFailureHandler failures;
  const ZELSYPEvent* const pEvent = ZELSYPEventCompatFactory("CompatOpened", Door::MetaObject());
  ASSERT_TRUE(pEvent);
  EXPECT_STREQ("CompatOpened", pEvent->GetName());
  EXPECT_EQ(ZELSYPEvent::NoPropagation, pEvent->GetPropagation());
  EXPECT_EQ(ZELSYPEventArgs::MetaObject(), pEvent->GetArgumentType());
  EXPECT_EQ(Door::MetaObject(), pEvent->GetOwnerClass());
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPEventCompatFactoryTest, NullOwnerClassIsReported)
{
  RecordingFailureHandler failures;
  EXPECT_EQ(nullptr, ZELSYPEventCompatFactory("CompatOrphan", nullptr));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pOwnerClass is NULL"));
  EXPECT_EQ("ZELSYPEventCompatFactory.cpp", failures.GetFailures()[0].file);
}

TEST(ZELSYPEventCompatFactoryTest, AllItsEventsShareOneFactory)
{
  RecordingFailureHandler failures;
  EXPECT_NE(nullptr, ZELSYPEventCompatFactory("CompatClosed", Gate::MetaObject()));
  EXPECT_EQ(nullptr, ZELSYPEventCompatFactory("CompatClosed", Gate::MetaObject()));
  ASSERT_THAT(failures.GetMessages(), ElementsAre("boolean pEventMap->Get(i_name) == NULL is FALSE"));
  EXPECT_EQ("Event Gate.CompatClosed already registered", failures.GetFailures()[0].details);
}

TEST(ZELSYPEventCompatFactoryTest, NameThatIsNoIdentifierIsReported)
{
  RecordingFailureHandler failures;
  EXPECT_EQ(nullptr, ZELSYPEventCompatFactory(ZELUnicodeString::FromUTF8("Ge\xC3\xB6"
                                                                         "ffnet"),
                                              Door::MetaObject()));
  ASSERT_THAT(failures.GetMessages(), ElementsAre("boolean nameError == NULL is FALSE"));
  EXPECT_EQ("One of the character of the identifier is not valid", failures.GetFailures()[0].details);
}
