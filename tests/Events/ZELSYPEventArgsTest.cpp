#include "ZELSYPEventArgs.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class ZELSYPEventArgsTest : public testing::Test
{
protected:
  OpenFactory _factory;
  ZELSYPEvent* const _pOpened = _factory.NewDoorEvent("Opened");
  const ZELHandle<Door> _door = ZELHandle<Door>::Adopt(new Door);
  RecordingFailureHandler _failures;
};
} // namespace

TEST_F(ZELSYPEventArgsTest, NewArgumentsHaveAnEventAndNothingElse)
{
  const ZELSYPEventArgs args(_pOpened);
  EXPECT_EQ(_pOpened, args.GetEvent());
  EXPECT_EQ(nullptr, args.GetOrigin());
  EXPECT_EQ(0, args.IsConsumed());
}

TEST_F(ZELSYPEventArgsTest, EventIsHeldWhileTheArgumentsLive)
{
  {
    const ZELSYPEventArgs args(_pOpened);
    EXPECT_EQ(2, CountReferences(_pOpened));
  }
  EXPECT_EQ(1, CountReferences(_pOpened));
}

TEST_F(ZELSYPEventArgsTest, ArgumentsWithoutEventAreReportedAndBuilt)
{
  const ZELSYPEventArgs args(nullptr);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL"));
  EXPECT_EQ("ZELSYPEventArgs.cpp", _failures.GetFailures()[0].file);
  EXPECT_EQ(nullptr, args.GetEvent());
}

TEST_F(ZELSYPEventArgsTest, OriginIsHeldWhileTheArgumentsLive)
{
  {
    ZELSYPEventArgs args(_pOpened);
    args.SetOrigin(_door.Get());
    EXPECT_EQ(_door.Get(), args.GetOrigin());
    EXPECT_EQ(2, CountReferences(_door.Get()));
  }
  EXPECT_EQ(1, CountReferences(_door.Get()));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventArgsTest, NullOriginIsReportedAndTheOriginCanStillBeSet)
{
  ZELSYPEventArgs args(_pOpened);
  args.SetOrigin(nullptr);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pOrigin is NULL"));
  args.SetOrigin(_door.Get());
  EXPECT_EQ(_door.Get(), args.GetOrigin());
}

TEST_F(ZELSYPEventArgsTest, NullOriginIsReportedAsSuchWhenThereIsAnOriginAndThatOneStays)
{
  ZELSYPEventArgs args(_pOpened);
  args.SetOrigin(_door.Get());
  args.SetOrigin(nullptr);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pOrigin is NULL"));
  EXPECT_EQ(_door.Get(), args.GetOrigin());
}

TEST_F(ZELSYPEventArgsTest, SecondOriginIsReportedAndTheFirstStays)
{
  const auto other = ZELHandle<Door>::Adopt(new Door);
  ZELSYPEventArgs args(_pOpened);
  args.SetOrigin(_door.Get());
  args.SetOrigin(other.Get());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean _pOrigin == NULL is FALSE"));
  EXPECT_EQ("Origin has already been set", _failures.GetFailures()[0].details);
  EXPECT_EQ(_door.Get(), args.GetOrigin());
  EXPECT_EQ(1, CountReferences(other.Get()));
}

TEST_F(ZELSYPEventArgsTest, SameOriginTwiceIsReportedToo)
{
  ZELSYPEventArgs args(_pOpened);
  args.SetOrigin(_door.Get());
  args.SetOrigin(_door.Get());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean _pOrigin == NULL is FALSE"));
  EXPECT_EQ(2, CountReferences(_door.Get()));
}

TEST_F(ZELSYPEventArgsTest, ConsumedArgumentsStayConsumed)
{
  ZELSYPEventArgs args(_pOpened);
  args.Consume();
  EXPECT_EQ(1, args.IsConsumed());
  args.Consume();
  EXPECT_EQ(1, args.IsConsumed());
}

TEST_F(ZELSYPEventArgsTest, ArgumentsOnTheHeapAreCounted)
{
  ZELSYPEventArgs* const pArgs = new DoorArgs(_pOpened);
  EXPECT_EQ(2, pArgs->AddRef());
  EXPECT_EQ(1, pArgs->Release());
  EXPECT_EQ(0, pArgs->Release());
  EXPECT_EQ(1, CountReferences(_pOpened));
}

TEST_F(ZELSYPEventArgsTest, ClassRecordSaysWhatArgumentsAre)
{
  EXPECT_STREQ("ZELSYPEventArgs", ZELSYPEventArgs::ClassName());
  EXPECT_STREQ("OPXCoreTools", ZELSYPEventArgs::MetaObject()->GetModule());
  EXPECT_EQ(ZELBaseUnknown::MetaObject(), ZELSYPEventArgs::MetaObject()->GetBaseClass());
  EXPECT_TRUE(DoorArgs::MetaObject()->IsAKindOf(ZELSYPEventArgs::MetaObject()));
  EXPECT_EQ(nullptr, ZELSYPEventArgs::CreateItself());
}
