#include "ZELSYPFailurePanel.h"

#include "ZELGetFunctionAddress.h"
#include "ZELMutex.h"

#include <cstdint>
#include <mutex>
#include <new>

namespace
{
ZELMutex panelLock{0, 1, 0};
std::int32_t lookedUp = 0;
ZELSYPFailurePanel::Entry entry = nullptr;
// The panel's library may fail checks of its own while it is loaded: there is no panel for those.
thread_local bool lookingUp = false;

// Without memory to look it up there is no panel.
ZELFunctionAddress FindAddress()
{
  try
  {
    return ZELGetFunctionAddress("ZELSYPShowFailurePanelIfNeeded", "VisuDialog", nullptr, -1, 1, 0);
  }
  catch (const std::bad_alloc&)
  {
    return nullptr;
  }
}

ZELSYPFailurePanel::Entry LookUp()
{
  lookingUp = true;
  const ZELFunctionAddress address = FindAddress();
  lookingUp = false;
  return reinterpret_cast<ZELSYPFailurePanel::Entry>(address);
}
} // namespace

ZELSYPFailurePanel::Entry ZELSYPFailurePanel::GetEntry()
{
  if (lookingUp)
    return nullptr;
  std::lock_guard<ZELMutex> hold(panelLock);
  if (!lookedUp)
  {
    lookedUp = 1;
    entry = LookUp();
  }
  return entry;
}
