#include "ZELSYPRefCounted.h"

ZELSYPRefCounted::~ZELSYPRefCounted() = default;
