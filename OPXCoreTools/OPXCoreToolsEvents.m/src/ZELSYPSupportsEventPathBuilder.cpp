#include "ZELSYPSupportsEventPathBuilder.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"
#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventHandlersSupport.h"

#include <memory>

namespace
{
typedef std::unique_ptr<ZELSYPEventPathElt> Element;

void AddList(Element& io_pElement, ZELBaseUnknown* i_pNode, const ZELSYPEventHandlerInfoList& i_list)
{
  if (i_list.GetSize() == 0)
    return;
  if (!io_pElement)
    io_pElement = std::make_unique<ZELSYPEventPathElt>(i_pNode);
  io_pElement->AddList(i_list);
}
} // namespace

ZELSYPSupportsEventPathBuilder::~ZELSYPSupportsEventPathBuilder() = default;

ZELSYPEventHandlersSupport* ZELSYPSupportsEventPathBuilder::NO_SUPPORT()
{
  static ZELSYPEventHandlersSupport* const s_pNoSupport = new ZELSYPEventHandlersSupport;
  return s_pNoSupport;
}

ZELSYPClassEventHandlersSupport* ZELSYPSupportsEventPathBuilder::NO_CLASS_SUPPORT()
{
  static ZELSYPClassEventHandlersSupport* const s_pNoClassSupport = new ZELSYPClassEventHandlersSupport;
  return s_pNoClassSupport;
}

ZELSYPEventPathElt* ZELSYPSupportsEventPathBuilder::BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode)
{
  if (!ZELSYP_CHECK_POINTER(i_pArgs) || !ZELSYP_CHECK_POINTER(i_pNode))
    return nullptr;
  ZELSYPEvent* const pEvent = i_pArgs->GetEvent();
  if (!ZELSYP_CHECK_POINTER(pEvent))
    return nullptr;
  ZELSYPEventHandlersSupport* const pSupport = GetSupportForNode(i_pNode);
  ZELSYPClassEventHandlersSupport* const pClassSupport = GetClassSupportForNode(i_pNode);
  if (!ZELSYP_CHECK_POINTER(pSupport) || !ZELSYP_CHECK_POINTER(pClassSupport))
    return nullptr;
  Element pElement;
  if (pClassSupport != NO_CLASS_SUPPORT())
    for (ZELMetaClass* pClass = i_pNode->GetMetaObject(); pClass; pClass = pClass->GetBaseClass())
      if (ZELSYPEventHandlersSupport* const pOfClass = pClassSupport->GetClassHandlersSupport(pClass))
        AddList(pElement, i_pNode, pOfClass->GetHandlersList(pEvent));
  if (pSupport != NO_SUPPORT())
    AddList(pElement, i_pNode, pSupport->GetHandlersList(pEvent));
  return pElement ? pElement.release() : NO_ELEMENT();
}
