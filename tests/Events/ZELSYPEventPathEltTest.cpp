#include "ZELSYPEventPathElt.h"

#include "OpenStores.h"
#include "RecordingFailureHandler.h"
#include "RouteWorld.h"
#include "ZELSYPEventHandlerInfo.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class ZELSYPEventPathEltTest : public testing::Test, protected RouteWorld
{
protected:
  ZELSYPEventHandlerInfoList NewList(std::initializer_list<const char*> i_names)
  {
    ZELSYPEventHandlerInfoList list;
    for (const char* const name : i_names)
      list.AddHandler(Keep(name), 0);
    return list;
  }

  RecordingFailureHandler _failures;
  ZELSYPEventArgs _args{_pUp};
  ZELSYPEventPathElt _stop{ZELBaseUnknown_var(_leaf)};
};
} // namespace

TEST_F(ZELSYPEventPathEltTest, ListsRunInTheOrderInWhichTheyWereAddedEachInItsOwn)
{
  _stop.AddList(NewList({"a1", "a2"}));
  _stop.AddList(ZELSYPEventHandlerInfoList());
  _stop.AddList(NewList({"b1"}));
  _stop.AddList(NewList({"c1", "c2", "c3"}));
  _stop.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("a1", "a2", "b1", "c1", "c2", "c3"));
  EXPECT_EQ(4, _stop.GetListCount());
  EXPECT_EQ(3, _stop.GetList(3).GetSize());
  EXPECT_EQ(_leaf.Get(), _stop.GetNode());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventPathEltTest, AddedListIsASnapshot)
{
  ZELSYPEventHandlerInfoList list = NewList({"first", "second"});
  _stop.AddList(list);
  list.Remove(0);
  list.AddHandler(Keep("third"), 0);
  _stop.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("first", "second"));
}

TEST_F(ZELSYPEventPathEltTest, NodeIsHeldUntilTheStopGoes)
{
  EXPECT_EQ(2, CountReferences(_leaf));
  {
    const ZELSYPEventPathElt another{ZELBaseUnknown_var(_leaf)};
    EXPECT_EQ(3, CountReferences(_leaf));
  }
  EXPECT_EQ(2, CountReferences(_leaf));
}

TEST_F(ZELSYPEventPathEltTest, StopWithoutNodeIsReportedAndRunsNothing)
{
  ZELSYPEventPathElt stop(NULL_var);
  stop.AddList(NewList({"handler"}));
  stop.Dispatch(&_args);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("handler i_spNode is NULL_var", "handler _spNode is NULL_var"));
  EXPECT_EQ("ZELSYPEventPathElt.cpp", _failures.GetFailures()[1].file);
  EXPECT_THAT(_log, IsEmpty());
}

TEST_F(ZELSYPEventPathEltTest, OfNodeAndArgumentsThatAreNullTheNodeIsReported)
{
  const ZELSYPEventPathElt stop(NULL_var);
  _failures.Clear();
  stop.Dispatch(nullptr);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("handler _spNode is NULL_var"));
}

TEST_F(ZELSYPEventPathEltTest, NothingRunsWithoutArguments)
{
  _stop.AddList(NewList({"handler"}));
  _stop.Dispatch(nullptr);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pArgs is NULL"));
  EXPECT_THAT(_log, IsEmpty());
}

TEST_F(ZELSYPEventPathEltTest, NullRegistrationEndsTheStop)
{
  _stop.AddList(NewList({"before"}));
  _stop.AddList(PlantedList(nullptr));
  _stop.AddList(NewList({"after"}));
  _stop.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("before"));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pInfo is NULL"));
}

TEST_F(ZELSYPEventPathEltTest, RegistrationWithoutHandlerEndsTheStop)
{
  ZELSYPEventHandlerInfoList list = NewList({"before"});
  const auto info = ZELHandle<ZELSYPEventHandlerInfo>::Adopt(new ZELSYPEventHandlerInfo(nullptr, 0));
  list.Add(info);
  list.AddHandler(Keep("after"), 0);
  _failures.Clear();
  _stop.AddList(list);
  _stop.AddList(NewList({"in a later list"}));
  _stop.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("before"));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pHandler is NULL"));
}

TEST_F(ZELSYPEventPathEltTest, RegistrationWithoutHandlerEndsTheStopOfConsumedArgumentsToo)
{
  ZELSYPEventHandlerInfoList list;
  list.Add(ZELHandle<ZELSYPEventHandlerInfo>::Adopt(new ZELSYPEventHandlerInfo(nullptr, 0)));
  list.AddHandler(Keep("after"), 1);
  _failures.Clear();
  _stop.AddList(list);
  _args.Consume();
  _stop.Dispatch(&_args);
  EXPECT_THAT(_log, IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pHandler is NULL"));
}

TEST_F(ZELSYPEventPathEltTest, NullRegistrationEndsTheStopOfConsumedArgumentsToo)
{
  ZELSYPEventHandlerInfoList after;
  after.AddHandler(Keep("after"), 1);
  _stop.AddList(PlantedList(nullptr));
  _stop.AddList(after);
  _args.Consume();
  _stop.Dispatch(&_args);
  EXPECT_THAT(_log, IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pInfo is NULL"));
}

TEST_F(ZELSYPEventPathEltTest, ListThatAHandlerAddsToItsOwnStopStillRuns)
{
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(Keep("adds",
                       [&](ZELBaseUnknown*, ZELSYPEventArgs*)
                       {
                         for (const char* const name : {"b", "c", "d", "e"})
                           _stop.AddList(NewList({name}));
                       }),
                  0);
  list.AddHandler(Keep("a"), 0);
  _stop.AddList(list);
  _stop.Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("adds", "a", "b", "c", "d", "e"));
}

TEST_F(ZELSYPEventPathEltTest, ListThatIsNotThereIsEmptyAndReported)
{
  EXPECT_EQ(0, _stop.GetList(0).GetSize());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean (i_index>=0 && i_index<_length) is FALSE"));
}
