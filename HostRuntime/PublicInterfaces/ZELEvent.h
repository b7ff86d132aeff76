// ZELEvent: a flag that threads wait for. It stays signalled until it is reset.
// std::unique_ptr<ZELEvent> done(CreateZELEvent(0)); ... done->Signal(); WaitForSingleEvent(done.get(), -1);
//
// Every operation may be called from any thread.
#ifndef ZELEvent_H
#define ZELEvent_H

#include "OPXHostRuntimeExport.h"

#include <condition_variable>
#include <mutex>

class OPXHOSTRUNTIME_EXPORT ZELEvent
{
public:
  explicit ZELEvent(bool i_signalled) : _signalled(i_signalled) {}
  ZELEvent(const ZELEvent&) = delete;
  ZELEvent& operator=(const ZELEvent&) = delete;
  ~ZELEvent();

  void Signal();
  void Reset();
  bool IsSignalled() const;
  // True when the event was signalled within i_milliseconds (-1: no limit).
  bool Wait(int i_milliseconds) const;

private:
  mutable std::mutex _lock;
  mutable std::condition_variable _changed;
  bool _signalled;
};

// A new event owned by the caller, signalled at first when i_signalled is not 0; null when the system has none to give.
OPXHOSTRUNTIME_EXPORT ZELEvent* CreateZELEvent(int i_signalled);
// 1 when the event was signalled within i_milliseconds (-1: no limit), 0 when the time ran out, -1 for a null event.
OPXHOSTRUNTIME_EXPORT int WaitForSingleEvent(const ZELEvent* i_pEvent, int i_milliseconds);

#endif
