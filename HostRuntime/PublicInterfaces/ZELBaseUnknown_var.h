// ZELBaseUnknown_var: a handle that holds one reference on any object; NULL_var is the null handle of every class.
// ZELBaseUnknown_var node = NULL_var; node = pParent; if (node) node->IsA();
#ifndef ZELBaseUnknown_var_H
#define ZELBaseUnknown_var_H

#include "ZELHandle.h"

using ZELBaseUnknown_var = ZELHandle<ZELBaseUnknown>;

inline constexpr std::nullptr_t NULL_var = nullptr;

#endif
