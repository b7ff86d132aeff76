#include "ZELSYPEventHandlerInfoList.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPEventHandlerInfo.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
using Handlers = std::vector<const ZELSYPEventHandler*>;

Handlers HandlersOf(const ZELSYPEventHandlerInfoList& i_list)
{
  Handlers handlers;
  for (int index = 0; index < i_list.GetSize(); ++index)
    handlers.push_back(i_list.Get(index)->GetHandler());
  return handlers;
}

ZELHandle<ZELSYPEventHandlerInfo> NewInfo(ZELSYPEventHandler* i_pHandler)
{
  return ZELHandle<ZELSYPEventHandlerInfo>::Adopt(new ZELSYPEventHandlerInfo(i_pHandler, 0));
}

// A payload and a list whose fields are open to a test.
class OpenData : public ZELSYPEventHandlerInfoListData
{
public:
  using ZELSYPEventHandlerInfoListData::_handlers;
};

class OpenList : public ZELSYPEventHandlerInfoList
{
public:
  using ZELSYPEventHandlerInfoList::_pSharedData;

  // Puts an entry into the payload as it is.
  void Plant(ZELSYPEventHandlerInfo* i_pInfo)
  {
    if (!_pSharedData)
      _pSharedData = new OpenData;
    static_cast<OpenData*>(_pSharedData)->_handlers.Append(i_pInfo);
  }
};

// A handler that does something when it is asked whether it must be removed, and when it goes.
class MeddlingHandler : public CountedHandler
{
public:
  ~MeddlingHandler() override
  {
    if (_whenItGoes)
      _whenItGoes();
  }
  int MustBeRemoved() override
  {
    if (_whenAsked)
      _whenAsked();
    return CountedHandler::MustBeRemoved();
  }

  std::function<void()> _whenAsked;
  std::function<void()> _whenItGoes;
};

class ZELSYPEventHandlerInfoListTest : public testing::Test
{
protected:
  const ZELHandle<CountedHandler> _first = CountedHandler::New();
  const ZELHandle<CountedHandler> _second = CountedHandler::New();
  const ZELHandle<CountedHandler> _third = CountedHandler::New();
  RecordingFailureHandler _failures;

  ZELSYPEventHandlerInfoList ListOfThree() const
  {
    ZELSYPEventHandlerInfoList list;
    for (const auto& handler : {_first, _second, _third})
      list.AddHandler(handler.Get(), 0);
    return list;
  }
};
} // namespace

TEST_F(ZELSYPEventHandlerInfoListTest, NewListIsEmptyAndHasNoPayload)
{
  const OpenList list;
  EXPECT_EQ(0, list.GetSize());
  EXPECT_EQ(nullptr, list._pSharedData);
}

TEST_F(ZELSYPEventHandlerInfoListTest, ListIsOnePointerBeyondItsVirtualTable)
{
  EXPECT_EQ(2 * sizeof(void*), sizeof(ZELSYPEventHandlerInfoList));
}

TEST_F(ZELSYPEventHandlerInfoListTest, HandlersStandInTheOrderOfTheirRegistration)
{
  EXPECT_THAT(HandlersOf(ListOfThree()), ElementsAre(_first.Get(), _second.Get(), _third.Get()));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlerInfoListTest, RegistrationKeepsWhetherItHandlesConsumedEvents)
{
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(_first.Get(), 0);
  list.AddHandler(_first.Get(), 1);
  EXPECT_EQ(0, list.Get(0)->GetHandleConsumedEvents());
  EXPECT_EQ(1, list.Get(1)->GetHandleConsumedEvents());
}

TEST_F(ZELSYPEventHandlerInfoListTest, ListHoldsTheOnlyReferenceOnARegistrationItMade)
{
  {
    ZELSYPEventHandlerInfoList list;
    list.AddHandler(_first.Get(), 0);
    EXPECT_EQ(1, CountReferences(list.Get(0)));
    EXPECT_EQ(2, CountReferences(_first.Get()));
  }
  EXPECT_EQ(1, CountReferences(_first.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, ListHoldsAReferenceOnARegistrationItIsGiven)
{
  const auto info = NewInfo(_first.Get());
  {
    ZELSYPEventHandlerInfoList list;
    list.Add(info.Get());
    EXPECT_EQ(info.Get(), list.Get(0));
    EXPECT_EQ(2, CountReferences(info.Get()));
  }
  EXPECT_EQ(1, CountReferences(info.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, NullRegistrationIsReportedAndNothingChanges)
{
  OpenList list;
  list.Add(nullptr);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pHandlerInfo is NULL"));
  EXPECT_EQ("ZELSYPEventHandlerInfoList.cpp", _failures.GetFailures()[0].file);
  EXPECT_EQ(nullptr, list._pSharedData);
}

TEST_F(ZELSYPEventHandlerInfoListTest, NullHandlerIsReportedAndNothingChanges)
{
  OpenList list;
  list.AddHandler(nullptr, 0);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pHandler is NULL"));
  EXPECT_EQ(nullptr, list._pSharedData);
}

TEST_F(ZELSYPEventHandlerInfoListTest, SameHandlerMayStandTwiceAndIsRemovedOnce)
{
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(_first.Get(), 0);
  list.AddHandler(_first.Get(), 1);
  EXPECT_EQ(2, list.GetSize());
  list.Remove(0);
  ASSERT_EQ(1, list.GetSize());
  EXPECT_EQ(_first.Get(), list.Get(0)->GetHandler());
  EXPECT_EQ(1, list.Get(0)->GetHandleConsumedEvents());
}

TEST_F(ZELSYPEventHandlerInfoListTest, RemovalMovesLaterRegistrationsDown)
{
  ZELSYPEventHandlerInfoList list = ListOfThree();
  list.Remove(1);
  EXPECT_THAT(HandlersOf(list), ElementsAre(_first.Get(), _third.Get()));
  EXPECT_EQ(1, CountReferences(_second.Get()));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlerInfoListTest, RemovalFromAnEmptyListIsReported)
{
  ZELSYPEventHandlerInfoList list;
  list.Remove(0);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer _pSharedData is NULL"));
  EXPECT_EQ("List is empty!", _failures.GetFailures()[0].details);
}

TEST_F(ZELSYPEventHandlerInfoListTest, RemovalOutOfRangeIsReportedAndNothingChanges)
{
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(_first.Get(), 0);
  list.AddHandler(_second.Get(), 0);
  for (const int index : {5, 2, -1})
  {
    _failures.Clear();
    list.Remove(index);
    EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean i_index >= 0 && i_index < _pSharedData->_handlers.GetLength() is FALSE"));
    EXPECT_EQ("i_index is out of range", _failures.GetFailures()[0].details);
  }
  EXPECT_THAT(HandlersOf(list), ElementsAre(_first.Get(), _second.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, RemovalOutOfRangeDoesNotCopyASharedPayload)
{
  OpenList list;
  list.AddHandler(_first.Get(), 0);
  const OpenList copy(list);
  list.Remove(1);
  EXPECT_EQ(copy._pSharedData, list._pSharedData);
}

TEST_F(ZELSYPEventHandlerInfoListTest, ListThatLostItsLastRegistrationHasAnEmptyPayload)
{
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(_first.Get(), 0);
  list.Remove(0);
  EXPECT_EQ(0, list.GetSize());
  list.Remove(0);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean i_index >= 0 && i_index < _pSharedData->_handlers.GetLength() is FALSE"));
}

TEST_F(ZELSYPEventHandlerInfoListTest, NullEntryIsReportedWhenItIsRemoved)
{
  OpenList list;
  list.Plant(nullptr);
  list.Remove(0);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pInfo is NULL"));
  EXPECT_EQ(0, list.GetSize());
}

TEST_F(ZELSYPEventHandlerInfoListTest, LookIntoAnEmptyListIsReported)
{
  const ZELSYPEventHandlerInfoList list;
  EXPECT_EQ(nullptr, list.Get(0));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer _pSharedData is NULL"));
  EXPECT_EQ("List is empty!", _failures.GetFailures()[0].details);
}

TEST_F(ZELSYPEventHandlerInfoListTest, LookOutOfRangeIsReported)
{
  const ZELSYPEventHandlerInfoList list = ListOfThree();
  for (const int index : {3, -1})
  {
    _failures.Clear();
    EXPECT_EQ(nullptr, list.Get(index));
    EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean i_index >= 0 && i_index < _pSharedData->_handlers.GetLength() is FALSE"));
    EXPECT_EQ("i_index is out of range", _failures.GetFailures()[0].details);
  }
}

TEST_F(ZELSYPEventHandlerInfoListTest, LookGivesNoReference)
{
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(_first.Get(), 0);
  list.Get(0);
  EXPECT_EQ(1, CountReferences(list.Get(0)));
}

TEST_F(ZELSYPEventHandlerInfoListTest, CopySharesThePayload)
{
  OpenList list;
  list.AddHandler(_first.Get(), 0);
  const OpenList copy(list);
  EXPECT_EQ(list._pSharedData, copy._pSharedData);
  EXPECT_EQ(1, CountReferences(copy.Get(0)));
}

TEST_F(ZELSYPEventHandlerInfoListTest, CopyOfAnEmptyListHasNoPayload)
{
  const OpenList list;
  const OpenList copy(list);
  EXPECT_EQ(nullptr, copy._pSharedData);
  EXPECT_EQ(0, copy.GetSize());
}

TEST_F(ZELSYPEventHandlerInfoListTest, CopyStillHoldsWhatItsSourceRemoved)
{
  ZELSYPEventHandlerInfoList list = ListOfThree();
  ZELSYPEventHandlerInfo* const pRemoved = list.Get(1);
  {
    const ZELSYPEventHandlerInfoList copy(list);
    list.Remove(1);
    EXPECT_EQ(pRemoved, copy.Get(1));
    EXPECT_THAT(HandlersOf(copy), ElementsAre(_first.Get(), _second.Get(), _third.Get()));
    EXPECT_THAT(HandlersOf(list), ElementsAre(_first.Get(), _third.Get()));
    EXPECT_EQ(2, CountReferences(_second.Get()));
  }
  EXPECT_EQ(1, CountReferences(_second.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, SourceIsNotReachedByWhatItsCopyAdds)
{
  const ZELSYPEventHandlerInfoList list = ListOfThree();
  ZELSYPEventHandlerInfoList copy(list);
  copy.AddHandler(_first.Get(), 0);
  EXPECT_EQ(4, copy.GetSize());
  EXPECT_EQ(3, list.GetSize());
}

TEST_F(ZELSYPEventHandlerInfoListTest, CopiesShareTheirRegistrationsAfterAWrite)
{
  ZELSYPEventHandlerInfoList list = ListOfThree();
  const ZELSYPEventHandlerInfoList copy(list);
  list.Remove(2);
  EXPECT_EQ(copy.Get(0), list.Get(0));
  EXPECT_EQ(2, CountReferences(list.Get(0)));
}

TEST_F(ZELSYPEventHandlerInfoListTest, WriteToAListOfItsOwnKeepsThePayload)
{
  OpenList list;
  list.AddHandler(_first.Get(), 0);
  const void* const pPayload = list._pSharedData;
  list.AddHandler(_second.Get(), 0);
  list.Remove(0);
  EXPECT_EQ(pPayload, list._pSharedData);
}

TEST_F(ZELSYPEventHandlerInfoListTest, AssignmentSharesThePayloadAndGivesUpTheOldOne)
{
  OpenList list;
  list.AddHandler(_first.Get(), 0);
  OpenList assigned;
  assigned.AddHandler(_second.Get(), 0);
  assigned = list;
  EXPECT_EQ(list._pSharedData, assigned._pSharedData);
  EXPECT_EQ(1, CountReferences(_second.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, AssignmentBetweenSharersChangesNothing)
{
  OpenList list;
  list.AddHandler(_first.Get(), 0);
  OpenList copy(list);
  copy = list;
  const OpenList& same = list;
  list = same;
  EXPECT_EQ(list._pSharedData, copy._pSharedData);
  EXPECT_THAT(HandlersOf(list), ElementsAre(_first.Get()));
  EXPECT_EQ(2, CountReferences(_first.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, AssignmentOfAnEmptyListEmptiesIt)
{
  ZELSYPEventHandlerInfoList list = ListOfThree();
  const ZELSYPEventHandlerInfoList empty;
  list = empty;
  EXPECT_EQ(0, list.GetSize());
  EXPECT_EQ(1, CountReferences(_first.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, MoveTakesThePayloadAlong)
{
  OpenList list;
  list.AddHandler(_first.Get(), 0);
  OpenList taken(std::move(list));
  EXPECT_THAT(HandlersOf(taken), ElementsAre(_first.Get()));
  OpenList assigned;
  assigned.AddHandler(_second.Get(), 0);
  assigned = std::move(taken);
  EXPECT_THAT(HandlersOf(assigned), ElementsAre(_first.Get()));
  EXPECT_EQ(1, CountReferences(_second.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, AutoRemoveLeavesTheHandlersThatStay)
{
  ZELSYPEventHandlerInfoList list = ListOfThree();
  _first->_mustBeRemoved = 1;
  _third->_mustBeRemoved = -1;
  list.AutoRemove();
  EXPECT_THAT(HandlersOf(list), ElementsAre(_second.Get()));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlerInfoListTest, AutoRemoveCanRemoveAll)
{
  ZELSYPEventHandlerInfoList list = ListOfThree();
  for (const auto& handler : {_first, _second, _third})
    handler->_mustBeRemoved = 1;
  list.AutoRemove();
  EXPECT_EQ(0, list.GetSize());
}

TEST_F(ZELSYPEventHandlerInfoListTest, AutoRemoveAsksFromTheLastToTheFirst)
{
  ZELSYPEventHandlerInfoList list;
  std::vector<int> asked;
  for (int place = 0; place < 3; ++place)
  {
    const auto handler = ZELHandle<MeddlingHandler>::Adopt(new MeddlingHandler);
    handler->_whenAsked = [&asked, place] { asked.push_back(place); };
    handler->_mustBeRemoved = place % 2;
    list.AddHandler(handler.Get(), 0);
  }
  list.AutoRemove();
  EXPECT_THAT(asked, ElementsAre(2, 1, 0));
  EXPECT_EQ(2, list.GetSize());
}

TEST_F(ZELSYPEventHandlerInfoListTest, AutoRemoveOfAnEmptyListIsSilent)
{
  OpenList list;
  list.AutoRemove();
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
  EXPECT_EQ(nullptr, list._pSharedData);
}

TEST_F(ZELSYPEventHandlerInfoListTest, AutoRemoveWithNothingToRemoveKeepsASharedPayload)
{
  OpenList list;
  list.AddHandler(_first.Get(), 0);
  const OpenList copy(list);
  list.AutoRemove();
  EXPECT_EQ(copy._pSharedData, list._pSharedData);
}

TEST_F(ZELSYPEventHandlerInfoListTest, AutoRemoveDoesNotReachACopy)
{
  ZELSYPEventHandlerInfoList list = ListOfThree();
  const ZELSYPEventHandlerInfoList copy(list);
  _second->_mustBeRemoved = 1;
  list.AutoRemove();
  EXPECT_THAT(HandlersOf(list), ElementsAre(_first.Get(), _third.Get()));
  EXPECT_THAT(HandlersOf(copy), ElementsAre(_first.Get(), _second.Get(), _third.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, AutoRemoveStopsAtANullEntry)
{
  _first->_mustBeRemoved = 1;
  _second->_mustBeRemoved = 1;
  OpenList list;
  list.Plant(NewInfo(_first.Get()).Detach());
  list.Plant(nullptr);
  list.Plant(NewInfo(_second.Get()).Detach());
  list.AutoRemove();
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pInfo is NULL"));
  EXPECT_EQ(2, list.GetSize());
  EXPECT_EQ(_first.Get(), list.Get(0)->GetHandler());
}

TEST_F(ZELSYPEventHandlerInfoListTest, AutoRemoveStopsAtARegistrationWithoutHandler)
{
  _first->_mustBeRemoved = 1;
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(_first.Get(), 0);
  list.Add(NewInfo(nullptr).Get());
  _failures.Clear();
  list.AutoRemove();
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pHandler is NULL"));
  EXPECT_EQ(2, list.GetSize());
}

TEST_F(ZELSYPEventHandlerInfoListTest, HandlerThatEmptiesTheListWhileItIsAskedEndsTheWalkWithAReport)
{
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(_first.Get(), 0);
  const auto meddler = ZELHandle<MeddlingHandler>::Adopt(new MeddlingHandler);
  meddler->_whenAsked = [&list]
  {
    while (list.GetSize() > 0)
      list.Remove(0);
  };
  list.AddHandler(meddler.Get(), 0);
  list.AutoRemove();
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean (i_index>=0 && i_index<_length) is FALSE", "pointer pInfo is NULL"));
  EXPECT_EQ(0, list.GetSize());
}

TEST_F(ZELSYPEventHandlerInfoListTest, HandlerMayChangeTheListWhenItGoes)
{
  ZELSYPEventHandlerInfoList list;
  {
    const auto meddler = ZELHandle<MeddlingHandler>::Adopt(new MeddlingHandler);
    meddler->_whenItGoes = [&] { list.AddHandler(_second.Get(), 0); };
    list.AddHandler(_first.Get(), 0);
    list.AddHandler(meddler.Get(), 0);
  }
  list.Remove(1);
  EXPECT_THAT(HandlersOf(list), ElementsAre(_first.Get(), _second.Get()));
}

TEST_F(ZELSYPEventHandlerInfoListTest, HandlerMayLookAtTheListThatLetsGoOfItByAssignment)
{
  ZELSYPEventHandlerInfoList list;
  int seen = -1;
  {
    const auto meddler = ZELHandle<MeddlingHandler>::Adopt(new MeddlingHandler);
    meddler->_whenItGoes = [&] { seen = list.GetSize(); };
    list.AddHandler(meddler.Get(), 0);
  }
  list = ListOfThree();
  EXPECT_EQ(3, seen);
}

TEST_F(ZELSYPEventHandlerInfoListTest, LastHolderOfAPayloadReleasesTheHandlers)
{
  const int living = CountedHandler::s_living;
  auto list = std::make_unique<ZELSYPEventHandlerInfoList>();
  list->AddHandler(CountedHandler::New().Get(), 0);
  auto copy = std::make_unique<ZELSYPEventHandlerInfoList>(*list);
  list.reset();
  EXPECT_EQ(living + 1, CountedHandler::s_living);
  copy.reset();
  EXPECT_EQ(living, CountedHandler::s_living);
}

TEST_F(ZELSYPEventHandlerInfoListTest, NullEntryIsReportedAndLeftOutByAWriteToASharedList)
{
  OpenList list;
  list.Plant(nullptr);
  list.Plant(NewInfo(_first.Get()).Detach());
  const OpenList copy(list);
  list.AddHandler(_second.Get(), 0);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("NULL handler info?"));
  EXPECT_EQ("ZELSYPEventHandlerInfoListData.cpp", _failures.GetFailures()[0].file);
  EXPECT_THAT(HandlersOf(list), ElementsAre(_first.Get(), _second.Get()));
  EXPECT_EQ(2, copy.GetSize());
}

TEST_F(ZELSYPEventHandlerInfoListTest, NullEntryIsReportedWhenThePayloadGoesAndTheOthersAreReleased)
{
  {
    OpenList list;
    list.Plant(nullptr);
    list.Plant(NewInfo(_first.Get()).Detach());
  }
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("NULL handler info?"));
  EXPECT_EQ(1, CountReferences(_first.Get()));
}
