#include "ZELAtomicCounter.h"

#include <sys/single_threaded.h>

const char* const ZELProcessHasOneThread = &__libc_single_threaded;
