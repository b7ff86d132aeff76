// ZELSYPEventSubscriberEventListener: a ZELSYPSimpleEventListener that is a subscriber of the host's callbacks.
// class Model : public ZELSYPEventSubscriberEventListener { ... }; pModel->AddHandler(Model::Changed(), pHandler, 0);
//
// Its operations are those of ZELSYPEventListening; class handlers and events are this class's own. UI thread only.
#ifndef ZELSYPEventSubscriberEventListener_H
#define ZELSYPEventSubscriberEventListener_H

#include "OPXCoreToolsExport.h"
#include "ZELEventSubscriber.h"
#include "ZELSYPEventListening.h"

extern template class ZELSYPEventListening<ZELEventSubscriber>;

class OPXCORETOOLS_EXPORT ZELSYPEventSubscriberEventListener : public ZELSYPEventListening<ZELEventSubscriber>
{
  ZELDeclareClass;

protected:
  ZELSYPEventSubscriberEventListener();
  ~ZELSYPEventSubscriberEventListener() override;
};

#endif
