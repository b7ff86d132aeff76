// ZELSYPSupportsEventPathBuilder: a builder of routes whose stops come from the stores of handlers.
// class TreeBuilder : public ZELSYPSupportsEventPathBuilder { GetParent, GetSupportForNode, GetClassSupportForNode ... };
//
// At a node run first the handlers of its class, then those of each base class up to the root class, then its own.
#ifndef ZELSYPSupportsEventPathBuilder_H
#define ZELSYPSupportsEventPathBuilder_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPEventPathBuilder.h"

#include <memory>

class ZELSYPClassEventHandlersSupport;
class ZELSYPEvent;
class ZELSYPEventHandlersSupport;

class OPXCORETOOLS_EXPORT ZELSYPSupportsEventPathBuilder : public ZELSYPEventPathBuilder
{
public:
  ZELSYPSupportsEventPathBuilder() = default;
  ZELSYPSupportsEventPathBuilder(const ZELSYPSupportsEventPathBuilder&) = default;
  ZELSYPSupportsEventPathBuilder& operator=(const ZELSYPSupportsEventPathBuilder&) = default;
  ~ZELSYPSupportsEventPathBuilder() override = default;

protected:
  // What the two questions below answer for a node that has no store. Made by the first call, for ever.
  static ZELSYPEventHandlersSupport* NO_SUPPORT();
  static ZELSYPClassEventHandlersSupport* NO_CLASS_SUPPORT();

  // Null for no arguments ("i_pArgs"), no node ("i_pNode"), no event ("pEvent"), and when one of the questions is answered
  // by null ("pSupport", "pClassSupport"); both are asked first.
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) override;

private:
  typedef std::unique_ptr<ZELSYPEventPathElt> Element;

  // The stores of the node, borrowed.
  virtual ZELSYPEventHandlersSupport* GetSupportForNode(ZELBaseUnknown* i_pNode) = 0;
  virtual ZELSYPClassEventHandlersSupport* GetClassSupportForNode(ZELBaseUnknown* i_pNode) = 0;

  static Element NewElement(const ZELSYPEventArgs& i_args, ZELBaseUnknown& i_node);
  ZELSYPEventPathElt* BuildHeardElement(ZELSYPEventArgs& io_args, ZELBaseUnknown& i_node, ZELSYPEventHandlersSupport& io_support,
                                        ZELSYPClassEventHandlersSupport& io_classSupport);
  static void AddList(Element& io_pElement, const ZELSYPEventArgs& i_args, ZELBaseUnknown& i_node, ZELSYPEventHandlerInfoList i_list);
  static void AddClassLists(Element& io_pElement, ZELSYPEventArgs& io_args, ZELBaseUnknown& i_node,
                            ZELSYPClassEventHandlersSupport& io_classSupport, ZELSYPEventHandlerInfoList& io_removed);
};

#endif
