// ZELSYPSingleEventPathBuilder: the builder for one object on its own, with the stores that it is given.
// ZELSYPSingleEventPathBuilder(&_support, pClassSupport).Dispatch(this, &args);
#ifndef ZELSYPSingleEventPathBuilder_H
#define ZELSYPSingleEventPathBuilder_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPSupportsEventPathBuilder.h"

class OPXCORETOOLS_EXPORT ZELSYPSingleEventPathBuilder : public ZELSYPSupportsEventPathBuilder
{
public:
  // Owns neither; both must outlive the dispatches. No store: "_pEventHandlersSupport", and each dispatch reports it again
  // and is refused. No class store: only the object's own handlers run.
  ZELSYPSingleEventPathBuilder(ZELSYPEventHandlersSupport* i_pEventHandlersSupport, ZELSYPClassEventHandlersSupport* i_pClassSupport);
  ~ZELSYPSingleEventPathBuilder() override = default;

private:
  ZELBaseUnknown* GetParent(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) override;
  ZELSYPEventHandlersSupport* GetSupportForNode(ZELBaseUnknown* i_pNode) override;
  ZELSYPClassEventHandlersSupport* GetClassSupportForNode(ZELBaseUnknown* i_pNode) override;

  ZELSYPEventHandlersSupport* _pEventHandlersSupport;
  ZELSYPClassEventHandlersSupport* _pClassEventHandlersSupport;
};

#endif
