// The door of the guide: a listener that says when it is opened, and by whom.
// Door door; ZELSYPSubscribe<OpenedArgs>(door, Door::OpenedEvent(), ...); door.Open("Ada");
#ifndef Door_H
#define Door_H

#include "ZELSYPEventArgs.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPSimpleEventListener.h"

#include <string>
#include <utility>

class OpenedArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;
  OpenedArgs(ZELSYPEvent* i_pEvent, std::string i_visitor) : ZELSYPEventArgs(i_pEvent), _visitor(std::move(i_visitor)) {}
  const std::string& GetVisitor() const { return _visitor; }

private:
  const std::string _visitor;
};

class Door : public ZELSYPSimpleEventListener
{
  ZELDeclareClass;
  static ZELSYPEvent* OpenedEvent()
  {
    static ZELSYPEvent* const s_pEvent =
        GetEventFactory()->NewEvent("Opened", ZELSYPEvent::OriginToRoot, OpenedArgs::MetaObject(), MetaObject());
    return s_pEvent;
  }
  bool Open(const std::string& i_visitor)
  {
    OpenedArgs args(OpenedEvent(), i_visitor);
    Dispatch(&args);
    return args.IsConsumed() != 0;
  }
};

// What the handlers of the guide write down.
std::string& Diary();
// What was written down since the last call.
std::string TakeDiary();

#endif
