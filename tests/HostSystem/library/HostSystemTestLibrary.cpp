// What ZELGetFunctionAddress is asked for.
extern "C" int HostSystemTestAnswer();

int HostSystemTestAnswer()
{
  return 42;
}
