// AllocationFailures: while it lives, memory asked for without exceptions is refused.
// { AllocationFailures refused; array.Append(1); }
//
// Everything that is linked into the test program obeys: the headers compiled into it, and the host's hash table, which
// the program has a copy of. Other libraries go on as they were. One thread at a time.
#ifndef AllocationFailures_H
#define AllocationFailures_H

#include <new>

class AllocationFailures
{
public:
  AllocationFailures() noexcept { s_refusing = true; }
  ~AllocationFailures() { s_refusing = false; }
  AllocationFailures(const AllocationFailures&) = delete;
  AllocationFailures& operator=(const AllocationFailures&) = delete;

  static bool IsRefusing() noexcept { return s_refusing; }

private:
  static bool s_refusing;
};

#endif
