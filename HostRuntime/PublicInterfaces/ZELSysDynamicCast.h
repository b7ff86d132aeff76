// ZELSysDynamicCast: an object as a kind of a class, or null.
// if (Part* pPart = ZELSysDynamicCast<Part>(pObject)) pPart->Move();
//
// No reference is added. Any thread. Nothing throws.
#ifndef ZELSysDynamicCast_H
#define ZELSysDynamicCast_H

#include "ZELBaseUnknown.h"

// i_pObject when it is a kind of i_pClass, else null; null for a null object or class.
inline ZELBaseUnknown* ZELSysDynamicCast(const ZELMetaClass* i_pClass, ZELBaseUnknown* i_pObject)
{
  return i_pObject && i_pObject->IsAKindOf(i_pClass) ? i_pObject : nullptr;
}
// The same for T, which must have a record of its own.
template <class T>
T* ZELSysDynamicCast(ZELBaseUnknown* i_pObject)
{
  static_assert(ZELHasRecord_<T>, "the class that is asked for is not declared with ZELDeclareClass");
  return static_cast<T*>(ZELSysDynamicCast(T::MetaObject(), i_pObject));
}

#endif
