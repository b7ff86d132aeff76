#include "../EventWorld.h"
#include "ZELSYPMakeMemberHandler.h"

class Panel
{
public:
#ifdef OPX_WRONG
  void OnOpened();
#else
  void OnOpened(ZELSYPEventArgs* i_pArgs);
#endif
};

auto MakePanelHandler(Panel& io_panel)
{
  return ZELSYPMakeMemberHandler(&io_panel, &Panel::OnOpened);
}
