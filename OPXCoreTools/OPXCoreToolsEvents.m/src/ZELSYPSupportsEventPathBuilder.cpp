#include "ZELSYPSupportsEventPathBuilder.h"

#include "ZELSYPCheck.h"
#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEvent.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventHandlersSupport.h"

#include <memory>

namespace
{
typedef std::unique_ptr<ZELSYPEventPathElt> Element;

void AddList(Element& io_pElement, ZELBaseUnknown* i_pNode, const ZELSYPEventHandlerInfoList* i_pList)
{
  if (!i_pList || i_pList->GetSize() == 0)
    return;
  if (!io_pElement)
    io_pElement = std::make_unique<ZELSYPEventPathElt>(i_pNode);
  io_pElement->AddList(*i_pList);
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
  ZELSYPEventPathElt* const pElement = pEvent->_storeCount != 0 ? BuildStop(*pEvent, *i_pNode, *pSupport, *pClassSupport) : nullptr;
  return pElement ? pElement : NO_ELEMENT();
}

// Null when there is nothing to run. The sentinels are stores like any other, without handlers.
ZELSYPEventPathElt* ZELSYPSupportsEventPathBuilder::BuildStop(ZELSYPEvent& i_event, ZELBaseUnknown& i_node,
                                                              ZELSYPEventHandlersSupport& io_support,
                                                              ZELSYPClassEventHandlersSupport& io_classSupport)
{
  Element pElement;
  if (io_classSupport._supports.GetSize() != 0)
  {
    ZELMetaClass* const pClass = i_node.GetMetaObject();
    for (int index = 0; ZELSYPEventHandlersSupport* const pOfClass = io_classSupport.GetInChain(pClass, index); ++index)
      AddList(pElement, &i_node, pOfClass->FindPrunedList(&i_event));
  }
  AddList(pElement, &i_node, io_support.FindPrunedList(&i_event));
  return pElement.release();
}
