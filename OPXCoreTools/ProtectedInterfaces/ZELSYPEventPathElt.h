// ZELSYPEventPathElt: one stop of a route: a node, and snapshots of the handler lists that apply to it.
// auto* pElt = new ZELSYPEventPathElt(spNode); pElt->AddList(support.GetHandlersList(pEvent)); path.AddElement(pElt);
//
// It holds a reference on the node and, through the lists, on the handlers. Its memory is recycled, so that a dispatch
// takes none from the heap once another one was as long. UI thread only.
#ifndef ZELSYPEventPathElt_H
#define ZELSYPEventPathElt_H

#include "OPXCoreToolsExport.h"
#include "ZELBaseUnknown_var.h"
#include "ZELSYPArray.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEventHandlerInfoList.h"
#include "ZELSYPRecycledBlocks.h"
#include "ZELSYPRouteNode.h"

#include <cstddef>
#include <new>
#include <utility>

class ZELSYPEventArgs;
class ZELSYPEventHandler;

class OPXCORETOOLS_EXPORT ZELSYPEventPathElt
{
public:
  // No node: "i_spNode"; the stop is there, and runs nothing.
  explicit ZELSYPEventPathElt(ZELBaseUnknown_var i_spNode) : _spNode(std::move(i_spNode))
  {
    _lists.UseRoom(_room);
    CheckNode();
  }
  // Borrows the reference on the node.
  explicit ZELSYPEventPathElt(ZELSYPRouteNode& io_lender) : _spNode(io_lender.Lend())
  {
    _lists.UseRoom(_room);
    io_lender.ShowItselfIn(_pLender);
  }
  ZELSYPEventPathElt(const ZELSYPEventPathElt&) = delete;
  ZELSYPEventPathElt& operator=(const ZELSYPEventPathElt&) = delete;
  virtual ~ZELSYPEventPathElt()
  {
    if (__builtin_expect(_pLender != nullptr, false))
      _pLender->TakeBack(_spNode);
  }

  // Puts a snapshot of the list at the end.
  void AddList(const ZELSYPEventHandlerInfoList& i_list) { _lists.Append(i_list); }
  void AddList(ZELSYPEventHandlerInfoList&& i_list) { _lists.Append(std::move(i_list)); }
  // Runs the handlers, list by list and in each in the order of registration; those of consumed arguments only that asked
  // for them, which is looked at before each one. No node ("_spNode") or no arguments ("i_pArgs"): nothing runs. A
  // registration that is null ("pInfo") or has no handler ("pHandler") ends this stop. What a handler throws goes through.
  void Dispatch(ZELSYPEventArgs* i_pArgs) const;

  // What the stop is made of. The node is borrowed.
  ZELBaseUnknown* GetNode() const noexcept { return _spNode.Get(); }
  int GetListCount() const noexcept { return _lists.GetLength(); }
  // Of an index that has no list: what an array says, and an empty list.
  const ZELSYPEventHandlerInfoList& GetList(int i_index) const { return _lists[i_index]; }

  static void* operator new(std::size_t i_bytes)
  {
    if (void* const pMemory = ZELSYPRecycledBlocks::Take(i_bytes))
      return pMemory;
    throw std::bad_alloc();
  }
  static void operator delete(void* i_pMemory) noexcept { ZELSYPRecycledBlocks::GiveBack(i_pMemory); }

private:
  void CheckNode() const { ZELSYP_CHECK_REPORT(_spNode, Check_Handler_Failed__, "i_spNode", __LINE__, nullptr); }
  bool RunList(int i_list, ZELSYPEventArgs& io_args) const;
  [[gnu::cold]] void RunObserved(int i_list, int i_index, ZELSYPEventHandlerInfo& i_info, ZELSYPEventArgs& io_args) const;

  ZELBaseUnknown_var _spNode;
  ZELSYPArray<ZELSYPEventHandlerInfoList, ZELSYPRecycledBlocks> _lists;
  ZELSYPRouteNode* _pLender = nullptr;
  // For the list of the node's class and its own.
  ZELSYPRecycledBlocks::Room<ZELSYPEventHandlerInfoList, 2> _room;
};

#endif
