#include "ZELSYPEventHandlersSupport.h"

#include "LastWords.h"
#include "MeddlingFailureHandler.h"
#include "OpenStores.h"
#include "RecordingFailureHandler.h"
#include "RouteWorld.h"
#include "ZELSYPEventHandlerInfo.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <utility>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
// Logs each time that it is asked whether it must be removed, and then does something.
class AskedHandler : public LoggingHandler
{
public:
  using LoggingHandler::LoggingHandler;
  int MustBeRemoved() override
  {
    _log.push_back(_name);
    if (_whenAsked)
      _whenAsked();
    return _mustBeRemoved;
  }
  std::function<void()> _whenAsked;
};

class ZELSYPEventHandlersSupportTest : public testing::Test, protected RouteWorld
{
protected:
  // A handler of that name in the store; this world holds it, too.
  AskedHandler* Ask(const char* i_name)
  {
    auto* const pHandler = new AskedHandler(_log, i_name, nullptr);
    _kept.push_back(ZELHandle<LoggingHandler>::Adopt(pHandler));
    _support.AddHandler(_pUp, pHandler, 0);
    return pHandler;
  }
  // The names of the handlers in a list.
  static std::vector<std::string> NamesIn(const ZELSYPEventHandlerInfoList& i_list)
  {
    std::vector<std::string> names;
    for (int index = 0; index < i_list.GetSize(); ++index)
      names.push_back(static_cast<LoggingHandler*>(i_list.Get(index)->GetHandler())->_name);
    return names;
  }
  std::vector<std::string> Names() { return NamesIn(_support.GetHandlersList(_pUp)); }

  RecordingFailureHandler _failures;
  ZELSYPEventHandlersSupport _support;
};
} // namespace

TEST_F(ZELSYPEventHandlersSupportTest, HandlersStandInTheOrderOfRegistrationAsOftenAsTheyWereRegistered)
{
  LoggingHandler* const pFirst = Keep("first");
  EXPECT_EQ(1, _support.AddHandler(_pUp, pFirst, 0));
  EXPECT_EQ(1, _support.AddHandler(_pUp, Keep("second"), 7));
  EXPECT_EQ(1, _support.AddHandler(_pUp, pFirst, 0));
  EXPECT_EQ(1, _support.AddHandler(_pDown, Keep("of another event"), 0));
  EXPECT_THAT(Names(), ElementsAre("first", "second", "first"));
  EXPECT_EQ(7, _support.GetHandlersList(_pUp).Get(1)->GetHandleConsumedEvents());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, AdditionWithoutEventOrHandlerIsRefused)
{
  EXPECT_EQ(0, _support.AddHandler(nullptr, Keep("handler"), 0));
  EXPECT_EQ(0, _support.AddHandler(_pUp, nullptr, 0));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL", "pointer i_pHandler is NULL"));
  EXPECT_EQ("ZELSYPEventHandlersSupport.cpp", _failures.GetFailures()[0].file);
  EXPECT_EQ(1, CountReferences(_pUp));
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerWithoutArgumentsClassIsRefused)
{
  LoggingHandler* const pHandler = Keep("handler");
  pHandler->_pArgumentsClass = nullptr;
  EXPECT_EQ(0, _support.AddHandler(_pUp, pHandler, 0));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pHandlerArgumentsClass is NULL"));
}

TEST_F(ZELSYPEventHandlersSupportTest, EventWithoutArgumentTypeIsRefused)
{
  const auto event = ZELHandle<ZELSYPEvent>::Adopt(OpenFactory::MakeEvent("E", ZELSYPEvent::OriginToRoot, nullptr, Widget::MetaObject()));
  _failures.Clear();
  EXPECT_EQ(0, _support.AddHandler(event, Keep("handler"), 0));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pEventArgumentsClass is NULL"));
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerOfPlainArgumentsIsTakenForEveryEvent)
{
  ZELSYPEvent* const pDoorEvent = _factory.NewEvent("Door", ZELSYPEvent::OriginToRoot, DoorArgs::MetaObject(), Widget::MetaObject());
  EXPECT_EQ(1, _support.AddHandler(pDoorEvent, Keep("plain"), 0));
  LoggingHandler* const pSame = Keep("same");
  pSame->_pArgumentsClass = DoorArgs::MetaObject();
  EXPECT_EQ(1, _support.AddHandler(pDoorEvent, pSame, 0));
  EXPECT_THAT(NamesIn(_support.GetHandlersList(pDoorEvent)), ElementsAre("plain", "same"));
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerOfADerivedArgumentsClassIsRefusedAndNothingIsStored)
{
  LoggingHandler* const pHandler = Keep("handler");
  pHandler->_pArgumentsClass = DoorArgs::MetaObject();
  EXPECT_EQ(0, _support.AddHandler(_pUp, pHandler, 0));
  EXPECT_THAT(_failures.GetMessages(),
              ElementsAre("The handler expects argument of type DoorArgs but the event uses arguments of type ZELSYPEventArgs"));
  EXPECT_EQ(1, CountReferences(_pUp));
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, RemovalTakesTheFirstRegistrationEachTime)
{
  LoggingHandler* const pTwice = Keep("twice");
  _support.AddHandler(_pUp, pTwice, 0);
  _support.AddHandler(_pUp, Keep("once"), 0);
  _support.AddHandler(_pUp, pTwice, 0);
  EXPECT_EQ(1, _support.RemoveHandler(_pUp, pTwice));
  EXPECT_THAT(Names(), ElementsAre("once", "twice"));
  EXPECT_EQ(1, _support.RemoveHandler(_pUp, pTwice));
  EXPECT_EQ(0, _support.RemoveHandler(_pUp, pTwice));
  EXPECT_THAT(Names(), ElementsAre("once"));
  EXPECT_EQ(1, CountReferences(pTwice));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, RemovalOfWhatIsNotThereIsSilent)
{
  LoggingHandler* const pHandler = Keep("handler");
  EXPECT_EQ(0, _support.RemoveHandler(_pUp, pHandler));
  _support.AddHandler(_pUp, Keep("other"), 0);
  EXPECT_EQ(0, _support.RemoveHandler(_pUp, pHandler));
  EXPECT_EQ(0, _support.RemoveHandler(_pDown, _kept.back()));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, RemovalWithoutEventOrHandlerIsRefused)
{
  EXPECT_EQ(0, _support.RemoveHandler(nullptr, Keep("handler")));
  EXPECT_EQ(0, _support.RemoveHandler(_pUp, nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL", "pointer i_pHandler is NULL"));
}

TEST_F(ZELSYPEventHandlersSupportTest, RemovalThatMeetsANullEntryIsReported)
{
  OpenSupport support;
  support._eventHandlers.Set(_pUp, PlantedList(nullptr));
  EXPECT_EQ(0, support.RemoveHandler(_pUp, Keep("handler")));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pInfo is NULL"));
  support._eventHandlers.RemoveAll();
}

TEST_F(ZELSYPEventHandlersSupportTest, RemovalEndsAtANullEntryBeforeTheHandler)
{
  OpenSupport support;
  support._eventHandlers.Set(_pUp, PlantedList(nullptr));
  LoggingHandler* const pHandler = Keep("handler");
  support._eventHandlers.Locate(_pUp)->AddHandler(pHandler, 0);
  EXPECT_EQ(0, support.RemoveHandler(_pUp, pHandler));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pInfo is NULL"));
  EXPECT_EQ(2, CountReferences(pHandler));
  support._eventHandlers.RemoveAll();
}

TEST_F(ZELSYPEventHandlersSupportTest, AskingAboutAnUnknownEventKeepsNothingOfIt)
{
  OpenSupport support;
  EXPECT_EQ(0, support.RemoveHandler(_pUp, Keep("handler")));
  EXPECT_EQ(0, support.GetHandlersList(_pUp).GetSize());
  EXPECT_EQ(0, support.GetHandlersCount(_pUp));
  EXPECT_EQ(0, support._eventHandlers.GetSize());
  EXPECT_EQ(1, CountReferences(_pUp));
}

TEST_F(ZELSYPEventHandlersSupportTest, EventIsHeldOnceFromItsFirstHandlerUntilTheStoreGoes)
{
  {
    ZELSYPEventHandlersSupport support;
    LoggingHandler* const pHandler = Keep("handler");
    support.AddHandler(_pUp, pHandler, 0);
    support.AddHandler(_pUp, pHandler, 0);
    EXPECT_EQ(2, CountReferences(_pUp));
    support.RemoveHandler(_pUp, pHandler);
    support.RemoveHandler(_pUp, pHandler);
    EXPECT_EQ(2, CountReferences(_pUp));
    support.AddHandler(_pUp, pHandler, 0);
  }
  EXPECT_EQ(1, CountReferences(_pUp));
  EXPECT_EQ(1, CountReferences(_kept.back()));
}

TEST_F(ZELSYPEventHandlersSupportTest, ListHandedOutDoesNotChangeAnyMore)
{
  LoggingHandler* const pFirst = Keep("first");
  _support.AddHandler(_pUp, pFirst, 0);
  const ZELSYPEventHandlerInfoList list = _support.GetHandlersList(_pUp);
  _support.AddHandler(_pUp, Keep("second"), 0);
  _support.RemoveHandler(_pUp, pFirst);
  EXPECT_THAT(NamesIn(list), ElementsAre("first"));
  EXPECT_THAT(Names(), ElementsAre("second"));
}

TEST_F(ZELSYPEventHandlersSupportTest, ListOfNoEventIsEmptyAndReported)
{
  EXPECT_EQ(0, _support.GetHandlersList(nullptr).GetSize());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL"));
}

TEST_F(ZELSYPEventHandlersSupportTest, ListOfAnEventWithoutHandlersIsEmpty)
{
  EXPECT_EQ(0, _support.GetHandlersList(_pUp).GetSize());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlersThatMustBeRemovedAreDroppedForGoodWhenTheListIsAskedFor)
{
  for (const char* const name : {"gone", "stays", "gone, too"})
    _support.AddHandler(_pUp, Keep(name), 0);
  _kept[0]->_mustBeRemoved = _kept[2]->_mustBeRemoved = 1;
  EXPECT_THAT(Names(), ElementsAre("stays"));
  EXPECT_EQ(1, CountReferences(_kept[0]));
  _kept[0]->_mustBeRemoved = _kept[2]->_mustBeRemoved = 0;
  EXPECT_THAT(Names(), ElementsAre("stays"));
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlersAreAskedOnceEachFromTheLastToTheFirstWhetherTheyMustBeRemoved)
{
  Ask("first");
  Ask("second")->_mustBeRemoved = 1;
  Ask("third");
  Ask("fourth")->_mustBeRemoved = 1;
  EXPECT_THAT(Names(), ElementsAre("first", "third"));
  EXPECT_THAT(_log, ElementsAre("fourth", "third", "second", "first"));
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatMustBeRemovedIsTakenAtItsFirstWord)
{
  AskedHandler* const pFickle = Ask("fickle");
  pFickle->_whenAsked = [pFickle, times = 0]() mutable { pFickle->_mustBeRemoved = times++ == 0; };
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatTakesItselfOutWhenAskedDoesNotKeepTheOthersFromBeingAsked)
{
  Ask("first")->_mustBeRemoved = 1;
  Ask("second");
  AskedHandler* const pLeaving = Ask("leaving");
  pLeaving->_whenAsked = [this, pLeaving] { _support.RemoveHandler(_pUp, pLeaving); };
  EXPECT_THAT(Names(), ElementsAre("second"));
  EXPECT_THAT(_log, ElementsAre("leaving", "second", "first"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatTakesItselfOutAndMustBeRemovedIsReportedAndTheOthersAreAsked)
{
  Ask("first")->_mustBeRemoved = 1;
  AskedHandler* const pLeaving = Ask("leaving");
  pLeaving->_whenAsked = [this, pLeaving] { _support.RemoveHandler(_pUp, pLeaving); };
  pLeaving->_mustBeRemoved = 1;
  EXPECT_THAT(Names(), IsEmpty());
  EXPECT_THAT(_log, ElementsAre("leaving", "first"));
  ASSERT_EQ(1u, _failures.GetFailures().size());
  EXPECT_EQ("i_index is out of range", _failures.GetFailures()[0].details);
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatStandsWhereOneTookItselfOutStays)
{
  AskedHandler* const pLeaving = Ask("leaving");
  pLeaving->_whenAsked = [this, pLeaving] { _support.RemoveHandler(_pUp, pLeaving); };
  pLeaving->_mustBeRemoved = 1;
  Ask("behind");
  EXPECT_THAT(Names(), ElementsAre("behind"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatAddsAnotherOneWhenAskedFindsItInTheSameList)
{
  Ask("asked")->_whenAsked = [this, added = false]() mutable
  {
    if (!std::exchange(added, true))
      _support.AddHandler(_pUp, Keep("added"), 0);
  };
  EXPECT_THAT(Names(), ElementsAre("asked", "added"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, ListWithANullRegistrationIsAskedDownToItAndReported)
{
  OpenSupport support;
  support._eventHandlers.Set(_pUp, PlantedList(nullptr));
  EXPECT_EQ(1, support.GetHandlersList(_pUp).GetSize());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pInfo is NULL"));
  support._eventHandlers.RemoveAll();
}

TEST_F(ZELSYPEventHandlersSupportTest, ListWithARegistrationWithoutHandlerIsAskedDownToItAndReported)
{
  OpenSupport support;
  support._eventHandlers.Set(_pUp, PlantedList(new ZELSYPEventHandlerInfo(nullptr, 0)));
  _failures.Clear();
  EXPECT_EQ(1, support.GetHandlersList(_pUp).GetSize());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pHandler is NULL"));
  support._eventHandlers.RemoveAll();
}

TEST_F(ZELSYPEventHandlersSupportTest, ReplacementTakesOverEveryListAndForgetsItsOwn)
{
  ZELSYPEventHandlersSupport other;
  other.AddHandler(_pDown, Keep("down"), 0);
  other.AddHandler(_pUp, Keep("up"), 3);
  _support.AddHandler(_pUp, Keep("forgotten"), 0);
  _support.AddHandler(_pHere, _kept.back(), 0);
  _support.ReplaceHandlers(other);
  EXPECT_THAT(Names(), ElementsAre("up"));
  EXPECT_THAT(NamesIn(_support.GetHandlersList(_pDown)), ElementsAre("down"));
  EXPECT_EQ(0, _support.GetHandlersList(_pHere).GetSize());
  EXPECT_EQ(other.GetHandlersList(_pUp).Get(0), _support.GetHandlersList(_pUp).Get(0));
  EXPECT_EQ(1, CountReferences(_kept.back()));
  EXPECT_EQ(1, CountReferences(_pHere));
  EXPECT_EQ(3, CountReferences(_pUp));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, ReplacedStoresGoTheirOwnWaysFromThenOn)
{
  ZELSYPEventHandlersSupport other;
  other.AddHandler(_pUp, Keep("shared"), 0);
  _support.ReplaceHandlers(other);
  _support.AddHandler(_pUp, Keep("copy only"), 0);
  other.AddHandler(_pUp, Keep("source only"), 0);
  EXPECT_THAT(Names(), ElementsAre("shared", "copy only"));
  EXPECT_THAT(NamesIn(other.GetHandlersList(_pUp)), ElementsAre("shared", "source only"));
}

TEST_F(ZELSYPEventHandlersSupportTest, ReplacementWithItselfChangesNothing)
{
  _support.AddHandler(_pUp, Keep("handler"), 0);
  _support.ReplaceHandlers(_support);
  EXPECT_THAT(Names(), ElementsAre("handler"));
  EXPECT_EQ(2, CountReferences(_pUp));
}

TEST_F(ZELSYPEventHandlersSupportTest, EventWithoutStoreIsNotHeldAndWithTwoTwice)
{
  ZELSYPEventHandlersSupport other;
  other.AddHandler(_pUp, Keep("handler"), 0);
  _support.ReplaceHandlers(other);
  EXPECT_EQ(3, CountReferences(_pUp));
  _support.ReplaceHandlers(ZELSYPEventHandlersSupport());
  other.ReplaceHandlers(ZELSYPEventHandlersSupport());
  EXPECT_EQ(1, CountReferences(_pUp));
}

TEST_F(ZELSYPEventHandlersSupportTest, NullKeyEndsTheCopyAndIsReported)
{
  OpenSupport other;
  other.AddHandler(_pUp, Keep("before"), 0);
  other._eventHandlers.Set(nullptr, ZELSYPEventHandlerInfoList());
  other.AddHandler(_pDown, Keep("after"), 0);
  _support.ReplaceHandlers(other);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pEntry->key is NULL",
                                                   "boolean _eventHandlers.GetSize() == i_support._eventHandlers.GetSize() is FALSE"));
  EXPECT_THAT(Names(), ElementsAre("before"));
  EXPECT_EQ(0, _support.GetHandlersList(_pDown).GetSize());
}

TEST_F(ZELSYPEventHandlersSupportTest, NullKeyIsReportedWhenTheStoreGoesAndTheOthersAreReleased)
{
  {
    OpenSupport support;
    support._eventHandlers.Set(nullptr, ZELSYPEventHandlerInfoList());
    support.AddHandler(_pUp, Keep("handler"), 0);
  }
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pEntry->key is NULL"));
  EXPECT_EQ(1, CountReferences(_pUp));
}

TEST_F(ZELSYPEventHandlersSupportTest, EntryThatCannotBeReadAsTheStoreChangesIsReportedAndEndsTheWalk)
{
  auto pSupport = std::make_unique<OpenSupport>();
  pSupport->_eventHandlers.Set(nullptr, ZELSYPEventHandlerInfoList());
  pSupport->AddHandler(_pUp, Keep("handler"), 0);
  std::vector<std::string> messages;
  MeddlingFailureHandler::While([&, pRaw = pSupport.get()] { pRaw->_eventHandlers.Set(_pDown, ZELSYPEventHandlerInfoList()); },
                                [&] { pSupport = nullptr; }, messages);
  EXPECT_THAT(messages, ElementsAre("pointer pEntry->key is NULL", "boolean _pHashTable->Size() == _size is FALSE",
                                    "boolean _pHashTable->Size() == _size is FALSE", "pointer pEntry is NULL"));
  _pUp->Release();
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatAddsAnotherOneAsItIsReplacedFindsTheStoreReplaced)
{
  ZELSYPEventHandler* const pDying = new LastWords([&] { _support.AddHandler(_pHere, Keep("again"), 0); });
  _support.AddHandler(_pUp, pDying, 0);
  pDying->Release();
  _support.ReplaceHandlers(ZELSYPEventHandlersSupport());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
  EXPECT_THAT(NamesIn(_support.GetHandlersList(_pHere)), ElementsAre("again"));
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatIsReplacedMayDestroyTheStoreThatTakesItsPlace)
{
  auto pOther = std::make_unique<ZELSYPEventHandlersSupport>();
  pOther->AddHandler(_pUp, Keep("other"), 0);
  ZELSYPEventHandler* const pDying = new LastWords([&] { pOther = nullptr; });
  _support.AddHandler(_pUp, pDying, 0);
  pDying->Release();
  _support.ReplaceHandlers(*pOther);
  EXPECT_EQ(nullptr, pOther);
  EXPECT_THAT(Names(), ElementsAre("other"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatIsPrunedMayReplaceTheHandlersOfItsStore)
{
  ZELSYPEventHandlersSupport other;
  auto* const pDying = new LastWords([&] { _support.ReplaceHandlers(other); });
  pDying->_mustBeRemoved = 1;
  _support.AddHandler(_pUp, pDying, 0);
  _support.AddHandler(_pUp, Keep("stays"), 0);
  pDying->Release();
  EXPECT_THAT(Names(), ElementsAre("stays"));
  EXPECT_THAT(Names(), IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatIsPrunedMayDestroyItsStore)
{
  auto pSupport = std::make_unique<ZELSYPEventHandlersSupport>();
  auto* const pDying = new LastWords([&] { pSupport = nullptr; });
  pDying->_mustBeRemoved = 1;
  pSupport->AddHandler(_pUp, pDying, 0);
  pSupport->AddHandler(_pUp, Keep("stays"), 0);
  pDying->Release();
  EXPECT_THAT(NamesIn(pSupport->GetHandlersList(_pUp)), ElementsAre("stays"));
  EXPECT_EQ(nullptr, pSupport);
  EXPECT_EQ(1, CountReferences(_pUp));
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatDiesWithTheStoreCannotReplaceItsHandlers)
{
  ZELSYPEventHandlersSupport other;
  other.AddHandler(_pDown, Keep("other"), 0);
  {
    ZELSYPEventHandlersSupport support;
    ZELSYPEventHandler* const pDying = new LastWords([&] { support.ReplaceHandlers(other); });
    support.AddHandler(_pUp, pDying, 0);
    pDying->Release();
  }
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean !_isGoing is FALSE"));
  EXPECT_EQ(2, CountReferences(_pDown));
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatDiesWithTheStoreCannotAddAnotherOne)
{
  int added = -1;
  {
    ZELSYPEventHandlersSupport support;
    ZELSYPEventHandler* const pDying = new LastWords([&] { added = support.AddHandler(_pUp, Keep("too late"), 0); });
    support.AddHandler(_pUp, pDying, 0);
    pDying->Release();
  }
  EXPECT_EQ(0, added);
  EXPECT_EQ(1, CountReferences(_pUp));
  EXPECT_EQ(1, CountReferences(_kept.back()));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pList is NULL"));
}

TEST_F(ZELSYPEventHandlersSupportTest, HandlerThatDiesWithTheStoreMayTakeOthersOut)
{
  int removed = -1;
  {
    ZELSYPEventHandlersSupport support;
    LoggingHandler* const pOther = Keep("other");
    ZELSYPEventHandler* const pDying = new LastWords([&, pOther] { removed = support.RemoveHandler(_pUp, pOther); });
    support.AddHandler(_pUp, pDying, 0);
    support.AddHandler(_pUp, pOther, 0);
    pDying->Release();
  }
  EXPECT_EQ(0, removed);
  EXPECT_EQ(1, CountReferences(_kept.back()));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventHandlersSupportTest, OfEventAndHandlerThatAreBothNullTheEventIsReportedOnly)
{
  EXPECT_EQ(0, _support.AddHandler(nullptr, nullptr, 0));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL"));
  _failures.Clear();
  EXPECT_EQ(0, _support.RemoveHandler(nullptr, nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL"));
}

TEST_F(ZELSYPEventHandlersSupportTest, OfHandlerAndEventThatBothLackTheirArgumentsTheHandlerIsReportedOnly)
{
  const auto event = ZELHandle<ZELSYPEvent>::Adopt(OpenFactory::MakeEvent("E", ZELSYPEvent::OriginToRoot, nullptr, Widget::MetaObject()));
  LoggingHandler* const pHandler = Keep("handler");
  pHandler->_pArgumentsClass = nullptr;
  _failures.Clear();
  EXPECT_EQ(0, _support.AddHandler(event, pHandler, 0));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pHandlerArgumentsClass is NULL"));
}
