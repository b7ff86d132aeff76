#include "ZELEvent.h"

#include <chrono>
#include <new>

ZELEvent::~ZELEvent() = default;

void ZELEvent::Signal()
{
  // Waiters are told under the lock: a waiter may destroy the event as soon as it has the lock back.
  const std::lock_guard<std::mutex> hold(_lock);
  _signalled = true;
  _changed.notify_all();
}

void ZELEvent::Reset()
{
  const std::lock_guard<std::mutex> hold(_lock);
  _signalled = false;
}

bool ZELEvent::IsSignalled() const
{
  const std::lock_guard<std::mutex> hold(_lock);
  return _signalled;
}

bool ZELEvent::Wait(int i_milliseconds) const
{
  std::unique_lock<std::mutex> hold(_lock);
  const auto signalled = [this] { return _signalled; };
  if (i_milliseconds >= 0)
    return _changed.wait_for(hold, std::chrono::milliseconds(i_milliseconds), signalled);
  _changed.wait(hold, signalled);
  return true;
}

ZELEvent* CreateZELEvent(int i_signalled)
{
  return new (std::nothrow) ZELEvent(i_signalled != 0);
}

int WaitForSingleEvent(const ZELEvent* i_pEvent, int i_milliseconds)
{
  if (!i_pEvent)
    return -1;
  return i_pEvent->Wait(i_milliseconds) ? 1 : 0;
}
