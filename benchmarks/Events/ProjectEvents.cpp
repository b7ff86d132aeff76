// The project: nodes of a class of three levels above the base object, each with a store of its own, and one class store
// for all, which is asked at every node, empty or not.
#include "EventsCases.h"

#include "ZELHandle.h"
#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPEventHandlerInfoList.h"
#include "ZELSYPEventHandlersSupport.h"
#include "ZELSYPSimpleEventListener.h"
#include "ZELSYPSupportsEventPathBuilder.h"

#include <vector>

namespace
{
class BaseNode : public ZELBaseUnknown
{
  ZELDeclareClass;
};
ZELImplementClass(BaseNode, ZELBaseUnknown, EventsBenchmark);

class MiddleNode : public BaseNode
{
  ZELDeclareClass;
};
ZELImplementClass(MiddleNode, BaseNode, EventsBenchmark);

class Node : public MiddleNode
{
  ZELDeclareClass;

public:
  Node* _pParent = nullptr;
  ZELSYPEventHandlersSupport _support;
};
ZELImplementClass(Node, MiddleNode, EventsBenchmark);

class PayloadArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;

public:
  PayloadArgs(ZELSYPEvent* i_pEvent, long i_amount) : ZELSYPEventArgs(i_pEvent), _payload{i_amount} {}
  Payload _payload;
};
ZELImplementClass(PayloadArgs, ZELSYPEventArgs, EventsBenchmark);

class Teller : public ZELSYPEventHandler
{
  ZELDeclareClass;

public:
  explicit Teller(Observer& io_observer) : _observer(io_observer) {}
  void Handle(ZELBaseUnknown*, ZELSYPEventArgs* i_pArgs) override
  {
    _observer.Notice(static_cast<PayloadArgs*>(i_pArgs)->_payload._amount);
  }
  ZELMetaClass* GetArgumentsClass() override { return PayloadArgs::MetaObject(); }
  int MustBeRemoved() override { return 0; }

private:
  Observer& _observer;
};
ZELImplementClass(Teller, ZELSYPEventHandler, EventsBenchmark);

class Listener : public ZELSYPSimpleEventListener
{
  ZELDeclareClass;

public:
  Listener() = default;
};
ZELImplementClass(Listener, ZELSYPSimpleEventListener, EventsBenchmark);

ZELSYPEvent* GetRaised()
{
  static ZELSYPEventFactory s_factory;
  static ZELSYPEvent* const s_pRaised =
      s_factory.NewEvent("Raised", ZELSYPEvent::OriginToRoot, PayloadArgs::MetaObject(), BaseNode::MetaObject());
  return s_pRaised;
}

class Builder : public ZELSYPSupportsEventPathBuilder
{
public:
  explicit Builder(ZELSYPClassEventHandlersSupport& io_classSupport) : _classSupport(io_classSupport) {}

private:
  ZELBaseUnknown* GetParent(ZELSYPEventArgs*, ZELBaseUnknown* i_pNode) override { return static_cast<Node*>(i_pNode)->_pParent; }
  ZELSYPEventHandlersSupport* GetSupportForNode(ZELBaseUnknown* i_pNode) override { return &static_cast<Node*>(i_pNode)->_support; }
  ZELSYPClassEventHandlersSupport* GetClassSupportForNode(ZELBaseUnknown*) override { return &_classSupport; }

  ZELSYPClassEventHandlersSupport& _classSupport;
};

class World
{
public:
  World(int i_depth, Observer& io_observer) : _spHandler(ZELHandle<Teller>::Adopt(new Teller(io_observer)))
  {
    for (int index = 0; index < i_depth; ++index)
    {
      _nodes.push_back(ZELHandle<Node>::Adopt(new Node));
      if (index > 0)
        _nodes[static_cast<std::size_t>(index) - 1]->_pParent = _nodes.back();
    }
  }

  void AddHandler(int i_node) { _nodes[static_cast<std::size_t>(i_node)]->_support.AddHandler(GetRaised(), _spHandler, 0); }
  void AddHandlerElsewhere() { _elsewhere.AddHandler(GetRaised(), _spHandler, 0); }
  void RemoveHandler(int i_node) { _nodes[static_cast<std::size_t>(i_node)]->_support.RemoveHandler(GetRaised(), _spHandler); }
  void AddClassHandler() { _classSupport.AddClassHandler(MiddleNode::MetaObject(), GetRaised(), _spHandler, 0); }

  void Raise()
  {
    PayloadArgs args(GetRaised(), 1);
    Builder(_classSupport).Dispatch(_nodes.front(), &args);
  }

private:
  ZELSYPClassEventHandlersSupport _classSupport;
  ZELSYPEventHandlersSupport _elsewhere;
  ZELHandle<Teller> _spHandler;
  std::vector<ZELHandle<Node>> _nodes;
};

class Crowd
{
public:
  Crowd(int i_count, Observer& io_observer) : _spHandler(ZELHandle<Teller>::Adopt(new Teller(io_observer)))
  {
    _listeners.reserve(static_cast<std::size_t>(i_count));
  }
  void Add() { _listeners.push_back(ZELHandle<Listener>::Adopt(new Listener)); }
  void AddHandlerToLast() { _listeners.back()->AddHandler(GetRaised(), _spHandler, 0); }

private:
  ZELHandle<Teller> _spHandler;
  std::vector<ZELHandle<Listener>> _listeners;
};

void CopyList(benchmark::State& io_state)
{
  Observer observer;
  const auto spHandler = ZELHandle<Teller>::Adopt(new Teller(observer));
  ZELSYPEventHandlerInfoList list;
  for (int count = 0; count < 10; ++count)
    list.AddHandler(spHandler, 0);
  for (auto _ : io_state)
  {
    ZELSYPEventHandlerInfoList copy = list;
    benchmark::DoNotOptimize(copy);
  }
}
} // namespace

void RegisterProject(const std::string& i_state)
{
  RegisterCases<World, Crowd>("Project", i_state);
  RegisterClassCases<World>("Project", i_state);
  Register("CopyList/Project" + i_state, CopyList);
}
