#include "ZELSYPEventMap.h"

#include "EventWorld.h"
#include "MeddlingFailureHandler.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
// A map whose field is open to a test.
class OpenMap : public ZELSYPEventMap
{
public:
  using ZELSYPEventMap::_events;
};

class ZELSYPEventMapTest : public testing::Test
{
protected:
  OpenFactory _factory;
  ZELSYPEvent* const _pOpened = _factory.NewDoorEvent("Opened");
  ZELSYPEvent* const _pClosed = _factory.NewDoorEvent("Closed");
  RecordingFailureHandler _failures;
};
} // namespace

TEST_F(ZELSYPEventMapTest, EventIsFoundUnderItsName)
{
  ZELSYPEventMap map;
  map.Put(_pOpened);
  map.Put(_pClosed);
  EXPECT_EQ(_pOpened, map.Get("Opened"));
  EXPECT_EQ(_pClosed, map.Get("Closed"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventMapTest, NameThatNoEventHasAnswersNullSilently)
{
  ZELSYPEventMap map;
  map.Put(_pOpened);
  EXPECT_EQ(nullptr, map.Get("opened"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventMapTest, NameThatNoEventCanHaveIsReported)
{
  ZELSYPEventMap map;
  EXPECT_EQ(nullptr, map.Get("a b"));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean nameError == NULL is FALSE"));
  EXPECT_EQ("One of the character of the identifier is not valid", _failures.GetFailures()[0].details);
  EXPECT_EQ("ZELSYPEventMap.cpp", _failures.GetFailures()[0].file);
}

TEST_F(ZELSYPEventMapTest, NullNameIsReported)
{
  ZELSYPEventMap map;
  EXPECT_EQ(nullptr, map.Get(nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_name is NULL", "boolean nameError == NULL is FALSE"));
  EXPECT_EQ("Name is NULL", _failures.GetFailures()[1].details);
}

TEST_F(ZELSYPEventMapTest, MapHoldsOneReferenceOnEachEventUntilItGoes)
{
  {
    ZELSYPEventMap map;
    map.Put(_pOpened);
    EXPECT_EQ(2, CountReferences(_pOpened));
  }
  EXPECT_EQ(1, CountReferences(_pOpened));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventMapTest, NullEventIsReportedAndNotKept)
{
  OpenMap map;
  map.Put(nullptr);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL"));
  EXPECT_EQ(0, map._events.GetSize());
}

TEST_F(ZELSYPEventMapTest, EventThatWasMadeWithoutNameIsKeptUnderTheEmptyOne)
{
  const auto nameless = ZELHandle<ZELSYPEvent>::Adopt(
      OpenFactory::MakeEvent(nullptr, ZELSYPEvent::NoPropagation, ZELSYPEventArgs::MetaObject(), Door::MetaObject()));
  OpenMap map;
  map.Put(nameless.Get());
  EXPECT_EQ(1, map._events.GetSize());
  EXPECT_NE(nullptr, map._events.Locate(""));
}

TEST_F(ZELSYPEventMapTest, EventThatIsOverwrittenIsNotReleased)
{
  const auto other = ZELHandle<ZELSYPEvent>::Adopt(
      OpenFactory::MakeEvent("Opened", ZELSYPEvent::NoPropagation, ZELSYPEventArgs::MetaObject(), Gate::MetaObject()));
  {
    OpenMap map;
    map.Put(_pOpened);
    map.Put(other.Get());
    EXPECT_EQ(other.Get(), map.Get("Opened"));
    EXPECT_EQ(1, map._events.GetSize());
    EXPECT_EQ(2, CountReferences(other.Get()));
  }
  EXPECT_EQ(1, CountReferences(other.Get()));
  // The overwritten event's reference counts for good; it is given back here so that nothing leaks.
  EXPECT_EQ(2, CountReferences(_pOpened));
  _pOpened->Release();
}

TEST_F(ZELSYPEventMapTest, CopyHoldsTheSameEventsWithReferencesOfItsOwn)
{
  ZELSYPEventMap map;
  map.Put(_pOpened);
  map.Put(_pClosed);
  const ZELSYPEventMap copy(map);
  EXPECT_EQ(_pOpened, copy.Get("Opened"));
  EXPECT_EQ(_pClosed, copy.Get("Closed"));
  EXPECT_EQ(3, CountReferences(_pOpened));
}

TEST_F(ZELSYPEventMapTest, AssignmentGivesUpTheOldEventsAndHoldsTheNewOnes)
{
  ZELSYPEventMap map;
  map.Put(_pOpened);
  ZELSYPEventMap assigned;
  assigned.Put(_pClosed);
  assigned = map;
  EXPECT_EQ(_pOpened, assigned.Get("Opened"));
  EXPECT_EQ(nullptr, assigned.Get("Closed"));
  EXPECT_EQ(3, CountReferences(_pOpened));
  EXPECT_EQ(1, CountReferences(_pClosed));
}

TEST_F(ZELSYPEventMapTest, AssignmentToItselfKeepsTheEvents)
{
  ZELSYPEventMap map;
  map.Put(_pOpened);
  const ZELSYPEventMap& same = map;
  map = same;
  EXPECT_EQ(_pOpened, map.Get("Opened"));
  EXPECT_EQ(2, CountReferences(_pOpened));
}

TEST_F(ZELSYPEventMapTest, NullEntryIsReportedWhenItIsAskedFor)
{
  OpenMap map;
  map._events.Set("Opened", nullptr);
  EXPECT_EQ(nullptr, map.Get("Opened"));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pEvent is NULL"));
}

TEST_F(ZELSYPEventMapTest, NullEntryIsReportedAndLeftOutByACopy)
{
  OpenMap map;
  map._events.Set("Broken", nullptr);
  map.Put(_pOpened);
  const ZELSYPEventMap copy(map);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pEvent is NULL"));
  EXPECT_EQ(_pOpened, copy.Get("Opened"));
  EXPECT_EQ(nullptr, copy.Get("Broken"));
}

TEST_F(ZELSYPEventMapTest, NullEntryIsReportedWhenTheMapGoesAndTheOthersAreReleased)
{
  {
    OpenMap map;
    map._events.Set("Broken", nullptr);
    map.Put(_pOpened);
  }
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("NULL event in the map?"));
  EXPECT_EQ(1, CountReferences(_pOpened));
}

TEST_F(ZELSYPEventMapTest, EntryThatCannotBeReadAsTheMapChangesIsReportedAndEndsTheCopy)
{
  OpenMap map;
  map._events.Set("Broken", nullptr);
  map.Put(_pOpened);
  std::vector<std::string> messages;
  MeddlingFailureHandler::While([&] { map._events.Set("Late", nullptr); }, [&] { EXPECT_EQ(nullptr, ZELSYPEventMap(map).Get("Opened")); },
                                messages);
  EXPECT_THAT(messages, ElementsAre("pointer pEvent is NULL", "boolean _pHashTable->Size() == _size is FALSE",
                                    "boolean _pHashTable->Size() == _size is FALSE", "pointer pEntry is NULL"));
}

TEST_F(ZELSYPEventMapTest, EntryThatCannotBeReadAsTheMapChangesIsReportedAndEndsTheRelease)
{
  OpenMap map;
  map._events.Set("Broken", nullptr);
  map._events.Set("Worse", nullptr);
  std::vector<std::string> messages;
  MeddlingFailureHandler::While([&] { map._events.Set("Late", nullptr); }, [&] { map = OpenMap(); }, messages);
  EXPECT_THAT(messages, ElementsAre("NULL event in the map?", "boolean _pHashTable->Size() == _size is FALSE",
                                    "boolean _pHashTable->Size() == _size is FALSE", "pointer pEntry is NULL"));
  EXPECT_EQ(0, map._events.GetSize());
}

TEST_F(ZELSYPEventMapTest, NothingIsLeftInAMapThatGaveUpItsEvents)
{
  OpenMap map;
  map.Put(_pOpened);
  map = OpenMap();
  EXPECT_EQ(nullptr, map.Get("Opened"));
  EXPECT_EQ(0, map._events.GetSize());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventMapTest, EventsAreListedInTheOrderOfTheirNames)
{
  ZELSYPEventMap map;
  map.Put(_pClosed);
  map.Put(_pOpened);
  ZELSYPArray<ZELSYPEvent*> events;
  events.Append(nullptr);
  map.AppendEventsTo(events);
  EXPECT_THAT(std::vector<ZELSYPEvent*>(events.begin(), events.end()), ElementsAre(nullptr, _pClosed, _pOpened));
}
