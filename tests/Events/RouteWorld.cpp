#include "RouteWorld.h"

ZELImplementClass(Widget, ZELBaseUnknown, EventsTests);
ZELImplementClass(Panel, Widget, EventsTests);
ZELImplementClass(Button, Panel, EventsTests);

int Widget::s_living = 0;
