// AllocationFailures: while it lives, memory asked for without exceptions is refused.
// { AllocationFailures refused; array.Append(1); }
//
// It replaces the global operators of the test program. Headers compiled into the program obey it everywhere; libraries
// do where the system resolves their operators in the program first (Linux), and not where each library brings its own
// (Windows). A sanitizer's runtime keeps its own operators. One thread at a time.
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

  // Whether this program's headers obey at all. Inline: asked where the tests are compiled, and not beside the operators,
  // where the compiler may take them although the linker takes others.
  static bool AreObeyed()
  {
    const int requests = s_requests;
    ::operator delete(::operator new(1, std::nothrow));
    return s_requests != requests;
  }
  static bool IsRefusing() noexcept { return s_refusing; }
  // How often memory was asked for in this way since the program started, refused or not.
  static int GetRequestCount() noexcept { return s_requests; }
  static void CountRequest() noexcept { ++s_requests; }

private:
  static bool s_refusing;
  static int s_requests;
};

#endif
