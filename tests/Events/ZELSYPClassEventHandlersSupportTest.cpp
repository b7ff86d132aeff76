#include "ZELSYPClassEventHandlersSupport.h"

#include "LastWords.h"
#include "MeddlingFailureHandler.h"
#include "OpenStores.h"
#include "RecordingFailureHandler.h"
#include "RouteWorld.h"
#include "ZELSYPEventHandlerInfo.h"

#include <gmock/gmock.h>

#include <memory>
#include <utility>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
// A handler that does something when it is asked whether it must be removed, which it must not.
class BusyHandler : public LoggingHandler
{
public:
  BusyHandler(Log& io_log, std::string i_name, std::function<void()> i_whenAsked)
      : LoggingHandler(io_log, std::move(i_name)), _whenAsked(std::move(i_whenAsked))
  {
  }
  int MustBeRemoved() override
  {
    _whenAsked();
    return 0;
  }

private:
  const std::function<void()> _whenAsked;
};

class ZELSYPClassEventHandlersSupportTest : public testing::Test, protected RouteWorld
{
protected:
  RecordingFailureHandler _failures;
};
} // namespace

TEST_F(ZELSYPClassEventHandlersSupportTest, EachClassHasItsOwnStoreMadeByTheFirstAddition)
{
  EXPECT_EQ(nullptr, _classHandlers.GetClassHandlersSupport(Panel::MetaObject()));
  EXPECT_EQ(1, _classHandlers.AddClassHandler(Panel::MetaObject(), _pUp, Keep("panel"), 5));
  EXPECT_EQ(1, _classHandlers.AddClassHandler(Widget::MetaObject(), _pUp, Keep("widget"), 0));
  ZELSYPEventHandlersSupport* const pPanels = _classHandlers.GetClassHandlersSupport(Panel::MetaObject());
  ASSERT_NE(nullptr, pPanels);
  EXPECT_NE(pPanels, _classHandlers.GetClassHandlersSupport(Widget::MetaObject()));
  EXPECT_EQ(1, pPanels->GetHandlersList(_pUp).GetSize());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPClassEventHandlersSupportTest, RegistrationsAreForTheClassWhoseStoreTheyWereMadeIn)
{
  _classHandlers.AddClassHandler(Panel::MetaObject(), _pUp, Keep("by the class"), 0);
  ZELSYPEventHandlersSupport* const pPanels = _classHandlers.GetClassHandlersSupport(Panel::MetaObject());
  pPanels->AddHandler(_pUp, Keep("by its store"), 0);
  const ZELSYPEventHandlerInfoList list = pPanels->GetHandlersList(_pUp);
  ASSERT_EQ(2, list.GetSize());
  EXPECT_EQ(Panel::MetaObject(), list.Get(0)->GetRegisteredClass());
  EXPECT_EQ(Panel::MetaObject(), list.Get(1)->GetRegisteredClass());
}

TEST_F(ZELSYPClassEventHandlersSupportTest, RegistrationThatAnotherStoreTookOverIsStillForItsClass)
{
  _classHandlers.AddClassHandler(Panel::MetaObject(), _pUp, Keep("panel"), 0);
  ZELSYPEventHandlersSupport ofObject;
  ofObject.ReplaceHandlers(*_classHandlers.GetClassHandlersSupport(Panel::MetaObject()));
  ofObject.AddHandler(_pUp, Keep("own"), 0);
  const ZELSYPEventHandlerInfoList list = ofObject.GetHandlersList(_pUp);
  ASSERT_EQ(2, list.GetSize());
  EXPECT_EQ(Panel::MetaObject(), list.Get(0)->GetRegisteredClass());
  EXPECT_EQ(nullptr, list.Get(1)->GetRegisteredClass());
}

TEST_F(ZELSYPClassEventHandlersSupportTest, StoreOfABaseClassIsNotAnsweredForADerivedOne)
{
  _classHandlers.AddClassHandler(Panel::MetaObject(), _pUp, Keep("panel"), 0);
  EXPECT_EQ(nullptr, _classHandlers.GetClassHandlersSupport(Button::MetaObject()));
  EXPECT_EQ(nullptr, _classHandlers.GetClassHandlersSupport(Widget::MetaObject()));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPClassEventHandlersSupportTest, AdditionAnswersWhatTheStoreAnswers)
{
  LoggingHandler* const pHandler = Keep("handler");
  pHandler->_pArgumentsClass = DoorArgs::MetaObject();
  EXPECT_EQ(0, _classHandlers.AddClassHandler(Panel::MetaObject(), _pUp, pHandler, 0));
  EXPECT_THAT(_failures.GetMessages(),
              ElementsAre("The handler expects argument of type DoorArgs but the event uses arguments of type ZELSYPEventArgs"));
  EXPECT_NE(nullptr, _classHandlers.GetClassHandlersSupport(Panel::MetaObject()));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, RemovalTakesOneRegistrationOfThatClass)
{
  LoggingHandler* const pHandler = Keep("handler");
  _classHandlers.AddClassHandler(Panel::MetaObject(), _pUp, pHandler, 0);
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(Widget::MetaObject(), _pUp, pHandler));
  EXPECT_EQ(nullptr, _classHandlers.GetClassHandlersSupport(Widget::MetaObject()));
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(Panel::MetaObject(), _pDown, pHandler));
  EXPECT_EQ(1, _classHandlers.RemoveClassHandler(Panel::MetaObject(), _pUp, pHandler));
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(Panel::MetaObject(), _pUp, pHandler));
  EXPECT_NE(nullptr, _classHandlers.GetClassHandlersSupport(Panel::MetaObject()));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPClassEventHandlersSupportTest, WhatIsNullIsReported)
{
  LoggingHandler* const pHandler = Keep("handler");
  EXPECT_EQ(0, _classHandlers.AddClassHandler(nullptr, _pUp, pHandler, 0));
  EXPECT_EQ(0, _classHandlers.AddClassHandler(Panel::MetaObject(), nullptr, pHandler, 0));
  EXPECT_EQ(0, _classHandlers.AddClassHandler(Panel::MetaObject(), _pUp, nullptr, 0));
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(nullptr, _pUp, pHandler));
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(Panel::MetaObject(), nullptr, pHandler));
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(Panel::MetaObject(), _pUp, nullptr));
  EXPECT_EQ(nullptr, _classHandlers.GetClassHandlersSupport(nullptr));
  EXPECT_THAT(_failures.GetMessages(),
              ElementsAre("pointer i_pClass is NULL", "pointer i_pEvent is NULL", "pointer i_pHandler is NULL", "pointer i_pClass is NULL",
                          "pointer i_pEvent is NULL", "pointer i_pHandler is NULL", "pointer i_pClass is NULL"));
  EXPECT_EQ("ZELSYPClassEventHandlersSupport.cpp", _failures.GetFailures()[0].file);
  EXPECT_EQ(nullptr, _classHandlers.GetClassHandlersSupport(Panel::MetaObject()));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, EntryWithoutStoreIsReported)
{
  LoggingHandler* const pHandler = Keep("handler");
  {
    OpenClassSupport support;
    support._supports.Set(Panel::MetaObject(), nullptr);
    EXPECT_EQ(0, support.AddClassHandler(Panel::MetaObject(), _pUp, pHandler, 0));
    EXPECT_EQ(0, support.RemoveClassHandler(Panel::MetaObject(), _pUp, pHandler));
    EXPECT_EQ(nullptr, support.GetClassHandlersSupport(Panel::MetaObject()));
  }
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pSupport is NULL", "pointer pSupport is NULL", "pointer pSupport is NULL",
                                                   "pointer pEntry->value is NULL"));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, StoresGoWithIt)
{
  {
    ZELSYPClassEventHandlersSupport support;
    support.AddClassHandler(Panel::MetaObject(), _pUp, Keep("panel"), 0);
    support.AddClassHandler(Button::MetaObject(), _pUp, Keep("button"), 0);
    EXPECT_EQ(3, CountReferences(_pUp));
  }
  EXPECT_EQ(1, CountReferences(_pUp));
  EXPECT_EQ(1, CountReferences(_kept[0]));
  EXPECT_EQ(1, CountReferences(_kept[1]));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPClassEventHandlersSupportTest, EntryThatCannotBeReadAsTheStoresChangeIsReportedAndEndsTheWalk)
{
  auto pSupport = std::make_unique<OpenClassSupport>();
  pSupport->_supports.Set(Panel::MetaObject(), nullptr);
  pSupport->_supports.Set(Widget::MetaObject(), nullptr);
  std::vector<std::string> messages;
  MeddlingFailureHandler::While([pRaw = pSupport.get()] { pRaw->_supports.Set(Button::MetaObject(), nullptr); },
                                [&] { pSupport = nullptr; }, messages);
  EXPECT_THAT(messages, ElementsAre("pointer pEntry->value is NULL", "boolean _pHashTable->Size() == _size is FALSE",
                                    "boolean _pHashTable->Size() == _size is FALSE", "pointer pEntry is NULL"));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, HandlerThatAddsAnotherOneAsTheStoresGoIsReported)
{
  LoggingHandler* const pOther = Keep("other");
  auto pSupport = std::make_unique<OpenClassSupport>();
  ZELSYPEventHandler* const pDying = new LastWords([&, pRaw = pSupport.get()] { pRaw->_supports.Set(Panel::MetaObject(), nullptr); });
  pSupport->AddClassHandler(Panel::MetaObject(), _pUp, pDying, 0);
  pSupport->AddClassHandler(Panel::MetaObject(), _pUp, pOther, 0);
  pDying->Release();
  pSupport = nullptr;
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean _supports.GetSize() == 0 is FALSE"));
  EXPECT_EQ(1, CountReferences(pOther));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, ClassThatGetsItsFirstHandlerBetweenTwoDispatchesIsSeenByTheSecond)
{
  _pEvent = _pHere;
  Listen(Widget::MetaObject(), "widget");
  Raise(*_leaf);
  Listen(Panel::MetaObject(), "panel");
  Raise(*_leaf);
  Listen(Button::MetaObject(), "button");
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("widget", "panel", "widget", "button", "panel", "widget"));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, HandlerThatDiesWithTheStoresCannotAddAnotherOne)
{
  int added = -1;
  {
    ZELSYPClassEventHandlersSupport support;
    ZELSYPEventHandler* const pDying =
        new LastWords([&] { added = support.AddClassHandler(Widget::MetaObject(), _pUp, Keep("too late"), 0); });
    support.AddClassHandler(Panel::MetaObject(), _pUp, pDying, 0);
    pDying->Release();
  }
  EXPECT_EQ(0, added);
  EXPECT_EQ(1, CountReferences(_pUp));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pSupport is NULL"));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, ClassThatGetsItsFirstHandlerFromOneThatIsPrunedRunsEachHandlerOnce)
{
  auto* const pDying = new LastWords([&] { Listen(Button::MetaObject(), "button"); });
  pDying->_mustBeRemoved = 1;
  _pEvent = _pHere;
  _classHandlers.AddClassHandler(Panel::MetaObject(), _pHere, pDying, 0);
  pDying->Release();
  Listen(Panel::MetaObject(), "panel");
  Listen(Widget::MetaObject(), "widget");
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("panel", "widget"));
  _log.clear();
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("button", "panel", "widget"));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, OfWhatIsNullTheFirstIsReportedOnly)
{
  LoggingHandler* const pHandler = Keep("handler");
  EXPECT_EQ(0, _classHandlers.AddClassHandler(nullptr, nullptr, nullptr, 0));
  EXPECT_EQ(0, _classHandlers.AddClassHandler(nullptr, nullptr, pHandler, 0));
  EXPECT_EQ(0, _classHandlers.AddClassHandler(nullptr, _pUp, nullptr, 0));
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(nullptr, nullptr, nullptr));
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(nullptr, nullptr, pHandler));
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(nullptr, _pUp, nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pClass is NULL", "pointer i_pClass is NULL", "pointer i_pClass is NULL",
                                                   "pointer i_pClass is NULL", "pointer i_pClass is NULL", "pointer i_pClass is NULL"));
  _failures.Clear();
  EXPECT_EQ(0, _classHandlers.AddClassHandler(Panel::MetaObject(), nullptr, nullptr, 0));
  EXPECT_EQ(0, _classHandlers.RemoveClassHandler(Panel::MetaObject(), nullptr, nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL", "pointer i_pEvent is NULL"));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, BaseClassThatGetsItsFirstHandlerAsADerivedOneIsPrunedRunsInTheSameDispatch)
{
  bool isAsked = false;
  const auto busy = ZELHandle<BusyHandler>::Adopt(new BusyHandler(_log, "button",
                                                                  [&]
                                                                  {
                                                                    if (!std::exchange(isAsked, true))
                                                                      Listen(Panel::MetaObject(), "panel");
                                                                  }));
  _pEvent = _pHere;
  _classHandlers.AddClassHandler(Button::MetaObject(), _pHere, busy.Get(), 0);
  Listen(Widget::MetaObject(), "widget");
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("button", "panel", "widget"));
}

TEST_F(ZELSYPClassEventHandlersSupportTest, DerivedClassThatGetsItsFirstHandlerAsABaseIsPrunedRunsEachHandlerOnce)
{
  bool isAsked = false;
  const auto busy = ZELHandle<BusyHandler>::Adopt(new BusyHandler(_log, "widget",
                                                                  [&]
                                                                  {
                                                                    if (!std::exchange(isAsked, true))
                                                                      Listen(Button::MetaObject(), "button");
                                                                  }));
  _pEvent = _pHere;
  _classHandlers.AddClassHandler(Widget::MetaObject(), _pHere, busy.Get(), 0);
  Listen(ZELBaseUnknown::MetaObject(), "any object");
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("widget", "any object"));
  _log.clear();
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("button", "widget", "any object"));
}
