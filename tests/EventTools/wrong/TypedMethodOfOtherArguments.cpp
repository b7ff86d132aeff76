#include "../EventWorld.h"
#include "ZELSYPTypedEvent.h"

class Panel
{
public:
  void OnOpened(ZELSYPEventArgs* i_pArgs);
  void OnScored(NumberArgs* i_pArgs);
};

auto Subscribe(const ZELSYPTypedEvent<ZELSYPEventArgs>& i_opened, Listener& io_listener, Panel& io_panel)
{
#ifdef OPX_WRONG
  return i_opened.Subscribe(io_listener, &io_panel, &Panel::OnScored);
#else
  return i_opened.Subscribe(io_listener, &io_panel, &Panel::OnOpened);
#endif
}
