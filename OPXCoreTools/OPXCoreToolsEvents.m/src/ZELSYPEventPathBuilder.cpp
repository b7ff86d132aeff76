#include "ZELSYPEventPathBuilder.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEvent.h"
#include "ZELSYPEventArgs.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace
{
// Null until the first call of NO_ELEMENT.
ZELSYPEventPathElt* s_pNoElement = nullptr;

bool HasOrigin(ZELBaseUnknown* i_pOrigin, ZELSYPEventArgs* i_pArgs)
{
  if (!i_pArgs->GetOrigin())
    i_pArgs->SetOrigin(i_pOrigin);
  return i_pArgs->GetOrigin() == i_pOrigin ||
         ZELSYP_CHECK_TRUE_DETAILS(i_pOrigin->IsEqual(i_pArgs->GetOrigin()), "The origin of the event is incorrect");
}

void ReportOtherArguments(const ZELMetaClass& i_eventArguments, const ZELMetaClass& i_arguments)
{
  const std::string message = std::string("The event expects argument of type ") + i_eventArguments.GetName() +
                              " but the dispatch arguments are of type " + i_arguments.GetName();
  CheckFailure__(message.c_str(), __FILE_NAME__, __LINE__, nullptr);
}

bool HasExpectedClass(const ZELSYPEventArgs& i_args)
{
  const ZELSYPEvent* const pEvent = i_args.GetEvent();
  if (!ZELSYP_CHECK_POINTER(pEvent))
    return false;
  const ZELMetaClass* const pEventArgumentType = pEvent->GetArgumentType();
  const ZELMetaClass* const pArgsType = i_args.GetMetaObject();
  if (!ZELSYP_CHECK_POINTER(pEventArgumentType) || !ZELSYP_CHECK_POINTER(pArgsType))
    return false;
  if (pArgsType == pEventArgumentType || pArgsType->IsAKindOf(pEventArgumentType))
    return true;
  ReportOtherArguments(*pEventArgumentType, *pArgsType);
  return false;
}

bool IsKnown(ZELSYPEvent::Propagation i_propagation)
{
  const bool known = i_propagation == ZELSYPEvent::RootToOrigin || i_propagation == ZELSYPEvent::OriginToRoot;
  if (!known)
    CheckFailure__("Unknown propagation mode", __FILE_NAME__, __LINE__, ZELSYPEvent::PropagationToString(i_propagation));
  return known;
}
} // namespace

[[gnu::flatten]] int ZELSYPEventPathBuilder::Dispatch(ZELBaseUnknown* i_pOrigin, ZELSYPEventArgs* i_pArgs)
{
  if (!ZELSYP_CHECK_POINTER(i_pOrigin) || !ZELSYP_CHECK_POINTER(i_pArgs) || !HasOrigin(i_pOrigin, i_pArgs))
    return 0;
  ZELSYPEventPath path;
  const bool isFilled = FillPath(path, i_pArgs);
  if (isFilled)
    path.Dispatch(i_pArgs);
  return ZELSYP_CHECK_REPORT(isFilled, Check_Pointer_Failed__, "pPath", __LINE__, nullptr);
}

ZELSYPEventPath* ZELSYPEventPathBuilder::BuildPath(ZELSYPEventArgs* i_pArgs)
{
  std::unique_ptr<ZELSYPEventPath> pPath = std::make_unique<ZELSYPEventPath>();
  return FillPath(*pPath, i_pArgs) ? pPath.release() : nullptr;
}

inline bool ZELSYPEventPathBuilder::FillPath(ZELSYPEventPath& io_path, ZELSYPEventArgs* i_pArgs)
{
  if (!ZELSYP_CHECK_POINTER(i_pArgs) ||
      !ZELSYP_CHECK_TRUE_DETAILS(i_pArgs->GetOrigin(), "Can't dispatch, Origin has not been set on the event arguments") ||
      !HasExpectedClass(*i_pArgs))
    return false;
  return AddStops(io_path, i_pArgs);
}

inline bool ZELSYPEventPathBuilder::AddStops(ZELSYPEventPath& io_path, ZELSYPEventArgs* i_pArgs)
{
  ZELSYPRecycledBlocks::Room<ZELBaseUnknown_var, 30> room;
  Nodes nodes;
  nodes.UseRoom(room);
  // Cannot fail: the second check, since a list that could be filled has a node.
  if (!ZELSYP_CHECK_TRUE(FillListOfNodes(nodes, i_pArgs)) || !ZELSYP_CHECK_TRUE(nodes.GetLength() >= 1))
    return false;
  return BuildElements(io_path, *i_pArgs, nodes);
}

int ZELSYPEventPathBuilder::IsHeard(ZELBaseUnknown* i_pOrigin, ZELSYPEvent* i_pEvent)
{
  if (!ZELSYP_CHECK_POINTER(i_pOrigin) || !ZELSYP_CHECK_POINTER(i_pEvent))
    return 0;
  ZELSYPEventArgs args(i_pEvent);
  args.SetOrigin(i_pOrigin);
  ZELSYPEventPath path;
  return AddStops(path, &args) && path.GetElementCount() > 0;
}

ZELSYPEventPathElt* ZELSYPEventPathBuilder::NO_ELEMENT()
{
  if (!s_pNoElement)
    s_pNoElement = new ZELSYPEventPathElt(ZELBaseUnknown_var::Adopt(new ZELBaseUnknown));
  return s_pNoElement;
}

int ZELSYPEventPathBuilder::FillListOfNodes(Nodes& io_list, ZELSYPEventArgs* i_pArgs)
{
  if (!ZELSYP_CHECK_TRUE(io_list.GetLength() == 0) || !ZELSYP_CHECK_POINTER(i_pArgs))
    return 0;
  ZELBaseUnknown* const spOrigin = i_pArgs->GetOrigin();
  const ZELSYPEvent* const pEvent = i_pArgs->GetEvent();
  if (!ZELSYP_CHECK_HANDLER(spOrigin) || !ZELSYP_CHECK_POINTER(pEvent))
    return 0;
  const ZELSYPEvent::Propagation propagation = pEvent->GetPropagation();
  if (propagation == ZELSYPEvent::NoPropagation)
    io_list.Append(ZELBaseUnknown_var(spOrigin));
  else if (IsKnown(propagation))
    AddChain(io_list, *i_pArgs, spOrigin);
  else
    return 0;
  if (propagation == ZELSYPEvent::RootToOrigin)
    std::reverse(io_list.begin(), io_list.end());
  return ZELSYP_CHECK_TRUE(io_list.GetLength() >= 1);
}

// A node that there is no memory for ends the chain, and leaves no part of it.
inline void ZELSYPEventPathBuilder::AddChain(Nodes& io_list, ZELSYPEventArgs& i_args, ZELBaseUnknown* i_pOrigin)
{
  for (ZELBaseUnknown* pNode = i_pOrigin; pNode; pNode = GetParent(&i_args, pNode))
    if (!io_list.Append(ZELBaseUnknown_var(pNode)))
      return io_list.RemoveAll();
}

bool ZELSYPEventPathBuilder::BuildElements(ZELSYPEventPath& io_path, ZELSYPEventArgs& io_args, Nodes& io_nodes)
{
  io_path.ReserveElements(io_nodes.GetLength());
  const ZELSYPEventPathElt* const pNoElement = NO_ELEMENT();
  ZELSYPRouteNode node(io_args._pRouteNode);
  for (ZELBaseUnknown_var& spNode : io_nodes)
  {
    if (!ZELSYP_CHECK_HANDLER(spNode))
      return false;
    node.ComeTo(spNode);
    ZELSYPEventPathElt* const pElt = BuildElement(&io_args, spNode.Get());
    if (!ZELSYP_CHECK_POINTER_DETAILS(pElt, "Implementation of BuildElement returned NULL"))
      return false;
    if (pElt != pNoElement)
      io_path.AddElement(pElt);
  }
  return true;
}
