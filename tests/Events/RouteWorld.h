// What the tests of routing share: nodes of three classes in a chain, a builder that knows them, handlers that log.
// RouteWorld world; world.Listen(*world._leaf, "leaf"); world.Raise(*world._leaf); EXPECT_THAT(world._log, ElementsAre("leaf"));
#ifndef RouteWorld_H
#define RouteWorld_H

#include "EventWorld.h"
#include "ZELBaseUnknown_var.h"
#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEventHandlersSupport.h"
#include "ZELSYPSupportsEventPathBuilder.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

// Three classes, each the base of the next.
class Widget : public ZELBaseUnknown
{
  ZELDeclareClass;

public:
  explicit Widget(Widget* i_pParent = nullptr) : _pParent(i_pParent) { ++s_living; }
  ~Widget() override { --s_living; }

  Widget* _pParent;
  ZELSYPEventHandlersSupport _handlers;
  static int s_living;
};

class Panel : public Widget
{
  ZELDeclareClass;

public:
  using Widget::Widget;
};

class Button : public Panel
{
  ZELDeclareClass;

public:
  using Panel::Panel;
};

// Writes its name into the log when it runs, then does what it is told to do.
class LoggingHandler : public CountedHandler
{
public:
  typedef std::vector<std::string> Log;
  typedef std::function<void(ZELBaseUnknown*, ZELSYPEventArgs*)> Action;

  LoggingHandler(Log& io_log, std::string i_name, Action i_action = nullptr)
      : _log(io_log), _name(std::move(i_name)), _action(std::move(i_action))
  {
  }
  static ZELHandle<LoggingHandler> New(Log& io_log, std::string i_name, Action i_action = nullptr)
  {
    return ZELHandle<LoggingHandler>::Adopt(new LoggingHandler(io_log, std::move(i_name), std::move(i_action)));
  }

  void Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs) override
  {
    _log.push_back(_name);
    _nodes.push_back(i_pNode);
    if (_action)
      _action(i_pNode, i_pArgs);
  }
  ZELMetaClass* GetArgumentsClass() override { return _pArgumentsClass; }

  Log& _log;
  const std::string _name;
  const Action _action;
  std::vector<ZELBaseUnknown*> _nodes;
  ZELMetaClass* _pArgumentsClass = ZELSYPEventArgs::MetaObject();
};

// Goes up the parents of widgets; every class has its handlers in one class store, if there is one.
class WidgetBuilder : public ZELSYPSupportsEventPathBuilder
{
public:
  explicit WidgetBuilder(ZELSYPClassEventHandlersSupport* i_pClassHandlers = nullptr) : _pClassHandlers(i_pClassHandlers) {}

  using ZELSYPSupportsEventPathBuilder::BuildElement;
  using ZELSYPSupportsEventPathBuilder::NO_CLASS_SUPPORT;
  using ZELSYPSupportsEventPathBuilder::NO_ELEMENT;
  using ZELSYPSupportsEventPathBuilder::NO_SUPPORT;

private:
  ZELBaseUnknown* GetParent(ZELSYPEventArgs*, ZELBaseUnknown* i_pNode) override { return static_cast<Widget*>(i_pNode)->_pParent; }
  ZELSYPEventHandlersSupport* GetSupportForNode(ZELBaseUnknown* i_pNode) override { return &static_cast<Widget*>(i_pNode)->_handlers; }
  ZELSYPClassEventHandlersSupport* GetClassSupportForNode(ZELBaseUnknown*) override
  {
    return _pClassHandlers ? _pClassHandlers : NO_CLASS_SUPPORT();
  }

  ZELSYPClassEventHandlersSupport* const _pClassHandlers;
};

// A leaf of class Button in a parent of class Panel in a root of class Widget, and one event for each way to travel.
struct RouteWorld
{
  ZELSYPEvent* NewEvent(const char* i_name, ZELSYPEvent::Propagation i_propagation)
  {
    return _factory.NewEvent(i_name, i_propagation, ZELSYPEventArgs::MetaObject(), Widget::MetaObject());
  }
  // A handler of that name for the widget, or the class; this world holds it, too.
  LoggingHandler* Listen(Widget& io_widget, std::string i_name, LoggingHandler::Action i_action = nullptr, int i_handleConsumed = 0)
  {
    LoggingHandler* const pHandler = Keep(std::move(i_name), std::move(i_action));
    io_widget._handlers.AddHandler(_pEvent, pHandler, i_handleConsumed);
    return pHandler;
  }
  LoggingHandler* Listen(ZELMetaClass* i_pClass, std::string i_name, LoggingHandler::Action i_action = nullptr)
  {
    LoggingHandler* const pHandler = Keep(std::move(i_name), std::move(i_action));
    _classHandlers.AddClassHandler(i_pClass, _pEvent, pHandler, 0);
    return pHandler;
  }
  LoggingHandler* Keep(std::string i_name, LoggingHandler::Action i_action = nullptr)
  {
    _kept.push_back(LoggingHandler::New(_log, std::move(i_name), std::move(i_action)));
    return _kept.back().Get();
  }
  // What Dispatch answers for new arguments of the current event.
  int Raise(Widget& io_origin)
  {
    ZELSYPEventArgs args(_pEvent);
    return WidgetBuilder(&_classHandlers).Dispatch(&io_origin, &args);
  }

  OpenFactory _factory;
  ZELSYPEvent* const _pUp = NewEvent("Up", ZELSYPEvent::OriginToRoot);
  ZELSYPEvent* const _pDown = NewEvent("Down", ZELSYPEvent::RootToOrigin);
  ZELSYPEvent* const _pHere = NewEvent("Here", ZELSYPEvent::NoPropagation);
  ZELSYPEvent* _pEvent = _pUp;
  LoggingHandler::Log _log;
  std::vector<ZELHandle<LoggingHandler>> _kept;
  ZELSYPClassEventHandlersSupport _classHandlers;
  const ZELHandle<Widget> _root = ZELHandle<Widget>::Adopt(new Widget);
  const ZELHandle<Panel> _parent = ZELHandle<Panel>::Adopt(new Panel(_root));
  const ZELHandle<Button> _leaf = ZELHandle<Button>::Adopt(new Button(_parent));
};

#endif
