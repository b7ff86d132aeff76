#include "ZELSYPEventFactory.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace
{
std::vector<ZELSYPEvent*> Listed(const ZELSYPArray<ZELSYPEvent*>& i_events)
{
  return {i_events.begin(), i_events.end()};
}

class ZELSYPEventFactoryTest : public testing::Test
{
protected:
  OpenFactory _factory;
  RecordingFailureHandler _failures;

  ZELSYPEvent* NewEvent(const char* i_name, int i_propagation, ZELMetaClass* i_pArgumentType, ZELMetaClass* i_pOwnerClass)
  {
    return _factory.NewEvent(i_name, static_cast<ZELSYPEvent::Propagation>(i_propagation), i_pArgumentType, i_pOwnerClass);
  }
};
} // namespace

TEST_F(ZELSYPEventFactoryTest, EventIsMadeForEveryPropagation)
{
  for (const int propagation : {0, 1, 2})
  {
    const std::string name = "Event" + std::to_string(propagation);
    const ZELSYPEvent* const pEvent = NewEvent(name.c_str(), propagation, ZELSYPEventArgs::MetaObject(), Door::MetaObject());
    ASSERT_TRUE(pEvent);
    EXPECT_EQ(propagation, pEvent->GetPropagation());
  }
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventFactoryTest, EventMayTakeArgumentsOfADerivedClass)
{
  EXPECT_NE(nullptr, NewEvent("Opened", 0, DoorArgs::MetaObject(), Door::MetaObject()));
}

TEST_F(ZELSYPEventFactoryTest, FactoryHoldsTheOnlyReference)
{
  EXPECT_EQ(1, CountReferences(_factory.NewDoorEvent("Opened")));
}

TEST_F(ZELSYPEventFactoryTest, FactoryReleasesItsEventsWhenItGoes)
{
  auto factory = std::make_unique<OpenFactory>();
  ZELSYPEvent* const pEvent = factory->NewDoorEvent("Opened");
  pEvent->AddRef();
  factory.reset();
  EXPECT_STREQ("Opened", pEvent->GetName());
  EXPECT_EQ(0, pEvent->Release());
}

TEST_F(ZELSYPEventFactoryTest, NullArgumentTypeIsReportedFirst)
{
  EXPECT_EQ(nullptr, NewEvent("a b", 3, nullptr, nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pArgumentType is NULL"));
  EXPECT_EQ("ZELSYPEventFactory.cpp", _failures.GetFailures()[0].file);
}

TEST_F(ZELSYPEventFactoryTest, NullOwnerClassIsReportedSecond)
{
  EXPECT_EQ(nullptr, NewEvent("a b", 3, Gate::MetaObject(), nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pOwnerClass is NULL"));
}

TEST_F(ZELSYPEventFactoryTest, BadNameIsReportedThird)
{
  EXPECT_EQ(nullptr, NewEvent("a b", 3, Gate::MetaObject(), Door::MetaObject()));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean nameError == NULL is FALSE"));
  EXPECT_EQ("One of the character of the identifier is not valid", _failures.GetFailures()[0].details);
}

TEST_F(ZELSYPEventFactoryTest, EveryKindOfBadNameIsTold)
{
  NewEvent("", 0, ZELSYPEventArgs::MetaObject(), Door::MetaObject());
  NewEvent("1a", 0, ZELSYPEventArgs::MetaObject(), Door::MetaObject());
  NewEvent(nullptr, 0, ZELSYPEventArgs::MetaObject(), Door::MetaObject());
  const auto failures = _failures.GetFailures();
  ASSERT_EQ(4u, failures.size());
  EXPECT_EQ("The string is empty", failures[0].details);
  EXPECT_EQ("The first character is a digit", failures[1].details);
  EXPECT_EQ("pointer i_name is NULL", failures[2].message);
  EXPECT_EQ("Name is NULL", failures[3].details);
}

TEST_F(ZELSYPEventFactoryTest, BadPropagationIsReportedFourth)
{
  for (const int propagation : {3, -1})
  {
    _failures.Clear();
    EXPECT_EQ(nullptr, NewEvent("Opened", propagation, Gate::MetaObject(), Door::MetaObject()));
    EXPECT_THAT(_failures.GetMessages(), ElementsAre("Invalid propagation mode"));
    EXPECT_EQ("<invalid>", _failures.GetFailures()[0].details);
  }
}

TEST_F(ZELSYPEventFactoryTest, ArgumentTypeOfAnotherKindIsReportedFifth)
{
  EXPECT_EQ(nullptr, NewEvent("Opened", 0, Gate::MetaObject(), Door::MetaObject()));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean i_pArgumentType->IsAKindOf(ZELSYPEventArgs::MetaObject()) is FALSE"));
  EXPECT_EQ("Gate", _failures.GetFailures()[0].details);
}

TEST_F(ZELSYPEventFactoryTest, SecondEventOfTheSameNameIsRefusedAndTheFirstStays)
{
  ZELSYPEvent* const pFirst = _factory.NewDoorEvent("Opened");
  EXPECT_EQ(nullptr, NewEvent("Opened", 0, DoorArgs::MetaObject(), Door::MetaObject()));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean pEventMap->Get(i_name) == NULL is FALSE"));
  EXPECT_EQ("Event Door.Opened already registered", _failures.GetFailures()[0].details);
  EXPECT_THAT(Listed(_factory.GetEvents()), ElementsAre(pFirst));
  EXPECT_EQ(1, CountReferences(pFirst));
}

TEST_F(ZELSYPEventFactoryTest, ArgumentTypeOfAnotherKindIsReportedBeforeANameThatIsTaken)
{
  _factory.NewDoorEvent("Opened");
  EXPECT_EQ(nullptr, NewEvent("Opened", 0, Gate::MetaObject(), Door::MetaObject()));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean i_pArgumentType->IsAKindOf(ZELSYPEventArgs::MetaObject()) is FALSE"));
  EXPECT_EQ("Gate", _failures.GetFailures()[0].details);
}

TEST_F(ZELSYPEventFactoryTest, TwoOwnerClassesMayUseOneName)
{
  ZELSYPEvent* const pDoorOpened = NewEvent("Opened", 0, ZELSYPEventArgs::MetaObject(), Door::MetaObject());
  ZELSYPEvent* const pGateOpened = NewEvent("Opened", 0, ZELSYPEventArgs::MetaObject(), Gate::MetaObject());
  EXPECT_NE(pDoorOpened, pGateOpened);
  EXPECT_EQ(Gate::MetaObject(), pGateOpened->GetOwnerClass());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventFactoryTest, TwoFactoriesMayUseOneName)
{
  OpenFactory other;
  EXPECT_NE(_factory.NewDoorEvent("Opened"), other.NewDoorEvent("Opened"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventFactoryTest, RefusedEventLeavesNoneBehind)
{
  NewEvent("a b", 0, ZELSYPEventArgs::MetaObject(), Door::MetaObject());
  EXPECT_THAT(Listed(_factory.GetEventsOf(Door::MetaObject())), IsEmpty());
}

TEST_F(ZELSYPEventFactoryTest, EventsOfAClassAreListedInTheOrderOfTheirDeclaration)
{
  ZELSYPEvent* const pOpened = _factory.NewDoorEvent("Opened");
  NewEvent("Locked", 0, ZELSYPEventArgs::MetaObject(), Gate::MetaObject());
  ZELSYPEvent* const pClosed = _factory.NewDoorEvent("Closed");
  EXPECT_THAT(Listed(_factory.GetEventsOf(Door::MetaObject())), ElementsAre(pOpened, pClosed));
  EXPECT_EQ(1, CountReferences(pOpened));
}

TEST_F(ZELSYPEventFactoryTest, EventsOfAClassThatDeclaresNoneAreNone)
{
  _factory.NewDoorEvent("Opened");
  EXPECT_THAT(Listed(_factory.GetEventsOf(Gate::MetaObject())), IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventFactoryTest, EventsOfNoClassAreReported)
{
  EXPECT_THAT(Listed(_factory.GetEventsOf(nullptr)), IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pOwnerClass is NULL"));
}

TEST_F(ZELSYPEventFactoryTest, AllEventsAreListedClassByClass)
{
  ZELSYPEvent* const pOpened = _factory.NewDoorEvent("Opened");
  ZELSYPEvent* const pLocked = NewEvent("Locked", 0, ZELSYPEventArgs::MetaObject(), Gate::MetaObject());
  ZELSYPEvent* const pClosed = _factory.NewDoorEvent("Closed");
  EXPECT_THAT(Listed(_factory.GetEvents()), ElementsAre(pOpened, pClosed, pLocked));
}
