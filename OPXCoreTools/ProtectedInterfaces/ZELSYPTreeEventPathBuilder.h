// ZELSYPTreeEventPathBuilder: routes events along a tree of nodes that is given by three callables.
// ZELSYPTreeEventPathBuilder builder(parentOf, handlersOf, classHandlersOf); builder.Dispatch(pNode, pArgs);
//
// Each callable takes a node (ZELBaseUnknown*) and answers what is borrowed: its parent, null at the root; the store of
// its handlers (ZELSYPEventHandlersSupport*), null for none; the store of class handlers that holds for it
// (ZELSYPClassEventHandlersSupport*), null for none.
// A chain of more nodes than the limit is refused as a whole, so that a cycle of parents ends: "depth < _depthLimit" with a
// text that names the limit, then what a refused route reports; Dispatch answers 0 and no handler runs.
// UI thread. A builder may be kept, and used again by the handlers that it runs.
#ifndef ZELSYPTreeEventPathBuilder_H
#define ZELSYPTreeEventPathBuilder_H

#include "ZELSYPCheck.h"
#include "ZELSYPSupportsEventPathBuilder.h"

#include <string>
#include <utility>

template <class ParentOf, class HandlersOf, class ClassHandlersOf>
class ZELSYPTreeEventPathBuilder final : public ZELSYPSupportsEventPathBuilder
{
public:
  // i_depthLimit: how many nodes a route may have, 1 at least ("i_depthLimit >= 1", and 1 is taken).
  ZELSYPTreeEventPathBuilder(ParentOf i_parentOf, HandlersOf i_handlersOf, ClassHandlersOf i_classHandlersOf, int i_depthLimit = 4096)
      : _parentOf(std::move(i_parentOf)),
        _handlersOf(std::move(i_handlersOf)),
        _classHandlersOf(std::move(i_classHandlersOf)),
        _depthLimit(ZELSYP_CHECK_TRUE(i_depthLimit >= 1) ? i_depthLimit : 1)
  {
  }

protected:
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) override
  {
    return std::exchange(_isTooDeep, false) ? nullptr : ZELSYPSupportsEventPathBuilder::BuildElement(i_pArgs, i_pNode);
  }
  // Called for one node after the other from the origin on; the count starts again with a node that was not answered last.
  ZELBaseUnknown* GetParent(ZELSYPEventArgs*, ZELBaseUnknown* i_pNode) override
  {
    const int depth = i_pNode == std::exchange(_pNext, nullptr) ? _depth + 1 : 1;
    ZELBaseUnknown* const pParent = _parentOf(i_pNode);
    if (!pParent || !IsWithinLimit(depth))
      return nullptr;
    _depth = depth;
    _pNext = pParent;
    return pParent;
  }
  ZELSYPEventHandlersSupport* GetSupportForNode(ZELBaseUnknown* i_pNode) override
  {
    ZELSYPEventHandlersSupport* const pSupport = _handlersOf(i_pNode);
    return pSupport ? pSupport : NO_SUPPORT();
  }
  ZELSYPClassEventHandlersSupport* GetClassSupportForNode(ZELBaseUnknown* i_pNode) override
  {
    ZELSYPClassEventHandlersSupport* const pSupport = _classHandlersOf(i_pNode);
    return pSupport ? pSupport : NO_CLASS_SUPPORT();
  }

private:
  bool IsWithinLimit(int depth)
  {
    if (depth < _depthLimit)
      return true;
    const std::string details = "More than " + std::to_string(_depthLimit) + " nodes from the origin to the root: a cycle of parents?";
    ZELSYP_CHECK_TRUE_DETAILS(depth < _depthLimit, details.c_str());
    _isTooDeep = true;
    return false;
  }

  ParentOf _parentOf;
  HandlersOf _handlersOf;
  ClassHandlersOf _classHandlersOf;
  const int _depthLimit;
  int _depth = 0;
  // The node of the chain that is asked for its parent next; only compared.
  const ZELBaseUnknown* _pNext = nullptr;
  // The route whose elements are asked for next has no end within the limit.
  bool _isTooDeep = false;
};

#endif
