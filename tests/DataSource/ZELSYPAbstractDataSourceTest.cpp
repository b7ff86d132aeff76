#include "ZELSYPAbstractDataSource.h"

#include "ChildProcess.h"
#include "ChildProgram.h"
#include "RecordingFailureHandler.h"
#include "VirtualSlots.h"
#include "ZELHandle.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPModelChangedEventArgs.h"
#include "ZELSYPSelectionChangedEventArgs.h"
#include "ZELSYPViewUpdatedEventArgs.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstdio>
#include <functional>
#include <set>
#include <string>
#include <thread>
#include <vector>

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;
namespace Records = ZELSYPDataSourceParameters;

namespace
{
struct PlainSource : ZELSYPAbstractDataSource
{
  using ZELSYPAbstractDataSource::DeclareEvent;
  using ZELSYPAbstractDataSource::GetEventFactory;
};

class OriginHandler : public ZELSYPEventHandler
{
public:
  explicit OriginHandler(std::vector<ZELBaseUnknown*>& o_origins) : _origins(o_origins) {}
  void Handle(ZELBaseUnknown*, ZELSYPEventArgs* i_pArgs) override { _origins.push_back(i_pArgs->GetOrigin()); }
  ZELMetaClass* GetArgumentsClass() override { return ZELSYPSelectionChangedEventArgs::MetaObject(); }
  int MustBeRemoved() override { return 0; }

private:
  std::vector<ZELBaseUnknown*>& _origins;
};

void ExpectEvent(ZELSYPEvent* i_pEvent, const std::string& i_name, ZELMetaClass* i_pArgumentType)
{
  ASSERT_NE(i_pEvent, nullptr);
  EXPECT_EQ(i_pEvent->GetName(), i_name);
  EXPECT_EQ(i_pEvent->GetPropagation(), ZELSYPEvent::NoPropagation);
  EXPECT_EQ(i_pEvent->GetArgumentType(), i_pArgumentType);
  EXPECT_EQ(i_pEvent->GetOwnerClass(), ZELSYPAbstractDataSource::MetaObject());
}

// Takes again, and writes to, what memory of small objects was given back.
std::vector<std::string> OverwriteFreeMemory()
{
  std::vector<std::string> taken;
  for (std::size_t size = 8; size < 256; size += 8)
    taken.insert(taken.end(), 8, std::string(size, 'x'));
  return taken;
}
} // namespace

TEST(ZELSYPAbstractDataSourceTest, ItsClassIsAKindOfTheEventSubscriberListener)
{
  ZELMetaClass* const pClass = ZELSYPAbstractDataSource::MetaObject();
  EXPECT_STREQ(ZELSYPAbstractDataSource::ClassName(), "ZELSYPAbstractDataSource");
  EXPECT_STREQ(pClass->GetName(), "ZELSYPAbstractDataSource");
  EXPECT_STREQ(pClass->GetModule(), "OPXCoreTools");
  EXPECT_EQ(pClass->GetBaseClass(), ZELSYPEventSubscriberEventListener::MetaObject());
  EXPECT_EQ(ZELMetaClass::Find("ZELSYPAbstractDataSource"), pClass);
  EXPECT_TRUE(ZELSYPAbstractDataSource::ClassId() == pClass->GetClassId());
}

TEST(ZELSYPAbstractDataSourceTest, AnObjectKnowsItsClass)
{
  const ZELSYPAbstractDataSource source;
  EXPECT_STREQ(source.IsA(), "ZELSYPAbstractDataSource");
  EXPECT_EQ(source.GetMetaObject(), ZELSYPAbstractDataSource::MetaObject());
  for (const char* const name : {"ZELSYPAbstractDataSource", "ZELSYPEventSubscriberEventListener", "ZELEventSubscriber", "ZELBaseUnknown"})
    EXPECT_EQ(source.IsAKindOf(name), 1) << name;
  EXPECT_EQ(source.IsAKindOf("ZELSYPSimpleEventListener"), 0);
}

TEST(ZELSYPAbstractDataSourceTest, ItIsNotCreatedByName)
{
  EXPECT_EQ(ZELSYPAbstractDataSource::CreateItself(), nullptr);
}

TEST(ZELSYPAbstractDataSourceTest, ItsEventsDoNotPropagateAndHaveArgumentsOfTheirOwn)
{
  ExpectEvent(ZELSYPAbstractDataSource::ModelChanged(), "ModelChanged", ZELSYPModelChangedEventArgs::MetaObject());
  ExpectEvent(ZELSYPAbstractDataSource::SelectionChanged(), "SelectionChanged", ZELSYPSelectionChangedEventArgs::MetaObject());
  ExpectEvent(ZELSYPAbstractDataSource::ViewUpdated(), "ViewUpdated", ZELSYPViewUpdatedEventArgs::MetaObject());
}

TEST(ZELSYPAbstractDataSourceTest, EachEventIsMadeOnce)
{
  EXPECT_EQ(ZELSYPAbstractDataSource::ModelChanged(), ZELSYPAbstractDataSource::ModelChanged());
  EXPECT_EQ(ZELSYPAbstractDataSource::SelectionChanged(), ZELSYPAbstractDataSource::SelectionChanged());
  EXPECT_EQ(ZELSYPAbstractDataSource::ViewUpdated(), ZELSYPAbstractDataSource::ViewUpdated());
}

TEST(ZELSYPAbstractDataSourceTest, ItsEventsStandInTheFactoryOfItsListenerClass)
{
  RecordingFailureHandler failures;
  ZELSYPAbstractDataSource::ModelChanged();
  EXPECT_EQ(PlainSource::DeclareEvent(PlainSource::GetEventFactory(), "ModelChanged", ZELSYPEventArgs::MetaObject(),
                                      ZELSYPAbstractDataSource::MetaObject()),
            nullptr);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean pEventMap->Get(i_name) == NULL is FALSE"));
}

// The first calls of a process, by threads that start together: 0 when each event is the same for all of them.
OPX_CHILD_ENTRY(MakeEventsOnManyThreads)
{
  struct Events
  {
    ZELSYPEvent* all[3];
  };
  std::vector<Events> found(12);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < found.size(); ++i)
    threads.emplace_back(
        [&events = found[i], i]
        {
          ZELSYPEvent* (*const ask[])() = {&ZELSYPAbstractDataSource::ModelChanged, &ZELSYPAbstractDataSource::SelectionChanged,
                                           &ZELSYPAbstractDataSource::ViewUpdated};
          for (std::size_t k = 0; k < 3; ++k)
            events.all[(i + k) % 3] = ask[(i + k) % 3]();
        });
  for (std::thread& thread : threads)
    thread.join();
  std::set<ZELSYPEvent*> different;
  for (const Events& events : found)
    different.insert(std::begin(events.all), std::end(events.all));
  return different.size() == 3 && different.count(nullptr) == 0 ? 0 : 1;
}

TEST(ZELSYPAbstractDataSourceTest, ThreadsThatAskTogetherForTheFirstTimeGetTheSameEvents)
{
  const ChildResult result = ChildProcess::Self("MakeEventsOnManyThreads").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
}

// A data source that goes when the program does, after what the program made later.
OPX_CHILD_ENTRY(AskForTheEventsAtExit)
{
  struct LateSource : ZELSYPAbstractDataSource
  {
    ~LateSource() override
    {
      const std::vector<std::string> taken = OverwriteFreeMemory();
      for (const ZELSYPEvent* const pEvent : {ModelChanged(), SelectionChanged(), ViewUpdated()})
        std::printf("%s of %s\n", pEvent->GetName(), pEvent->GetOwnerClass()->GetName());
    }
  };
  static const LateSource s_source;
  return ZELSYPAbstractDataSource::ModelChanged() ? 0 : 1;
}

TEST(ZELSYPAbstractDataSourceTest, ItsEventsCanBeAskedForUntilTheVeryEndOfTheProgram)
{
  const ChildResult result = ChildProcess::Self("AskForTheEventsAtExit").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out, "ModelChanged of ZELSYPAbstractDataSource\n"
                        "SelectionChanged of ZELSYPAbstractDataSource\n"
                        "ViewUpdated of ZELSYPAbstractDataSource\n");
}

TEST(ZELSYPAbstractDataSourceTest, WithoutAFactoryThereIsNoEvent)
{
  RecordingFailureHandler failures;
  EXPECT_EQ(PlainSource::DeclareEvent(nullptr, "Renamed", ZELSYPEventArgs::MetaObject(), PlainSource::MetaObject()), nullptr);
  ASSERT_THAT(failures.GetMessages(), ElementsAre("pointer pEventFactory is NULL"));
  EXPECT_EQ(failures.GetFailures()[0].file, "ZELSYPAbstractDataSource.cpp");
}

TEST(ZELSYPAbstractDataSourceTest, ADataSourceCanTellOfMoreThanTheThreeEvents)
{
  ZELSYPEvent* const pEvent =
      PlainSource::DeclareEvent(PlainSource::GetEventFactory(), "Renamed", ZELSYPEventArgs::MetaObject(), PlainSource::MetaObject());
  ASSERT_NE(pEvent, nullptr);
  EXPECT_STREQ(pEvent->GetName(), "Renamed");
  EXPECT_EQ(pEvent->GetPropagation(), ZELSYPEvent::NoPropagation);
}

TEST(ZELSYPAbstractDataSourceTest, AnEventRaisedOnASourceReachesTheHandlersOfThatSource)
{
  PlainSource source;
  PlainSource other;
  std::vector<ZELBaseUnknown*> origins;
  const auto spHandler = ZELHandle<OriginHandler>::Adopt(new OriginHandler(origins));
  EXPECT_EQ(source.AddHandler(ZELSYPAbstractDataSource::SelectionChanged(), spHandler, 0), 1);
  EXPECT_EQ(other.AddHandler(ZELSYPAbstractDataSource::SelectionChanged(), spHandler, 0), 1);
  ZELSYPSelectionChangedEventArgs args(ZELSYPAbstractDataSource::SelectionChanged(), {}, nullptr);
  source.Dispatch(&args);
  EXPECT_THAT(origins, ElementsAre(&source));
}

TEST(ZELSYPAbstractDataSourceTest, CollapseAndExpandAreAnsweredAtOnceByTwoEmptyLists)
{
  ZELSYPAbstractDataSource source;
  std::vector<json> answers;
  source.RequestModelCollapseExpand(Records::ModelCollapseExpandParameters(json::parse(R"({"nodesToExpand":[["a"]]})")),
                                    [&](const Records::ModelCollapseExpandAnswerParameters& i_answer)
                                    { answers.push_back(i_answer.ComputeJSON()); });
  EXPECT_THAT(answers, ElementsAre(json::parse(R"({"nodesToCollapse":[],"nodesToExpand":[]})")));
}

TEST(ZELSYPAbstractDataSourceTest, APointerEventIsAnsweredAtOnceByAPlainAnswer)
{
  ZELSYPAbstractDataSource source;
  std::vector<json> answers;
  source.RequestPointerEvent(Records::PointerEventParameters(json::parse(R"({"idsPath":["a"]})")),
                             [&](const Records::RequestAnswer& i_answer) { answers.push_back(i_answer.ComputeJSON()); });
  ASSERT_EQ(answers.size(), 1u);
  EXPECT_TRUE(answers[0].is_null());
}

TEST(ZELSYPAbstractDataSourceTest, ASelectionChangeIsAnsweredAtOnceByOneWhoseJSONIsAnEmptyObject)
{
  ZELSYPAbstractDataSource source;
  std::vector<json> answers;
  source.RequestSelectionChange(Records::SelectionChangeParameters({"a"}, {"b"}),
                                [&](const Records::SelectionChangeParameters& i_answer) { answers.push_back(i_answer.ComputeJSON()); });
  EXPECT_THAT(answers, ElementsAre(json::object()));
}

TEST(ZELSYPAbstractDataSourceTest, WithoutACallbackTheDefaultsThrow)
{
  ZELSYPAbstractDataSource source;
  const Records::ModelCollapseExpandParameters collapse(json::parse(R"({"nodesToExpand":[]})"));
  const Records::PointerEventParameters pointer(json::parse(R"({"idsPath":[]})"));
  EXPECT_THROW(source.RequestModelCollapseExpand(collapse, nullptr), std::bad_function_call);
  EXPECT_THROW(source.RequestPointerEvent(pointer, nullptr), std::bad_function_call);
  EXPECT_THROW(source.RequestSelectionChange(Records::SelectionChangeParameters(), nullptr), std::bad_function_call);
}

TEST(ZELSYPAbstractDataSourceTest, ItsRequestsStandInTheirOrderAmongTheVirtualOperations)
{
  const std::ptrdiff_t collapse = GetSlot(&ZELSYPAbstractDataSource::RequestModelCollapseExpand);
  const std::ptrdiff_t slot = static_cast<std::ptrdiff_t>(sizeof(void*));
  EXPECT_EQ(GetSlot(&ZELSYPAbstractDataSource::RequestPointerEvent), collapse + slot);
  EXPECT_EQ(GetSlot(&ZELSYPAbstractDataSource::RequestSelectionChange), collapse + 2 * slot);
}

TEST(ZELSYPAbstractDataSourceTest, ItHoldsNoDataOfItsOwn)
{
  EXPECT_EQ(sizeof(ZELSYPAbstractDataSource), sizeof(ZELSYPEventSubscriberEventListener));
}

TEST(ZELSYPAbstractDataSourceTest, NothingOfItReportsAnything)
{
  RecordingFailureHandler failures;
  {
    ZELSYPAbstractDataSource source;
    source.RequestSelectionChange({}, [](const Records::SelectionChangeParameters&) {});
  }
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}
