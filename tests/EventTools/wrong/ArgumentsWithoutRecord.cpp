#include "../EventWorld.h"

// Without a record of its own it would be taken for NumberArgs, and NumberArgs for it.
class LetterArgs : public NumberArgs
{
#ifndef OPX_WRONG
  ZELDeclareClass;
#endif
public:
  using NumberArgs::NumberArgs;
};

auto MakeLetterHandler()
{
  return ZELSYPMakeHandler<LetterArgs>([](LetterArgs*) {});
}
