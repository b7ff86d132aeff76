// AllocationFailures: while it lives, memory asked for without exceptions is refused.
// { AllocationFailures refused; array.Append(1); }      or AllocationFailures refused(2): the first two requests are granted
//
// Everything that is linked into the test program obeys: the headers compiled into it, and the sources that it has a copy
// of (opx_wrap_heap). Other libraries go on as they were. One thread at a time.
#ifndef AllocationFailures_H
#define AllocationFailures_H

class AllocationFailures
{
public:
  explicit AllocationFailures(int i_granted = 0) noexcept
  {
    s_granted = i_granted;
    s_refusing = true;
  }
  ~AllocationFailures() { s_refusing = false; }
  AllocationFailures(const AllocationFailures&) = delete;
  AllocationFailures& operator=(const AllocationFailures&) = delete;

  // Asked once for each request.
  static bool IsRefusing() noexcept { return s_refusing && s_granted-- <= 0; }

private:
  static inline bool s_refusing = false;
  static inline int s_granted = 0;
};

#endif
