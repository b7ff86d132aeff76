#include "ZELSYPSupportsEventPathBuilder.h"

#include "ZELSYPCheck.h"
#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEvent.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventHandlersSupport.h"

#include <utility>

namespace
{
// Null until the first call.
ZELSYPEventHandlersSupport* s_pNoSupport = nullptr;
ZELSYPClassEventHandlersSupport* s_pNoClassSupport = nullptr;
} // namespace

ZELSYPEventHandlersSupport* ZELSYPSupportsEventPathBuilder::NO_SUPPORT()
{
  if (!s_pNoSupport)
    s_pNoSupport = new ZELSYPEventHandlersSupport;
  return s_pNoSupport;
}

ZELSYPClassEventHandlersSupport* ZELSYPSupportsEventPathBuilder::NO_CLASS_SUPPORT()
{
  if (!s_pNoClassSupport)
    s_pNoClassSupport = new ZELSYPClassEventHandlersSupport;
  return s_pNoClassSupport;
}

// What the route holds becomes the stop's. Whoever asks outside a route, or twice, gets a reference more.
inline ZELSYPSupportsEventPathBuilder::Element ZELSYPSupportsEventPathBuilder::NewElement(const ZELSYPEventArgs& i_args,
                                                                                          ZELBaseUnknown& i_node)
{
  ZELSYPRouteNode* const pLender = i_args._pRouteNode;
  return __builtin_expect(pLender && pLender->Has(i_node), true) ? std::make_unique<ZELSYPEventPathElt>(*pLender)
                                                                 : std::make_unique<ZELSYPEventPathElt>(&i_node);
}

// Inlined where it stands, for a stop that is there and for a new one: it is most of what there is to do at a node that
// listens.
[[gnu::always_inline]] inline void ZELSYPSupportsEventPathBuilder::AddList(Element& io_pElement, const ZELSYPEventArgs& i_args,
                                                                           ZELBaseUnknown& i_node, ZELSYPEventHandlerInfoList i_list)
{
  if (i_list.GetSize() == 0)
    return;
  if (__builtin_expect(io_pElement != nullptr, false))
    return io_pElement->AddList(std::move(i_list));
  io_pElement = NewElement(i_args, i_node);
  io_pElement->AddList(std::move(i_list));
}

ZELSYPEventPathElt* ZELSYPSupportsEventPathBuilder::BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode)
{
  if (!ZELSYP_CHECK_POINTER(i_pArgs) || !ZELSYP_CHECK_POINTER(i_pNode))
    return nullptr;
  const ZELSYPEvent* const pEvent = i_pArgs->GetEvent();
  if (!ZELSYP_CHECK_POINTER(pEvent))
    return nullptr;
  ZELSYPEventHandlersSupport* const pSupport = GetSupportForNode(i_pNode);
  ZELSYPClassEventHandlersSupport* const pClassSupport = GetClassSupportForNode(i_pNode);
  if (!ZELSYP_CHECK_POINTER(pSupport) || !ZELSYP_CHECK_POINTER(pClassSupport))
    return nullptr;
  return pEvent->_storeCount == 0 ? NO_ELEMENT() : BuildHeardElement(*i_pArgs, *i_pNode, *pSupport, *pClassSupport);
}

// What is pruned lives until the lists were taken: the end of a handler may change the stores, or destroy them.
inline ZELSYPEventPathElt* ZELSYPSupportsEventPathBuilder::BuildHeardElement(ZELSYPEventArgs& io_args, ZELBaseUnknown& i_node,
                                                                             ZELSYPEventHandlersSupport& io_support,
                                                                             ZELSYPClassEventHandlersSupport& io_classSupport)
{
  ZELSYPEventHandlerInfoList removed;
  Element pElement;
  if (io_classSupport._supports.GetSize() != 0 && &io_classSupport != s_pNoClassSupport)
    AddClassLists(pElement, io_args, i_node, io_classSupport, removed);
  if (&io_support != s_pNoSupport)
    AddList(pElement, io_args, i_node, io_support.TakeList(io_args.GetEvent(), removed));
  return pElement ? pElement.release() : NO_ELEMENT();
}

void ZELSYPSupportsEventPathBuilder::AddClassLists(Element& io_pElement, ZELSYPEventArgs& io_args, ZELBaseUnknown& i_node,
                                                   ZELSYPClassEventHandlersSupport& io_classSupport, ZELSYPEventHandlerInfoList& io_removed)
{
  ZELMetaClass* const pClass = i_node.GetMetaObject();
  ZELSYPEventHandlersSupport* pOfClass = nullptr;
  while ((pOfClass = io_classSupport.GetNextInChain(pClass, pOfClass)))
    AddList(io_pElement, io_args, i_node, pOfClass->TakeList(io_args.GetEvent(), io_removed));
}
