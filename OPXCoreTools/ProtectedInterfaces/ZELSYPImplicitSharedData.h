// ZELSYPImplicitSharedData: a payload that several handles share until one of them writes.
// _pData = static_cast<Data*>(_pData->CloneIfShared()); _pData->_items.Append(pItem);
//
// A handle attaches when it is copied and detaches when it lets go; the last Detach deletes the payload. One thread at a
// time for all handles of one payload.
#ifndef ZELSYPImplicitSharedData_H
#define ZELSYPImplicitSharedData_H

#include "OPXCoreToolsExport.h"

#include <cstdint>

class OPXCORETOOLS_EXPORT ZELSYPImplicitSharedData
{
public:
  virtual ~ZELSYPImplicitSharedData();
  // A new payload with the same content, owned by the caller, who holds its only reference.
  virtual ZELSYPImplicitSharedData* Clone() = 0;

  // One reference more.
  void Attach() noexcept { ++_refcount; }
  // Gives a reference back; the last one deletes the payload. Without a reference to give back: "_refcount>0", and
  // nothing is deleted.
  void Detach()
  {
    if (__builtin_expect(_refcount > 1, true))
      --_refcount;
    else
      DetachLast();
  }
  // What the caller may write to in place of its reference: this payload when the caller holds its only reference, else
  // a clone, the caller's reference being given back. Without a reference: "_refcount>0", and this payload.
  ZELSYPImplicitSharedData* CloneIfShared();

protected:
  ZELSYPImplicitSharedData() = default;
  // Kept: a copy takes _refcount along with the other members; a Clone that copies sets the copy's _refcount to 1.
  ZELSYPImplicitSharedData(const ZELSYPImplicitSharedData&) = default;
  ZELSYPImplicitSharedData& operator=(const ZELSYPImplicitSharedData&) = default;

  std::int32_t _refcount = 1;

private:
  void DetachLast();
  bool HasReference() const;
};

#endif
