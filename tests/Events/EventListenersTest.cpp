// The three listener bases behave alike: every test here is run on each of them.
#include "ZELSYPCommandSimpleEventListener.h"
#include "ZELSYPEventSubscriberEventListener.h"
#include "ZELSYPSimpleEventListener.h"

#include "ChildProcess.h"
#include "ChildProgram.h"
#include "RecordingFailureHandler.h"
#include "RouteWorld.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
// A class of listeners, and one that derives from it; their events are declared on the factory of their base.
template <class Base>
class Listener : public Base
{
public:
  Listener() { ++s_living; }
  ~Listener() override { --s_living; }
  using Base::GetEventFactory;
  static ZELSYPEvent* Opened()
  {
    static ZELSYPEvent* const s_pOpened =
        GetEventFactory()->NewEvent("Opened", ZELSYPEvent::OriginToRoot, ZELSYPEventArgs::MetaObject(), Base::MetaObject());
    return s_pOpened;
  }
  static inline int s_living = 0;
};

class Window : public Listener<ZELSYPSimpleEventListener>
{
  ZELDeclareClass;
};
class SaveCommand : public Listener<ZELSYPCommandSimpleEventListener>
{
  ZELDeclareClass;
};
class Model : public Listener<ZELSYPEventSubscriberEventListener>
{
  ZELDeclareClass;
};
ZELImplementClass(Window, ZELSYPSimpleEventListener, EventsTests);
ZELImplementClass(SaveCommand, ZELSYPCommandSimpleEventListener, EventsTests);
ZELImplementClass(Model, ZELSYPEventSubscriberEventListener, EventsTests);

struct Simple
{
  typedef Window Class;
  typedef ZELSYPSimpleEventListener Base;
  typedef ZELBaseUnknown Host;
  static constexpr const char* Name = "ZELSYPSimpleEventListener";
  static constexpr const char* Kind = "simple";
};
struct Command
{
  typedef SaveCommand Class;
  typedef ZELSYPCommandSimpleEventListener Base;
  typedef ZELCommand Host;
  static constexpr const char* Name = "ZELSYPCommandSimpleEventListener";
  static constexpr const char* Kind = "command";
};
struct Subscriber
{
  typedef Model Class;
  typedef ZELSYPEventSubscriberEventListener Base;
  typedef ZELEventSubscriber Host;
  static constexpr const char* Name = "ZELSYPEventSubscriberEventListener";
  static constexpr const char* Kind = "subscriber";
};

// Whether everyone may make one of these arguments with new. The destructor is not asked for.
template <class Class, class = void, class... Arguments>
struct IsOpenToNew : std::false_type
{
};
template <class Class, class... Arguments>
struct IsOpenToNew<Class, std::void_t<decltype(new Class(std::declval<Arguments>()...))>, Arguments...> : std::true_type
{
};
template <class Class, class... Arguments>
constexpr bool k_isOpenToNew = IsOpenToNew<Class, void, Arguments...>::value;

// Whether everyone may ask for the factory.
template <class Class, class = void>
constexpr bool k_hasOpenFactory = false;
template <class Class>
constexpr bool k_hasOpenFactory<Class, std::void_t<decltype(Class::GetEventFactory())>> = true;

// Which of the three have class handlers' stores.
std::string ClassStores()
{
  return std::string(ZELSYPSimpleEventListener::GetClassHandlersSupport() ? "simple " : "") +
         (ZELSYPCommandSimpleEventListener::GetClassHandlersSupport() ? "command " : "") +
         (ZELSYPEventSubscriberEventListener::GetClassHandlersSupport() ? "subscriber " : "");
}

// Does everything else with a listener, then the one call that is left; tells what it answered, and which stores are there.
template <class Listening>
void TellOfClassStores(bool i_add)
{
  LoggingHandler::Log log;
  const auto handler = LoggingHandler::New(log, "handler");
  const auto listener = ZELHandle<Listening>::Adopt(new Listening);
  ZELSYPEventArgs args(Listening::Opened());
  const int added = listener->AddHandler(Listening::Opened(), handler, 0), ran = listener->Dispatch(&args);
  std::printf("%d %d [%s] ", added, ran, ClassStores().c_str());
  const int answer = i_add ? Listening::AddClassHandler(Listening::MetaObject(), Listening::Opened(), handler, 0)
                           : Listening::RemoveClassHandler(Listening::MetaObject(), Listening::Opened(), handler);
  std::printf("%d [%s]", answer, ClassStores().c_str());
}

template <class Kind>
class EventListenersTest : public testing::Test
{
protected:
  typedef typename Kind::Class Class;
  typedef typename Kind::Base Base;
  typedef ZELHandle<LoggingHandler> Handler;

  // Class handlers live as long as the library: each test takes its own out again.
  ~EventListenersTest() override
  {
    for (const auto& [pClass, handler] : _ofClasses)
      Base::RemoveClassHandler(pClass, Class::Opened(), handler);
  }
  LoggingHandler* Keep(std::string i_name, LoggingHandler::Action i_action = nullptr)
  {
    _kept.push_back(LoggingHandler::New(_log, std::move(i_name), std::move(i_action)));
    return _kept.back();
  }
  void ListenToClass(ZELMetaClass* i_pClass, std::string i_name, int i_handleConsumed = 0, LoggingHandler::Action i_action = nullptr)
  {
    EXPECT_EQ(1, Base::AddClassHandler(i_pClass, Class::Opened(), Keep(std::move(i_name), std::move(i_action)), i_handleConsumed));
    _ofClasses.emplace_back(i_pClass, _kept.back());
  }
  int Raise()
  {
    ZELSYPEventArgs args(Class::Opened());
    return _listener->Dispatch(&args);
  }

  LoggingHandler::Log _log;
  std::vector<Handler> _kept;
  std::vector<std::pair<ZELMetaClass*, Handler>> _ofClasses;
  ZELHandle<Class> _listener = ZELHandle<Class>::Adopt(new Class);
  RecordingFailureHandler _failures;
};

typedef testing::Types<Simple, Command, Subscriber> Kinds;
TYPED_TEST_SUITE(EventListenersTest, Kinds, );
} // namespace

TYPED_TEST(EventListenersTest, FreshListenerDispatchesNothingToItsClassHandlersNeither)
{
  this->ListenToClass(TypeParam::Base::MetaObject(), "class");
  EXPECT_EQ(0, this->Raise());
  EXPECT_EQ(0, this->_listener->Dispatch(nullptr));
  EXPECT_THAT(this->_log, IsEmpty());
  EXPECT_THAT(this->_failures.GetMessages(), IsEmpty());
}

TYPED_TEST(EventListenersTest, ListenerThatHadAHandlerRunsItsClassHandlersFirst)
{
  this->ListenToClass(TypeParam::Base::MetaObject(), "base class");
  this->ListenToClass(TypeParam::Class::MetaObject(), "class");
  EXPECT_EQ(1, this->_listener->AddHandler(TypeParam::Class::Opened(), this->Keep("own"), 0));
  EXPECT_EQ(1, this->Raise());
  EXPECT_THAT(this->_log, ElementsAre("class", "base class", "own"));
  EXPECT_THAT(this->_kept.back()->_nodes, ElementsAre(this->_listener.Get()));
  EXPECT_EQ(1, this->_listener->RemoveHandler(TypeParam::Class::Opened(), this->_kept.back()));
  EXPECT_EQ(1, this->Raise());
  EXPECT_THAT(this->_log, ElementsAre("class", "base class", "own", "class", "base class"));
}

TYPED_TEST(EventListenersTest, RemovalFromAFreshListenerAnswersZeroAndLetsItDispatchToItsClassHandlers)
{
  this->ListenToClass(TypeParam::Class::MetaObject(), "class");
  EXPECT_EQ(0, this->_listener->RemoveHandler(TypeParam::Class::Opened(), this->Keep("never added")));
  EXPECT_EQ(1, this->Raise());
  EXPECT_THAT(this->_log, ElementsAre("class"));
  EXPECT_THAT(this->_failures.GetMessages(), IsEmpty());
}

TYPED_TEST(EventListenersTest, ConsumedArgumentsReachThoseHandlersOfTheClassAndOfTheListenerThatAskedForThem)
{
  ZELMetaClass* const pClass = TypeParam::Class::MetaObject();
  this->ListenToClass(pClass, "consumes", 0, [](ZELBaseUnknown*, ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); });
  this->ListenToClass(pClass, "class, not any more");
  this->ListenToClass(pClass, "class, all the same", 1);
  EXPECT_EQ(1, this->_listener->AddHandler(TypeParam::Class::Opened(), this->Keep("own, not any more"), 0));
  EXPECT_EQ(1, this->_listener->AddHandler(TypeParam::Class::Opened(), this->Keep("own, all the same"), 1));
  EXPECT_EQ(1, this->Raise());
  EXPECT_THAT(this->_log, ElementsAre("consumes", "class, all the same", "own, all the same"));
}

TYPED_TEST(EventListenersTest, ClassHandlersOfOneBaseAreNotSeenByTheOtherTwo)
{
  this->ListenToClass(ZELBaseUnknown::MetaObject(), "any object");
  const auto other = LoggingHandler::New(this->_log, "of another base");
  const auto add = [&](auto i_add, auto i_remove, ZELMetaClass* i_pClass)
  {
    if (i_pClass == TypeParam::Base::MetaObject())
      return;
    EXPECT_EQ(1, i_add(ZELBaseUnknown::MetaObject(), TypeParam::Class::Opened(), other.Get(), 0));
    this->_listener->RemoveHandler(TypeParam::Class::Opened(), other);
    this->_log.clear();
    EXPECT_EQ(1, this->Raise());
    EXPECT_THAT(this->_log, ElementsAre("any object"));
    EXPECT_EQ(1, i_remove(ZELBaseUnknown::MetaObject(), TypeParam::Class::Opened(), other.Get()));
  };
  add(&ZELSYPSimpleEventListener::AddClassHandler, &ZELSYPSimpleEventListener::RemoveClassHandler, ZELSYPSimpleEventListener::MetaObject());
  add(&ZELSYPCommandSimpleEventListener::AddClassHandler, &ZELSYPCommandSimpleEventListener::RemoveClassHandler,
      ZELSYPCommandSimpleEventListener::MetaObject());
  add(&ZELSYPEventSubscriberEventListener::AddClassHandler, &ZELSYPEventSubscriberEventListener::RemoveClassHandler,
      ZELSYPEventSubscriberEventListener::MetaObject());
}

TYPED_TEST(EventListenersTest, WhatTheStoresRefuseIsRefused)
{
  EXPECT_EQ(0, this->_listener->AddHandler(nullptr, this->Keep("handler"), 0));
  EXPECT_EQ(0, this->_listener->RemoveHandler(TypeParam::Class::Opened(), nullptr));
  EXPECT_EQ(0, TypeParam::Base::AddClassHandler(nullptr, TypeParam::Class::Opened(), this->_kept.back(), 0));
  EXPECT_EQ(0, TypeParam::Base::RemoveClassHandler(nullptr, TypeParam::Class::Opened(), this->_kept.back()));
  EXPECT_EQ(0, this->_listener->Dispatch(nullptr));
  EXPECT_THAT(this->_failures.GetMessages(),
              ElementsAre("pointer i_pEvent is NULL", "pointer i_pHandler is NULL", "pointer i_pClass is NULL", "pointer i_pClass is NULL",
                          "pointer i_pArgs is NULL"));
}

TYPED_TEST(EventListenersTest, ArgumentsOfAnotherOriginAreRefused)
{
  this->_listener->AddHandler(TypeParam::Class::Opened(), this->Keep("own"), 0);
  const auto other = ZELHandle<typename TypeParam::Class>::Adopt(new typename TypeParam::Class);
  ZELSYPEventArgs args(TypeParam::Class::Opened());
  args.SetOrigin(other);
  EXPECT_EQ(0, this->_listener->Dispatch(&args));
  EXPECT_THAT(this->_failures.GetMessages(), ElementsAre("boolean i_pOrigin->IsEqual(i_pArgs->GetOrigin()) is FALSE"));
  EXPECT_THAT(this->_log, IsEmpty());
}

TYPED_TEST(EventListenersTest, ListenersDoNotHearEachOther)
{
  const auto other = ZELHandle<typename TypeParam::Class>::Adopt(new typename TypeParam::Class);
  other->AddHandler(TypeParam::Class::Opened(), this->Keep("other"), 0);
  this->_listener->AddHandler(TypeParam::Class::Opened(), this->Keep("own"), 0);
  EXPECT_EQ(1, this->Raise());
  EXPECT_THAT(this->_log, ElementsAre("own"));
}

TYPED_TEST(EventListenersTest, ListenerThatItsOwnHandlerGivesUpLivesUntilTheArgumentsAreGone)
{
  typedef typename TypeParam::Class Listening;
  this->_listener->AddHandler(Listening::Opened(),
                              this->Keep("gives up", [this](ZELBaseUnknown*, ZELSYPEventArgs*) { this->_listener = nullptr; }), 0);
  this->_listener->AddHandler(Listening::Opened(), this->Keep("next"), 0);
  Listening* const pListener = this->_listener;
  {
    ZELSYPEventArgs args(Listening::Opened());
    EXPECT_EQ(1, pListener->Dispatch(&args));
    EXPECT_EQ(1, Listening::s_living);
  }
  EXPECT_EQ(0, Listening::s_living);
  EXPECT_THAT(this->_log, ElementsAre("gives up", "next"));
  EXPECT_EQ(1, CountReferences(this->_kept.back()));
}

TYPED_TEST(EventListenersTest, HandlersGoWithTheListener)
{
  ZELSYPEvent* const pEvent = TypeParam::Class::Opened();
  const int references = CountReferences(pEvent);
  this->_listener->AddHandler(pEvent, this->Keep("own"), 0);
  EXPECT_EQ(references + 1, CountReferences(pEvent));
  this->_listener = nullptr;
  EXPECT_EQ(references, CountReferences(pEvent));
  EXPECT_EQ(1, CountReferences(this->_kept.back()));
}

TYPED_TEST(EventListenersTest, HandlerThatThrowsLeavesTheListenerAsItWas)
{
  this->_listener->AddHandler(TypeParam::Class::Opened(),
                              this->Keep("throws", [](ZELBaseUnknown*, ZELSYPEventArgs*) { throw std::runtime_error("no"); }), 0);
  const int references = CountReferences(TypeParam::Class::Opened());
  EXPECT_THROW(this->Raise(), std::runtime_error);
  EXPECT_EQ(1, CountReferences(this->_listener));
  EXPECT_EQ(references, CountReferences(TypeParam::Class::Opened()));
}

TYPED_TEST(EventListenersTest, IsRegisteredAsAKindOfItsHostClassAndNeverMadeByTheObjectModel)
{
  typedef typename TypeParam::Base Listening;
  EXPECT_STREQ(TypeParam::Name, Listening::ClassName());
  EXPECT_STREQ(TypeParam::Name, Listening::MetaObject()->GetName());
  EXPECT_STREQ("OPXCoreTools", Listening::MetaObject()->GetModule());
  EXPECT_EQ(TypeParam::Host::MetaObject(), Listening::MetaObject()->GetBaseClass());
  EXPECT_EQ(Listening::MetaObject(), ZELMetaClass::Find(TypeParam::Name));
  EXPECT_EQ(nullptr, Listening::CreateItself());
  EXPECT_EQ(nullptr, Listening::MetaObject()->CreateObject());
  EXPECT_STREQ(TypeParam::Class::ClassName(), this->_listener->IsA());
  EXPECT_EQ(1, this->_listener->IsAKindOf(TypeParam::Name));
}

TYPED_TEST(EventListenersTest, CostsOnePointerBeyondItsHostClass)
{
  EXPECT_EQ(sizeof(typename TypeParam::Host) + sizeof(void*), sizeof(typename TypeParam::Base));
}

TYPED_TEST(EventListenersTest, ListenersAreMadeAndEndedByTheirDerivedClassesOnly)
{
  typedef typename TypeParam::Base Listening;
  EXPECT_FALSE((k_isOpenToNew<Listening>));
  EXPECT_FALSE((k_isOpenToNew<Listening, ZELCommand*, const ZELString&>));
  EXPECT_TRUE((k_isOpenToNew<typename TypeParam::Class>));
  EXPECT_FALSE(std::is_destructible_v<Listening>);
  EXPECT_TRUE(std::has_virtual_destructor_v<Listening>);
}

TYPED_TEST(EventListenersTest, FactoryIsThereForDerivedClassesOnly)
{
  EXPECT_FALSE(k_hasOpenFactory<typename TypeParam::Base>);
  EXPECT_TRUE(k_hasOpenFactory<typename TypeParam::Class>);
}

// Each in a process of its own: the stores stay as long as the library.
OPX_CHILD_ENTRY(ClassStores)
{
  const bool add = i_arguments.at(1) == "add";
  if (i_arguments.at(0) == Simple::Name)
    TellOfClassStores<Window>(add);
  else if (i_arguments.at(0) == Command::Name)
    TellOfClassStores<SaveCommand>(add);
  else
    TellOfClassStores<Model>(add);
  return 0;
}

TYPED_TEST(EventListenersTest, StoreOfClassHandlersIsMadeByTheFirstAdditionToItsOwnBase)
{
  const ChildResult result = ChildProcess::Self("ClassStores", {TypeParam::Name, "add"}).Run();
  EXPECT_EQ(std::string("1 1 [] 1 [") + TypeParam::Kind + " ]", result.out);
}

TYPED_TEST(EventListenersTest, StoreOfClassHandlersIsMadeByTheFirstRemovalFromItsOwnBase)
{
  const ChildResult result = ChildProcess::Self("ClassStores", {TypeParam::Name, "remove"}).Run();
  EXPECT_EQ(std::string("1 1 [] 0 [") + TypeParam::Kind + " ]", result.out);
}

TYPED_TEST(EventListenersTest, FactoryIsOneForAllThreads)
{
  typedef typename TypeParam::Class Listening;
  std::vector<ZELSYPEventFactory*> seen(16);
  std::vector<std::thread> threads;
  for (ZELSYPEventFactory*& pSeen : seen)
    threads.emplace_back([&pSeen] { pSeen = Listening::GetEventFactory(); });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_THAT(std::set<ZELSYPEventFactory*>(seen.begin(), seen.end()), ElementsAre(Listening::GetEventFactory()));
}

TEST(EventListenerFactoriesTest, EachBaseHasAFactoryOfItsOwn)
{
  const std::set<ZELSYPEventFactory*> factories{Window::GetEventFactory(), SaveCommand::GetEventFactory(), Model::GetEventFactory()};
  EXPECT_EQ(3u, factories.size());
}

namespace
{
class NamedCommand : public ZELSYPCommandSimpleEventListener
{
public:
  NamedCommand(ZELCommand* i_pFather, const ZELString& i_name) : ZELSYPCommandSimpleEventListener(i_pFather, i_name) {}
};
} // namespace

TEST(ZELSYPCommandSimpleEventListenerTest, StandsInTheCommandTreeUnderItsName)
{
  const auto father = ZELHandle<ZELCommand>::Adopt(new ZELCommand(nullptr, "File"));
  const auto child = ZELHandle<NamedCommand>::Adopt(new NamedCommand(father, "Save"));
  EXPECT_EQ(father.Get(), child->GetFather());
  EXPECT_EQ(child.Get(), father->FindChild("Save"));
}

TEST(ZELSYPCommandSimpleEventListenerTest, HasNeitherFatherNorNameByDefault)
{
  const auto command = ZELHandle<SaveCommand>::Adopt(new SaveCommand);
  EXPECT_EQ(nullptr, command->GetFather());
  EXPECT_EQ(ZELString(), command->GetName());
}

TEST(ZELSYPEventSubscriberEventListenerTest, CallsItsSubscribersBackAndDispatchesToItsHandlers)
{
  const auto model = ZELHandle<Model>::Adopt(new Model);
  LoggingHandler::Log log;
  model->Subscribe([&](ZELEventSubscriber&, ZELBaseUnknown*) { log.push_back("callback"); });
  model->AddHandler(Model::Opened(), LoggingHandler::New(log, "handler"), 0);
  model->Notify();
  ZELSYPEventArgs args(Model::Opened());
  EXPECT_EQ(1, model->Dispatch(&args));
  EXPECT_THAT(log, ElementsAre("callback", "handler"));
}

TEST(ZELSYPCommandSimpleEventListenerTest, IsOpenToNewWithFatherAndNameOnceADerivedClassSaysSo)
{
  EXPECT_TRUE((k_isOpenToNew<NamedCommand, ZELCommand*, const ZELString&>));
  EXPECT_FALSE((k_isOpenToNew<NamedCommand>));
}
