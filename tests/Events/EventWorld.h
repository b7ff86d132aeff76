// What the tests of events share: two owner classes, arguments that say more, a factory, a handler that can be counted.
#ifndef EventWorld_H
#define EventWorld_H

#include "ZELBaseUnknown.h"
#include "ZELHandle.h"
#include "ZELMetaClass.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPEventHandler.h"

class Door : public ZELBaseUnknown
{
  ZELDeclareClass;
};

class Gate : public ZELBaseUnknown
{
  ZELDeclareClass;
};

class DoorArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;

public:
  using ZELSYPEventArgs::ZELSYPEventArgs;
};

// A factory that also makes events which no map holds.
class OpenFactory : public ZELSYPEventFactory
{
public:
  using ZELSYPEventFactory::MakeEvent;

  ZELSYPEvent* NewDoorEvent(const char* i_name)
  {
    return NewEvent(i_name, ZELSYPEvent::NoPropagation, ZELSYPEventArgs::MetaObject(), Door::MetaObject());
  }
};

class CountedHandler : public ZELSYPEventHandler
{
public:
  CountedHandler() { ++s_living; }
  ~CountedHandler() override { --s_living; }
  void Handle(ZELBaseUnknown*, ZELSYPEventArgs*) override {}
  ZELMetaClass* GetArgumentsClass() override { return ZELSYPEventArgs::MetaObject(); }
  int MustBeRemoved() override { return _mustBeRemoved; }

  static ZELHandle<CountedHandler> New(int i_mustBeRemoved = 0)
  {
    const auto handler = ZELHandle<CountedHandler>::Adopt(new CountedHandler);
    handler->_mustBeRemoved = i_mustBeRemoved;
    return handler;
  }

  int _mustBeRemoved = 0;
  static int s_living;
};

// How many references an object has; it must have one.
inline int CountReferences(ZELBaseUnknown* i_pObject)
{
  i_pObject->AddRef();
  return i_pObject->Release();
}

#endif
