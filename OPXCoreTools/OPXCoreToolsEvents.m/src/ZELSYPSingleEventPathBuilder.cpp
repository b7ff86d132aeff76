#include "ZELSYPSingleEventPathBuilder.h"

#include "ZELSYPCheck.h"

ZELSYPSingleEventPathBuilder::ZELSYPSingleEventPathBuilder(ZELSYPEventHandlersSupport* i_pEventHandlersSupport,
                                                           ZELSYPClassEventHandlersSupport* i_pClassSupport)
    : _pEventHandlersSupport(i_pEventHandlersSupport), _pClassEventHandlersSupport(i_pClassSupport)
{
  ZELSYP_CHECK_POINTER(_pEventHandlersSupport);
}

// Its three answers are cold: where they are the only ones that the library knows of, the compiler tests every route of every
// builder for them before it asks.
[[gnu::cold]] ZELBaseUnknown* ZELSYPSingleEventPathBuilder::GetParent(ZELSYPEventArgs*, ZELBaseUnknown*)
{
  return nullptr;
}

[[gnu::cold]] ZELSYPEventHandlersSupport* ZELSYPSingleEventPathBuilder::GetSupportForNode(ZELBaseUnknown*)
{
  ZELSYP_CHECK_POINTER(_pEventHandlersSupport);
  return _pEventHandlersSupport;
}

[[gnu::cold]] ZELSYPClassEventHandlersSupport* ZELSYPSingleEventPathBuilder::GetClassSupportForNode(ZELBaseUnknown*)
{
  return _pClassEventHandlersSupport ? _pClassEventHandlersSupport : NO_CLASS_SUPPORT();
}
