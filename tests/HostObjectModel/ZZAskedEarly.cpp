#include "AskedEarly.h"

namespace
{
bool answer;
[[gnu::constructor(101)]] void Ask()
{
  answer = AskedEarly::IsRight();
}
} // namespace

bool AskedEarly::Last()
{
  return answer;
}
