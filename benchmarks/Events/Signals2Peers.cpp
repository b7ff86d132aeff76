// Boost.Signals2: a signal a node, the parents are walked by hand. Once as it comes, once without its mutex.
#include "EventsCases.h"

#if OPX_PEER_SIGNALS2
#include <boost/signals2.hpp>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

#include <vector>

namespace
{
namespace signals = boost::signals2;
typedef signals::signal<void(Payload&)> LockedSignal;
typedef signals::signal_type<void(Payload&), signals::keywords::mutex_type<signals::dummy_mutex>>::type UnlockedSignal;

template <class Signal>
class Listener : public boost::intrusive_ref_counter<Listener<Signal>, boost::thread_safe_counter>
{
public:
  virtual ~Listener() = default;
  signals::connection Connect(Observer& io_observer)
  {
    return _signal.connect([pObserver = &io_observer](Payload& io_payload) { pObserver->Notice(io_payload._amount); });
  }

  Signal _signal;
};

template <class Signal>
class Node : public Listener<Signal>
{
public:
  Node* _pParent = nullptr;
};

template <class Signal>
class World
{
public:
  World(int i_depth, Observer& io_observer) : _observer(io_observer)
  {
    for (int index = 0; index < i_depth; ++index)
    {
      _nodes.emplace_back(new Node<Signal>);
      if (index > 0)
        _nodes[static_cast<std::size_t>(index) - 1]->_pParent = _nodes.back().get();
    }
  }

  void AddHandler(int i_node) { _last = _nodes[static_cast<std::size_t>(i_node)]->Connect(_observer); }
  void AddHandlerElsewhere() { _elsewhere.Connect(_observer); }
  void RemoveHandler(int) { _last.disconnect(); }
  void Raise()
  {
    Payload payload{1};
    for (Node<Signal>* pNode = _nodes.front().get(); pNode; pNode = pNode->_pParent)
      pNode->_signal(payload);
  }

private:
  Observer& _observer;
  Listener<Signal> _elsewhere;
  std::vector<boost::intrusive_ptr<Node<Signal>>> _nodes;
  signals::connection _last;
};

template <class Signal>
class Crowd
{
public:
  Crowd(int i_count, Observer& io_observer) : _observer(io_observer) { _listeners.reserve(static_cast<std::size_t>(i_count)); }
  void Add() { _listeners.emplace_back(new Listener<Signal>); }
  void AddHandlerToLast() { _listeners.back()->Connect(_observer); }

private:
  Observer& _observer;
  std::vector<boost::intrusive_ptr<Listener<Signal>>> _listeners;
};
} // namespace

void RegisterSignals2(const std::string& i_state)
{
  RegisterCases<World<LockedSignal>, Crowd<LockedSignal>>("Boost.Signals2", i_state);
  RegisterCases<World<UnlockedSignal>, Crowd<UnlockedSignal>>("Boost.Signals2 without mutex", i_state);
}
#else
void RegisterSignals2(const std::string&)
{
  AnnounceMissing("Boost.Signals2");
}
#endif
