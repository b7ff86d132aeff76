#include "ZELSYPEventPath.h"

#include "OpenStores.h"
#include "RecordingFailureHandler.h"
#include "RouteWorld.h"
#include "ZELSYPEventHandlerInfo.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class ZELSYPEventPathTest : public testing::Test, protected RouteWorld
{
protected:
  // A stop at the leaf with one handler.
  ZELSYPEventPathElt* NewStop(const char* i_name, LoggingHandler::Action i_action = nullptr)
  {
    ZELSYPEventHandlerInfoList list;
    list.AddHandler(Keep(i_name, std::move(i_action)), 0);
    return NewStopOf(list);
  }
  ZELSYPEventPathElt* NewStopOf(const ZELSYPEventHandlerInfoList& i_list)
  {
    auto* const pStop = new ZELSYPEventPathElt(ZELBaseUnknown_var(_leaf));
    pStop->AddList(i_list);
    return pStop;
  }

  RecordingFailureHandler _failures;
  ZELSYPEventArgs _args{_pUp};
  OpenPath _path;
};
} // namespace

TEST_F(ZELSYPEventPathTest, StopsRunInTheOrderInWhichTheyWereAdded)
{
  for (const char* const name : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"})
    _path.AddElement(NewStop(name));
  _path.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9", "10"));
  EXPECT_EQ(10, _path.GetElementCount());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventPathTest, ConsumptionDoesNotEndTheWalk)
{
  _path.AddElement(NewStop("consumes", [](ZELBaseUnknown*, ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); }));
  auto* const pStop = new ZELSYPEventPathElt(ZELBaseUnknown_var(_root));
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(Keep("no"), 0);
  list.AddHandler(Keep("all the same"), 1);
  pStop->AddList(list);
  _path.AddElement(pStop);
  _path.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("consumes", "all the same"));
}

TEST_F(ZELSYPEventPathTest, StopsGoWithThePath)
{
  {
    ZELSYPEventPath path;
    path.AddElement(NewStop("handler"));
    EXPECT_EQ(2, CountReferences(_leaf));
  }
  EXPECT_EQ(1, CountReferences(_leaf));
  EXPECT_EQ(1, CountReferences(_kept.back()));
}

TEST_F(ZELSYPEventPathTest, StopThatAHandlerAddsIsVisited)
{
  _path.AddElement(NewStop("adds",
                           [&](ZELBaseUnknown*, ZELSYPEventArgs*)
                           {
                             for (const char* const name : {"2", "3", "4", "5", "6", "7", "8", "9", "10"})
                               _path.AddElement(NewStop(name));
                           }));
  _path.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("adds", "2", "3", "4", "5", "6", "7", "8", "9", "10"));
}

TEST_F(ZELSYPEventPathTest, NullStopIsReportedAndNotAdded)
{
  _path.AddElement(nullptr);
  EXPECT_EQ(0, _path.GetElementCount());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pElem is NULL"));
}

TEST_F(ZELSYPEventPathTest, NothingRunsWithoutArguments)
{
  _path.AddElement(NewStop("handler"));
  _path.Dispatch(nullptr);
  EXPECT_THAT(_log, IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pArgs is NULL"));
  EXPECT_EQ("ZELSYPEventPath.cpp", _failures.GetFailures()[0].file);
}

TEST_F(ZELSYPEventPathTest, NullStopEndsTheWalkAndIsReportedAgainWhenThePathGoes)
{
  {
    OpenPath path;
    path.AddElement(NewStop("before"));
    path._elements.Append(nullptr);
    path.AddElement(NewStop("after"));
    path.Dispatch(&_args);
  }
  EXPECT_THAT(_log, ElementsAre("before"));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pElt is NULL", "pointer pElt is NULL"));
  EXPECT_EQ(1, CountReferences(_leaf));
}

TEST_F(ZELSYPEventPathTest, StopThatIsNotThereIsNullAndReported)
{
  EXPECT_EQ(nullptr, _path.GetElement(0));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean (i_index>=0 && i_index<_length) is FALSE"));
}

TEST_F(ZELSYPEventPathTest, NullRegistrationEndsItsOwnStopOnly)
{
  _path.AddElement(NewStopOf(PlantedList(nullptr)));
  _path.AddElement(NewStop("next stop"));
  _path.AddElement(NewStop("last stop"));
  _path.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("next stop", "last stop"));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pInfo is NULL"));
}

TEST_F(ZELSYPEventPathTest, RegistrationWithoutHandlerEndsItsOwnStopOnly)
{
  const auto info = ZELHandle<ZELSYPEventHandlerInfo>::Adopt(new ZELSYPEventHandlerInfo(nullptr, 0));
  ZELSYPEventHandlerInfoList list;
  list.Add(info);
  _failures.Clear();
  _path.AddElement(NewStopOf(list));
  _path.AddElement(NewStop("next stop"));
  _path.AddElement(NewStop("last stop"));
  _path.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("next stop", "last stop"));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pHandler is NULL"));
}
