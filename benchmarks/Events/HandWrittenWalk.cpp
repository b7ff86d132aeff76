// What a careful author writes without a library: nodes and handlers counted by boost::intrusive_ptr (atomic), per node a
// std::unordered_map from event to a list that is copied on write, a snapshot of each list that is not empty taken before
// the first handler runs, and a flag that ends the run for those who do not want consumed events.
#include "EventsCases.h"

#if OPX_PEER_BOOST
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <vector>

namespace
{
class Counted : public boost::intrusive_ref_counter<Counted, boost::thread_safe_counter>
{
public:
  virtual ~Counted() = default;
};

struct Event
{
};

struct Class
{
  const Class* _pBase;
};

class Node;

struct Args : Payload
{
  const Event* _pEvent;
  boost::intrusive_ptr<Node> _spOrigin;
  bool _isConsumed = false;
};

class Handler : public Counted
{
public:
  virtual void Handle(Node& io_node, Args& io_args) = 0;
};

struct Registration
{
  boost::intrusive_ptr<Handler> _spHandler;
  bool _handlesConsumed;
};

typedef std::vector<Registration> List;
typedef std::shared_ptr<List> Snapshot;

class Store
{
public:
  void Add(const Event* i_pEvent, Handler* i_pHandler) { Own(i_pEvent).push_back({i_pHandler, false}); }
  void Remove(const Event* i_pEvent, const Handler* i_pHandler)
  {
    List& list = Own(i_pEvent);
    const auto found = std::find_if(list.begin(), list.end(), [&](const Registration& i_each) { return i_each._spHandler == i_pHandler; });
    if (found != list.end())
      list.erase(found);
  }
  const Snapshot* Find(const Event* i_pEvent) const
  {
    const auto found = _lists.find(i_pEvent);
    return found == _lists.end() || found->second->empty() ? nullptr : &found->second;
  }

private:
  List& Own(const Event* i_pEvent)
  {
    Snapshot& spList = _lists[i_pEvent];
    if (!spList)
      spList = std::make_shared<List>();
    else if (spList.use_count() > 1)
      spList = std::make_shared<List>(*spList);
    return *spList;
  }

  std::unordered_map<const Event*, Snapshot> _lists;
};

class Listener : public Counted
{
public:
  Store _store;
};

class Node : public Listener
{
public:
  Node* _pParent = nullptr;
  const Class* _pClass = nullptr;
};

struct Step
{
  boost::intrusive_ptr<Node> _spNode;
  Snapshot _spList;
};

class Teller : public Handler
{
public:
  explicit Teller(Observer& io_observer) : _observer(io_observer) {}
  void Handle(Node&, Args& io_args) override { _observer.Notice(io_args._amount); }

private:
  Observer& _observer;
};

class World
{
public:
  World(int i_depth, Observer& io_observer) : _spHandler(new Teller(io_observer))
  {
    for (int index = 0; index < i_depth; ++index)
    {
      _nodes.emplace_back(new Node);
      _nodes.back()->_pClass = &_leaf;
      if (index > 0)
        _nodes[static_cast<std::size_t>(index) - 1]->_pParent = _nodes.back().get();
    }
  }

  void AddHandler(int i_node) { _nodes[static_cast<std::size_t>(i_node)]->_store.Add(&_event, _spHandler.get()); }
  void AddHandlerElsewhere() { _elsewhere.Add(&_event, _spHandler.get()); }
  void RemoveHandler(int i_node) { _nodes[static_cast<std::size_t>(i_node)]->_store.Remove(&_event, _spHandler.get()); }
  void AddClassHandler() { _classStores[&_middle].Add(&_event, _spHandler.get()); }

  void Raise()
  {
    Args args;
    args._amount = 1;
    args._pEvent = &_event;
    args._spOrigin = _nodes.front();
    std::vector<Step> route;
    for (Node* pNode = args._spOrigin.get(); pNode; pNode = pNode->_pParent)
      AddSteps(*pNode, args, route);
    for (const Step& step : route)
      Run(step, args);
  }

private:
  void AddSteps(Node& io_node, const Args& i_args, std::vector<Step>& io_route) const
  {
    if (!_classStores.empty())
      for (const Class* pClass = io_node._pClass; pClass; pClass = pClass->_pBase)
      {
        const auto found = _classStores.find(pClass);
        if (found != _classStores.end())
          AddStep(io_node, found->second, i_args, io_route);
      }
    AddStep(io_node, io_node._store, i_args, io_route);
  }
  static void AddStep(Node& io_node, const Store& i_store, const Args& i_args, std::vector<Step>& io_route)
  {
    if (const Snapshot* pList = i_store.Find(i_args._pEvent))
      io_route.push_back({&io_node, *pList});
  }
  static void Run(const Step& i_step, Args& io_args)
  {
    for (const Registration& each : *i_step._spList)
      if (!io_args._isConsumed || each._handlesConsumed)
        each._spHandler->Handle(*i_step._spNode, io_args);
  }

  Event _event;
  Class _base{nullptr};
  Class _middle{&_base};
  Class _leaf{&_middle};
  Store _elsewhere;
  boost::intrusive_ptr<Handler> _spHandler;
  std::vector<boost::intrusive_ptr<Node>> _nodes;
  std::unordered_map<const Class*, Store> _classStores;
};

class Crowd
{
public:
  Crowd(int i_count, Observer& io_observer) : _spHandler(new Teller(io_observer)) { _listeners.reserve(static_cast<std::size_t>(i_count)); }
  void Add() { _listeners.emplace_back(new Listener); }
  void AddHandlerToLast() { _listeners.back()->_store.Add(&_event, _spHandler.get()); }

private:
  Event _event;
  boost::intrusive_ptr<Handler> _spHandler;
  std::vector<boost::intrusive_ptr<Listener>> _listeners;
};

void CopyList(benchmark::State& io_state)
{
  const Snapshot spList = std::make_shared<List>(10);
  for (auto _ : io_state)
  {
    Snapshot spCopy = spList;
    benchmark::DoNotOptimize(spCopy);
  }
}
} // namespace

void RegisterHandWritten(const std::string& i_state)
{
  RegisterCases<World, Crowd>("hand-written walk", i_state);
  RegisterClassCases<World>("hand-written walk", i_state);
  Register("CopyList/std::shared_ptr" + i_state, CopyList);
}
#else
void RegisterHandWritten(const std::string&)
{
  AnnounceMissing("boost::intrusive_ptr");
}
#endif
