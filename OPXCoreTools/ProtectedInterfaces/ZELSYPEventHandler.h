// ZELSYPEventHandler: what runs when an event comes by.
// class Bell : public ZELSYPEventHandler { void Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs) override { Ring(); } ... };
//
// Counted; whoever registers it may give up its own reference then. One thread, that of the user interface.
#ifndef ZELSYPEventHandler_H
#define ZELSYPEventHandler_H

#include "OPXCoreToolsExport.h"
#include "ZELBaseUnknown.h"

class ZELMetaClass;
class ZELSYPEventArgs;

class OPXCORETOOLS_EXPORT ZELSYPEventHandler : public ZELBaseUnknown
{
  ZELDeclareClass;

public:
  ~ZELSYPEventHandler() override;

  // Runs for one node of the route. Both are valid during the call, and not owned.
  virtual void Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs) = 0;
  // The class of the arguments that Handle takes: it is accepted for events whose arguments are of a kind of this class.
  virtual ZELMetaClass* GetArgumentsClass() = 0;
  // Not 0 once the handler has become useless, as when its target is gone: the next look at a list drops it. It may
  // add and remove handlers; the store that asks must neither go nor be replaced before the answer.
  virtual int MustBeRemoved() = 0;
};

#endif
