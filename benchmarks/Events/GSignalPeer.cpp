// GSignal: objects of a class of three levels with two signals, one of them with a handler of the class; the marshallers
// are the fast ones, made for a pointer. The parents are walked by hand. GLib must take its memory from malloc
// directly (tools/benchmark asks it to): what its own cache keeps of freed objects is missing in the memory of the next
// ones.
#include "EventsCases.h"

#if OPX_PEER_GSIGNAL
#include <glib-object.h>

#include <cstdlib>
#include <string_view>
#include <vector>

namespace
{
struct Node
{
  GObject _base;
  Node* _pParent;
  Observer* _pObserver;
};

struct NodeClass
{
  GObjectClass _base;
  void (*_raisedWithClass)(Node* io_pNode, gpointer io_pPayload);
};

guint s_raised = 0;
guint s_raisedWithClass = 0;

void HandleOfClass(Node* io_pNode, gpointer io_pPayload)
{
  io_pNode->_pObserver->Notice(static_cast<Payload*>(io_pPayload)->_amount);
}

void HandleOfInstance(Node*, gpointer io_pPayload, gpointer io_pObserver)
{
  static_cast<Observer*>(io_pObserver)->Notice(static_cast<Payload*>(io_pPayload)->_amount);
}

guint NewSignal(GType i_type, const char* i_name, guint i_classOffset)
{
  const guint id = g_signal_new(i_name, i_type, G_SIGNAL_RUN_FIRST, i_classOffset, nullptr, nullptr, g_cclosure_marshal_VOID__POINTER,
                                G_TYPE_NONE, 1, G_TYPE_POINTER);
  g_signal_set_va_marshaller(id, i_type, g_cclosure_marshal_VOID__POINTERv);
  return id;
}

void InitBaseClass(gpointer io_pClass, gpointer)
{
  const GType type = G_TYPE_FROM_CLASS(io_pClass);
  static_cast<NodeClass*>(io_pClass)->_raisedWithClass = HandleOfClass;
  s_raised = NewSignal(type, "raised", 0);
  s_raisedWithClass = NewSignal(type, "raised-with-class", offsetof(NodeClass, _raisedWithClass));
}

GType NewType(GType i_parent, const char* i_name, GClassInitFunc i_initClass)
{
  return g_type_register_static_simple(i_parent, i_name, sizeof(NodeClass), i_initClass, sizeof(Node), nullptr, GTypeFlags(0));
}

GType GetNodeType()
{
  static const GType s_type = NewType(NewType(NewType(G_TYPE_OBJECT, "OPXBase", InitBaseClass), "OPXMiddle", nullptr), "OPXNode", nullptr);
  return s_type;
}

class Crowd
{
public:
  Crowd(int i_count, Observer& io_observer) : _observer(io_observer) { _nodes.reserve(static_cast<std::size_t>(i_count)); }
  Crowd(const Crowd&) = delete;
  Crowd& operator=(const Crowd&) = delete;
  ~Crowd()
  {
    for (Node* pNode : _nodes)
      g_object_unref(pNode);
  }
  void Add()
  {
    _nodes.push_back(static_cast<Node*>(g_object_new(GetNodeType(), nullptr)));
    _nodes.back()->_pObserver = &_observer;
  }
  void AddHandlerToLast() { Connect(_nodes.back(), "raised"); }
  gulong Connect(Node* io_pNode, const char* i_signal)
  {
    return g_signal_connect(io_pNode, i_signal, G_CALLBACK(HandleOfInstance), &_observer);
  }
  Node* GetNode(int i_node) { return _nodes[static_cast<std::size_t>(i_node)]; }

private:
  Observer& _observer;
  std::vector<Node*> _nodes;
};

class World
{
public:
  World(int i_depth, Observer& io_observer) : _crowd(i_depth, io_observer), _elsewhere(1, io_observer)
  {
    for (int index = 0; index < i_depth; ++index)
    {
      _crowd.Add();
      if (index > 0)
        _crowd.GetNode(index - 1)->_pParent = _crowd.GetNode(index);
    }
    _signal = s_raised;
  }

  void AddHandler(int i_node) { _last = _crowd.Connect(_crowd.GetNode(i_node), _signal == s_raised ? "raised" : "raised-with-class"); }
  void AddHandlerElsewhere()
  {
    _elsewhere.Add();
    _elsewhere.AddHandlerToLast();
  }
  void RemoveHandler(int i_node) { g_signal_handler_disconnect(_crowd.GetNode(i_node), _last); }
  // The class has its handler for that signal from the beginning.
  void AddClassHandler() { _signal = s_raisedWithClass; }
  void Raise()
  {
    Payload payload{1};
    for (Node* pNode = _crowd.GetNode(0); pNode; pNode = pNode->_pParent)
      g_signal_emit(pNode, _signal, 0, &payload);
  }

private:
  Crowd _crowd;
  Crowd _elsewhere;
  guint _signal = 0;
  gulong _last = 0;
};
} // namespace

void RegisterGSignal(const std::string& i_state)
{
  // GLib read it before main().
  const char* const pSlices = std::getenv("G_SLICE");
  if (!pSlices || pSlices != std::string_view("always-malloc"))
    return benchmark::AddCustomContext("GSignal", "not measured without G_SLICE=always-malloc in the environment");
  RegisterCases<World, Crowd>("GSignal", i_state);
  RegisterClassCases<World>("GSignal", i_state);
}
#else
void RegisterGSignal(const std::string&)
{
  AnnounceMissing("GSignal");
}
#endif
