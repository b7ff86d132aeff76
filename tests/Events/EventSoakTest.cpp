// Random operations on nodes, stores, handlers and dispatches, from outside, from within handlers and from the ends of
// handlers, each compared with EventModel as it happens. Half of the handlers are weak ones, whose targets die as randomly,
// also while a dispatch has them before it. The model comes first in each operation: the real one may be the
// end of a handler that goes on with another operation.
#include "EventModel.h"
#include "RecordingFailureHandler.h"
#include "SoakOperations.h"

#include "ZELHandle.h"
#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPEventHandlerInfo.h"
#include "ZELSYPEventHandlerInfoList.h"
#include "ZELSYPEventHandlersSupport.h"
#include "ZELSYPMakeWeakHandler.h"
#include "ZELSYPSingleEventPathBuilder.h"
#include "ZELSYPSupportsEventPathBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace
{
typedef EventModel::Id Id;

constexpr long s_ordinaryOperations = 200'000;
constexpr int s_nodes = 8;
constexpr int s_heldHandlers = 12;
constexpr int s_heldLists = 4;
constexpr int s_targets = 8;
constexpr int s_noTarget = -1;
constexpr int s_mostRegistrations = 48;
constexpr int s_deepest = 4;
constexpr int s_mostStepsInHandlers = 30;

class Soak;

class SoakArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;

public:
  explicit SoakArgs(ZELSYPEvent* i_pEvent) : ZELSYPEventArgs(i_pEvent) { ++s_living; }
  ~SoakArgs() override { --s_living; }
  static int s_living;
};
int SoakArgs::s_living = 0;
ZELImplementClass(SoakArgs, ZELSYPEventArgs, EventSoakTest);

class SoakNode : public ZELBaseUnknown
{
  ZELDeclareClass;

public:
  SoakNode(Soak& io_soak, Id i_id, int i_place) : _id(i_id), _place(i_place), _soak(io_soak) { ++s_living; }
  ~SoakNode() override;

  const Id _id;
  const int _place;
  ZELSYPEventHandlersSupport _support;
  static int s_living;

private:
  Soak& _soak;
};
int SoakNode::s_living = 0;
ZELImplementClass(SoakNode, ZELBaseUnknown, EventSoakTest);

class SoakMiddleNode : public SoakNode
{
  ZELDeclareClass;
  using SoakNode::SoakNode;
};
ZELImplementClass(SoakMiddleNode, SoakNode, EventSoakTest);

class SoakLeafNode : public SoakMiddleNode
{
  ZELDeclareClass;
  using SoakMiddleNode::SoakMiddleNode;
};
ZELImplementClass(SoakLeafNode, SoakMiddleNode, EventSoakTest);

class SoakHandler : public ZELSYPEventHandler
{
  ZELDeclareClass;

public:
  SoakHandler(Soak& io_soak, Id i_id, ZELMetaClass* i_pArgumentsClass, bool i_hasLastWords, int i_target);
  ~SoakHandler() override;
  void Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs) override;
  ZELMetaClass* GetArgumentsClass() override { return _pArgumentsClass; }
  int MustBeRemoved() override { return _isDead; }

  const Id _id;
  const bool _hasLastWords;
  // The number of the target that it dies with, or none.
  const int _target;
  // What stores know it as: itself, or the weak handler that holds it.
  ZELSYPEventHandler* _pRegistered = this;
  bool _isDead = false;
  static int s_living;

private:
  Soak& _soak;
  ZELMetaClass* const _pArgumentsClass;
};
int SoakHandler::s_living = 0;
ZELImplementClass(SoakHandler, ZELSYPEventHandler, EventSoakTest);

// Repeats itself for a seed, on every platform.
class Dice
{
public:
  explicit Dice(std::uint64_t i_seed) : _state(i_seed) {}
  int Throw(int i_sides) { return static_cast<int>(Next() % static_cast<std::uint64_t>(i_sides)); }
  bool IsOneOf(int i_sides) { return Throw(i_sides) == 0; }

private:
  std::uint64_t Next()
  {
    std::uint64_t mixed = _state += 0x9E3779B97F4A7C15u;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return (mixed ^ (mixed >> 31)) >> 8;
  }
  std::uint64_t _state;
};

class TreeBuilder : public ZELSYPSupportsEventPathBuilder
{
public:
  explicit TreeBuilder(Soak& io_soak) : _soak(io_soak) {}
  ZELBaseUnknown* GetParent(ZELSYPEventArgs*, ZELBaseUnknown* i_pNode) override;
  ZELSYPEventHandlersSupport* GetSupportForNode(ZELBaseUnknown* i_pNode) override;
  ZELSYPClassEventHandlersSupport* GetClassSupportForNode(ZELBaseUnknown*) override;

private:
  Soak& _soak;
};

// The real world beside its model.
class Soak
{
public:
  explicit Soak(std::uint64_t i_seed);
  ~Soak() { Close(); }
  Soak(const Soak&) = delete;
  Soak& operator=(const Soak&) = delete;

  void Run(long i_operations);
  // Gives up every node, store, handler and list, and answers the references that the events still have beyond the
  // factory's one.
  int Close();
  // Empty as long as both agree.
  const std::string& GetDisagreement() const { return _disagreement; }
  // How often a dispatch had to pass by a handler whose target died before its turn.
  std::size_t CountPassedBy() const { return _passedBy; }

  // What handlers and builders of this world tell and ask.
  void Enter(SoakHandler& io_handler) { _living[io_handler._id] = &io_handler; }
  void HandlerDies(const SoakHandler& i_handler);
  void NodeDies(const SoakNode& i_node) { _model.ForgetNode(i_node._id); }
  // The route reaches the node.
  void Reach(const SoakNode& i_node) { Reach(i_node, *_raised.back()); }
  void HandlerRuns(SoakHandler& io_handler, SoakNode& io_node, ZELSYPEventArgs& io_args);
  SoakNode* GetParent(const SoakNode& i_node);
  ZELSYPClassEventHandlersSupport* GetClassSupport() { return _spClassSupport.get(); }

private:
  // One of the places where handlers are registered.
  struct Store
  {
    ZELSYPEventHandlersSupport* _pSupport; // of a node
    ZELMetaClass* _pClass;                 // or else of a class
    EventModel::Store& _model;
  };
  struct HeldHandler
  {
    Id _id;
    ZELHandle<ZELSYPEventHandler> _spRegistered;
  };
  struct HeldList
  {
    ZELSYPEventHandlerInfoList _list;
    EventModel::List _model;
  };
  struct Raised
  {
    std::vector<EventModel::Stop> _route;
    int _event;
    ZELSYPEventArgs* _pArgs;
    std::size_t _reached = 0; // stops of the route
    EventModel::Dispatch _model{};
  };

  void Step();
  void StepInHandler(SoakHandler& io_handler, SoakNode& io_node, Raised& io_raised);
  void AddHandler(const Store& i_store, int i_event, SoakHandler& io_handler);
  void RemoveHandler(const Store& i_store, int i_event, Id i_handler);
  void RemoveSelf(const SoakHandler& i_handler, SoakNode& io_node, int i_event);
  void RemoveSome();
  void KillSome();
  HeldHandler NewHandler(ZELMetaClass* i_pArgumentsClass, bool i_hasLastWords, int i_target);
  void RenewHandler();
  void RenewTarget(int i_target);
  void RenewNode();
  void RenewClasses();
  void MoveNode();
  void ReplaceStore();
  void TakeList();
  void CheckList(const HeldList& i_held);
  void DispatchSome();
  void DispatchTo(int i_place, int i_event, ZELSYPEventArgs& io_args);
  void DispatchWithWrongArguments(int i_place);
  void DispatchWithWrongOrigin(int i_place);
  void RunBeside(ZELSYPEventPathBuilder& io_builder, int i_place, Raised& io_raised);
  void Reach(const SoakNode& i_node, Raised& io_raised);
  std::vector<EventModel::Stop> FindRoute(int i_place, int i_event) const;
  EventModel::Stop GetStop(int i_place) const;

  Store SomeStore();
  SoakHandler& SomeHandler();
  Id SomeHandlerOf(const EventModel::Store& i_store, int i_event);
  Id NewId() { return ++_lastId; }
  bool IsNeeded(Id i_handler) const;
  void CheckReports();
  void CheckWhoLives();
  template <class One, class Other>
  void Compare(const char* i_what, const One& i_real, const Other& i_model);

  RecordingFailureHandler _failures;
  std::vector<std::string> _expectedFailures;
  Dice _dice;
  EventModel _model;
  std::map<Id, SoakHandler*> _living;
  Id _lastId = 0;
  long _operations = 0;
  int _stepsInHandlers = 0;
  bool _isClosing = false;
  std::size_t _passedBy = 0;
  std::string _disagreement;

  ZELSYPEventFactory _factory;
  std::vector<ZELSYPEvent*> _events;
  std::unique_ptr<ZELSYPClassEventHandlersSupport> _spClassSupport = std::make_unique<ZELSYPClassEventHandlersSupport>();
  std::array<ZELHandle<SoakNode>, s_nodes> _nodes;
  std::array<int, s_nodes> _parents; // the place of each place's parent, -1 at a root; always a smaller one
  std::array<std::optional<ZELSYPWeakTarget>, s_targets> _targets;
  std::array<HeldHandler, s_heldHandlers> _held;
  std::array<HeldList, s_heldLists> _lists;
  std::vector<Raised*> _raised; // the dispatches that run, the innermost one last
};

SoakNode::~SoakNode()
{
  _soak.NodeDies(*this);
  --s_living;
}

SoakHandler::SoakHandler(Soak& io_soak, Id i_id, ZELMetaClass* i_pArgumentsClass, bool i_hasLastWords, int i_target)
    : _id(i_id), _hasLastWords(i_hasLastWords), _target(i_target), _soak(io_soak), _pArgumentsClass(i_pArgumentsClass)
{
  ++s_living;
  _soak.Enter(*this);
}

SoakHandler::~SoakHandler()
{
  --s_living;
  _soak.HandlerDies(*this);
}

void SoakHandler::Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs)
{
  _soak.HandlerRuns(*this, *static_cast<SoakNode*>(i_pNode), *i_pArgs);
}

ZELBaseUnknown* TreeBuilder::GetParent(ZELSYPEventArgs*, ZELBaseUnknown* i_pNode)
{
  return _soak.GetParent(*static_cast<SoakNode*>(i_pNode));
}

ZELSYPEventHandlersSupport* TreeBuilder::GetSupportForNode(ZELBaseUnknown* i_pNode)
{
  SoakNode& node = *static_cast<SoakNode*>(i_pNode);
  _soak.Reach(node);
  return &node._support;
}

ZELSYPClassEventHandlersSupport* TreeBuilder::GetClassSupportForNode(ZELBaseUnknown*)
{
  return _soak.GetClassSupport();
}

enum
{
  Upwards,
  DownwardsWithSoakArgs,
  OriginOnly,
  EventCount
};

enum
{
  LeafClass,
  MiddleClass,
  BaseClass,
  ClassCount
};

ZELMetaClass* GetClass(int i_class)
{
  ZELMetaClass* const classes[] = {SoakLeafNode::MetaObject(), SoakMiddleNode::MetaObject(), SoakNode::MetaObject()};
  return classes[i_class];
}

SoakNode* NewNode(Soak& io_soak, int i_class, Id i_id, int i_place)
{
  if (i_class == LeafClass)
    return new SoakLeafNode(io_soak, i_id, i_place);
  return i_class == MiddleClass ? new SoakMiddleNode(io_soak, i_id, i_place) : new SoakNode(io_soak, i_id, i_place);
}

Soak::Soak(std::uint64_t i_seed) : _dice(i_seed)
{
  _events = {_factory.NewEvent("Upwards", ZELSYPEvent::OriginToRoot, ZELSYPEventArgs::MetaObject(), SoakNode::MetaObject()),
             _factory.NewEvent("Downwards", ZELSYPEvent::RootToOrigin, SoakArgs::MetaObject(), SoakNode::MetaObject()),
             _factory.NewEvent("OriginOnly", ZELSYPEvent::NoPropagation, ZELSYPEventArgs::MetaObject(), SoakNode::MetaObject())};
  _parents.fill(-1);
  for (int place = 0; place < s_nodes; ++place)
    _nodes[static_cast<std::size_t>(place)] = ZELHandle<SoakNode>::Adopt(NewNode(*this, _dice.Throw(ClassCount), NewId(), place));
  for (int place = s_nodes - 1; place > 0; --place)
    _parents[static_cast<std::size_t>(place)] = place - 1;
  for (std::optional<ZELSYPWeakTarget>& target : _targets)
    target.emplace();
  for (HeldHandler& held : _held)
    held = NewHandler(ZELSYPEventArgs::MetaObject(), false, s_noTarget);
}

int Soak::Close()
{
  _isClosing = true;
  _lists = {};
  _nodes = {};
  _held = {};
  _spClassSupport.reset();
  int references = 0;
  for (ZELSYPEvent* const pEvent : _events)
  {
    pEvent->AddRef();
    references += pEvent->Release() - 1;
  }
  return references;
}

template <class One, class Other>
void Soak::Compare(const char* i_what, const One& i_real, const Other& i_model)
{
  if (i_real == i_model || !_disagreement.empty())
    return;
  std::ostringstream text;
  text << i_what << " is " << i_real << " and should be " << i_model << " in operation " << _operations;
  _disagreement = text.str();
}

void Soak::Run(long i_operations)
{
  while (_operations < i_operations && _disagreement.empty())
  {
    _stepsInHandlers = 0;
    Step();
    CheckReports();
    CheckWhoLives();
  }
}

void Soak::Step()
{
  ++_operations;
  switch (_dice.Throw(19))
  {
  case 0:
  case 1:
  case 2:
  case 3:
  case 4:
    return _model.CountRegistrations() < s_mostRegistrations ? AddHandler(SomeStore(), _dice.Throw(EventCount), SomeHandler())
                                                             : RemoveSome();
  case 5:
  case 6:
    return RemoveSome();
  case 7:
    return KillSome();
  case 8:
  case 9:
    return RenewHandler();
  case 10:
    return RenewTarget(_dice.Throw(s_targets));
  case 11:
    return RenewNode();
  case 12:
    return MoveNode();
  case 13:
    return ReplaceStore();
  case 14:
    return TakeList();
  case 15:
    return _dice.IsOneOf(8) ? RenewClasses() : RemoveSome();
  default:
    return DispatchSome();
  }
}

void Soak::AddHandler(const Store& i_store, int i_event, SoakHandler& io_handler)
{
  ZELSYPEvent* const pEvent = _events[static_cast<std::size_t>(i_event)];
  const bool handlesConsumed = _dice.IsOneOf(3);
  const bool isAccepted = i_event == DownwardsWithSoakArgs || io_handler.GetArgumentsClass() == ZELSYPEventArgs::MetaObject();
  if (isAccepted)
    EventModel::Add(i_store._model, i_event, io_handler._id, handlesConsumed);
  else
    _expectedFailures.push_back("The handler expects argument of type SoakArgs but the event uses arguments of type ZELSYPEventArgs");
  const int result = i_store._pSupport
                         ? i_store._pSupport->AddHandler(pEvent, io_handler._pRegistered, handlesConsumed)
                         : _spClassSupport->AddClassHandler(i_store._pClass, pEvent, io_handler._pRegistered, handlesConsumed);
  Compare("the answer of AddHandler", result, isAccepted ? 1 : 0);
}

void Soak::RemoveHandler(const Store& i_store, int i_event, Id i_handler)
{
  const auto found = _living.find(i_handler);
  Compare("whether a registered handler lives", found != _living.end(), true);
  if (found == _living.end())
    return;
  ZELSYPEventHandler* const pHandler = found->second->_pRegistered;
  ZELSYPEvent* const pEvent = _events[static_cast<std::size_t>(i_event)];
  const bool isThere = EventModel::Remove(i_store._model, i_event, i_handler);
  const int result = i_store._pSupport ? i_store._pSupport->RemoveHandler(pEvent, pHandler)
                                       : _spClassSupport->RemoveClassHandler(i_store._pClass, pEvent, pHandler);
  Compare("the answer of RemoveHandler", result, isThere ? 1 : 0);
}

void Soak::RemoveSome()
{
  const Store store = SomeStore();
  const int event = _dice.Throw(EventCount);
  RemoveHandler(store, event, SomeHandlerOf(store._model, event));
}

void Soak::RemoveSelf(const SoakHandler& i_handler, SoakNode& io_node, int i_event)
{
  RemoveHandler({&io_node._support, nullptr, _model.AtNode(io_node._id)}, i_event, i_handler._id);
}

void Soak::KillSome()
{
  auto found = _living.begin();
  std::advance(found, _dice.Throw(static_cast<int>(_living.size())));
  found->second->_isDead = true;
  _model.Kill(found->first);
}

Soak::HeldHandler Soak::NewHandler(ZELMetaClass* i_pArgumentsClass, bool i_hasLastWords, int i_target)
{
  const auto spHandler = ZELHandle<SoakHandler>::Adopt(new SoakHandler(*this, NewId(), i_pArgumentsClass, i_hasLastWords, i_target));
  if (i_target == s_noTarget)
    return {spHandler->_id, spHandler};
  HeldHandler weak{spHandler->_id, ZELSYPMakeWeakHandler(*_targets[static_cast<std::size_t>(i_target)], spHandler)};
  spHandler->_pRegistered = weak._spRegistered;
  return weak;
}

void Soak::RenewHandler()
{
  ZELMetaClass* const pArguments = _dice.IsOneOf(4) ? SoakArgs::MetaObject() : ZELSYPEventArgs::MetaObject();
  const bool hasLastWords = _dice.IsOneOf(2);
  HeldHandler fresh = NewHandler(pArguments, hasLastWords, _dice.IsOneOf(2) ? _dice.Throw(s_targets) : s_noTarget);
  std::swap(_held[static_cast<std::size_t>(_dice.Throw(s_heldHandlers))], fresh);
}

// The handlers of the old one are to be removed, and run no more in the dispatches that have them before them.
void Soak::RenewTarget(int i_target)
{
  for (const auto& [id, pHandler] : _living)
    if (pHandler->_target == i_target)
    {
      _model.Kill(id);
      for (Raised* const pRaised : _raised)
        _passedBy += pRaised->_model.PassBy(id);
    }
  _targets[static_cast<std::size_t>(i_target)].emplace();
}

// The old node may live on in the route of a dispatch, with its store.
void Soak::RenewNode()
{
  const int place = _dice.Throw(s_nodes);
  _nodes[static_cast<std::size_t>(place)] = ZELHandle<SoakNode>::Adopt(NewNode(*this, _dice.Throw(ClassCount), NewId(), place));
}

void Soak::RenewClasses()
{
  _model.ForgetClasses();
  _spClassSupport = std::make_unique<ZELSYPClassEventHandlersSupport>();
}

void Soak::MoveNode()
{
  const int place = _dice.Throw(s_nodes);
  _parents[static_cast<std::size_t>(place)] = _dice.Throw(place + 1) - 1;
}

void Soak::ReplaceStore()
{
  SoakNode& node = *_nodes[static_cast<std::size_t>(_dice.Throw(s_nodes))];
  const Store other = SomeStore();
  ZELSYPEventHandlersSupport* const pOther = other._pSupport ? other._pSupport : _spClassSupport->GetClassHandlersSupport(other._pClass);
  if (!pOther)
    return;
  const EventModel::Store copy = other._model;
  _model.AtNode(node._id) = copy;
  node._support.ReplaceHandlers(*pOther);
}

void Soak::TakeList()
{
  HeldList& held = _lists[static_cast<std::size_t>(_dice.Throw(s_heldLists))];
  CheckList(held);
  SoakNode& node = *_nodes[static_cast<std::size_t>(_dice.Throw(s_nodes))];
  const int event = _dice.Throw(EventCount);
  HeldList taken;
  taken._model = _model.GetHandlers(_model.AtNode(node._id), event);
  taken._list = node._support.GetHandlersList(_events[static_cast<std::size_t>(event)]);
  std::swap(held, taken);
  CheckList(held);
}

void Soak::CheckList(const HeldList& i_held)
{
  const int size = static_cast<int>(i_held._model.size());
  Compare("the size of a list", i_held._list.GetSize(), size);
  for (int index = 0; index < size && _disagreement.empty(); ++index)
  {
    const EventModel::Registration& expected = i_held._model[static_cast<std::size_t>(index)];
    const ZELSYPEventHandlerInfo* const pInfo = i_held._list.Get(index);
    const auto found = _living.find(expected._handler);
    Compare("whether a handler of a list lives", found != _living.end(), true);
    if (found != _living.end())
      Compare("a handler of a list", pInfo->GetHandler(), found->second->_pRegistered);
    Compare("the flag of a list", pInfo->GetHandleConsumedEvents() != 0, expected._handlesConsumed);
  }
}

void Soak::DispatchSome()
{
  const int place = _dice.Throw(s_nodes);
  if (_dice.IsOneOf(32))
    return DispatchWithWrongArguments(place);
  if (_dice.IsOneOf(32))
    return DispatchWithWrongOrigin(place);
  const int event = _dice.Throw(EventCount);
  ZELSYPEvent* const pEvent = _events[static_cast<std::size_t>(event)];
  if (event == DownwardsWithSoakArgs || _dice.IsOneOf(2))
  {
    SoakArgs args(pEvent);
    return DispatchTo(place, event, args);
  }
  ZELSYPEventArgs args(pEvent);
  DispatchTo(place, event, args);
}

void Soak::DispatchTo(int i_place, int i_event, ZELSYPEventArgs& io_args)
{
  SoakNode& node = *_nodes[static_cast<std::size_t>(i_place)];
  if (_dice.IsOneOf(8))
  {
    ZELSYPSingleEventPathBuilder builder(&node._support, _spClassSupport.get());
    Raised raised{{GetStop(i_place)}, i_event, &io_args};
    Reach(node, raised);
    return RunBeside(builder, i_place, raised);
  }
  TreeBuilder builder(*this);
  Raised raised{FindRoute(i_place, i_event), i_event, &io_args};
  RunBeside(builder, i_place, raised);
}

void Soak::RunBeside(ZELSYPEventPathBuilder& io_builder, int i_place, Raised& io_raised)
{
  _raised.push_back(&io_raised);
  const int result = io_builder.Dispatch(_nodes[static_cast<std::size_t>(i_place)], io_raised._pArgs);
  _raised.pop_back();
  Compare("the answer of Dispatch", result, 1);
  Compare("the number of nodes reached", io_raised._reached, io_raised._route.size());
  const EventModel::Run* const pLeft = io_raised._model.Next();
  Compare("the handler that should run after the last one", pLeft ? pLeft->_handler : 0, 0);
}

void Soak::DispatchWithWrongArguments(int i_place)
{
  _expectedFailures.push_back("The event expects argument of type SoakArgs but the dispatch arguments are of type ZELSYPEventArgs");
  _expectedFailures.push_back("pointer pPath is NULL");
  ZELSYPEventArgs args(_events[DownwardsWithSoakArgs]);
  Compare("the answer of a refused Dispatch", TreeBuilder(*this).Dispatch(_nodes[static_cast<std::size_t>(i_place)], &args), 0);
}

void Soak::DispatchWithWrongOrigin(int i_place)
{
  _expectedFailures.push_back("boolean i_pOrigin->IsEqual(i_pArgs->GetOrigin()) is FALSE");
  ZELSYPEventArgs args(_events[Upwards]);
  args.SetOrigin(_nodes[static_cast<std::size_t>((i_place + 1) % s_nodes)]);
  Compare("the answer of a refused Dispatch", TreeBuilder(*this).Dispatch(_nodes[static_cast<std::size_t>(i_place)], &args), 0);
}

EventModel::Stop Soak::GetStop(int i_place) const
{
  const SoakNode& node = *_nodes[static_cast<std::size_t>(i_place)];
  EventModel::Stop stop{node._id, {}};
  for (int each = 0; each < ClassCount; ++each)
    if (node.IsAKindOf(GetClass(each)))
      stop._classes.push_back(each);
  return stop;
}

std::vector<EventModel::Stop> Soak::FindRoute(int i_place, int i_event) const
{
  std::vector<EventModel::Stop> route{GetStop(i_place)};
  if (i_event == OriginOnly)
    return route;
  for (int place = _parents[static_cast<std::size_t>(i_place)]; place >= 0; place = _parents[static_cast<std::size_t>(place)])
    route.push_back(GetStop(place));
  if (i_event == DownwardsWithSoakArgs)
    std::reverse(route.begin(), route.end());
  return route;
}

SoakNode* Soak::GetParent(const SoakNode& i_node)
{
  const int parent = _parents[static_cast<std::size_t>(i_node._place)];
  return parent < 0 ? nullptr : &*_nodes[static_cast<std::size_t>(parent)];
}

// The stores of a node are asked once, and what they drop then lives until both have answered.
void Soak::Reach(const SoakNode& i_node, Raised& io_raised)
{
  const bool isOnRoute = io_raised._reached < io_raised._route.size();
  Compare("the node that is reached", i_node._id, isOnRoute ? io_raised._route[io_raised._reached]._node : 0);
  if (isOnRoute)
    _model.TakeLists(io_raised._route[io_raised._reached++], io_raised._event, io_raised._model);
}

void Soak::HandlerDies(const SoakHandler& i_handler)
{
  _living.erase(i_handler._id);
  if (_isClosing || !_disagreement.empty())
    return;
  Compare("whether a handler is needed as it dies", IsNeeded(i_handler._id), false);
  if (!i_handler._hasLastWords || _stepsInHandlers >= s_mostStepsInHandlers || _raised.size() >= s_deepest)
    return;
  ++_stepsInHandlers;
  return _dice.IsOneOf(2) ? ReplaceStore() : Step();
}

void Soak::HandlerRuns(SoakHandler& io_handler, SoakNode& io_node, ZELSYPEventArgs& io_args)
{
  if (!_disagreement.empty())
    return;
  Raised& raised = *_raised.back();
  const EventModel::Run* const pExpected = raised._model.Next();
  Compare("the handler that runs", io_handler._id, pExpected ? pExpected->_handler : 0);
  Compare("the node it runs for", io_node._id, pExpected ? pExpected->_node : 0);
  Compare("the arguments it runs with", &io_args, raised._pArgs);
  if (io_handler._isDead || _stepsInHandlers >= s_mostStepsInHandlers || !_disagreement.empty())
    return;
  ++_stepsInHandlers;
  StepInHandler(io_handler, io_node, raised);
}

void Soak::StepInHandler(SoakHandler& io_handler, SoakNode& io_node, Raised& io_raised)
{
  switch (_dice.Throw(9))
  {
  case 0:
    io_raised._pArgs->Consume();
    return io_raised._model.Consume();
  case 1:
    return RemoveSelf(io_handler, io_node, io_raised._event);
  case 2:
    return io_handler._target == s_noTarget ? void() : RenewTarget(io_handler._target);
  case 3:
  case 4:
    return;
  case 5:
    if (_raised.size() < s_deepest)
      DispatchSome();
    return;
  default:
    if (_raised.size() < s_deepest)
      Step();
  }
}

Soak::Store Soak::SomeStore()
{
  if (_dice.IsOneOf(4))
  {
    const int itsClass = _dice.Throw(ClassCount);
    return {nullptr, GetClass(itsClass), _model.AtClass(itsClass)};
  }
  SoakNode& node = *_nodes[static_cast<std::size_t>(_dice.Throw(s_nodes))];
  return {&node._support, nullptr, _model.AtNode(node._id)};
}

SoakHandler& Soak::SomeHandler()
{
  return *_living.at(_held[static_cast<std::size_t>(_dice.Throw(s_heldHandlers))]._id);
}

// Mostly one that is registered there.
Id Soak::SomeHandlerOf(const EventModel::Store& i_store, int i_event)
{
  const auto found = i_store.find(i_event);
  if (found == i_store.end() || found->second.empty() || _dice.IsOneOf(8))
    return SomeHandler()._id;
  return found->second[static_cast<std::size_t>(_dice.Throw(static_cast<int>(found->second.size())))]._handler;
}

// Whether it is registered somewhere, held here, or has its turn before it in a dispatch.
bool Soak::IsNeeded(Id i_handler) const
{
  std::set<Id> needed;
  _model.AddHandlersTo(needed);
  for (const HeldHandler& held : _held)
    needed.insert(held._id);
  for (const HeldList& held : _lists)
    for (const EventModel::Registration& each : held._model)
      needed.insert(each._handler);
  return needed.count(i_handler) > 0 ||
         std::any_of(_raised.begin(), _raised.end(), [=](const Raised* i_pRaised) { return i_pRaised->_model.WillRun(i_handler); });
}

void Soak::CheckReports()
{
  const std::vector<std::string> reports = _failures.GetMessages();
  Compare("the number of reports", reports.size(), _expectedFailures.size());
  for (std::size_t index = 0; index < reports.size() && _disagreement.empty(); ++index)
    Compare("a report", reports[index], _expectedFailures[index]);
  if (reports.empty())
    return;
  _failures.Clear();
  _expectedFailures.clear();
}

// Between dispatches: nodes live while they have a place, handlers while someone here or a list holds them.
void Soak::CheckWhoLives()
{
  Compare("the number of living nodes", SoakNode::s_living, s_nodes);
  Compare("the number of living arguments", SoakArgs::s_living, 0);
  std::set<Id> handlers;
  _model.AddHandlersTo(handlers);
  for (const HeldHandler& held : _held)
    handlers.insert(held._id);
  for (const HeldList& held : _lists)
    for (const EventModel::Registration& each : held._model)
      handlers.insert(each._handler);
  _model.KeepDead(handlers);
  Compare("the number of living handlers", _living.size(), handlers.size());
  for (const Id handler : handlers)
    Compare("the number of handlers of that number", _living.count(handler), 1u);
}

class EventSoakTest : public testing::TestWithParam<int>
{
protected:
  static constexpr int s_seeds = 4;
};

TEST_P(EventSoakTest, RandomOperationsAgreeWithTheModelStepByStepAndLeaveNothingBehind)
{
  Soak soak(static_cast<std::uint64_t>(GetParam()));
  soak.Run(GetSoakOperations(s_ordinaryOperations) / s_seeds);
  EXPECT_EQ(soak.GetDisagreement(), "");
  EXPECT_GT(soak.CountPassedBy(), 0u);
  EXPECT_EQ(soak.Close(), 0) << "references on events that nobody gave back";
  EXPECT_EQ(SoakNode::s_living, 0);
  EXPECT_EQ(SoakArgs::s_living, 0);
  EXPECT_EQ(SoakHandler::s_living, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, EventSoakTest, testing::Values(1, 2, 3, 4));
} // namespace
