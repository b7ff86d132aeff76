#include "EventsCases.h"

#include <malloc.h>

// Large blocks are mapped one by one and counted apart.
long GetAllocatedBytes()
{
  const auto info = mallinfo2();
  return static_cast<long>(info.uordblks + info.hblkhd);
}

void AnnounceMissing(const char* i_peer)
{
  benchmark::AddCustomContext(i_peer, "not on this machine, not measured");
}

void RegisterEvents(const std::string& i_state)
{
  RegisterProject(i_state);
  RegisterHandWritten(i_state);
  RegisterSignals2(i_state);
  RegisterQt(i_state);
  RegisterSigc(i_state);
  RegisterGSignal(i_state);
}
