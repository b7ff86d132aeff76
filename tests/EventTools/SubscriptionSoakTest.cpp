#include "EventWorld.h"
#include "SoakOperations.h"
#include "ZELSYPMakeOnceHandler.h"
#include "ZELSYPMakeWeakHandler.h"
#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <random>

// Random operations on listeners, subscriptions, weak and once-only handlers, made in the middle of dispatches, too, beside
// a model that is slow and obviously right: at every run the model says which handler must run next.
namespace
{
constexpr std::size_t LISTENERS = 4;
constexpr std::size_t TARGETS = 4;
constexpr int DEEPEST = 4;
// Of one seed: the model goes through everything that was ever registered. More operations are more seeds.
constexpr int STEPS = 2000;

// Counts the callables that live.
class Life
{
public:
  explicit Life(int& io_living) : _living(io_living) { ++_living; }
  Life(const Life& i_other) : Life(i_other._living) {}
  ~Life() { --_living; }

private:
  int& _living;
};

class Soak
{
public:
  explicit Soak(unsigned i_seed) : _random(i_seed)
  {
    for (std::size_t place = 0; place < LISTENERS; ++place)
      ReplaceListener(place);
    for (std::size_t place = 0; place < TARGETS; ++place)
      ReplaceTarget(place);
  }

  void Run(int i_steps)
  {
    for (int step = 0; step < i_steps && _faults.empty(); ++step)
      DoSomething();
  }
  void LetEverythingGo()
  {
    _subscriptions.clear();
    for (auto& spListener : _listeners)
      spListener = nullptr;
  }
  int GetLivingCallables() const { return _living; }
  int GetRuns() const { return _runs; }
  const std::vector<std::string>& GetFaults() const { return _faults; }

private:
  enum class Kind
  {
    Subscribed,
    SubscribedOnce,
    Weak
  };
  struct Registration
  {
    int _listener;
    Kind _kind;
    int _target;
    bool _mayRun;
  };
  // One running dispatch: what stood in its list when it began, and how far it has come.
  struct Frame
  {
    std::vector<int> _snapshot;
    std::size_t _next;
  };

  std::size_t Below(std::size_t i_limit) { return std::uniform_int_distribution<std::size_t>(0, i_limit - 1)(_random); }

  void DoSomething()
  {
    switch (Below(12))
    {
    case 0:
    case 1:
    case 2:
      return Register(static_cast<Kind>(Below(3)));
    case 3:
    case 4:
      return EndASubscription();
    case 5:
      return Below(4) == 0 ? ReplaceListener(Below(LISTENERS)) : ReplaceTarget(Below(TARGETS));
    default:
      return Dispatch(Below(LISTENERS));
    }
  }

  void Register(Kind i_kind)
  {
    const std::size_t place = Below(LISTENERS);
    const std::size_t target = Below(TARGETS);
    const int id = static_cast<int>(_registrations.size());
    _registrations.push_back({_listenerIds[place], i_kind, i_kind == Kind::Weak ? _targetIds[target] : -1, true});
    const auto callable = [this, id, counted = Life(_living)](ZELSYPEventArgs*) { Ran(id); };
    Listener& listener = *_listeners[place];
    if (i_kind == Kind::Weak)
      listener.AddHandler(Opened(), ZELSYPMakeWeakHandler(*_targets[target], callable), 0);
    else if (i_kind == Kind::SubscribedOnce)
      _subscriptions[id] = ZELSYPSubscribe(listener, Opened(), ZELSYPMakeOnceHandler(callable));
    else
      _subscriptions[id] = ZELSYPSubscribe(listener, Opened(), callable);
  }
  void EndASubscription()
  {
    if (_subscriptions.empty())
      return;
    const auto ended = std::next(_subscriptions.begin(), static_cast<std::ptrdiff_t>(Below(_subscriptions.size())));
    _registrations[static_cast<std::size_t>(ended->first)]._mayRun = false;
    _subscriptions.erase(ended);
  }
  // The old one goes now, or with the dispatches that run on it.
  void ReplaceListener(std::size_t i_place)
  {
    _listenerIds[i_place] = ++_lastId;
    _listeners[i_place] = ZELHandle<Listener>::Adopt(new Listener);
  }
  void ReplaceTarget(std::size_t i_place)
  {
    for (Registration& each : _registrations)
      each._mayRun = each._mayRun && each._target != _targetIds[i_place];
    _targetIds[i_place] = ++_lastId;
    _targets[i_place].emplace();
  }

  void Dispatch(std::size_t i_place)
  {
    if (_frames.size() >= DEEPEST)
      return;
    _frames.push_back({SnapshotOf(_listenerIds[i_place]), 0});
    Raise(*ZELHandle<Listener>(_listeners[i_place]));
    if (SkipToNext() != -1)
      _faults.push_back("a dispatch ended too early");
    _frames.pop_back();
  }
  std::vector<int> SnapshotOf(int i_listener) const
  {
    std::vector<int> snapshot;
    for (std::size_t id = 0; id < _registrations.size(); ++id)
      if (_registrations[id]._listener == i_listener && _registrations[id]._mayRun)
        snapshot.push_back(static_cast<int>(id));
    return snapshot;
  }
  // The registration whose turn it is in the innermost dispatch, or -1.
  int SkipToNext()
  {
    for (Frame& frame = _frames.back(); frame._next < frame._snapshot.size(); ++frame._next)
      if (_registrations[static_cast<std::size_t>(frame._snapshot[frame._next])]._mayRun)
        return frame._snapshot[frame._next++];
    return -1;
  }
  void Ran(int i_id)
  {
    ++_runs;
    if (const int expected = SkipToNext(); expected != i_id)
      _faults.push_back("ran " + std::to_string(i_id) + " instead of " + std::to_string(expected));
    Registration& ran = _registrations[static_cast<std::size_t>(i_id)];
    ran._mayRun = ran._kind != Kind::SubscribedOnce;
    if (Below(2) == 0 && _faults.empty())
      DoSomething();
  }

  std::mt19937 _random;
  int _living = 0;
  int _runs = 0;
  int _lastId = 0;
  std::vector<Registration> _registrations;
  std::vector<Frame> _frames;
  std::array<int, LISTENERS> _listenerIds{};
  std::array<ZELHandle<Listener>, LISTENERS> _listeners;
  std::array<int, TARGETS> _targetIds{};
  std::array<std::optional<ZELSYPWeakTarget>, TARGETS> _targets;
  std::map<int, ZELSYPSubscription> _subscriptions;
  std::vector<std::string> _faults;
};
} // namespace

TEST(SubscriptionSoak, RandomOperationsAgreeWithTheModelAndLeaveNothingBehind)
{
  const long seeds = GetSoakOperations(20 * STEPS) / STEPS;
  long runs = 0;
  for (unsigned seed = 1; seed <= static_cast<unsigned long>(seeds); ++seed)
  {
    Soak soak(seed);
    soak.Run(STEPS);
    ASSERT_THAT(soak.GetFaults(), testing::IsEmpty()) << "seed " << seed;
    runs += soak.GetRuns();
    soak.LetEverythingGo();
    EXPECT_EQ(soak.GetLivingCallables(), 0);
  }
  EXPECT_GT(runs, seeds * STEPS);
}
