// AskedEarly: what the object model answers before main(), even before the records of this program are registered.
// ASSERT_TRUE(AskedEarly::First()); ASSERT_TRUE(AskedEarly::Last());
#ifndef AskedEarly_H
#define AskedEarly_H

#include "Kitchen.h"

namespace AskedEarly
{
inline bool IsRight()
{
  Mug mug;
  return mug.IsAKindOf(Thing::MetaObject()) && !mug.IsAKindOf(Washable::MetaObject()) &&
         !Thing::MetaObject()->IsAKindOf(mug.GetMetaObject()) && Cup::MetaObject()->GetBaseClass() == Thing::MetaObject() &&
         Mug::MetaObject()->IsAKindOf("ZELBaseUnknown");
}

// Asked by the source that is linked first, and by the one that is linked last.
bool First();
bool Last();
} // namespace AskedEarly

#endif
