#include "ZELEventSubscriber.h"

#include <algorithm>
#include <list>
#include <memory>
#include <utility>

ZELImplementClass(ZELEventSubscriber, ZELBaseUnknown, OPXHostRuntime);

// Outlives the object when it goes in the middle of a notification.
struct ZELEventSubscriber::Subscriptions
{
  struct Entry
  {
    Subscription _id;
    Callback _callback;
    // In how many notifications it runs.
    int _running = 0;
    bool _isActive = true;
  };
  // Keeps the entries in place while they may be running; the last one to go clears away what was ended meanwhile.
  class Running
  {
  public:
    explicit Running(Subscriptions* i_pSubscriptions) : _pSubscriptions(i_pSubscriptions) { ++_pSubscriptions->_running; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running()
    {
      if (--_pSubscriptions->_running == 0)
        _pSubscriptions->ClearAway();
    }

  private:
    Subscriptions* const _pSubscriptions;
  };

  // A list: an entry stays where it is while its callback runs.
  std::list<Entry> _entries;
  Subscription _last = 0;
  int _running = 0;
  bool _hasEnded = false;
  bool _isOrphan = false;

  void Call(Entry& io_entry, ZELEventSubscriber& io_source, ZELBaseUnknown* i_pArgument);
  void ClearAway();
  void DestroyEnded();
  void Abandon();
};

void ZELEventSubscriber::Subscriptions::Call(Entry& io_entry, ZELEventSubscriber& io_source, ZELBaseUnknown* i_pArgument)
{
  struct Run
  {
    explicit Run(int& io_running) : _running(++io_running) {}
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run() { --_running; }
    int& _running;
  };
  const Run run(io_entry._running);
  io_entry._callback(io_source, i_pArgument);
}

void ZELEventSubscriber::Subscriptions::ClearAway()
{
  if (_isOrphan)
  {
    delete this;
    return;
  }
  if (std::exchange(_hasEnded, false))
    DestroyEnded();
}

// Callbacks are destroyed outside of the list: what they captured may call back.
void ZELEventSubscriber::Subscriptions::DestroyEnded()
{
  std::list<Entry> ended;
  for (auto entry = _entries.begin(); entry != _entries.end();)
  {
    const auto next = std::next(entry);
    if (!entry->_isActive && entry->_running == 0)
      ended.splice(ended.end(), _entries, entry);
    entry = next;
  }
}

// What does not run at this moment goes while the object is there still, which what it captured may call.
void ZELEventSubscriber::Subscriptions::Abandon()
{
  const Running clearsAway(this);
  _isOrphan = true;
  for (Entry& entry : _entries)
    entry._isActive = false;
  DestroyEnded();
}

ZELEventSubscriber::~ZELEventSubscriber()
{
  if (_pSubscriptions)
    _pSubscriptions->Abandon();
}

ZELEventSubscriber::Subscription ZELEventSubscriber::Subscribe(Callback i_callback)
{
  if (!i_callback)
    return 0;
  if (!_pSubscriptions)
    _pSubscriptions = new Subscriptions;
  if (_pSubscriptions->_isOrphan)
    return 0;
  _pSubscriptions->_entries.push_back({++_pSubscriptions->_last, std::move(i_callback)});
  return _pSubscriptions->_last;
}

int ZELEventSubscriber::Unsubscribe(Subscription i_subscription)
{
  if (!_pSubscriptions)
    return 0;
  auto& entries = _pSubscriptions->_entries;
  const auto found =
      std::find_if(entries.begin(), entries.end(), [&](const Subscriptions::Entry& i_entry) { return i_entry._id == i_subscription; });
  if (found == entries.end() || !found->_isActive)
    return 0;
  found->_isActive = false;
  _pSubscriptions->_hasEnded = true;
  const Subscriptions::Running clearsAway(_pSubscriptions);
  return 1;
}

void ZELEventSubscriber::Notify(ZELBaseUnknown* i_pArgument)
{
  if (!_pSubscriptions)
    return;
  Subscriptions& subscriptions = *_pSubscriptions;
  const Subscriptions::Running running(&subscriptions);
  const Subscription last = subscriptions._last;
  for (Subscriptions::Entry& entry : subscriptions._entries)
  {
    if (entry._id > last)
      return;
    if (entry._isActive)
      subscriptions.Call(entry, *this, i_pArgument);
  }
}
