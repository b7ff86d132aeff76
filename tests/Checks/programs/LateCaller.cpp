// A library with a static object that makes a last call when it goes away.
namespace
{
struct LastCall
{
  ~LastCall()
  {
    if (_call)
      _call();
  }
  void (*_call)() = nullptr;
};
LastCall lastCall;
} // namespace

extern "C" void CallAtTheEnd(void (*i_call)())
{
  lastCall._call = i_call;
}
