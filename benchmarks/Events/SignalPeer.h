// SignalPeer: the World and the Crowd of a contender that has a signal a node, whose parents are walked by hand.
// RegisterCases<SignalWorld<SigcTypes>, SignalCrowd<SigcTypes>>("sigc++", i_state);
//
// Types has the contender's Signal (called with a Payload&) and its Connection, a Counted that nodes derive from, the
// Pointer<Node> that counts them, and Make<Node>(), which makes one.
#ifndef SignalPeer_H
#define SignalPeer_H

#include "EventsCases.h"

#include <vector>

template <class Types>
class SignalListener : public Types::Counted
{
public:
  auto Connect(Observer& io_observer)
  {
    return _signal.connect([pObserver = &io_observer](Payload& io_payload) { pObserver->Notice(io_payload._amount); });
  }

  typename Types::Signal _signal;
};

template <class Types>
class SignalNode : public SignalListener<Types>
{
public:
  SignalNode* _pParent = nullptr;
};

template <class Types>
class SignalWorld
{
public:
  SignalWorld(int i_depth, Observer& io_observer) : _observer(io_observer)
  {
    for (int index = 0; index < i_depth; ++index)
    {
      _nodes.push_back(Types::template Make<SignalNode<Types>>());
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
    for (SignalNode<Types>* pNode = _nodes.front().get(); pNode; pNode = pNode->_pParent)
      pNode->_signal(payload);
  }

private:
  Observer& _observer;
  SignalListener<Types> _elsewhere;
  std::vector<typename Types::template Pointer<SignalNode<Types>>> _nodes;
  typename Types::Connection _last;
};

template <class Types>
class SignalCrowd
{
public:
  SignalCrowd(int i_count, Observer& io_observer) : _observer(io_observer) { _listeners.reserve(static_cast<std::size_t>(i_count)); }
  void Add() { _listeners.push_back(Types::template Make<SignalListener<Types>>()); }
  void AddHandlerToLast() { _listeners.back()->Connect(_observer); }

private:
  Observer& _observer;
  std::vector<typename Types::template Pointer<SignalListener<Types>>> _listeners;
};

#endif
