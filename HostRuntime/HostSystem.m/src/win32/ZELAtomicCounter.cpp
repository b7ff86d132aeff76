#include "ZELAtomicCounter.h"

namespace
{
// The system starts threads of its own in any process, and tells nobody.
constexpr char SeveralThreads = 0;
} // namespace

const char* const ZELProcessHasOneThread = &SeveralThreads;
