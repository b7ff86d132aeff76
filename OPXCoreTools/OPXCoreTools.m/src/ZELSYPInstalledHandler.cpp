#include "ZELSYPInstalledHandler.h"

#include "ZELMutex.h"
#include "ZELSYPCheckFailureHandler.h"

#include <cstdint>
#include <cstdio>
#include <utility>

namespace
{
// Needs neither constructor nor destructor: checks that run in other libraries' late destructors still find it.
struct CheckState
{
  ZELMutex _lock{0, 1, 1};
  ZELSYPCheckFailureHandler* _pHandler = nullptr; // holds one reference
  std::int32_t _unloaded = 0;
};
CheckState state;

struct CleanUp
{
  ~CleanUp()
  {
    state._lock.Lock();
    ZELSYPCheckFailureHandler* pHandler = std::exchange(state._pHandler, nullptr);
    state._unloaded = 1;
    state._lock.Unlock();
    if (pHandler)
      pHandler->Release();
  }
};
// Built before every other static object of the library, hence destroyed after them all: their checks are reported.
__attribute__((init_priority(101))) const CleanUp cleanUp;
} // namespace

ZELSYPInstalledHandler::ZELSYPInstalledHandler(const char* i_file, int i_line)
{
  state._lock.Lock();
  if (!IsLoaded())
    std::fprintf(stderr, "** INTERNAL ERROR in %s %d, called after this linked library has been unloaded\n", i_file, i_line);
}

ZELSYPInstalledHandler::~ZELSYPInstalledHandler()
{
  state._lock.Unlock();
}

bool ZELSYPInstalledHandler::IsLoaded() const
{
  return state._unloaded == 0;
}

ZELSYPCheckFailureHandler* ZELSYPInstalledHandler::Get() const
{
  return state._pHandler;
}

ZELSYPCheckFailureHandler* ZELSYPInstalledHandler::Exchange(ZELSYPCheckFailureHandler* i_pHandler)
{
  return std::exchange(state._pHandler, i_pHandler);
}
