// The two events of these tests and the arguments of the second one.
// NumberArgs args(Counted(), 7); spHandler->Handle(nullptr, &args);
#ifndef EventArguments_H
#define EventArguments_H

#include "ZELSYPEventArgs.h"

// Arguments with one number.
class NumberArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;

public:
  explicit NumberArgs(ZELSYPEvent* i_pEvent, int i_number = 0) : ZELSYPEventArgs(i_pEvent), _number(i_number) {}
  int GetNumber() const { return _number; }

private:
  const int _number;
};

// From the origin to the root, with ZELSYPEventArgs.
ZELSYPEvent* Opened();
// From the root to the origin, with NumberArgs.
ZELSYPEvent* Counted();

#endif
