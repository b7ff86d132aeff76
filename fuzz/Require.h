// Require: what must hold for every input; what does not is told, and ends the program as a crash would.
// Require(record.GetJSON().is_object(), "a record is an object");
#ifndef Require_H
#define Require_H

#include <cstdio>
#include <cstdlib>

inline void Require(bool i_holds, const char* i_what)
{
  if (i_holds)
    return;
  std::fprintf(stderr, "broken: %s\n", i_what);
  std::abort();
}

#endif
