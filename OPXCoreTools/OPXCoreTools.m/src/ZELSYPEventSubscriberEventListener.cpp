#include "ZELSYPEventSubscriberEventListener.h"

#include "EventListening.h"

ZELImplementClass(ZELSYPEventSubscriberEventListener, ZELEventSubscriber, OPXCoreTools);

template class ZELSYPEventListening<ZELEventSubscriber>;

ZELSYPEventSubscriberEventListener::ZELSYPEventSubscriberEventListener() = default;

ZELSYPEventSubscriberEventListener::~ZELSYPEventSubscriberEventListener() = default;
