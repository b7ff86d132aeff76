// ZELSYPEventPathBuilder: finds the route of a raised event and runs the handlers along it.
// class TreeBuilder : public ZELSYPEventPathBuilder { ... }; TreeBuilder builder; builder.Dispatch(pOrigin, &args);
//
// A subclass says what there is to run at a node, and what the node's parent is. Dispatches may be nested. UI thread only.
#ifndef ZELSYPEventPathBuilder_H
#define ZELSYPEventPathBuilder_H

#include "OPXCoreToolsExport.h"
#include "ZELBaseUnknown_var.h"
#include "ZELSYPArray.h"
#include "ZELSYPEventPath.h"
#include "ZELSYPRecycledBlocks.h"

class ZELSYPEvent;
class ZELSYPEventArgs;

class OPXCORETOOLS_EXPORT ZELSYPEventPathBuilder
{
public:
  ZELSYPEventPathBuilder() = default;
  ZELSYPEventPathBuilder(const ZELSYPEventPathBuilder&) = default;
  ZELSYPEventPathBuilder& operator=(const ZELSYPEventPathBuilder&) = default;
  virtual ~ZELSYPEventPathBuilder() = default;

  // 1: the route was built and run, whether or not a handler ran. The origin is set on arguments that have none.
  // 0, and nothing runs: no origin ("i_pOrigin"), no arguments ("i_pArgs"), arguments that have another origin
  // ("i_pOrigin->IsEqual(i_pArgs->GetOrigin())" with "The origin of the event is incorrect"), or no route: what BuildPath
  // reports, and "pPath". What a handler throws goes through; the route is given up first.
  int Dispatch(ZELBaseUnknown* i_pOrigin, ZELSYPEventArgs* i_pArgs);
  // The route, which may have no stop; the caller owns it. Null: no arguments ("i_pArgs"); no origin ("i_pArgs->GetOrigin()"
  // with "Can't dispatch, Origin has not been set on the event arguments"); no event ("pEvent"), argument type of the event
  // ("pEventArgumentType") or class of the arguments ("pArgsType"); arguments of a class that is not a kind of that type
  // ("The event expects argument of type ..."); no node ("FillListOfNodes(nodes, i_pArgs)", "nodes.GetLength() >= 1",
  // "spNode"); a BuildElement that answers null ("pElt" with "Implementation of BuildElement returned NULL").
  ZELSYPEventPath* BuildPath(ZELSYPEventArgs* i_pArgs);
  // 1: a dispatch of the event from the origin would come to a handler, one of consumed arguments not counted out. 0: it
  // would not, or would be refused: no origin ("i_pOrigin"), no event ("i_pEvent"), or no route. BuildElement and GetParent
  // are asked with plain ZELSYPEventArgs that have nothing but the event and the origin.
  int IsHeard(ZELBaseUnknown* i_pOrigin, ZELSYPEvent* i_pEvent);

protected:
  // What BuildElement answers for a node that has nothing to run. Made by the first call, for ever.
  static ZELSYPEventPathElt* NO_ELEMENT();

private:
  typedef ZELSYPArray<ZELBaseUnknown_var, ZELSYPRecycledBlocks> Nodes;

  // A new stop, which the caller owns, for a node that has something to run; NO_ELEMENT() for one that has not; null when
  // that cannot be told.
  virtual ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) = 0;
  // The next node towards the root, borrowed; null at the root. It must come to an end.
  virtual ZELBaseUnknown* GetParent(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) = 0;

  // Adds the stops of the route; false when it is refused.
  bool FillPath(ZELSYPEventPath& io_path, ZELSYPEventArgs* i_pArgs);
  bool AddStops(ZELSYPEventPath& io_path, ZELSYPEventArgs* i_pArgs);
  int FillListOfNodes(Nodes& io_list, ZELSYPEventArgs* i_pArgs);
  void AddChain(Nodes& io_list, ZELSYPEventArgs& i_args, ZELBaseUnknown* i_pOrigin);
  bool BuildElements(ZELSYPEventPath& io_path, ZELSYPEventArgs& io_args, Nodes& io_nodes);
};

#endif
