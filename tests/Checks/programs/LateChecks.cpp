// late_checks ENTRY: calls an entry point of the checks from a static object that outlives the library of the checks.
// The object's library is loaded before the other one, so it goes away after it.
#include "ZELGetFunctionAddress.h"

int main(int, char** i_arguments)
{
  typedef void (*CallAtTheEnd)(ZELFunctionAddress);
  const auto callAtTheEnd = reinterpret_cast<CallAtTheEnd>(ZELGetFunctionAddress("CallAtTheEnd", "LateCaller", nullptr, -1, 1, 1));
  const ZELFunctionAddress entry = ZELGetFunctionAddress(i_arguments[1], "CheckEntries", nullptr, -1, 1, 1);
  if (!callAtTheEnd || !entry)
    return 1;
  callAtTheEnd(entry);
  return 0;
}
