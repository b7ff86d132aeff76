#include "ZELSYPSingleEventPathBuilder.h"

#include "ZELSYPCheck.h"

ZELSYPSingleEventPathBuilder::ZELSYPSingleEventPathBuilder(ZELSYPEventHandlersSupport* i_pEventHandlersSupport,
                                                           ZELSYPClassEventHandlersSupport* i_pClassSupport)
    : _pEventHandlersSupport(i_pEventHandlersSupport), _pClassEventHandlersSupport(i_pClassSupport)
{
  ZELSYP_CHECK_POINTER(_pEventHandlersSupport);
}

ZELSYPSingleEventPathBuilder::~ZELSYPSingleEventPathBuilder() = default;

ZELBaseUnknown* ZELSYPSingleEventPathBuilder::GetParent(ZELSYPEventArgs*, ZELBaseUnknown*)
{
  return nullptr;
}

ZELSYPEventHandlersSupport* ZELSYPSingleEventPathBuilder::GetSupportForNode(ZELBaseUnknown*)
{
  ZELSYP_CHECK_POINTER(_pEventHandlersSupport);
  return _pEventHandlersSupport;
}

ZELSYPClassEventHandlersSupport* ZELSYPSingleEventPathBuilder::GetClassSupportForNode(ZELBaseUnknown*)
{
  return _pClassEventHandlersSupport ? _pClassEventHandlersSupport : NO_CLASS_SUPPORT();
}
