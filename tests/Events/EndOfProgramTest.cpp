// What the statics of the library take with them when a program ends, and what stays for whoever comes later.
#include "ChildProcess.h"
#include "ChildProgram.h"
#include "LastWords.h"
#include "RouteWorld.h"
#include "ZELSYPCommandSimpleEventListener.h"
#include "ZELSYPEventCompatFactory.h"
#include "ZELSYPEventSubscriberEventListener.h"
#include "ZELSYPSimpleEventListener.h"
#include "ZELUnicodeString.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

namespace
{
// Written at once: nobody flushes the stream when the library goes.
void Say(const std::string& i_text)
{
  std::printf("%s\n", i_text.c_str());
  std::fflush(stdout);
}

void SayReferences(const std::string& i_who, ZELBaseUnknown* i_pObject)
{
  Say(i_who + " " + std::to_string(CountReferences(i_pObject)));
}

ZELHandle<LastWords> NewLastWords(std::function<void()> i_words)
{
  return ZELHandle<LastWords>::Adopt(new LastWords(std::move(i_words)));
}

// Its factory is open to the tests.
template <class Base>
class OpenListener : public Base
{
public:
  using Base::GetEventFactory;
};

// An event of the base's factory, with a handler of the base's classes; the handler holds the event, too, so that it can
// tell who else does when it dies.
template <class Base>
void LeaveAClassHandler()
{
  ZELSYPEvent* const pEvent = OpenListener<Base>::GetEventFactory()->NewEvent("Left", ZELSYPEvent::NoPropagation,
                                                                              ZELSYPEventArgs::MetaObject(), Base::MetaObject());
  const std::string name = Base::ClassName();
  const ZELHandle<ZELSYPEvent> event(pEvent);
  Base::AddClassHandler(Base::MetaObject(), pEvent, NewLastWords([=] { SayReferences("last words of " + name, event); }), 0);
}

std::vector<std::string> LinesOf(const std::string& i_text)
{
  std::istringstream text(i_text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);)
    lines.push_back(line);
  return lines;
}
} // namespace

OPX_CHILD_ENTRY(LeaveClassHandlers)
{
  LeaveAClassHandler<ZELSYPSimpleEventListener>();
  LeaveAClassHandler<ZELSYPCommandSimpleEventListener>();
  LeaveAClassHandler<ZELSYPEventSubscriberEventListener>();
  Say("end of the program");
  return 0;
}

// The one reference left on each event is its handler's own: neither the class store nor the factory holds it any more.
TEST(EndOfProgramTest, ClassStoresAndFactoriesOfTheListenerBasesGiveBackWhatTheyHold)
{
  const ChildResult result = ChildProcess::Self("LeaveClassHandlers").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  const std::vector<std::string> lines = LinesOf(result.out);
  EXPECT_THAT(lines, testing::UnorderedElementsAre("end of the program", "last words of ZELSYPSimpleEventListener 1",
                                                   "last words of ZELSYPCommandSimpleEventListener 1",
                                                   "last words of ZELSYPEventSubscriberEventListener 1"));
  EXPECT_EQ(lines.at(0), "end of the program");
}

// The factory that is made on first use would go before the class stores, which stand from the load on, if it went at all.
OPX_CHILD_ENTRY(LeaveAnEventOfTheCompatFactory)
{
  const ZELHandle<ZELSYPEvent> event(ZELSYPEventCompatFactory("Late", Door::MetaObject()));
  ZELSYPEvent* const pLeft = OpenListener<ZELSYPSimpleEventListener>::GetEventFactory()->NewEvent(
      "Left", ZELSYPEvent::NoPropagation, ZELSYPEventArgs::MetaObject(), Door::MetaObject());
  const auto tell = [=]
  {
    SayReferences("made before", event);
    SayReferences("made now", ZELSYPEventCompatFactory("Later", Door::MetaObject()));
  };
  ZELSYPSimpleEventListener::AddClassHandler(Door::MetaObject(), pLeft, NewLastWords(tell), 0);
  return 0;
}

TEST(EndOfProgramTest, CompatFactoryHoldsItsEventsAndMakesNewOnesAfterTheOthersAreGone)
{
  const ChildResult result = ChildProcess::Self("LeaveAnEventOfTheCompatFactory").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out, "made before 2\nmade now 1\n") << "the factory's references, and the handler's own";
}

// Handlers that only the sentinels hold, and one of a store that goes, to see that last words are heard.
OPX_CHILD_ENTRY(LeaveHandlersInTheSentinels)
{
  static RouteWorld s_world;
  ZELSYPEvent* const pEvent = s_world._pUp;
  ZELSYPEventHandlerInfoList list;
  list.AddHandler(NewLastWords([] { Say("NO_ELEMENT went"); }), 0);
  WidgetBuilder::NO_ELEMENT()->AddList(list);
  WidgetBuilder::NO_SUPPORT()->AddHandler(pEvent, NewLastWords([] { Say("NO_SUPPORT went"); }), 0);
  WidgetBuilder::NO_CLASS_SUPPORT()->AddClassHandler(Widget::MetaObject(), pEvent, NewLastWords([] { Say("NO_CLASS_SUPPORT went"); }), 0);
  s_world._root->_handlers.AddHandler(pEvent, NewLastWords([] { Say("an ordinary store went"); }), 0);
  return 0;
}

TEST(EndOfProgramTest, SentinelsStayWithWhatTheyHold)
{
  const ChildResult result = ChildProcess::Self("LeaveHandlersInTheSentinels").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out, "an ordinary store went\n");
}
