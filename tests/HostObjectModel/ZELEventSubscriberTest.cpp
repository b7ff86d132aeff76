#include "ZELEventSubscriber.h"

#include "Kitchen.h"

#include <gmock/gmock.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
static_assert(sizeof(ZELEventSubscriber) == sizeof(ZELBaseUnknown) + sizeof(void*), "one pointer while nobody subscribed");

// Does i_what when the callback that captured it is destroyed.
std::shared_ptr<void> WhenItGoes(std::function<void()> i_what)
{
  return {nullptr, [what = std::move(i_what)](void*) { what(); }};
}

class ZELEventSubscriberTest : public testing::Test
{
protected:
  using Subscription = ZELEventSubscriber::Subscription;

  // Notes i_pName whenever it is called, and does i_then.
  Subscription Note(
      const char* i_pName, std::function<void()> i_then = [] {})
  {
    return _source->Subscribe(
        [this, i_pName, i_then](ZELEventSubscriber&, ZELBaseUnknown*)
        {
          _calls.push_back(i_pName);
          i_then();
        });
  }
  Subscription SubscribeWith(std::shared_ptr<void> i_captured)
  {
    return _source->Subscribe([this, i_captured](ZELEventSubscriber&, ZELBaseUnknown*) { _calls.push_back("with"); });
  }
  std::vector<std::string> CallsOfNotify()
  {
    _calls.clear();
    _source->Notify();
    return _calls;
  }

  std::vector<std::string> _calls;
  ZELHandle<ZELEventSubscriber> _source = ZELHandle<ZELEventSubscriber>::Adopt(new ZELEventSubscriber);
};
} // namespace

TEST_F(ZELEventSubscriberTest, CallsNobodyAtFirst)
{
  EXPECT_THAT(CallsOfNotify(), IsEmpty());
}

TEST_F(ZELEventSubscriberTest, CallsInTheOrderOfSubscription)
{
  Note("a");
  Note("b");
  Note("c");
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "b", "c"));
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "b", "c"));
}

TEST_F(ZELEventSubscriberTest, CallbackIsGivenTheSourceAndTheArgument)
{
  Cup cup;
  std::vector<const void*> given;
  _source->Subscribe([&](ZELEventSubscriber& io_source, ZELBaseUnknown* i_pArgument) { given = {&io_source, i_pArgument}; });
  _source->Notify(&cup);
  EXPECT_THAT(given, ElementsAre(_source.Get(), &cup));
  EXPECT_EQ(CountOf(&cup), 1);
  _source->Notify();
  EXPECT_THAT(given, ElementsAre(_source.Get(), nullptr));
}

TEST_F(ZELEventSubscriberTest, UnsubscribedIsNotCalledAnyMore)
{
  Note("a");
  const Subscription b = Note("b");
  Note("c");
  EXPECT_EQ(_source->Unsubscribe(b), 1);
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "c"));
}

TEST_F(ZELEventSubscriberTest, UnknownSubscriptionIsNotUnsubscribed)
{
  EXPECT_EQ(_source->Unsubscribe(1), 0);
  const Subscription a = Note("a");
  EXPECT_NE(a, 0u);
  EXPECT_EQ(_source->Unsubscribe(0), 0);
  EXPECT_EQ(_source->Unsubscribe(a + 1), 0);
  EXPECT_EQ(_source->Unsubscribe(a), 1);
  EXPECT_EQ(_source->Unsubscribe(a), 0);
}

TEST_F(ZELEventSubscriberTest, SubscriptionIsNeverGivenTwice)
{
  const Subscription a = Note("a");
  _source->Unsubscribe(a);
  EXPECT_NE(Note("b"), a);
}

TEST_F(ZELEventSubscriberTest, EmptyCallbackIsNotKept)
{
  EXPECT_EQ(_source->Subscribe(nullptr), 0u);
  EXPECT_EQ(_source->Subscribe(ZELEventSubscriber::Callback()), 0u);
  EXPECT_THAT(CallsOfNotify(), IsEmpty());
}

TEST_F(ZELEventSubscriberTest, CallbackMayUnsubscribeItself)
{
  Subscription a = 0;
  std::vector<int> answers;
  a = Note("a", [&] { answers = {_source->Unsubscribe(a), _source->Unsubscribe(a)}; });
  Note("b");
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "b"));
  EXPECT_THAT(answers, ElementsAre(1, 0));
  EXPECT_THAT(CallsOfNotify(), ElementsAre("b"));
}

TEST_F(ZELEventSubscriberTest, CallbackThatUnsubscribesItselfKeepsWhatItCapturedUntilItReturns)
{
  const auto captured = std::make_shared<std::string>("kept");
  const std::weak_ptr<std::string> watched = captured;
  Subscription a = 0;
  a = _source->Subscribe(
      [this, &a, mine = std::make_shared<std::string>("kept")](ZELEventSubscriber&, ZELBaseUnknown*)
      {
        _source->Unsubscribe(a);
        _calls.push_back(*mine);
      });
  EXPECT_THAT(CallsOfNotify(), ElementsAre("kept"));
}

TEST_F(ZELEventSubscriberTest, CallbackIsDestroyedWhenTheNotificationIsOver)
{
  auto captured = std::make_shared<int>(0);
  const std::weak_ptr<int> watched = captured;
  Subscription a = 0;
  std::vector<bool> gone;
  a = _source->Subscribe([this, &a, captured](ZELEventSubscriber&, ZELBaseUnknown*) { _source->Unsubscribe(a); });
  captured.reset();
  Note("b", [&] { gone.push_back(watched.expired()); });
  CallsOfNotify();
  gone.push_back(watched.expired());
  EXPECT_THAT(gone, ElementsAre(false, true));
}

TEST_F(ZELEventSubscriberTest, OneThatIsUnsubscribedBeforeItsTurnIsNotCalled)
{
  Subscription c = 0;
  Note("a", [&] { _source->Unsubscribe(c); });
  Note("b");
  c = Note("c");
  Note("d");
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "b", "d"));
}

TEST_F(ZELEventSubscriberTest, OneThatIsUnsubscribedAfterItsTurnIsCalledOnce)
{
  const Subscription a = Note("a");
  Note("b", [&] { _source->Unsubscribe(a); });
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "b"));
  EXPECT_THAT(CallsOfNotify(), ElementsAre("b"));
}

TEST_F(ZELEventSubscriberTest, OneThatIsSubscribedInANotificationIsCalledFromTheNextOneOn)
{
  bool first = true;
  Note("a",
       [&]
       {
         if (std::exchange(first, false))
           Note("late");
       });
  Note("b");
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "b"));
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "b", "late"));
}

TEST_F(ZELEventSubscriberTest, NotificationInANotificationCallsThoseThatAreThereThen)
{
  int depth = 0;
  Note("a",
       [&]
       {
         if (++depth > 1)
           return;
         Note("late");
         _source->Notify();
       });
  Note("b");
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "a", "b", "late", "b"));
}

TEST_F(ZELEventSubscriberTest, CallbackMayUnsubscribeInANotificationInANotification)
{
  int depth = 0;
  Subscription a = 0;
  a = Note("a",
           [&]
           {
             if (++depth == 1)
               _source->Notify();
             else
               _source->Unsubscribe(a);
           });
  Note("b");
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "a", "b", "b"));
  EXPECT_THAT(CallsOfNotify(), ElementsAre("b"));
}

TEST_F(ZELEventSubscriberTest, LaterCallbacksAreNotCalledWhenOneDestroysTheSource)
{
  Note("a", [this] { _source = NULL_var; });
  Note("b");
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a"));
}

TEST_F(ZELEventSubscriberTest, SourceMayBeDestroyedInANotificationInANotification)
{
  int depth = 0;
  Note("a", [&] { ++depth == 1 ? _source->Notify() : static_cast<void>(_source = NULL_var); });
  Note("b");
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a", "a"));
}

TEST_F(ZELEventSubscriberTest, WhatACallbackThrowsReachesTheNotifierAndTheRestStaysSound)
{
  bool throws = true;
  Subscription a = 0;
  a = Note("a",
           [&]
           {
             _source->Unsubscribe(a);
             if (throws)
               throw std::runtime_error("thrown");
           });
  Note("b");
  EXPECT_THROW(_source->Notify(), std::runtime_error);
  EXPECT_THAT(_calls, ElementsAre("a"));
  EXPECT_THAT(CallsOfNotify(), ElementsAre("b"));
}

TEST_F(ZELEventSubscriberTest, CallbackMayDestroyTheSourceAndThrow)
{
  Note("a",
       [this]
       {
         _source = NULL_var;
         throw std::runtime_error("thrown");
       });
  Note("b");
  EXPECT_THROW(_source->Notify(), std::runtime_error);
  EXPECT_THAT(_calls, ElementsAre("a"));
}

TEST_F(ZELEventSubscriberTest, CallbackThatHoldsTheLastReferenceOnTheSourceMayGo)
{
  ZELEventSubscriber* const pSource = new ZELEventSubscriber;
  Subscription a = 0;
  a = pSource->Subscribe([held = ZELHandle<ZELEventSubscriber>(pSource)](ZELEventSubscriber&, ZELBaseUnknown*) {});
  EXPECT_EQ(pSource->Release(), 1);
  EXPECT_EQ(pSource->Unsubscribe(a), 1);
}

TEST_F(ZELEventSubscriberTest, CallbackThatGoesWithTheSourceFindsNoSubscriptionToEnd)
{
  ZELEventSubscriber* const pSource = _source;
  const Subscription a = Note("a");
  Subscription own = 0;
  std::vector<int> answers;
  own = SubscribeWith(WhenItGoes([&] { answers = {pSource->Unsubscribe(a), pSource->Unsubscribe(own), pSource->Unsubscribe(own + 1)}; }));
  Note("c");
  _source = NULL_var;
  EXPECT_THAT(answers, ElementsAre(0, 0, 0));
}

TEST_F(ZELEventSubscriberTest, CallbackThatGoesWithTheSourceCannotSubscribeNorNotify)
{
  ZELEventSubscriber* const pSource = _source;
  const auto captured = std::make_shared<int>(0);
  Subscription late = 7;
  SubscribeWith(WhenItGoes(
      [&, captured]
      {
        late = pSource->Subscribe([this, captured](ZELEventSubscriber&, ZELBaseUnknown*) { _calls.push_back("late"); });
        pSource->Notify();
      }));
  Note("b");
  _source = NULL_var;
  EXPECT_EQ(late, 0u);
  EXPECT_THAT(_calls, IsEmpty());
  EXPECT_EQ(captured.use_count(), 1);
}

TEST_F(ZELEventSubscriberTest, CallbacksThatDoNotRunGoBeforeTheSourceThatOneOfThemDestroys)
{
  ZELEventSubscriber* const pSource = _source;
  Subscription own = 0;
  int answer = 7;
  Note("a", [this] { _source = NULL_var; });
  own = SubscribeWith(WhenItGoes([&] { answer = pSource->Unsubscribe(own); }));
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a"));
  EXPECT_EQ(answer, 0);
}

TEST_F(ZELEventSubscriberTest, CallbackThatDestroysTheSourceKeepsWhatItCapturedUntilItReturns)
{
  int depth = 0;
  _source->Subscribe(
      [this, &depth, mine = std::string("a text that is longer than a string holds in itself")](ZELEventSubscriber& io_source,
                                                                                                ZELBaseUnknown*)
      {
        ++depth == 1 ? io_source.Notify() : static_cast<void>(_source = NULL_var);
        _calls.push_back(mine.substr(0, 6));
      });
  EXPECT_THAT(CallsOfNotify(), ElementsAre("a text", "a text"));
}

TEST_F(ZELEventSubscriberTest, CallbackThatGoesMayEndOthersAndDestroyTheSource)
{
  const Subscription c = Note("c");
  const Subscription a = SubscribeWith(WhenItGoes(
      [&]
      {
        EXPECT_EQ(_source->Unsubscribe(c), 1);
        _source = NULL_var;
      }));
  EXPECT_EQ(_source->Unsubscribe(a), 1);
  EXPECT_EQ(_source, NULL_var);
}

TEST_F(ZELEventSubscriberTest, KindOfItsRecordAndNotCreatable)
{
  EXPECT_STREQ(_source->IsA(), "ZELEventSubscriber");
  EXPECT_EQ(ZELEventSubscriber::CreateItself(), nullptr);
}
