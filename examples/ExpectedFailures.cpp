// Counts failed checks instead of being stopped by them: the way a test of one's own proves that a precondition is kept.
#include "ZELSYPCheck.h"
#include "ZELSYPCheckFailureHandler.h"
#include "ZELSYPCheckFailureHandlerSetter.h"

#include <cstdio>

class Counter : public ZELSYPCheckFailureHandler
{
public:
  void HandleFailure(const char* i_message, const char*, int, const char*) override
  {
    ++_failures;
    std::printf("expected: %s\n", i_message);
  }
  int GetFailures() const { return _failures; }

private:
  int _failures = 0;
};

class Installer : public ZELSYPCheckFailureHandlerSetter
{
public:
  using ZELSYPCheckFailureHandlerSetter::SetFailureHandler;
};

static int LengthOf(const char* i_pText)
{
  if (!ZELSYP_CHECK_POINTER(i_pText))
    return -1;
  int length = 0;
  while (i_pText[length])
    ++length;
  return length;
}

int main()
{
  Counter* pCounter = new Counter;
  Installer::SetFailureHandler(pCounter);
  const bool kept = LengthOf("four") == 4 && LengthOf(nullptr) == -1;
  Installer::SetFailureHandler(nullptr);
  const int failures = pCounter->GetFailures();
  pCounter->Release();
  return kept && failures == 1 ? 0 : 1;
}
