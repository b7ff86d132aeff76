#include "ZELSYPImplicitSharedData.h"

#include "ZELSYPCheck.h"

ZELSYPImplicitSharedData::~ZELSYPImplicitSharedData() = default;

void ZELSYPImplicitSharedData::DetachLast()
{
  if (HasReference() && --_refcount == 0)
    delete this;
}

ZELSYPImplicitSharedData* ZELSYPImplicitSharedData::CloneIfShared()
{
  if (!HasReference() || _refcount == 1)
    return this;
  --_refcount;
  return Clone();
}

bool ZELSYPImplicitSharedData::HasReference() const
{
  return ZELSYP_CHECK_REPORT(_refcount > 0, Check_TRUE_Failed__, "_refcount>0", __LINE__, nullptr);
}
