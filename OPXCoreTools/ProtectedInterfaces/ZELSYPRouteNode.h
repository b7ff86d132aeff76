// ZELSYPRouteNode: lends the reference that a route under construction holds on a node to the stop that is made for it.
// { ZELSYPRouteNode lender(spNode); pElt = new ZELSYPEventPathElt(lender); }     the reference is the stop's own now
//
// A stop that is destroyed while its lender is there gives the reference back, so that the node outlives whoever is asked
// for a stop. UI thread only.
#ifndef ZELSYPRouteNode_H
#define ZELSYPRouteNode_H

#include "ZELBaseUnknown_var.h"

#include <utility>

class ZELSYPRouteNode
{
public:
  explicit ZELSYPRouteNode(ZELBaseUnknown_var& io_spNode) : _spNode(io_spNode) {}
  ZELSYPRouteNode(const ZELSYPRouteNode&) = delete;
  ZELSYPRouteNode& operator=(const ZELSYPRouteNode&) = delete;
  ~ZELSYPRouteNode()
  {
    if (_ppLender)
      *_ppLender = nullptr;
  }

  // Whether there is a reference on this very node to lend.
  bool Has(const ZELBaseUnknown& i_node) const noexcept { return _spNode.Get() == &i_node; }
  ZELBaseUnknown_var Lend() noexcept { return std::move(_spNode); }
  // Where the borrower finds the lender: null again when the lender is no more.
  void ShowItselfIn(ZELSYPRouteNode*& o_pLender) noexcept
  {
    o_pLender = this;
    _ppLender = &o_pLender;
  }
  void TakeBack(ZELBaseUnknown_var& io_spNode) noexcept
  {
    _spNode = std::move(io_spNode);
    _ppLender = nullptr;
  }

private:
  ZELBaseUnknown_var& _spNode;
  ZELSYPRouteNode** _ppLender = nullptr;
};

#endif
