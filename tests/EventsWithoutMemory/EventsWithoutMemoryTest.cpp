#include "AllocationFailures.h"
#include "EventWorld.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPEventHandlerInfo.h"
#include "ZELSYPEventHandlerInfoList.h"
#include "ZELSYPEventHandlersSupport.h"

#include <gmock/gmock.h>

#include <thread>

using testing::ElementsAre;

TEST(EventsWithoutMemoryTest, EventIsRefusedAndReportedWhenItsClassCannotBeKept)
{
  RecordingFailureHandler failures;
  OpenFactory factory;
  {
    AllocationFailures refused;
    EXPECT_EQ(nullptr, factory.NewDoorEvent("Opened"));
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("Failed to add the element", "pointer pEventMap is NULL"));
  EXPECT_NE(nullptr, factory.NewDoorEvent("Opened"));
}

TEST(EventsWithoutMemoryTest, EventIsReleasedAndReportedWhenItCannotBeKept)
{
  RecordingFailureHandler failures;
  OpenFactory factory;
  // As many as fit before the map takes memory again.
  for (const char* const name : {"A", "B", "C", "D"})
    factory.NewDoorEvent(name);
  {
    AllocationFailures refused;
    EXPECT_EQ(nullptr, factory.NewDoorEvent("Opened"));
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("Failed to add the element", "boolean pEvent->Release() >= 1 is FALSE"));
  EXPECT_NE(nullptr, factory.NewDoorEvent("Opened"));
}

TEST(EventsWithoutMemoryTest, RegistrationIsNotTakenWhenThereIsNoPayload)
{
  RecordingFailureHandler failures;
  const auto handler = CountedHandler::New();
  const auto info = ZELHandle<ZELSYPEventHandlerInfo>::Adopt(new ZELSYPEventHandlerInfo(handler.Get(), 0));
  ZELSYPEventHandlerInfoList list;
  {
    AllocationFailures refused;
    list.Add(info.Get());
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer _pSharedData is NULL"));
  EXPECT_EQ("ZELSYPEventHandlerInfoList.cpp", failures.GetFailures()[0].file);
  EXPECT_EQ(0, list.GetSize());
  EXPECT_EQ(1, CountReferences(info.Get()));
}

TEST(EventsWithoutMemoryTest, WriteToASharedListThatCannotBeCopiedLeavesBothWhole)
{
  RecordingFailureHandler failures;
  const auto handler = CountedHandler::New();
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(handler.Get(), 0);
  const ZELSYPEventHandlerInfoList snapshot(list);
  {
    AllocationFailures refused;
    list.Remove(0);
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer _pSharedData is NULL"));
  EXPECT_EQ(1, snapshot.GetSize());
  EXPECT_EQ(1, list.GetSize());
  EXPECT_EQ(2, CountReferences(handler.Get()));
}

TEST(EventsWithoutMemoryTest, HandlersThatCannotBePrunedStayUntilTheyCan)
{
  RecordingFailureHandler failures;
  const auto handler = CountedHandler::New(1);
  // On a thread of its own, which ends with the blocks that it keeps.
  std::thread(
      [&]
      {
        ZELSYPEventHandlerInfoList list;
        list.AddHandler(handler.Get(), 0);
        list.AddHandler(handler.Get(), 0);
        const ZELSYPEventHandlerInfoList snapshot(list);
        {
          AllocationFailures refused;
          list.AutoRemove();
        }
        EXPECT_EQ(2, list.GetSize());
        list.AutoRemove();
        EXPECT_EQ(0, list.GetSize());
        EXPECT_EQ(2, snapshot.GetSize());
      })
      .join();
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer _pSharedData is NULL", "pointer _pSharedData is NULL"));
}

TEST(EventsWithoutMemoryTest, RegistrationThatFindsNoRoomIsNotHeld)
{
  RecordingFailureHandler failures;
  const auto handler = CountedHandler::New();
  const auto info = ZELHandle<ZELSYPEventHandlerInfo>::Adopt(new ZELSYPEventHandlerInfo(handler.Get(), 0));
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(handler.Get(), 0);
  {
    AllocationFailures refused;
    list.Add(info.Get());
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer plNewArray is NULL"));
  EXPECT_EQ(1, list.GetSize());
  EXPECT_EQ(1, CountReferences(info.Get()));
}

TEST(EventsWithoutMemoryTest, AdditionIsAnsweredButNotStoredWhenTheListOfTheEventFindsNoMemory)
{
  RecordingFailureHandler failures;
  OpenFactory factory;
  ZELSYPEvent* const pOpened = factory.NewDoorEvent("Opened");
  const auto handler = CountedHandler::New();
  // On a thread of its own, which has no blocks of earlier lists.
  std::thread(
      [&]
      {
        ZELSYPEventHandlersSupport support;
        EXPECT_EQ(1, support.AddHandler(pOpened, handler.Get(), 0));
        const ZELSYPEventHandlerInfoList snapshot = support.GetHandlersList(pOpened);
        {
          AllocationFailures refused;
          EXPECT_EQ(1, support.AddHandler(pOpened, handler.Get(), 0));
        }
        EXPECT_EQ(1, support.GetHandlersCount(pOpened));
        EXPECT_EQ(2, CountReferences(handler.Get()));
        EXPECT_EQ(1, support.AddHandler(pOpened, handler.Get(), 0));
        EXPECT_EQ(2, support.GetHandlersCount(pOpened));
      })
      .join();
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer _pSharedData is NULL"));
}
