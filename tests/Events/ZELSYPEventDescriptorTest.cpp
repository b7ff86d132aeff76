#include "ZELSYPEventDescriptor.h"

#include "RecordingFailureHandler.h"
#include "ZELSYPEvent.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
ZELSYPEvent* OpenedEvent()
{
  return nullptr;
}

ZELSYPEvent* ClosedEvent()
{
  return nullptr;
}
} // namespace

TEST(ZELSYPDescriptorBaseTest, EntryOfATypeAnswersItAndNoClassName)
{
  const ZELSYPDescriptorBase entry(static_cast<ZELSYPDescriptorBase::IntrospectableEntryType>(7));
  EXPECT_EQ(7, static_cast<int>(entry.GetType()));
  EXPECT_TRUE(entry.GetClassNameW().IsEmpty());
}

TEST(ZELSYPDescriptorBaseTest, ClassNameIsIgnored)
{
  const ZELSYPDescriptorBase entry(ZELSYPDescriptorBase::Event, "Door");
  EXPECT_EQ(ZELSYPDescriptorBase::Event, entry.GetType());
  EXPECT_TRUE(entry.GetClassNameW().IsEmpty());
}

TEST(ZELSYPDescriptorBaseTest, CopyAndAssignmentTakeTheType)
{
  const ZELSYPDescriptorBase entry(ZELSYPDescriptorBase::Event);
  const ZELSYPDescriptorBase copy(entry);
  ZELSYPDescriptorBase assigned(static_cast<ZELSYPDescriptorBase::IntrospectableEntryType>(7));
  assigned = entry;
  EXPECT_EQ(ZELSYPDescriptorBase::Event, copy.GetType());
  EXPECT_EQ(ZELSYPDescriptorBase::Event, assigned.GetType());
}

TEST(ZELSYPEventDescriptorTest, EventEntryIsNumberThree)
{
  EXPECT_EQ(3, static_cast<int>(ZELSYPEventDescriptor().GetType()));
  EXPECT_EQ(4u, sizeof(ZELSYPDescriptorBase::IntrospectableEntryType));
}

TEST(ZELSYPEventDescriptorTest, DefaultDescriptorIsEmpty)
{
  RecordingFailureHandler failures;
  const ZELSYPEventDescriptor descriptor;
  EXPECT_TRUE(descriptor.GetName().IsEmpty());
  EXPECT_EQ(nullptr, descriptor.GetEventFunc());
  EXPECT_TRUE(descriptor.GetClassNameW().IsEmpty());
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPEventDescriptorTest, DescriptorAnswersNameAndFunctionAndIgnoresTheClassName)
{
  const ZELSYPEventDescriptor descriptor("Opened", &OpenedEvent, "Door");
  EXPECT_EQ(ZELUnicodeString("Opened"), descriptor.GetName());
  EXPECT_EQ(&OpenedEvent, descriptor.GetEventFunc());
  EXPECT_TRUE(descriptor.GetClassNameW().IsEmpty());
  EXPECT_EQ(3, static_cast<int>(descriptor.GetType()));
}

TEST(ZELSYPEventDescriptorTest, NullFunctionIsReportedAndTheDescriptorIsBuilt)
{
  RecordingFailureHandler failures;
  const ZELSYPEventDescriptor descriptor("Opened", nullptr, "Door");
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean _pEventFunc != NULL is FALSE"));
  EXPECT_EQ("ZELSYPEventDescriptor.cpp", failures.GetFailures()[0].file);
  EXPECT_EQ(ZELUnicodeString("Opened"), descriptor.GetName());
  EXPECT_EQ(nullptr, descriptor.GetEventFunc());
}

TEST(ZELSYPEventDescriptorTest, CopyTakesNameAndFunction)
{
  const ZELSYPEventDescriptor descriptor("Opened", &OpenedEvent, "Door");
  const ZELSYPEventDescriptor copy(descriptor);
  EXPECT_EQ(ZELUnicodeString("Opened"), copy.GetName());
  EXPECT_EQ(&OpenedEvent, copy.GetEventFunc());
  EXPECT_EQ(ZELSYPDescriptorBase::Event, copy.GetType());
}

TEST(ZELSYPEventDescriptorTest, AssignmentTakesNameAndFunction)
{
  ZELSYPEventDescriptor descriptor("Opened", &OpenedEvent, "Door");
  descriptor = ZELSYPEventDescriptor("Closed", &ClosedEvent, "Door");
  EXPECT_EQ(ZELUnicodeString("Closed"), descriptor.GetName());
  EXPECT_EQ(&ClosedEvent, descriptor.GetEventFunc());
}

TEST(ZELSYPEventDescriptorTest, AssignmentThroughTheBaseTakesNameAndFunction)
{
  const ZELSYPEventDescriptor closed("Closed", &ClosedEvent, "Door");
  ZELSYPEventDescriptor descriptor("Opened", &OpenedEvent, "Door");
  static_cast<ZELSYPDescriptorBase&>(descriptor) = closed;
  EXPECT_EQ(ZELUnicodeString("Closed"), descriptor.GetName());
  EXPECT_EQ(&ClosedEvent, descriptor.GetEventFunc());
}

TEST(ZELSYPEventDescriptorTest, AssignmentOfAnEntryThatIsNoEventChangesNothing)
{
  ZELSYPEventDescriptor descriptor("Opened", &OpenedEvent, "Door");
  descriptor = ZELSYPDescriptorBase(static_cast<ZELSYPDescriptorBase::IntrospectableEntryType>(7));
  EXPECT_EQ(3, static_cast<int>(descriptor.GetType()));
  EXPECT_EQ(ZELUnicodeString("Opened"), descriptor.GetName());
}
