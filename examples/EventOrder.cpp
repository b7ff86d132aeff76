// Declares an event, attaches handlers to one object and to its classes, and prints in which order they run.
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPMakeHandler.h"
#include "ZELSYPSimpleEventListener.h"

#include <cstdio>

class Door : public ZELSYPSimpleEventListener
{
  ZELDeclareClass;
  // Declared once, by the class that raises it.
  static ZELSYPEvent* OpenedEvent()
  {
    static ZELSYPEvent* const s_pEvent =
        GetEventFactory()->NewEvent("Opened", ZELSYPEvent::OriginToRoot, ZELSYPEventArgs::MetaObject(), MetaObject());
    return s_pEvent;
  }
  // Whether a handler has taken the opening upon itself.
  bool Open()
  {
    ZELSYPEventArgs args(OpenedEvent());
    Dispatch(&args);
    return args.IsConsumed() != 0;
  }
};
ZELImplementClass(Door, ZELSYPSimpleEventListener, EventOrder);

class CellarDoor : public Door
{
  ZELDeclareClass;
};
ZELImplementClass(CellarDoor, Door, EventOrder);

static ZELHandle<ZELSYPEventHandler> Printing(const char* i_text)
{
  return ZELSYPMakeHandler([i_text](ZELSYPEventArgs*) { std::puts(i_text); });
}

static ZELHandle<ZELSYPEventHandler> Consuming(const char* i_text)
{
  return ZELSYPMakeHandler(
      [i_text](ZELSYPEventArgs* i_pArgs)
      {
        std::puts(i_text);
        i_pArgs->Consume();
      });
}

int main()
{
  CellarDoor door;
  // In any order: the classes run first, the most derived one before its bases, then the door's own handlers.
  door.AddHandler(Door::OpenedEvent(), Printing("this door: the light goes on"), 0);
  door.AddHandler(Door::OpenedEvent(), Consuming("this door: the cat has been let in"), 0);
  door.AddHandler(Door::OpenedEvent(), Printing("this door: never printed, the event is consumed"), 0);
  door.AddHandler(Door::OpenedEvent(), Printing("this door: logged, consumed or not"), 1);
  Door::AddClassHandler(Door::MetaObject(), Door::OpenedEvent(), Printing("every door: the hinge creaks"), 0);
  Door::AddClassHandler(CellarDoor::MetaObject(), Door::OpenedEvent(), Printing("every cellar door: cold air comes up"), 0);

  const bool consumed = door.Open();
  std::printf("consumed: %s\n", consumed ? "yes" : "no");
  return consumed ? 0 : 1;
}
