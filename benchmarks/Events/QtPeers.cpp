// Qt 6: once a signal a node with functors as slots, once an event of its own sent to the node, where its handlers are
// event filters. Objects know their parents; these are walked by hand. (An event sent to the origin alone would go no
// further: Qt hands events to parents in windows only.)
#include "EventsCases.h"

#if OPX_PEER_QT
#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QList>
#include <QtCore/QObject>

#include <memory>
#include <vector>

namespace QtPeers
{
class Node : public QObject
{
  Q_OBJECT
Q_SIGNALS:
  void Raised(Payload* io_pPayload);
};

class PayloadEvent : public QEvent
{
public:
  explicit PayloadEvent(long i_amount) : QEvent(QEvent::User), _payload{i_amount} {}
  Payload _payload;
};

class Filter : public QObject
{
public:
  explicit Filter(Observer& io_observer) : _observer(io_observer) {}
  bool eventFilter(QObject*, QEvent* io_pEvent) override
  {
    if (io_pEvent->type() == QEvent::User)
      _observer.Notice(static_cast<PayloadEvent*>(io_pEvent)->_payload._amount);
    return false;
  }

private:
  Observer& _observer;
};

// Sending needs an application.
void MakeApplication()
{
  static int s_argc = 1;
  static char s_name[] = "Events_benchmark";
  static char* s_argv[] = {s_name, nullptr};
  static QCoreApplication s_application(s_argc, s_argv);
}

// The root owns the chain below it.
template <class NodeType>
class Chain
{
public:
  explicit Chain(int i_depth)
  {
    MakeApplication();
    _nodes.resize(static_cast<std::size_t>(i_depth));
    for (std::size_t index = _nodes.size(); index-- > 0;)
    {
      _nodes[index] = new NodeType;
      if (index + 1 < _nodes.size())
        _nodes[index]->setParent(_nodes[index + 1]);
    }
    _spRoot.reset(_nodes.back());
  }
  NodeType* operator[](int i_node) const { return _nodes[static_cast<std::size_t>(i_node)]; }

private:
  std::vector<NodeType*> _nodes;
  std::unique_ptr<NodeType> _spRoot;
};

class SignalWorld
{
public:
  SignalWorld(int i_depth, Observer& io_observer) : _observer(io_observer), _chain(i_depth) {}

  void AddHandler(int i_node) { _last = Connect(_chain[i_node], _observer); }
  void AddHandlerElsewhere() { Connect(&_elsewhere, _observer); }
  void RemoveHandler(int) { QObject::disconnect(_last); }
  void Raise()
  {
    Payload payload{1};
    for (Node* pNode = _chain[0]; pNode; pNode = static_cast<Node*>(pNode->parent()))
      Q_EMIT pNode->Raised(&payload);
  }
  static QMetaObject::Connection Connect(Node* io_pNode, Observer& io_observer)
  {
    return QObject::connect(io_pNode, &Node::Raised,
                            [pObserver = &io_observer](Payload* io_pPayload) { pObserver->Notice(io_pPayload->_amount); });
  }

private:
  Observer& _observer;
  Chain<Node> _chain;
  Node _elsewhere;
  QMetaObject::Connection _last;
};

class SignalCrowd
{
public:
  SignalCrowd(int i_count, Observer& io_observer) : _observer(io_observer) { _nodes.reserve(static_cast<std::size_t>(i_count)); }
  void Add() { _nodes.push_back(std::make_unique<Node>()); }
  void AddHandlerToLast() { SignalWorld::Connect(_nodes.back().get(), _observer); }

private:
  Observer& _observer;
  std::vector<std::unique_ptr<Node>> _nodes;
};

// A filter stands at an object once only: ten handlers are ten filters.
class EventWorld
{
public:
  EventWorld(int i_depth, Observer& io_observer) : _observer(io_observer), _chain(i_depth) {}

  void AddHandler(int i_node) { AddHandlerTo(*_chain[i_node]); }
  void AddHandlerElsewhere() { AddHandlerTo(_elsewhere); }
  void RemoveHandler(int i_node)
  {
    _chain[i_node]->removeEventFilter(_filters.back().get());
    _spare = std::move(_filters.back());
    _filters.pop_back();
  }
  void Raise()
  {
    PayloadEvent event(1);
    for (QObject* pNode = _chain[0]; pNode; pNode = pNode->parent())
      QCoreApplication::sendEvent(pNode, &event);
  }

private:
  void AddHandlerTo(QObject& io_node)
  {
    if (_spare)
      _filters.push_back(std::move(_spare));
    else
      _filters.push_back(std::make_unique<Filter>(_observer));
    io_node.installEventFilter(_filters.back().get());
  }

  Observer& _observer;
  QObject _elsewhere;
  std::vector<std::unique_ptr<Filter>> _filters;
  std::unique_ptr<Filter> _spare;
  Chain<QObject> _chain;
};

class EventCrowd
{
public:
  EventCrowd(int i_count, Observer& io_observer) : _filter(io_observer) { _nodes.reserve(static_cast<std::size_t>(i_count)); }
  void Add() { _nodes.push_back(std::make_unique<QObject>()); }
  void AddHandlerToLast() { _nodes.back()->installEventFilter(&_filter); }

private:
  Filter _filter;
  std::vector<std::unique_ptr<QObject>> _nodes;
};

void CopyList(benchmark::State& io_state)
{
  const QList<const Payload*> list(10);
  for (auto _ : io_state)
  {
    QList<const Payload*> copy = list;
    benchmark::DoNotOptimize(copy);
  }
}
} // namespace QtPeers

void RegisterQt(const std::string& i_state)
{
  RegisterCases<QtPeers::SignalWorld, QtPeers::SignalCrowd>("Qt signals", i_state);
  RegisterCases<QtPeers::EventWorld, QtPeers::EventCrowd>("Qt sendEvent", i_state);
  Register("CopyList/QList" + i_state, QtPeers::CopyList);
}

#include "QtPeers.moc"
#else
void RegisterQt(const std::string&)
{
  AnnounceMissing("Qt 6");
}
#endif
