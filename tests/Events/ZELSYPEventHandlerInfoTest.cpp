#include "ZELSYPEventHandlerInfo.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(ZELSYPEventHandlerInfoTest, RegistrationAnswersWhatItWasMadeOf)
{
  const auto handler = CountedHandler::New();
  for (const int handleConsumedEvents : {0, 1, 5, -1})
  {
    const ZELSYPEventHandlerInfo info(handler.Get(), handleConsumedEvents);
    EXPECT_EQ(handler.Get(), info.GetHandler());
    EXPECT_EQ(handleConsumedEvents, info.GetHandleConsumedEvents());
  }
}

TEST(ZELSYPEventHandlerInfoTest, RegistrationAnswersTheClassThatItIsFor)
{
  const auto handler = CountedHandler::New();
  const ZELSYPEventHandlerInfo ofNone(handler.Get(), 1);
  const ZELSYPEventHandlerInfo ofClass(handler.Get(), 1, CountedHandler::MetaObject());
  EXPECT_EQ(nullptr, ofNone.GetRegisteredClass());
  EXPECT_EQ(CountedHandler::MetaObject(), ofClass.GetRegisteredClass());
  EXPECT_EQ(handler.Get(), ofClass.GetHandler());
  EXPECT_EQ(1, ofClass.GetHandleConsumedEvents());
}

TEST(ZELSYPEventHandlerInfoTest, HandlerIsHeldWhileTheRegistrationLives)
{
  const auto handler = CountedHandler::New();
  {
    const ZELSYPEventHandlerInfo info(handler.Get(), 0);
    EXPECT_EQ(2, CountReferences(handler.Get()));
  }
  EXPECT_EQ(1, CountReferences(handler.Get()));
}

TEST(ZELSYPEventHandlerInfoTest, NullHandlerIsReportedAndTheRegistrationIsBuilt)
{
  RecordingFailureHandler failures;
  const ZELSYPEventHandlerInfo info(nullptr, 1);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pHandler is NULL"));
  EXPECT_EQ("ZELSYPEventHandlerInfo.cpp", failures.GetFailures()[0].file);
  EXPECT_EQ(nullptr, info.GetHandler());
  EXPECT_EQ(1, info.GetHandleConsumedEvents());
}

TEST(ZELSYPEventHandlerInfoTest, ClassRecordSaysWhatARegistrationIs)
{
  EXPECT_STREQ("ZELSYPEventHandlerInfo", ZELSYPEventHandlerInfo::ClassName());
  EXPECT_STREQ("OPXCoreTools", ZELSYPEventHandlerInfo::MetaObject()->GetModule());
  EXPECT_EQ(ZELBaseUnknown::MetaObject(), ZELSYPEventHandlerInfo::MetaObject()->GetBaseClass());
}

TEST(ZELSYPEventHandlerTest, ClassRecordSaysWhatAHandlerIs)
{
  EXPECT_STREQ("ZELSYPEventHandler", ZELSYPEventHandler::ClassName());
  EXPECT_STREQ("OPXCoreTools", ZELSYPEventHandler::MetaObject()->GetModule());
  EXPECT_EQ(ZELBaseUnknown::MetaObject(), ZELSYPEventHandler::MetaObject()->GetBaseClass());
  EXPECT_EQ(nullptr, ZELSYPEventHandler::CreateItself());
  EXPECT_EQ(ZELSYPEventHandler::MetaObject(), CountedHandler::New()->GetMetaObject());
}
