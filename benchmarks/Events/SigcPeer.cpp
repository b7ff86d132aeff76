// sigc++: a signal a node, the parents are walked by hand.
#include "EventsCases.h"

#if OPX_PEER_SIGC
#include <sigc++/sigc++.h>

#include <memory>
#include <vector>

namespace
{
class Listener
{
public:
  virtual ~Listener() = default;
  sigc::connection Connect(Observer& io_observer)
  {
    return _signal.connect([pObserver = &io_observer](Payload& io_payload) { pObserver->Notice(io_payload._amount); });
  }

  sigc::signal<void(Payload&)> _signal;
};

class Node : public Listener
{
public:
  Node* _pParent = nullptr;
};

class World
{
public:
  World(int i_depth, Observer& io_observer) : _observer(io_observer)
  {
    for (int index = 0; index < i_depth; ++index)
    {
      _nodes.push_back(std::make_shared<Node>());
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
    for (Node* pNode = _nodes.front().get(); pNode; pNode = pNode->_pParent)
      pNode->_signal.emit(payload);
  }

private:
  Observer& _observer;
  Listener _elsewhere;
  std::vector<std::shared_ptr<Node>> _nodes;
  sigc::connection _last;
};

class Crowd
{
public:
  Crowd(int i_count, Observer& io_observer) : _observer(io_observer) { _listeners.reserve(static_cast<std::size_t>(i_count)); }
  void Add() { _listeners.push_back(std::make_shared<Listener>()); }
  void AddHandlerToLast() { _listeners.back()->Connect(_observer); }

private:
  Observer& _observer;
  std::vector<std::shared_ptr<Listener>> _listeners;
};
} // namespace

void RegisterSigc(const std::string& i_state)
{
  RegisterCases<World, Crowd>("sigc++", i_state);
}
#else
void RegisterSigc(const std::string&)
{
  AnnounceMissing("sigc++");
}
#endif
