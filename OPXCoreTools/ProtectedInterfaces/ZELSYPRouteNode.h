// ZELSYPRouteNode: the node that a route under construction has come to, whose reference it lends to the stop made for it.
// ZELSYPRouteNode node(args._pRouteNode); for (spNode : nodes) { node.ComeTo(spNode); pElt = BuildElement(&args, spNode); }
//
// A stop that is destroyed before the route comes to the next node gives the reference back, so that the node outlives
// whoever is asked for a stop; one that is still there then keeps it. UI thread only.
#ifndef ZELSYPRouteNode_H
#define ZELSYPRouteNode_H

#include "ZELBaseUnknown_var.h"

#include <utility>

class ZELSYPRouteNode
{
public:
  // Stands in io_pShown until it is destroyed, and then what stood there before: whoever is asked for a stop may build
  // another route with the same arguments.
  explicit ZELSYPRouteNode(ZELSYPRouteNode*& io_pShown) noexcept : _pShown(io_pShown), _pBefore(std::exchange(io_pShown, this)) {}
  ZELSYPRouteNode(const ZELSYPRouteNode&) = delete;
  ZELSYPRouteNode& operator=(const ZELSYPRouteNode&) = delete;
  ~ZELSYPRouteNode()
  {
    LeaveToBorrower();
    _pShown = _pBefore;
  }

  void ComeTo(ZELBaseUnknown_var& io_spNode) noexcept
  {
    LeaveToBorrower();
    _pspNode = &io_spNode;
  }
  // Whether there is a reference on this very node to lend.
  bool Has(const ZELBaseUnknown& i_node) const noexcept { return _pspNode->Get() == &i_node; }
  ZELBaseUnknown_var Lend() noexcept { return std::move(*_pspNode); }
  // Where the borrower finds the lender: null again when the reference is its own.
  void ShowItselfIn(ZELSYPRouteNode*& o_pLender) noexcept
  {
    o_pLender = this;
    _ppLender = &o_pLender;
  }
  void TakeBack(ZELBaseUnknown_var& io_spNode) noexcept
  {
    *_pspNode = std::move(io_spNode);
    _ppLender = nullptr;
  }

private:
  void LeaveToBorrower() noexcept
  {
    if (_ppLender)
      *std::exchange(_ppLender, nullptr) = nullptr;
  }

  ZELSYPRouteNode*& _pShown;
  ZELSYPRouteNode* const _pBefore;
  ZELBaseUnknown_var* _pspNode = nullptr;
  ZELSYPRouteNode** _ppLender = nullptr;
};

#endif
