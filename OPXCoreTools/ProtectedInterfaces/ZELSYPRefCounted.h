// ZELSYPRefCounted: the base of objects that live as long as someone holds a reference, on whatever thread.
// class Job : public ZELSYPRefCounted { ... }; Job* pJob = new Job; pJob->AddRef(); ... pJob->Release();
#ifndef ZELSYPRefCounted_H
#define ZELSYPRefCounted_H

#include "OPXCoreToolsExport.h"
#include "ZELAtomicCounter.h"

class OPXCORETOOLS_EXPORT ZELSYPRefCounted
{
public:
  ZELSYPRefCounted(const ZELSYPRefCounted&) = delete;
  ZELSYPRefCounted& operator=(const ZELSYPRefCounted&) = delete;

  // One reference more. Any thread that holds one.
  void AddRef() noexcept { _count.Increment(); }
  // Gives a reference back; the last one deletes the object, on the thread that gives it back.
  void Release()
  {
    if (_count.DecrementToZero())
      delete this;
  }

protected:
  // The creator holds the first reference.
  ZELSYPRefCounted() noexcept = default;
  virtual ~ZELSYPRefCounted();

private:
  ZELAtomicCounter _count{1};
};

#endif
